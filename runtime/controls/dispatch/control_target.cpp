#include <tetrad/controls/control_target.h>

#include "runtime/controls/dispatch/input_watch.h"
#include "runtime/controls/events/current_event.h"
#include <tetrad/app/windows.h>
#include <tetrad/controls/view_lookup.h>
#include <tetrad/events/dialog_event.h>
#include <tetrad/events/event_codes.h>

#include <QEvent>
#include <QVariant>
#include <QWidget>

#include <memory>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr char actionKey[] = "actionName";

Tag controlWindowTag(const QWidget *control)
{
    const Tag wndTag = objectWindowTag(control);
    return wndTag < 1 ? CUI_ViewWindowTag(control) : wndTag;
}

// `obj` is what the callback for all controls is given, `sender` what the dialog function is.
qint64 dispatch(qint64 event, const QWidget *control, Tag wndTag, Tag obj, Tag sender)
{
    // A copy of the program's own: the next event replaces the one that is kept.
    const QEvent *const last = CUI_EventEvent() ? nullptr : lastInputEvent();
    const std::unique_ptr<QEvent> copy(last ? last->clone() : nullptr);
    const CurrentEventScope scope(copy ? copy.get() : CUI_EventEvent());
    const Tag tag = objectTag(control);
    if (const ControlCallback callback = cuiControlCallback(control)) {
        return callback(tag, wndTag, cuiControlUserData(control));
    }
    if (const AllControlsCallback callback = CUI_ControlTargetObj()->allControlsCallback) {
        return callback(tag, wndTag, obj);
    }
    return CallUserDefinedOnDialogFunction(event, tag, wndTag, sender);
}

} // namespace

void CUI_ControlTarget::controlAction(QWidget *sender)
{
    const Tag wndTag = controlWindowTag(sender);
    CUI_OutputWindowSetTag(wndTag);
    dispatch(controlEventAction, sender, wndTag, 0, tagFromObject(sender));
}

CUI_ControlTarget *CUI_ControlTargetObj()
{
    // Deliberately never freed: controls may outlive every static object.
    static auto *const target = new CUI_ControlTarget;
    return target;
}

QString controlActionName(const QWidget *control)
{
    const QVariant name = control->property(actionKey);
    return name.isValid() ? name.toString() : u"controlAction:"_s;
}

void setControlActionName(QWidget *control, const QString &name)
{
    control->setProperty(actionKey, name);
}

void ControlSetActionID(Tag tag, qint64 id)
{
    if (id < 1 || id > 10) {
        return;
    }
    if (QWidget *const control = ControlWithTag(tag)) {
        setControlActionName(control, QString::asprintf("controlAction%lld:", static_cast<long long>(id)));
    }
}

void sendControlAction(QWidget *control)
{
    const QString name = controlActionName(control);
    const QByteArray method = name.endsWith(u':') ? name.chopped(1).toUtf8() : name.toUtf8();
    const QByteArray signature = method + "(QWidget*)";
    QObject *const target = CUI_ControlTargetObj();
    if (target->metaObject()->indexOfMethod(signature.constData()) < 0) {
        qWarning("control %lld: no action \"%s\"", objectTag(control), qUtf8Printable(name));
        return;
    }
    QMetaObject::invokeMethod(target, method.constData(), Qt::DirectConnection, Q_ARG(QWidget *, control));
}

void sendControlActionSoon(QWidget *control)
{
    QMetaObject::invokeMethod(
        control, [control] { sendControlAction(control); }, Qt::QueuedConnection);
}

qint64 CUI_ControlCallUserDefinedOnDialogOrCallback(qint64 event, QWidget *control, Tag obj)
{
    // Deliberately the control's own number, not the one worked out for the callbacks: a control that
    // never got one leaves no output window behind.
    CUI_OutputWindowSetTag(objectWindowTag(control));
    return dispatch(event, control, controlWindowTag(control), obj, obj);
}

} // namespace tetrad
