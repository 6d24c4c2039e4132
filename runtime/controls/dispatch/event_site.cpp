#include <tetrad/controls/event_site.h>

#include <tetrad/app/output_window.h>
#include <tetrad/events/dialog_event.h>

#include <QVariant>

namespace tetrad {

namespace {

constexpr char delegateCallbackKey[] = "delegateCallback";

} // namespace

qint64 CUI_SendObjectEvent(const QObject *object, qint64 event, Tag obj)
{
    const Tag wndTag = objectWindowTag(object);
    CUI_OutputWindowSetTag(wndTag);
    return CallUserDefinedOnDialogFunction(event, objectTag(object), wndTag, obj);
}

bool CUI_AskObjectEvent(const QObject *object, qint64 event, Tag obj)
{
    CUI_DialogEventObj()->boolVal = false;
    CUI_SendObjectEvent(object, event, obj);
    return CUI_DialogEventObj()->boolVal;
}

DelegateCallback delegateCallback(const QObject *view)
{
    return view->property(delegateCallbackKey).value<DelegateCallback>();
}

void setDelegateCallback(QObject *view, DelegateCallback callback)
{
    view->setProperty(delegateCallbackKey, QVariant::fromValue(callback));
}

qint64 CUI_ForwardDelegateEvent(const QObject *view, qint64 event, Tag obj)
{
    const DelegateCallback callback = delegateCallback(view);
    if (!callback) {
        return CUI_SendObjectEvent(view, event, obj);
    }
    CUI_OutputWindowSetTag(objectWindowTag(view));
    return callback(objectTag(view), event);
}

bool CUI_AskDelegateEvent(const QObject *view, qint64 event, Tag obj)
{
    CUI_DialogEventObj()->boolVal = false;
    CUI_ForwardDelegateEvent(view, event, obj);
    return CUI_DialogEventObj()->boolVal;
}

} // namespace tetrad
