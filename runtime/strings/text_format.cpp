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

// The argument as the 64 bits that printf would read.
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
    if (value.metaType().flags() & QMetaType::PointerToQObject) {
        return quintptr(value.value<QObject *>());
    }
    if (value.typeId() == QMetaType::VoidStar) {
        return quintptr(value.value<void *>());
    }
    return isUnsigned(value) ? value.toULongLong() : quint64(value.toLongLong());
}

// One run over a format text and its arguments.
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
    // The argument at a position from 1, or the next one for 0; null beyond the last.
    QVariant argumentAt(int position)
    {
        const std::size_t index = position > 0 ? static_cast<std::size_t>(position) - 1 : m_next++;
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

    void print(const FormatDirective &directive)
    {
        if (directive.conversion == '%') {
            m_out += u'%';
            return;
        }
        int width = numberOf(directive.width, 0);
        const int precision = numberOf(directive.precision, -1);
        const QVariant value = argumentAt(directive.argument);
        if (width < 0 || directive.flags.contains('-')) {
            width = -std::abs(width);
        }
        switch (directive.conversion) {
        case 'd':
        case 'i':
        case 'u':
        case 'o':
        case 'x':
        case 'X':
            m_out += printNumber('%' + directive.flags + "*.*ll" + directive.conversion, width, precision,
                                 cutToSize(bitsOf(value, directive), directive));
            break;
        case '@':
        case 's':
        case 'S': {
            const QString text = descriptionOf(value);
            m_out += padded(precision < 0 ? text : text.left(precision), width);
            break;
        }
        case 'c':
        case 'C':
            m_out += padded(character(directive, value), width);
            break;
        case 'p':
            m_out += padded(u"0x" + QString::number(bitsOf(value, directive), 16), width);
            break;
        case 'n': // Takes its argument and deliberately writes nowhere.
            break;
        default:
            m_out +=
                printNumber('%' + directive.flags + "*.*" + directive.conversion, width, precision, ZRDblVal(value));
        }
    }

    // A negative width means left-adjusted, as for printf.
    static QString padded(const QString &text, int width)
    {
        return width < 0 ? text.leftJustified(-width) : text.rightJustified(width);
    }

    static quint64 cutToSize(quint64 value, const FormatDirective &directive)
    {
        const int unused = 64 - directive.bits;
        const bool isSigned = directive.conversion == 'd' || directive.conversion == 'i';
        return isSigned ? quint64(static_cast<qint64>(value << unused) >> unused) : (value << unused) >> unused;
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
