#pragma once

#include <tetrad/strings/string_stack.h>

namespace tetrad {

/// The result of every function here that returns a length-prefixed string; the next such call
/// overwrites it.
extern PascalString gReturnedString;

/// Copies the string, also onto itself, and returns the destination. Pops nothing.
unsigned char *PSstrcpy(unsigned char *destination, const unsigned char *source);

/// Pops one slot. Returns, in gReturnedString, count characters from start (the first is 1) or those
/// there are. A start below 1 is taken as 1 without shortening the count.
unsigned char *PSmid(const unsigned char *source, qint16 start, qint16 count);

/// Pops one slot. The number of characters, 0 to 255.
int PSlen(const unsigned char *source);

/// Pops one slot. The first character's code, 0 to 255, or 0 if there is none.
int PSasc(const unsigned char *source);

/// Pops one slot. The text up to the first zero byte, if the string holds one.
QString StringWithPascalString(const unsigned char *source);

/// The text in gReturnedString. Empty, and deliberately not a part of the text, if it has more than
/// 255 characters or one that Mac Roman lacks.
unsigned char *StringPascalString(const QString &text);

} // namespace tetrad
