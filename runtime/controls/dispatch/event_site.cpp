#include "runtime/controls/dispatch/event_site.h"

#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/strings/saturate.h"
#include <tetrad/events/tag.h>

#include <QVariant>

#include <algorithm>

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

DelegateCallback delegateCallback(const QObject *view)
{
    return view->property(delegateCallbackKey).value<DelegateCallback>();
}

void ViewSetDelegateCallback(Tag tag, DelegateCallback callback)
{
    if (QWidget *const view = viewOfClass<QWidget>(tag)) {
        view->setProperty(delegateCallbackKey, QVariant::fromValue(callback));
    }
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

int countAnswer(const QObject *object, qint64 event)
{
    return std::max(0, saturatedTo<int>(answerTo(object, event, &CUI_DialogEvent::longVal, qint64(0))));
}

} // namespace tetrad
