#pragma once

#include <QString>

class QVariant;

namespace tetrad {

/// Fraction digits that CopyDblToString prints before it drops the trailing zeros.
extern quint8 gZRFloatMaxDigits;

/// The printed form of a number: a minus or a blank, the integer part, and the fraction's digits
/// without the zeros at either end, so 2.05 is " 2.5". The integer part saturates at the 64-bit limits.
QString CopyDblToString(double number);

/// The decimal number the text starts with, after blanks; what follows it is ignored. 0 if there is
/// none, an infinity if it is too large. Hexadecimal digits, "inf" and "nan" are no numbers.
double StringDoubleValue(const QString &text);

/// The decimal integer the text starts with, after blanks; what follows it is ignored. 0 if there is
/// none, the nearer 64-bit limit if it is too large.
qint64 StringIntegerValue(const QString &text);

/// The value of a number or of a text, as StringDoubleValue reads it; 0 for any other object.
double ZRDblVal(const QVariant &object);

} // namespace tetrad
