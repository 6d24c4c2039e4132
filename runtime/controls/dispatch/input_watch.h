#pragma once

class QEvent;

namespace tetrad {

/// Begins to keep a copy of the last mouse, wheel or key event delivered to the application, since a control may act
/// on it later. Only the first call does something.
void watchInput();

/// That copy, valid until the next such event, or null. Not owned.
QEvent *lastInputEvent();

} // namespace tetrad
