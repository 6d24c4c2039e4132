#include "runtime/controls/dispatch/event_site.h"

#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/strings/saturate.h"
#include <tetrad/events/tag.h>

#include <QCoreApplication>
#include <QEvent>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace tetrad {

namespace {

constexpr char delegateCallbackKey[] = "delegateCallback";

class InputWatch : public QObject
{
public:
    using QObject::QObject;

    std::shared_ptr<QEvent> last;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        static constexpr QEvent::Type kept[] = {QEvent::MouseButtonPress,
                                                QEvent::MouseButtonRelease,
                                                QEvent::MouseButtonDblClick,
                                                QEvent::MouseMove,
                                                QEvent::Wheel,
                                                QEvent::KeyPress,
                                                QEvent::KeyRelease};
        if (std::ranges::count(kept, event->type()) > 0) {
            last.reset(event->clone());
        }
        return QObject::eventFilter(watched, event);
    }
};

QPointer<InputWatch> inputWatch;

} // namespace

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

qint64 DialogFunctionDelegate::callUserDefinedOnDialogFunctionWithEvent(const QObject *view, qint64 event, Tag object)
{
    const Tag wndTag = objectWindowTag(view);
    CUI_OutputWindowSetTag(wndTag);
    return CallUserDefinedOnDialogFunction(event, objectTag(view), wndTag, object);
}

qint64 ForwardingDelegate::forwardEvent(const QObject *view, qint64 event, Tag object)
{
    const DelegateCallback callback = delegateCallback(view);
    if (!callback) {
        return DialogFunctionDelegate::callUserDefinedOnDialogFunctionWithEvent(view, event, object);
    }
    CUI_OutputWindowSetTag(objectWindowTag(view));
    return callback(objectTag(view), event);
}

int countAnswer(const QObject *object, qint64 event)
{
    return std::max(0, saturatedTo<int>(answerTo(object, event, &CUI_DialogEvent::longVal, qint64(0))));
}

int wholePixels(double answer)
{
    return std::clamp(saturatedTo<int>(std::round(answer)), -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

void watchInput()
{
    if (!inputWatch) {
        inputWatch = new InputWatch(qApp);
        qApp->installEventFilter(inputWatch);
    }
}

std::shared_ptr<QEvent> lastInputEvent()
{
    return inputWatch ? inputWatch->last : nullptr;
}

} // namespace tetrad
