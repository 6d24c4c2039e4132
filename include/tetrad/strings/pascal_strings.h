#pragma once

// Implemented in runtime/strings/pascal_strings.cpp

#include <QString>

namespace tetrad {

/// Room for any length-prefixed string: the length n in byte 0, the characters in bytes 1 to n, one
/// Mac Roman byte each, no terminating zero. Functions take the address of such a buffer.
using PascalString = unsigned char[256];

/// Slots that can be live at once.
inline constexpr qint16 stringStackSize = 64;

/// The number of slots in use, which is also the number of the slot pushed last. A caller pushes one
/// slot for every argument and the function that consumes it pops one.
extern qint16 gZRStk;

/// Slot 0 is handed out only after a pop too many.
extern PascalString gZRStrStk[stringStackSize + 1];

/// Takes a slot, which keeps what it held before. With every slot in use the program ends through the
/// stop handed in by setStringStackStop.
unsigned char *STACK_PUSH();

/// Drops the last slot. There is deliberately no check: a pop too many makes the index -1 and the
/// next push return slot 0.
void popString();

/// Called when the stack is full, after the message was written to standard error, with the message, the advice and a
/// fatal flag (always -1). It should not return. The program aborts if it does, or if none is set.
using StringStackStop = void (*)(const QString &message, const QString &informative, qint32 fatal);
void setStringStackStop(StringStackStop stop);

/// The result of every function here that returns a length-prefixed string; the next such call
/// overwrites it.
extern PascalString gReturnedString;

/// Copies the string and returns the destination, which may be the source. Pops nothing.
unsigned char *PSstrcpy(unsigned char *destination, const unsigned char *source);

/// Pops one slot. Returns, in gReturnedString, count characters from start (the first is 1), or
/// as many as there are. A start below 1 is taken as 1 without shortening the count.
unsigned char *PSmid(const unsigned char *source, qint16 start, qint16 count);

/// Pops one slot. The number of characters, 0 to 255.
int PSlen(const unsigned char *source);

/// Pops one slot. The first character's code, 0 to 255, or 0 for the empty string.
int PSasc(const unsigned char *source);

/// Pops one slot. The text up to the first zero byte, if the string holds one.
QString StringWithPascalString(const unsigned char *source);

/// The text in gReturnedString. Empty, and deliberately not a part of the text, if it has more than
/// 255 characters or one that Mac Roman lacks.
unsigned char *StringPascalString(const QString &text);

} // namespace tetrad
