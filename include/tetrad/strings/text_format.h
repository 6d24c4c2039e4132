#pragma once

#include <QString>
#include <QVariant>

#include <initializer_list>
#include <type_traits>

namespace tetrad {

/// One argument of a formatted text: a number, a text, a C string, an address, or any object in a
/// QVariant. C strings are Mac Roman, as length-prefixed strings are.
class FormatArgument
{
public:
    FormatArgument(const QVariant &value) : m_value(value) {}
    FormatArgument(const QString &text) : m_value(text) {}
    FormatArgument(const char *bytes) : m_value(QByteArray(bytes)) {}
    FormatArgument(const QByteArray &bytes) : m_value(bytes) {}
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

/// Formats by printf conventions in the C locale, "%1$d" positions included, "%@" standing for a text
/// or any object's description. An integer is cut to the directive's size (32 bits, or by hh, h, l, ll,
/// q, j, z, t), a double given for one saturates, a text given for a number is read as its value. A
/// missing argument is 0 or "(null)"; what is no directive stays in the text as it is. Widths and
/// precisions end at 10000.
QString formatText(const QString &format, std::initializer_list<FormatArgument> arguments);

template <typename... Args>
QString StringWithFormat(const QString &format, const Args &...args)
{
    return formatText(format, {FormatArgument(args)...});
}

} // namespace tetrad
