#pragma once

#include <tetrad/controls/control_target.h>

#include <QMetaObject>
#include <QObject>

#include <utility>

namespace tetrad {

/// What the event sites of the wrapped widgets share. A site whose widget is still at work when it learns of something
/// tells the program soon, so that a callback may delete the widget; a question is put where the widget
/// has not begun to work.

/// Makes the object's window (see objectWindowTag) the output window and calls the dialog function with
/// the event, the object's tag, its window's tag and `obj`. Returns the function's result.
qint64 sendObjectEvent(const QObject *object, qint64 event, Tag obj = 0);

/// sendObjectEvent with boolVal preset to false; returns boolVal. The object may be gone then.
bool askObjectEvent(const QObject *object, qint64 event, Tag obj = 0);

/// Calls a function as soon as control is back in the event loop, unless the object is gone by then.
template <typename Function>
void callSoon(QObject *object, Function &&function)
{
    QMetaObject::invokeMethod(object, std::forward<Function>(function), Qt::QueuedConnection);
}

/// As sendObjectEvent, but to the view's delegate callback when it has one.
qint64 forwardDelegateEvent(const QObject *view, qint64 event, Tag obj);

} // namespace tetrad
