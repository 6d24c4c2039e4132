#pragma once

#include <tetrad/events/tag.h>

#include <QMetaObject>
#include <QObject>

#include <utility>

namespace tetrad {

/// What the event sites of the wrapped widgets share. A site whose widget is still at work when it learns of something
/// tells the program soon, so that a callback may delete the widget; a question is put where the widget
/// has not begun to work.

/// Makes the object's window (see objectWindowTag) the output window and calls the dialog function with
/// the event, the object's tag, its window's tag and `obj`. Returns the function's result.
qint64 CUI_SendObjectEvent(const QObject *object, qint64 event, Tag obj = 0);

/// CUI_SendObjectEvent with boolVal preset to false; returns boolVal. The object may be gone then.
bool CUI_AskObjectEvent(const QObject *object, qint64 event, Tag obj = 0);

/// Calls a function as soon as control is back in the event loop, unless the object is gone by then.
template <typename Function>
void CUI_Soon(QObject *object, Function &&function)
{
    QMetaObject::invokeMethod(object, std::forward<Function>(function), Qt::QueuedConnection);
}

/// The callback that a table, outline or token field may have in place of the dialog function, called with the view's
/// tag and the event (dynamic property "delegateCallback"); null when never set.
using DelegateCallback = qint64 (*)(Tag tag, qint64 event);
DelegateCallback delegateCallback(const QObject *view);
void setDelegateCallback(QObject *view, DelegateCallback callback);

/// As CUI_SendObjectEvent, but to the view's delegate callback when it has one.
qint64 CUI_ForwardDelegateEvent(const QObject *view, qint64 event, Tag obj);

/// CUI_ForwardDelegateEvent with boolVal preset to false; returns boolVal.
bool CUI_AskDelegateEvent(const QObject *view, qint64 event, Tag obj = 0);

} // namespace tetrad

Q_DECLARE_METATYPE(tetrad::DelegateCallback)
