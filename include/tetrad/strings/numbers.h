#pragma once

// Implemented in runtime/strings/numbers.cpp

#include <QString>

class QVariant;

namespace tetrad {

/// Fraction digits that CopyDblToString prints before it drops the trailing zeros.
extern quint8 gZRFloatMaxDigits;

/// The printed form of a number: a minus or a blank, the integer part, and the fraction's digits
/// without the zeros at either end, so 2.05 is " 2.5". The integer part saturates at the 64-bit limits.
QString CopyDblToString(double number);

/// The decimal number at the start of the text, after blanks; the rest is ignored. 0 without a number, an infinity for
/// one that is too large. Hexadecimal digits, "inf" and "nan" do not count as numbers.
double StringDoubleValue(const QString &text);

/// The decimal integer at the start of the text, after blanks; the rest is ignored. 0 without a number, the nearer
/// 64-bit limit for one that is too large.
qint64 StringIntegerValue(const QString &text);

/// The value of a number or of a text, as StringDoubleValue reads it; 0 for any other object.
double ZRDblVal(const QVariant &object);

} // namespace tetrad
