#pragma once

#include <QString>
#include <QVariant>

#include <initializer_list>

namespace tetrad
{

/// One argument of a formatted text: a number, a text, a C string, or any object in a QVariant.
class FormatArgument
{
public:
    FormatArgument(const QVariant &value) : m_value(value) {}
    FormatArgument(const QString &text) : m_value(text) {}
    FormatArgument(const char *bytes) : m_value(QByteArray(bytes)) {}
    FormatArgument(const QByteArray &bytes) : m_value(bytes) {}
    template <typename Number>
        requires std::is_arithmetic_v<Number>
    FormatArgument(Number number) : m_value(number)
    {
    }

    const QVariant &value() const { return m_value; }

private:
    QVariant m_value;
};

/// Formats by printf conventions, "%@" standing for a text or any object's description. Independent
/// of the locale.
QString formatText(const QString &format, std::initializer_list<FormatArgument> arguments);

template <typename... Args>
QString StringWithFormat(const QString &format, const Args &...args)
{
    return formatText(format, {FormatArgument(args)...});
}

} // namespace tetrad
