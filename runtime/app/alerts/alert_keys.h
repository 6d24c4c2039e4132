#pragma once

#include <QKeySequence>

class QEvent;

namespace tetrad {

/// Whether a key equivalent is the one for the default button: Return, line feed or Enter ("\003").
bool isDefaultKey(QChar key);

/// The key that a key equivalent names: "\033" is Escape, a letter that key, with Shift when upper case.
QKeySequence keySequenceOf(QChar key);

/// A key that was already down when the alert appeared keeps repeating into it and must not answer it.
/// Keys that only move about may repeat.
bool isHeldKey(const QEvent *event);

/// Whether Return or Enter was pressed.
bool isReturnPress(const QEvent *event);

} // namespace tetrad
