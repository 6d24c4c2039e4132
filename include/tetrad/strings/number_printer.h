#pragma once

#include <QString>

namespace tetrad {

/// Fraction digits that CopyDblToString prints before it drops the trailing zeros.
extern quint8 gZRFloatMaxDigits;

/// The printed form of a number: a minus or a blank, the integer part, and the fraction's digits
/// without the zeros at either end, so 2.05 is " 2.5". The integer part saturates at the 64-bit limits.
QString CopyDblToString(double number);

} // namespace tetrad
