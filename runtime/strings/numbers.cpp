#include <tetrad/strings/numbers.h>

#include "runtime/strings/saturate.h"

#include <QByteArray>
#include <QVariant>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace tetrad {

quint8 gZRFloatMaxDigits = 10;

namespace {

// Single precision on purpose: it is a little below 1e-6, so that a fraction of 1e-6 still prints.
constexpr float smallestFraction = 1e-6F;

// The digits of a fraction, as in "25" of "-0.2500000000". Deliberately drops leading zeros with the sign and the
// point: programs rely on this form, in which 2.05 prints like 2.5. A fraction that rounds up to one leaves "1.".
QString fractionDigits(double fraction)
{
    std::array<char, 300> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), fraction, std::chars_format::fixed, gZRFloatMaxDigits);
    QLatin1StringView printed(digits.data(), end.ptr);
    while (printed.endsWith(u'0')) {
        printed.chop(1);
    }
    while (printed.startsWith(u'0') || printed.startsWith(u'.') || printed.startsWith(u'-')) {
        printed = printed.sliced(1);
    }
    return printed;
}

// A text without the blanks around it, its sign apart. The digits are empty unless a number starts there.
struct NumberText
{
    bool negative = false;
    QByteArray digits;
};

NumberText leadingNumber(QStringView text)
{
    text = text.trimmed();
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+')) {
        text = text.sliced(1);
    }
    // Past its sign a number may not start with another.
    const bool startsNumber = !text.isEmpty() && (text.front() == u'.' || text.front().isDigit());
    return {negative, startsNumber ? text.toLatin1() : QByteArray()};
}

} // namespace

QString CopyDblToString(double number)
{
    double integerPart = 0;
    const double fraction = std::modf(number, &integerPart);
    QString printed = QString::number(saturatedTo<qint64>(integerPart));
    // NaN falls through to the fraction branch and prints as "nan".
    if (!(std::abs(fraction) < double(smallestFraction))) {
        printed += u'.' + fractionDigits(fraction);
    }
    return printed.startsWith(u'-') ? printed : u' ' + printed;
}

double StringDoubleValue(const QString &text)
{
    const auto [negative, digits] = leadingNumber(text);
    double value = 0;
    const auto read = std::from_chars(digits.cbegin(), digits.cend(), value);
    if (read.ec == std::errc::result_out_of_range) {
        // from_chars does not distinguish too large from too small.
        value = QString::fromLatin1(digits.cbegin(), read.ptr - digits.cbegin()).toDouble();
    }
    return negative ? -value : value;
}

qint64 StringIntegerValue(const QString &text)
{
    auto [negative, digits] = leadingNumber(text);
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
