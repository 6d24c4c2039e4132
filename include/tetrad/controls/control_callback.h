#pragma once

#include <tetrad/events/tag.h>

#include <QObject>

namespace tetrad {

/// What a control's own callback is called with: the control's tag, its window's tag, and the user
/// data that was set beside it. The result goes back to whoever asked.
using ControlCallback = qint64 (*)(Tag tag, Tag wndTag, void *userData);

/// A control's callback and user data (dynamic properties "callbackValue" and "userDataValue"), both null
/// when never set. The user data is the program's own and is never looked at.
ControlCallback cuiControlCallback(const QObject *control);
void setCuiControlCallback(QObject *control, ControlCallback callback);
void *cuiControlUserData(const QObject *control);
void setCuiControlUserData(QObject *control, void *userData);

} // namespace tetrad

Q_DECLARE_METATYPE(tetrad::ControlCallback)
