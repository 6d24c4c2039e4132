#include <tetrad/app/content_view.h>

#include <tetrad/events/view_relay.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>

#include <utility>

namespace tetrad {

namespace {

// The platform walks on over the widgets that the mouse entered or left, and sends a context menu event to the
// one that had a right press, without looking whether they are still there.
bool isHeld(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::Enter:
    case QEvent::Leave:
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        return event.spontaneous() && static_cast<const QMouseEvent &>(event).button() == Qt::RightButton;
    default:
        return false;
    }
}

} // namespace

bool EventView::report(QEvent *event)
{
    return CUI_ViewSubclassEvent(source(), event);
}

bool EventView::event(QEvent *event)
{
    if (!reportsEvents()) {
        return QWidget::event(event);
    }
    if (isHeld(*event)) {
        hold(event);
        return true;
    }
    if (event->isInputEvent() && !reportHeld()) {
        event->accept();
        return true;
    }
    return report(event) || QWidget::event(event);
}

void EventView::hold(const QEvent *event)
{
    m_held.append(std::shared_ptr<QEvent>(event->clone()));
    QMetaObject::invokeMethod(
        this, [this] { reportHeld(); }, Qt::QueuedConnection);
}

// False when a callback deleted the view.
bool EventView::reportHeld()
{
    const QPointer<EventView> guard(this);
    while (guard && !m_held.isEmpty()) {
        const std::shared_ptr<QEvent> event = m_held.takeFirst();
        if (!report(event.get())) {
            handleByDefault(event.get());
        }
    }
    return guard;
}

void EventView::handleByDefault(QEvent *event)
{
    QWidget::event(event);
    const auto *const mouse = dynamic_cast<QMouseEvent *>(event);
    if (mouse && !mouse->isAccepted() && parentWidget() && !isWindow()) {
        QMouseEvent mapped(mouse->type(), mapToParent(mouse->position()), mouse->scenePosition(),
                           mouse->globalPosition(), mouse->button(), mouse->buttons(), mouse->modifiers());
        QApplication::sendEvent(parentWidget(), &mapped);
    }
}

void EventView::contextMenuEvent(QContextMenuEvent *event)
{
    if (!reportsEvents()) {
        event->ignore();
        return;
    }
    const QPoint position = event->globalPos();
    QObject *menuObj = contextMenu();
    if (CUI_ViewSubclassMenuForEvent(source(), event, &menuObj)) {
        return;
    }
    auto *const menu = qobject_cast<QMenu *>(menuObj);
    event->setAccepted(menu);
    if (menu) {
        menu->popup(position);
    }
}

void EventView::dragEnterEvent(QDragEnterEvent *event)
{
    if (reportsEvents() && acceptsDrag(*event->mimeData())) {
        m_dragInside = true;
        event->acceptProposedAction();
        CUI_ViewSubclassDraggingEntered(source(), event);
    }
}

void EventView::dragLeaveEvent(QDragLeaveEvent *event)
{
    if (std::exchange(m_dragInside, false)) {
        CUI_ViewSubclassDraggingExited(source(), event);
    }
}

void EventView::dropEvent(QDropEvent *event)
{
    m_dragInside = false;
    event->setAccepted(CUI_ViewSubclassPerformDragOperation(source(), event));
}

} // namespace tetrad
