#include <tetrad/strings/text_format.h>

#include "runtime/strings/description.h"
#include "runtime/strings/format_directive.h"
#include "runtime/strings/format_number.h"
#include "runtime/strings/saturate.h"
#include <tetrad/strings/mac_roman.h>
#include <tetrad/strings/numbers.h>

#include <algorithm>
#include <cmath>
#include <span>

namespace tetrad {

namespace {

bool isUnsigned(const QVariant &value)
{
    const int type = value.typeId();
    return type == QMetaType::ULongLong || type == QMetaType::ULong || type == QMetaType::UInt;
}

bool isFloating(const QVariant &value)
{
    return value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
}

/// The argument as the 64 bits printf would take it for.
quint64 bitsOf(const QVariant &value, const FormatDirective &directive)
{
    const bool isSigned = directive.conversion == 'd' || directive.conversion == 'i';
    if (isFloating(value)) {
        const double number = value.toDouble();
        if (directive.bits == 32) {
            return isSigned ? quint64(saturatedTo<qint32>(number)) : saturatedTo<quint32>(number);
        }
        return isSigned ? quint64(saturatedTo<qint64>(number)) : saturatedTo<quint64>(number);
    }
    if (value.typeId() == QMetaType::QString) {
        return quint64(StringIntegerValue(value.toString()));
    }
    if (value.typeId() == QMetaType::VoidStar) {
        return quintptr(value.value<void *>());
    }
    return isUnsigned(value) ? value.toULongLong() : quint64(value.toLongLong());
}

/// One run over a format text and its arguments.
class TextFormatter
{
public:
    explicit TextFormatter(std::span<const FormatArgument> arguments) : m_arguments(arguments) {}

    QString format(QStringView rest)
    {
        while (!rest.isEmpty()) {
            const qsizetype percent = rest.indexOf(u'%');
            if (percent < 0) {
                break;
            }
            m_out += rest.first(percent);
            rest = rest.sliced(percent);
            const auto directive = parseDirective(rest);
            if (directive) {
                print(*directive);
            } else {
                m_out += u'%';
            }
            rest = rest.sliced(directive ? directive->length : 1);
        }
        return m_out + rest;
    }

private:
    /// The argument at a place from 1, or for place 0 the next one; none if there are not that many.
    QVariant argumentAt(int place)
    {
        const std::size_t index = place > 0 ? static_cast<std::size_t>(place) - 1 : m_next++;
        return index < m_arguments.size() ? m_arguments[index].value() : QVariant();
    }

    int numberOf(const DirectiveNumber &number, int absent)
    {
        switch (number.source) {
        case DirectiveNumber::Source::Written:
            return number.value;
        case DirectiveNumber::Source::Argument: {
            const double value = ZRDblVal(argumentAt(number.value));
            return static_cast<int>(
                std::clamp<double>(std::isnan(value) ? 0 : value, -largestDirectiveNumber, largestDirectiveNumber));
        }
        default:
            return absent;
        }
    }

    NumberStyle styleOf(const FormatDirective &directive)
    {
        const int width = numberOf(directive.width, 0);
        const int precision = numberOf(directive.precision, -1);
        // A negative width from an argument means left-adjusted, a negative precision none.
        return {.leftAdjusted = directive.leftAdjusted || width < 0,
                .plusSign = directive.plusSign,
                .blankSign = directive.blankSign,
                .alternate = directive.alternate,
                .zeroPadded = directive.zeroPadded,
                .width = std::abs(width),
                .precision = std::max(precision, -1),
                .conversion = directive.conversion};
    }

    void print(const FormatDirective &directive)
    {
        if (directive.conversion == '%') {
            m_out += u'%';
            return;
        }
        const NumberStyle style = styleOf(directive);
        const QVariant value = argumentAt(directive.argument);
        switch (directive.conversion) {
        case 'd':
        case 'i':
        case 'u':
        case 'o':
        case 'x':
        case 'X':
            m_out += integer(style, bitsOf(value, directive), directive.bits);
            break;
        case '@':
        case 's':
        case 'S':
            m_out += text(style, value);
            break;
        case 'c':
        case 'C':
            m_out += padded(style, character(directive, value));
            break;
        case 'p':
            m_out += padded(style, u"0x" + QString::number(bitsOf(value, directive), 16));
            break;
        case 'n': // Takes its argument and writes nothing, neither here nor there.
            break;
        default:
            m_out += printDouble(style, ZRDblVal(value));
        }
    }

    static QString integer(const NumberStyle &style, quint64 value, int bits)
    {
        const int unused = 64 - bits;
        if (style.conversion != 'd' && style.conversion != 'i') {
            return printInteger(style, (value << unused) >> unused, false);
        }
        const qint64 number = static_cast<qint64>(value << unused) >> unused;
        return printInteger(style, number < 0 ? 0 - static_cast<quint64>(number) : static_cast<quint64>(number),
                            number < 0);
    }

    /// The precision counts characters, which for the bytes of "%s" are bytes; a zero byte ends those.
    static QString text(const NumberStyle &style, const QVariant &value)
    {
        QString whole;
        if (value.typeId() == QMetaType::QByteArray && !value.toByteArray().isNull()) {
            const QByteArray bytes = value.toByteArray();
            const qsizetype zero = bytes.indexOf('\0');
            whole = fromMacRoman(zero < 0 ? bytes : bytes.first(zero));
        } else {
            whole = descriptionOf(value);
        }
        return padded(style, style.precision < 0 ? whole : whole.left(style.precision));
    }

    static QString character(const FormatDirective &directive, const QVariant &value)
    {
        if (value.typeId() == QMetaType::QString) {
            return value.toString().left(1);
        }
        const quint64 code = bitsOf(value, directive);
        const char byte = static_cast<char>(code);
        const bool wide = directive.conversion == 'C' || directive.bits == 64;
        return wide ? QString(QChar(static_cast<char16_t>(code))) : fromMacRoman(QByteArrayView(&byte, 1));
    }

    std::span<const FormatArgument> m_arguments;
    std::size_t m_next = 0;
    QString m_out;
};

} // namespace

QString formatText(const QString &format, std::initializer_list<FormatArgument> arguments)
{
    return TextFormatter(std::span(arguments.begin(), arguments.size())).format(format);
}

} // namespace tetrad
