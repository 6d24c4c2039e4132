#include <tetrad/controls/control_target.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/events/current_event.h"
#include <tetrad/app/windows.h>
#include <tetrad/controls/control_statements.h>
#include <tetrad/controls/view_lookup.h>
#include <tetrad/events/event_codes.h>

#include <QEvent>
#include <QVariant>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr char actionKey[] = "actionName";
constexpr char callbackKey[] = "callbackValue";
constexpr char userDataKey[] = "userDataValue";

Tag controlWindowTag(const QWidget *control)
{
    const Tag wndTag = objectWindowTag(control);
    return wndTag < 1 ? CUI_ViewWindowTag(control) : wndTag;
}

// `obj` is what the callback for all controls is given, `sender` what the dialog function is.
qint64 dispatch(qint64 event, const QWidget *control, Tag wndTag, Tag obj, Tag sender)
{
    const std::shared_ptr<QEvent> last = lastInputEvent();
    const CurrentEventScope scope(CUI_EventEvent() ? CUI_EventEvent() : last.get());
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
        setControlActionName(control, u"controlAction%1:"_s.arg(id));
    }
}

void sendControlAction(QWidget *control)
{
    const QByteArray name = controlActionName(control).toUtf8();
    const QByteArray method = name.endsWith(':') ? name.chopped(1) : name;
    QMetaObject::invokeMethod(CUI_ControlTargetObj(), method, Qt::DirectConnection, Q_ARG(QWidget *, control));
}

ControlCallback cuiControlCallback(const QObject *control)
{
    return control->property(callbackKey).value<ControlCallback>();
}

void setCuiControlCallback(QObject *control, ControlCallback callback)
{
    control->setProperty(callbackKey, QVariant::fromValue(callback));
}

void *cuiControlUserData(const QObject *control)
{
    return control->property(userDataKey).value<void *>();
}

void setCuiControlUserData(QObject *control, void *userData)
{
    control->setProperty(userDataKey, QVariant::fromValue(userData));
}

void ControlSetCallback(Tag tag, ControlCallback callback, void *userData)
{
    if (QWidget *const control = ControlWithTag(tag)) {
        setCuiControlCallback(control, callback);
        setCuiControlUserData(control, userData);
    }
}

qint64 CUI_ControlCallUserDefinedOnDialogOrCallback(qint64 event, QWidget *control, Tag obj)
{
    // Deliberately the control's own number, not the one that the callbacks get: after a control without one there
    // is no output window.
    CUI_OutputWindowSetTag(objectWindowTag(control));
    return dispatch(event, control, controlWindowTag(control), obj, obj);
}

} // namespace tetrad
