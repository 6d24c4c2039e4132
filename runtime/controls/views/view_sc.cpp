#include <tetrad/controls/view_sc.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/dispatch/view_events_relay.h"
#include "runtime/controls/statements/view_statement.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QMenu>
#include <QMimeData>

#include <algorithm>
#include <memory>

namespace tetrad {

namespace {

// While Tab looks for a view that accepts the keyboard: where the search began, and whether a view that
// refused is just passing it on.
QPointer<ViewSC> searchStart;
bool isPassingOn = false;

// Whether the platform chose the view by itself: by Tab, or as the first of a window that became active.
bool isPlatformsChoice(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ActiveWindowFocusReason;
}

} // namespace

ViewSC::ViewSC(QWidget *parent) : QWidget(parent)
{
    setMouseTracking(true);
    // A click asks first, so the platform must not give the focus by itself.
    setFocusPolicy(Qt::TabFocus);
}

QMenu *ViewSC::menu() const
{
    return m_menu;
}

void ViewSC::setMenu(QMenu *menu)
{
    m_menu = menu;
}

void ViewSC::setDraggedTypes(const QStringList &types)
{
    m_draggedTypes = types;
    setAcceptDrops(!types.isEmpty());
}

void ViewSC::awakeFromNib()
{
    CUI_ViewSubclassAwakeFromNib(this);
}

bool ViewSC::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Resize:
        callSoon(this, [this] { CUI_ViewSubclassResetCursorRects(this); });
        return QWidget::event(event);
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        callSoon(this, [this] { CUI_ViewSubclassAppearanceChanged(this); });
        return QWidget::event(event);
    case QEvent::Enter:
    case QEvent::Leave:
        reportSoon(event);
        return QWidget::event(event);
    case QEvent::MouseButtonPress:
        return !survivesFocusQuestion() || CUI_ViewSubclassEvent(this, event) || QWidget::event(event);
    default:
        return CUI_ViewSubclassEvent(this, event) || QWidget::event(event);
    }
}

// The platform goes on working on a view that the mouse entered or left, so the program, which may delete
// it, is told of a copy.
void ViewSC::reportSoon(const QEvent *event)
{
    const std::shared_ptr<QEvent> copy(event->clone());
    callSoon(this, [this, copy] { CUI_ViewSubclassEvent(this, copy.get()); });
}

bool ViewSC::survivesFocusQuestion()
{
    const QPointer<ViewSC> guard(this);
    if (!hasFocus() && CUI_ViewSubclassAcceptsFirstResponder(this)) {
        setFocus(Qt::MouseFocusReason);
    }
    return guard;
}

void ViewSC::paintEvent(QPaintEvent *event)
{
    const QRect dirtyRect = event->rect();
    if (CUI_ViewSubclassWantsUpdateLayer(this)) {
        CUI_ViewSubclassUpdateLayer(this);
    } else {
        CUI_ViewSubclassDrawRect(this, dirtyRect);
    }
}

void ViewSC::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    if (!isPlatformsChoice(event->reason())) {
        return;
    }
    if (isPassingOn && searchStart == this) {
        callSoon(this, [this] { clearFocus(); });
        return;
    }
    if (!isPassingOn) {
        searchStart = this;
    }
    callSoon(this, [this, forward = event->reason() != Qt::BacktabFocusReason] { confirmFocus(forward); });
}

void ViewSC::confirmFocus(bool forward)
{
    const QPointer<ViewSC> guard(this);
    if (!hasFocus() || CUI_ViewSubclassAcceptsFirstResponder(this) || !guard || !hasFocus()) {
        return;
    }
    isPassingOn = true;
    focusNextPrevChild(forward);
    isPassingOn = false;
    if (hasFocus()) {
        clearFocus();
    }
}

void ViewSC::contextMenuEvent(QContextMenuEvent *event)
{
    const QPoint position = event->globalPos();
    QMenu *menu = m_menu;
    if (CUI_ViewSubclassMenuForEvent(this, event, &menu)) {
        return;
    }
    event->setAccepted(menu);
    if (menu) {
        menu->popup(position);
    }
}

void ViewSC::dragEnterEvent(QDragEnterEvent *event)
{
    const auto isOffered = [event](const QString &type) { return event->mimeData()->hasFormat(type); };
    if (std::any_of(m_draggedTypes.begin(), m_draggedTypes.end(), isOffered)) {
        event->acceptProposedAction();
        CUI_ViewSubclassDraggingEntered(this, event);
    }
}

void ViewSC::dragLeaveEvent(QDragLeaveEvent *event)
{
    CUI_ViewSubclassDraggingExited(this, event);
}

void ViewSC::dropEvent(QDropEvent *event)
{
    event->setAccepted(CUI_ViewSubclassPerformDragOperation(this, event));
}

void CUI_ViewSubclass(Tag tag, const QRectF &rect)
{
    statementView<ViewSC>(tag, rect, [](ViewSC *) {});
}

} // namespace tetrad
