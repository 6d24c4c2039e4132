#pragma once

// Implemented in runtime/strings/text_format.cpp

#include <QObject>
#include <QString>
#include <QVariant>

#include <initializer_list>
#include <type_traits>

namespace tetrad {

/// One argument of a formatted text: a number, a text, an object, an address, or anything in a QVariant. Narrow texts
/// are UTF-8, as the format is.
class FormatArgument
{
public:
    FormatArgument(const QVariant &value) : m_value(value) {}
    FormatArgument(const QString &text) : m_value(text) {}
    FormatArgument(const char16_t *text) : m_value(QString::fromUtf16(text)) {}
    FormatArgument(const char *text) : m_value(QString::fromUtf8(text)) {}
    FormatArgument(const QByteArray &text) : m_value(QString::fromUtf8(text)) {}
    FormatArgument(const QObject *object) : m_value(QVariant::fromValue(const_cast<QObject *>(object))) {}
    FormatArgument(const void *address) : m_value(QVariant::fromValue(const_cast<void *>(address))) {}
    template <typename Number>
    requires std::is_arithmetic_v<Number> FormatArgument(Number number) : m_value(widest(number)) {}

    const QVariant &value() const { return m_value; }

private:
    template <typename Number>
    static QVariant widest(Number number)
    {
        if constexpr (std::is_same_v<Number, float>) {
            return number; // A float's shortest form differs from that of the double it becomes.
        } else if constexpr (std::is_floating_point_v<Number>) {
            return static_cast<double>(number);
        } else if constexpr (std::is_signed_v<Number>) {
            return static_cast<qlonglong>(number);
        } else {
            return static_cast<qulonglong>(number);
        }
    }

    QVariant m_value;
};

/// Formats by printf conventions in the C locale, "%1$d" positions included; "%@" prints a text or any object's
/// description. An integer is cut to the directive's size (32 bits, or by hh, h, l, ll, q, j, z, t), a double given for
/// one saturates, a text given for a number is read as its value. The precision of a text counts UTF-16 units. A
/// missing argument is 0 or "(null)"; a malformed directive stays in the text as it is. Widths and precisions end at
/// 10000.
QString formatText(const QString &format, std::initializer_list<FormatArgument> arguments);

template <typename... Args>
QString StringWithFormat(const QString &format, const Args &...args)
{
    return formatText(format, {FormatArgument(args)...});
}

} // namespace tetrad
