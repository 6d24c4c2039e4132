#pragma once

#include <tetrad/controls/control_target.h>
#include <tetrad/events/dialog_event.h>

#include <QMetaObject>
#include <QObject>

#include <memory>
#include <utility>

namespace tetrad {

/// What the event sites of the wrapped widgets share. A site whose widget is still working when something happens
/// reports it soon, so that a callback may delete the widget; a question is sent before the widget begins to
/// work. After each of these calls the object may be gone.

inline void sendObjectEvent(const QObject *object, qint64 event)
{
    DialogFunctionDelegate::callUserDefinedOnDialogFunctionWithEvent(object, event, tagFromObject(object));
}

inline qint64 forwardDelegateEvent(const QObject *view, qint64 event)
{
    return ForwardingDelegate::forwardEvent(view, event, tagFromObject(view));
}

/// Sends a question about the object, to its delegate callback when it has one: presets a field of the record and
/// returns what the field holds afterwards.
template <typename Field>
Field answerTo(const QObject *object, qint64 event, Field CUI_DialogEvent::*field, const Field &preset)
{
    CUI_DialogEventObj()->*field = preset;
    forwardDelegateEvent(object, event);
    return CUI_DialogEventObj()->*field;
}

/// The same for a yes or no, preset to no.
inline bool answersYes(const QObject *object, qint64 event)
{
    return answerTo(object, event, &CUI_DialogEvent::boolVal, false);
}

/// A number of rows or children that the program answers, preset to 0; a negative one counts as 0.
int countAnswer(const QObject *object, qint64 event);

/// A position or length in pixels that the program answers, rounded. One farther than any widget reaches, as programs
/// answer for "anywhere", counts as that far; NaN counts as 0.
int wholePixels(double answer);

template <typename Real>
int pixelAnswer(const QObject *object, qint64 event, Real CUI_DialogEvent::*field, int preset)
{
    return wholePixels(answerTo(object, event, field, Real(preset)));
}

/// Begins to keep a copy of the last mouse, wheel or key event delivered to the application, since a control may act
/// on it later. Only the first call does something.
void watchInput();

/// That copy, or null.
std::shared_ptr<QEvent> lastInputEvent();

/// Calls a function as soon as control is back in the event loop, unless the object is gone by then.
template <typename Function>
void callSoon(QObject *object, Function &&function)
{
    QMetaObject::invokeMethod(object, std::forward<Function>(function), Qt::QueuedConnection);
}

} // namespace tetrad
