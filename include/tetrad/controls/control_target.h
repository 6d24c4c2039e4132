#pragma once

// Implemented in runtime/controls/dispatch/control_target.cpp and event_site.cpp.
#include <tetrad/events/tag.h>

#include <QObject>
#include <QString>

class QWidget;

namespace tetrad {

/// Called for every control that has no callback of its own: the control's tag, its window's tag, and the
/// object of a delegate's event, 0 for an action.
using AllControlsCallback = qint64 (*)(Tag tag, Tag wndTag, Tag obj);

/// The target of every control of the runtime. Its actions are invokable by name; each makes the control's window the
/// output window and calls the control's own callback, else the callback for all controls, else the dialog function
/// with controlEventAction, the control's tag, its window's tag and the control. A callback may delete the control.
class CUI_ControlTarget : public QObject
{
    Q_OBJECT

public:
    AllControlsCallback allControlsCallback = nullptr;

    Q_INVOKABLE void controlAction(QWidget *sender);

    // Deliberately all alike: a program that derives from the target, or looks at a control's action, can
    // tell ten kinds of control apart, and the dispatch stays one.
    Q_INVOKABLE void controlAction1(QWidget *sender) { controlAction(sender); }
    Q_INVOKABLE void controlAction2(QWidget *sender) { controlAction(sender); }
    Q_INVOKABLE void controlAction3(QWidget *sender) { controlAction(sender); }
    Q_INVOKABLE void controlAction4(QWidget *sender) { controlAction(sender); }
    Q_INVOKABLE void controlAction5(QWidget *sender) { controlAction(sender); }
    Q_INVOKABLE void controlAction6(QWidget *sender) { controlAction(sender); }
    Q_INVOKABLE void controlAction7(QWidget *sender) { controlAction(sender); }
    Q_INVOKABLE void controlAction8(QWidget *sender) { controlAction(sender); }
    Q_INVOKABLE void controlAction9(QWidget *sender) { controlAction(sender); }
    Q_INVOKABLE void controlAction10(QWidget *sender) { controlAction(sender); }
};

/// The shared target; it lives from first use to the end of the program.
CUI_ControlTarget *CUI_ControlTargetObj();

/// The name of a control's action, "controlAction:" when never set. The colon stands for the sender; without
/// it the name is that of the target's method.
QString controlActionName(const QWidget *control);
void setControlActionName(QWidget *control, const QString &name);

/// Gives the control with this tag the action "controlAction1:" to "controlAction10:". An id outside 1 to 10
/// changes nothing.
void ControlSetActionID(Tag tag, qint64 id);

/// Invokes the control's action on the shared target. A name that the target has no method for writes a
/// warning that names it.
void sendControlAction(QWidget *control);

/// The dispatch of what a control's delegate reports: as controlAction, with the event and the object given,
/// and with the result of the function that was called.
qint64 CUI_ControlCallUserDefinedOnDialogOrCallback(qint64 event, QWidget *control, Tag obj);

/// The callback that a table, outline, split view or token field may have in place of the dialog function, called with
/// the view's tag and the event (dynamic property "delegateCallback"); null when never set.
using DelegateCallback = qint64 (*)(Tag tag, qint64 event);
DelegateCallback delegateCallback(const QObject *view);
/// Null removes the callback. A missing view shows an alert.
void ViewSetDelegateCallback(Tag tag, DelegateCallback callback);

/// What the delegates of views share. Each makes the view's window (see objectWindowTag) the output window, calls a
/// function with the event and returns its result: the dialog function, with the tags of the view and of its window and
/// with |object| ...
class DialogFunctionDelegate
{
public:
    static qint64 callUserDefinedOnDialogFunctionWithEvent(const QObject *view, qint64 event, Tag object);
};

/// ... or the view's delegate callback, where there is one.
class ForwardingDelegate
{
public:
    static qint64 forwardEvent(const QObject *view, qint64 event, Tag object);
};

} // namespace tetrad

Q_DECLARE_METATYPE(tetrad::DelegateCallback)
