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

    /// At most so many bytes.
    QByteArrayView bytes(qsizetype count)
    {
        const QByteArrayView taken = m_rest.first(qMin(count, m_rest.size()));
        m_rest = m_rest.sliced(taken.size());
        return taken;
    }

    template <typename Number>
    Number number()
    {
        Number value = {};
        const QByteArrayView taken = bytes(sizeof value);
        std::memcpy(&value, taken.data(), static_cast<size_t>(taken.size()));
        return value;
    }

    quint8 byte() { return number<quint8>(); }

    /// 0 to below the bound, which is at most 256.
    int below(qsizetype bound) { return static_cast<int>(byte() % bound); }

    /// The bytes up to the next one that separates, or all; bytes above 127 spell UTF-8.
    QString textUntil(char separator)
    {
        const qsizetype end = m_rest.indexOf(separator);
        const QString text = QString::fromUtf8(bytes(end < 0 ? m_rest.size() : end));
        bytes(1);
        return text;
    }

private:
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
