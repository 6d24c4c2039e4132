#include "runtime/controls/dispatch/view_events_relay.h"

#include "runtime/controls/events/current_event.h"
#include "runtime/controls/events/view_event_code.h"
#include "runtime/controls/lookup/view_tag.h"
#include <tetrad/app/windows.h>
#include <tetrad/events/dialog_event.h>
#include <tetrad/events/event_codes.h>

#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QWidget>

namespace tetrad {

namespace {

bool call(QWidget *view, qint64 code, Tag obj)
{
    const QPointer<QWidget> guard(view);
    const Tag wndTag = CUI_ViewWindowTag(view);
    CUI_DialogEventObj()->boolVal = false;
    CUI_OutputWindowSetTag(wndTag);
    CallUserDefinedOnDialogFunction(code, CUI_ViewTag(view), wndTag, obj);
    return !guard || CUI_DialogEventObj()->boolVal;
}

bool callWithEvent(QWidget *view, qint64 code, QEvent *event)
{
    const CurrentEventScope scope(event);
    return call(view, code, tagFromEvent(event));
}

bool callWithDrag(QWidget *view, qint64 code, QEvent *event)
{
    const auto *const drag = static_cast<QDropEvent *>(event);
    CUI_DialogEvent *const record = CUI_DialogEventObj();
    record->pointVal = drag->position();
    record->pasteboardObj = const_cast<QMimeData *>(drag->mimeData());
    record->pbTypes = drag->mimeData()->formats();
    record->arrayObj.clear();
    for (const QUrl &url : drag->mimeData()->urls()) {
        record->arrayObj.append(url);
    }
    return callWithEvent(view, code, event);
}

} // namespace

bool CUI_ViewSubclassEvent(QWidget *view, QEvent *event)
{
    const qint64 code = viewEventCode(event);
    return code != 0 && callWithEvent(view, code, event);
}

bool CUI_ViewSubclassDrawRect(QWidget *view, const QRect &dirtyRect)
{
    CUI_DialogEventObj()->rectVal = dirtyRect;
    return call(view, viewEventDraw, 0);
}

bool CUI_ViewSubclassWantsUpdateLayer(QWidget *view)
{
    return call(view, viewEventWantsUpdateLayer, 0);
}

bool CUI_ViewSubclassUpdateLayer(QWidget *view)
{
    return call(view, viewEventUpdateLayer, 0);
}

bool CUI_ViewSubclassAcceptsFirstResponder(QWidget *view)
{
    const QPointer<QWidget> guard(view);
    return call(view, viewEventAcceptsFirstResponder, 0) && guard;
}

bool CUI_ViewSubclassMouseDown(QWidget *view, QEvent *event)
{
    return callWithEvent(view, viewEventMouseDown, event);
}

bool CUI_ViewSubclassMouseDragged(QWidget *view, QEvent *event)
{
    return callWithEvent(view, viewEventMouseDragged, event);
}

bool CUI_ViewSubclassMouseUp(QWidget *view, QEvent *event)
{
    return callWithEvent(view, viewEventMouseUp, event);
}

bool CUI_ViewSubclassMouseMoved(QWidget *view, QEvent *event)
{
    return callWithEvent(view, viewEventMouseMoved, event);
}

bool CUI_ViewSubclassMouseEntered(QWidget *view, QEvent *event)
{
    return callWithEvent(view, viewEventMouseEntered, event);
}

bool CUI_ViewSubclassMouseExited(QWidget *view, QEvent *event)
{
    return callWithEvent(view, viewEventMouseExited, event);
}

bool CUI_ViewSubclassRightMouseDown(QWidget *view, QEvent *event)
{
    return callWithEvent(view, viewEventRightMouseDown, event);
}

bool CUI_ViewSubclassRightMouseDragged(QWidget *view, QEvent *event)
{
    return callWithEvent(view, viewEventRightMouseDragged, event);
}

bool CUI_ViewSubclassRightMouseUp(QWidget *view, QEvent *event)
{
    return callWithEvent(view, viewEventRightMouseUp, event);
}

bool CUI_ViewSubclassKeyDown(QWidget *view, QEvent *event)
{
    return callWithEvent(view, viewEventKeyDown, event);
}

bool CUI_ViewSubclassKeyUp(QWidget *view, QEvent *event)
{
    return callWithEvent(view, viewEventKeyUp, event);
}

bool CUI_ViewSubclassFlagsChanged(QWidget *view, QEvent *event)
{
    return callWithEvent(view, viewEventFlagsChanged, event);
}

bool CUI_ViewSubclassResetCursorRects(QWidget *view)
{
    return call(view, viewEventResetCursorRects, 0);
}

bool CUI_ViewSubclassAppearanceChanged(QWidget *view)
{
    return call(view, viewEventAppearanceChanged, 0);
}

bool CUI_ViewSubclassAwakeFromNib(QWidget *view)
{
    return call(view, viewEventAwakeFromNib, 0);
}

bool CUI_ViewSubclassDraggingEntered(QWidget *view, QEvent *event)
{
    return callWithDrag(view, viewEventDraggingEntered, event);
}

bool CUI_ViewSubclassDraggingExited(QWidget *view, QEvent *event)
{
    return callWithEvent(view, viewEventDraggingExited, event);
}

bool CUI_ViewSubclassPerformDragOperation(QWidget *view, QEvent *event)
{
    return callWithDrag(view, viewEventPerformDrag, event);
}

bool CUI_ViewSubclassMenuForEvent(QWidget *view, QEvent *event, QMenu **menu)
{
    CUI_DialogEventObj()->menuObj = *menu;
    const bool handled = callWithEvent(view, viewEventMenu, event);
    *menu = qobject_cast<QMenu *>(CUI_DialogEventObj()->menuObj);
    return handled;
}

} // namespace tetrad
