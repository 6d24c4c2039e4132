#include <tetrad/strings/text_format.h>

#include "runtime/strings/description.h"
#include "runtime/strings/saturate.h"
#include <tetrad/strings/mac_roman.h>
#include <tetrad/strings/numbers.h>

#include <QRegularExpression>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <span>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

// Limits a width or precision to what memory has room for; no screen shows as much.
constexpr int largestWidth = 10000;

// One directive of a format text, such as "%-8.3f" or "%2$@". Size of an integer argument: 8, 16, 32 or 64 bits.
struct Directive
{
    QByteArray flags;
    int bits = 32;
    char conversion = 0;

    bool isSigned() const { return conversion == 'd' || conversion == 'i'; }
};

// The pattern's groups, in order.
struct Part
{
    enum Group { position = 1, flags, width, precision, size, conversion };
};

const QRegularExpression &directivePattern()
{
    static const QRegularExpression pattern(u"%([1-9][0-9]*+\\$)?([-+ #0']*+)(\\*(?:[1-9][0-9]*+\\$)?|[0-9]++)?"
                                            "(?:\\.(\\*(?:[1-9][0-9]*+\\$)?|[0-9]*+))?"
                                            "(hh|h|ll|l|q|j|z|t|L)?([@%diuoxXDUOfFeEgGaAcCsSpn])"_s);
    return pattern;
}

Directive directiveOf(const QRegularExpressionMatch &match)
{
    // "'" groups digits where the locale has groups; the C locale has none.
    Directive directive{.flags = match.captured(Part::flags).toLatin1().replace('\'', "")};
    if (const QStringView written = match.capturedView(Part::size); !written.isEmpty() && written != u"L") {
        directive.bits = written == u"hh" ? 8 : written == u"h" ? 16 : 64;
    }
    directive.conversion = match.capturedView(Part::conversion).front().toLatin1();
    if (QByteArrayView("DUO").contains(directive.conversion)) {
        directive.bits = 64;
        directive.conversion += 'a' - 'A';
    }
    return directive;
}

// What C's printf prints for one number in the C locale, whatever locale is in force. format: one directive that takes
// width and precision as arguments, such as "%+*.*f". A negative precision counts as not given.
template <typename Number>
QString printed(const QByteArray &format, int width, int precision, Number number)
{
    const int size = std::snprintf(nullptr, 0, format.constData(), width, precision, number);
    QByteArray text(size, Qt::Uninitialized);
    // One byte more for the terminating zero, which every QByteArray has room for.
    std::snprintf(text.data(), static_cast<std::size_t>(size) + 1, format.constData(), width, precision, number);
    text.replace(std::localeconv()->decimal_point, ".");
    return QString::fromLatin1(text);
}

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
quint64 bitsOf(const QVariant &value, const Directive &directive)
{
    if (isFloating(value)) {
        const double number = value.toDouble();
        if (directive.bits == 32) {
            return directive.isSigned() ? quint64(saturatedTo<qint32>(number)) : saturatedTo<quint32>(number);
        }
        return directive.isSigned() ? quint64(saturatedTo<qint64>(number)) : saturatedTo<quint64>(number);
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

    QString format(const QString &text)
    {
        qsizetype copiedTo = 0;
        for (const QRegularExpressionMatch &match : directivePattern().globalMatch(text)) {
            m_out += QStringView(text).sliced(copiedTo, match.capturedStart() - copiedTo);
            print(match);
            copiedTo = match.capturedEnd();
        }
        return m_out + QStringView(text).sliced(copiedTo);
    }

private:
    // The argument at a position such as "2$", or the next one; null beyond the last.
    QVariant argumentAt(QStringView position)
    {
        const std::size_t index = position.isEmpty() ? m_next++ : position.chopped(1).toULongLong() - 1;
        return index < m_arguments.size() ? m_arguments[index].value() : QVariant();
    }

    // A width or a precision: digits, "*" or "*2$".
    int numberOf(QStringView written)
    {
        const double number =
            written.startsWith(u'*') ? ZRDblVal(argumentAt(written.sliced(1))) : StringDoubleValue(written.toString());
        return std::clamp(saturatedTo<int>(number), -largestWidth, largestWidth);
    }

    void print(const QRegularExpressionMatch &match)
    {
        const Directive directive = directiveOf(match);
        if (directive.conversion == '%') {
            m_out += u'%';
            return;
        }
        int columns = numberOf(match.capturedView(Part::width));
        // A point alone is a precision of 0.
        const int digits = match.hasCaptured(Part::precision) ? numberOf(match.capturedView(Part::precision)) : -1;
        const QVariant value = argumentAt(match.capturedView(Part::position));
        if (directive.flags.contains('-')) {
            columns = -std::abs(columns);
        }
        switch (directive.conversion) {
        case 'd':
        case 'i':
        case 'u':
        case 'o':
        case 'x':
        case 'X':
            m_out += printed('%' + directive.flags + "*.*ll" + directive.conversion, columns, digits,
                             cutToSize(bitsOf(value, directive), directive));
            break;
        case '@':
        case 's':
        case 'S': {
            const QString text = descriptionOf(value);
            m_out += padded(digits < 0 ? text : text.left(digits), columns);
            break;
        }
        case 'c':
        case 'C':
            m_out += padded(character(directive, value), columns);
            break;
        case 'p':
            m_out += padded(u"0x" + QString::number(bitsOf(value, directive), 16), columns);
            break;
        case 'n': // Takes its argument and deliberately writes nowhere.
            break;
        default:
            m_out += printed('%' + directive.flags + "*.*" + directive.conversion, columns, digits, ZRDblVal(value));
        }
    }

    // A negative width means left-adjusted, as for printf.
    static QString padded(const QString &text, int width)
    {
        return width < 0 ? text.leftJustified(-width) : text.rightJustified(width);
    }

    static quint64 cutToSize(quint64 value, const Directive &directive)
    {
        const int unused = 64 - directive.bits;
        return directive.isSigned() ? quint64(static_cast<qint64>(value << unused) >> unused)
                                    : (value << unused) >> unused;
    }

    static QString character(const Directive &directive, const QVariant &value)
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
