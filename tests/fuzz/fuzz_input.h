#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace tetrad::fuzz {

/// Reads an input from its start as numbers and texts; past its end there are zeros and empty texts.
/// A text of one input byte per character is what a fuzzer can shape best.
class Input
{
public:
    Input(const uint8_t *data, size_t size) : m_rest(data, static_cast<qsizetype>(size)) {}

    bool isEmpty() const { return m_rest.isEmpty(); }

    template <typename Number>
    Number number()
    {
        Number value = {};
        const QByteArrayView bytes = take(sizeof value);
        std::memcpy(&value, bytes.data(), static_cast<size_t>(bytes.size()));
        return value;
    }

    quint8 byte() { return number<quint8>(); }

    /// 0 to below the bound.
    int below(int bound) { return byte() % bound; }

    /// At most 255 bytes, their number first.
    QByteArrayView bytes()
    {
        const quint8 size = byte();
        return take(size);
    }

    /// The bytes up to the next one that separates, or all; bytes above 127 spell UTF-8.
    QString textUntil(char separator)
    {
        const qsizetype end = m_rest.indexOf(separator);
        const QString text = QString::fromUtf8(take(end < 0 ? m_rest.size() : end));
        take(1);
        return text;
    }

    QString rest() { return textUntil('\0'); }

    /// Any UTF-16 units whatever, halves of pairs included; two bytes each.
    QString units(int count)
    {
        QString text;
        for (int i = 0; i < count && !isEmpty(); ++i) {
            text += QChar(number<char16_t>());
        }
        return text;
    }

private:
    QByteArrayView take(qsizetype size)
    {
        const QByteArrayView taken = m_rest.first(qMin(size, m_rest.size()));
        m_rest = m_rest.sliced(taken.size());
        return taken;
    }

    QByteArrayView m_rest;
};

/// Ends the run, and with it tells the fuzzer that this input is a finding.
inline void require(bool holds, const char *what, const QString &input = QString())
{
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s, for \"%s\"\n", what, qUtf8Printable(input.left(1000)));
        std::abort();
    }
}

} // namespace tetrad::fuzz
