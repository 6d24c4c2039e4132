#include "runtime/app/modal/modal_filter.h"

#include <tetrad/app/modal.h>
#include <tetrad/app/window.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QVariant>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tetrad {

namespace {

bool isKey(QEvent::Type type)
{
    return type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::ShortcutOverride;
}

bool isPress(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick || type == QEvent::TouchBegin ||
           type == QEvent::TabletPress;
}

bool isPointer(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

} // namespace

bool ModalFilter::eventFilter(QObject *receiver, QEvent *event)
{
    if (auto *window = qobject_cast<QWindow *>(receiver)) {
        return isWithheldFromWindow(window, event);
    }
    if (receiver->isWidgetType()) {
        return isWithheldFromWidget(static_cast<QWidget *>(receiver), event);
    }
    return false;
}

// A press must be stopped at the window: once the window has forwarded it, the widget under the
// pointer has the focus already. Moves and releases belong to the widget that was pressed, wherever
// the pointer is, so they are judged at that widget.
bool ModalFilter::isWithheldFromWindow(QWindow *window, QEvent *event)
{
    if (QApplication::activePopupWidget()) {
        return false;
    }
    if (isKey(event->type())) {
        if (!m_focus.widget()) {
            keepKey(static_cast<QKeyEvent *>(event));
            return true;
        }
        return false;
    }
    const QWidget *top = isPress(event->type()) ? widgetOfWindow(window) : nullptr;
    if (!top) {
        return false;
    }
    const QWidget *child = top->childAt(pressPosition(event));
    const QWidget *target = child ? child : top;
    if (qobject_cast<const QMenuBar *>(QApplication::focusWidget()) && !isInMenu(target)) {
        m_focus.focusInside();
    }
    if (m_focus.isLive(target) || isScrollBar(target)) {
        return false;
    }
    m_focus.bringBack();
    return true;
}

bool ModalFilter::isWithheldFromWidget(QWidget *widget, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Hide && !event->spontaneous()) {
        Q_EMIT hidden(widget);
        if (widget->windowType() == Qt::Popup) {
            QMetaObject::invokeMethod(&m_focus, &ModalFocus::followKeyboard, Qt::QueuedConnection);
        }
        return false;
    }
    if (type == QEvent::WindowActivate) {
        m_focus.windowActivated(widget);
        return false;
    }
    if (type == QEvent::WindowDeactivate) {
        m_focus.windowDeactivated(widget);
        return false;
    }
    const bool isLost = isKey(type) && isIdleBar(widget) && widget->hasFocus();
    if (m_redirecting || (m_focus.isLive(widget) && !isLost)) {
        return false;
    }
    if (isLost) {
        return redirectKey(event);
    }
    if (isKey(type)) {
        return comesFromInside(widget) ? endHere(event) : redirectKey(event);
    }
    if (type == QEvent::Close && event->spontaneous()) {
        // A runtime window queries its delegate itself, also during a run.
        const bool withheld = !qobject_cast<Window *>(widget);
        event->setAccepted(!withheld);
        return withheld;
    }
    if (type == QEvent::Wheel) {
        event->ignore();
        return !scrolls(widget);
    }
    return isPointer(type) && !isScrollBar(widget);
}

// A key that repeats because it is held down is not typed ahead, and a release counts only after its press.
void ModalFilter::keepKey(QKeyEvent *event)
{
    const auto samePress = [event](const auto &kept) { return kept->key() == event->key(); };
    const bool wanted = event->type() == QEvent::KeyPress ||
                        (event->type() == QEvent::KeyRelease && std::ranges::any_of(m_keptKeys, samePress));
    if (wanted && !event->isAutoRepeat()) {
        m_keptKeys.emplace_back(event->clone());
    }
    event->setAccepted(event->type() != QEvent::ShortcutOverride);
}

void ModalFilter::deliverKeptKeys()
{
    for (auto &key : std::exchange(m_keptKeys, {})) {
        QWidget *focus = m_focus.widget() ? m_focus.widget()->window()->focusWidget() : nullptr;
        if (focus) {
            QCoreApplication::sendEvent(focus, key.get());
        } else {
            // The run was ended by one of the keys: the rest is for the one after it.
            m_keptKeys.push_back(std::move(key));
        }
    }
}

// With the run ended this can only be the very key that ended it, on its way from the focus outwards: it
// must not be kept as if it had been typed again.
bool ModalFilter::redirectKey(QEvent *event)
{
    if (!m_focus.widget()) {
        return endHere(event);
    }
    // The key that brings the window back does nothing else.
    if (m_focus.widget()->window()->isMinimized()) {
        if (event->type() == QEvent::KeyPress) {
            m_focus.bringBack();
        }
        return endHere(event);
    }
    const QScopedValueRollback guard(m_redirecting, true);
    m_focus.bringBack();
    m_focus.focusInside();
    if (QWidget *focus = m_focus.widget()->window()->focusWidget()) {
        QCoreApplication::sendEvent(focus, event);
    }
    return true;
}

bool ModalFilter::endHere(QEvent *event)
{
    // A shortcut may still want it, and the menu bar watches its window for a tapped Alt.
    const bool asksFirst = event->type() == QEvent::ShortcutOverride;
    event->setAccepted(!asksFirst);
    return !asksFirst || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Alt;
}

// What a live widget with the focus does not use goes on to the widgets around it; it was not typed there, and the
// focus stays.
bool ModalFilter::comesFromInside(const QWidget *widget) const
{
    const QWidget *focus = QApplication::focusWidget();
    return focus && widget->isAncestorOf(focus) && m_focus.isLive(focus);
}

bool ModalFilter::isCarrier(const QWidget *window) const
{
    return holdsOutwards(m_focus.widget(), [window](const QWidget *each) { return each == window; });
}

bool ModalFilter::isScrollBar(const QWidget *widget) const
{
    return qobject_cast<const QScrollBar *>(widget) && isCarrier(widget->window());
}

bool ModalFilter::scrolls(const QWidget *widget) const
{
    const bool isViewport = qobject_cast<const QAbstractScrollArea *>(widget->parentWidget()) != nullptr;
    return isScrollBar(widget) || (isViewport && isCarrier(widget->window()));
}

} // namespace tetrad
