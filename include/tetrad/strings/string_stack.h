#pragma once

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

/// Who is told of a full stack, after the message went to standard error: the message, the advice and a fatal
/// flag (always -1). It should not return; the program aborts if it does, or if there is none.
using StringStackStop = void (*)(const QString &message, const QString &informative, qint32 fatal);
void setStringStackStop(StringStackStop stop);

} // namespace tetrad
