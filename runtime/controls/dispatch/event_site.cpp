#include "runtime/controls/dispatch/event_site.h"

#include <tetrad/app/windows.h>
#include <tetrad/events/dialog_event.h>

#include <QVariant>

namespace tetrad {

namespace {

constexpr char delegateCallbackKey[] = "delegateCallback";

} // namespace

qint64 sendObjectEvent(const QObject *object, qint64 event, Tag obj)
{
    const Tag wndTag = objectWindowTag(object);
    CUI_OutputWindowSetTag(wndTag);
    return CallUserDefinedOnDialogFunction(event, objectTag(object), wndTag, obj);
}

bool askObjectEvent(const QObject *object, qint64 event, Tag obj)
{
    CUI_DialogEventObj()->boolVal = false;
    sendObjectEvent(object, event, obj);
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

qint64 forwardDelegateEvent(const QObject *view, qint64 event, Tag obj)
{
    const DelegateCallback callback = delegateCallback(view);
    if (!callback) {
        return sendObjectEvent(view, event, obj);
    }
    CUI_OutputWindowSetTag(objectWindowTag(view));
    return callback(objectTag(view), event);
}

} // namespace tetrad
