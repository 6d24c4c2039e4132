#include <tetrad/events/view_relay.h>

#include "runtime/controls/events/current_event.h"
#include <tetrad/events/tag.h>

#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>

namespace tetrad {

namespace {

using Report = bool (*)(const ReportingView &view, QEvent *event);

bool isModifier(int key)
{
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

Report keyReport(const QKeyEvent &event, Report report)
{
    return isModifier(event.key()) ? CUI_ViewSubclassFlagsChanged : report;
}

Report buttonReport(Qt::MouseButtons buttons, Report left, Report right, Report neither)
{
    return buttons & Qt::LeftButton ? left : buttons & Qt::RightButton ? right : neither;
}

Report reportFor(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return buttonReport(static_cast<const QMouseEvent &>(event).button(), CUI_ViewSubclassMouseDown,
                            CUI_ViewSubclassRightMouseDown, nullptr);
    case QEvent::MouseButtonRelease:
        return buttonReport(static_cast<const QMouseEvent &>(event).button(), CUI_ViewSubclassMouseUp,
                            CUI_ViewSubclassRightMouseUp, nullptr);
    case QEvent::MouseMove:
        return buttonReport(static_cast<const QMouseEvent &>(event).buttons(), CUI_ViewSubclassMouseDragged,
                            CUI_ViewSubclassRightMouseDragged, CUI_ViewSubclassMouseMoved);
    case QEvent::Enter:
        return CUI_ViewSubclassMouseEntered;
    case QEvent::Leave:
        return CUI_ViewSubclassMouseExited;
    case QEvent::KeyPress:
        return keyReport(static_cast<const QKeyEvent &>(event), CUI_ViewSubclassKeyDown);
    case QEvent::KeyRelease:
        // A key that repeats goes up once.
        return static_cast<const QKeyEvent &>(event).isAutoRepeat()
                   ? nullptr
                   : keyReport(static_cast<const QKeyEvent &>(event), CUI_ViewSubclassKeyUp);
    default:
        return nullptr;
    }
}

bool reportDrag(const ReportingView &view, ViewEvent code, QEvent *event)
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
    return detail::reportViewEvent(view, code, event);
}

} // namespace

bool detail::reportViewEvent(const ReportingView &view, ViewEvent code, QEvent *event)
{
    const QPointer<QObject> guard(view.view);
    const CurrentEventScope scope(event ? event : CUI_EventEvent());
    CUI_DialogEventObj()->boolVal = false;
    CUI_OutputWindowSetTag(view.wndTag);
    CallUserDefinedOnDialogFunction(code, view.tag, view.wndTag, tagFromEvent(event));
    return !guard || CUI_DialogEventObj()->boolVal;
}

bool CUI_ViewSubclassEvent(const ReportingView &view, QEvent *event)
{
    const Report report = reportFor(*event);
    return report && report(view, event);
}

bool CUI_ViewSubclassDrawRect(const ReportingView &view, const QRect &dirtyRect)
{
    CUI_DialogEventObj()->rectVal = dirtyRect;
    return detail::reportViewEvent(view, viewEventDraw, nullptr);
}

bool CUI_ViewSubclassAcceptsFirstResponder(const ReportingView &view)
{
    const QPointer<QObject> guard(view.view);
    return detail::reportViewEvent(view, viewEventAcceptsFirstResponder, nullptr) && guard;
}

bool CUI_ViewSubclassDraggingEntered(const ReportingView &view, QEvent *event)
{
    return reportDrag(view, viewEventDraggingEntered, event);
}

bool CUI_ViewSubclassPerformDragOperation(const ReportingView &view, QEvent *event)
{
    return reportDrag(view, viewEventPerformDrag, event);
}

bool CUI_ViewSubclassMenuForEvent(const ReportingView &view, QEvent *event, QObject **menu)
{
    CUI_DialogEventObj()->menuObj = *menu;
    const bool handled = detail::reportViewEvent(view, viewEventMenu, event);
    *menu = CUI_DialogEventObj()->menuObj;
    return handled;
}

} // namespace tetrad
