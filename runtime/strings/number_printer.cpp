#include <tetrad/strings/numbers.h>

#include "runtime/strings/saturate.h"

#include <array>
#include <charconv>
#include <cmath>

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

} // namespace tetrad
