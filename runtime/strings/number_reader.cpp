#include "runtime/strings/number_reader.h"

#include <QByteArray>
#include <QVariant>

#include <algorithm>
#include <charconv>
#include <limits>

namespace tetrad {

namespace {

/// A number cut out of a text: its sign apart, the rest in ASCII, empty if there is no number.
struct NumberText
{
    bool negative = false;
    QByteArray digits;
};

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

qsizetype skipDigits(QStringView text, qsizetype from)
{
    while (from < text.size() && isDigit(text[from])) {
        ++from;
    }
    return from;
}

bool isAt(QStringView text, qsizetype at, QStringView choices)
{
    return at < text.size() && choices.contains(text[at]);
}

/// Where the number at the start of the text ends if it may have a point and an exponent; 0 if there is none.
qsizetype decimalEnd(QStringView text)
{
    const qsizetype integerEnd = skipDigits(text, 0);
    const bool point = isAt(text, integerEnd, u".");
    const qsizetype end = point ? skipDigits(text, integerEnd + 1) : integerEnd;
    if (end == (point ? 1 : 0)) {
        return 0;
    }
    if (!isAt(text, end, u"eE")) {
        return end;
    }
    const qsizetype exponent = end + (isAt(text, end + 1, u"+-") ? 2 : 1);
    const qsizetype exponentEnd = skipDigits(text, exponent);
    return exponentEnd > exponent ? exponentEnd : end;
}

NumberText leadingNumber(QStringView text, qsizetype (*findEnd)(QStringView))
{
    while (!text.isEmpty() && text.front().isSpace()) {
        text = text.sliced(1);
    }
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+')) {
        text = text.sliced(1);
    }
    return {negative, text.first(findEnd(text)).toLatin1()};
}

/// Tells a number beyond the largest double from one below the smallest: whether its first digit
/// other than zero stands before the point once the exponent is applied.
bool isBeyondLargest(const QByteArray &number)
{
    const auto isExponentMark = [](char character) { return character == 'e' || character == 'E'; };
    const auto mantissaEnd = std::ranges::find_if(number, isExponentMark);
    const auto point = std::find(number.begin(), mantissaEnd, '.');
    const auto leading = std::find_if(number.begin(), mantissaEnd, [](char digit) { return digit >= '1'; });
    const qint64 exponent =
        mantissaEnd == number.end() ? 0 : StringIntegerValue(QString::fromLatin1(&*mantissaEnd + 1));
    return exponent > leading - point;
}

} // namespace

double StringDoubleValue(const QString &text)
{
    const auto [negative, digits] = leadingNumber(text, decimalEnd);
    double value = 0;
    const auto read = std::from_chars(digits.begin(), digits.end(), value);
    if (read.ec == std::errc::result_out_of_range) {
        value = isBeyondLargest(digits) ? std::numeric_limits<double>::infinity() : 0;
    }
    return negative ? -value : value;
}

qint64 StringIntegerValue(const QString &text)
{
    auto [negative, digits] = leadingNumber(text, [](QStringView rest) { return skipDigits(rest, 0); });
    if (negative) {
        digits.prepend('-');
    }
    qint64 value = 0;
    if (std::from_chars(digits.cbegin(), digits.cend(), value).ec == std::errc::result_out_of_range) {
        return negative ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
    }
    return value;
}

double ZRDblVal(const QVariant &object)
{
    switch (object.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return object.toDouble();
    case QMetaType::QString:
        return StringDoubleValue(object.toString());
    default:
        return 0;
    }
}

} // namespace tetrad
