#include "runtime/app/modal/modal_focus.h"

#include <tetrad/app/modal.h>

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPointerEvent>
#include <QWindow>

namespace tetrad {

namespace {

QWidget *firstFocusable(QWidget *inside)
{
    if (inside->focusPolicy() != Qt::NoFocus && !inside->focusProxy()) {
        return inside;
    }
    for (QWidget *next = inside->nextInFocusChain(); next && next != inside; next = next->nextInFocusChain()) {
        if (inside->isAncestorOf(next) && (next->focusPolicy() & Qt::TabFocus) != 0 && next->isEnabled() &&
            next->isVisibleTo(inside)) {
            return next;
        }
    }
    return inside;
}

} // namespace

ModalFocus::ModalFocus()
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { focusMoved(now); });
}

void ModalFocus::setWidget(QWidget *widget)
{
    m_widget = widget;
    m_lastFocus = nullptr;
    m_front = nullptr;
}

void ModalFocus::focusInside()
{
    if (!m_widget) {
        return;
    }
    QWidget *target = m_lastFocus ? m_lastFocus.data() : m_widget->focusWidget();
    (target ? target : firstFocusable(m_widget))->setFocus(Qt::OtherFocusReason);
}

bool ModalFocus::isLive(const QWidget *widget) const
{
    return holdsOutwards(widget, [this](const QWidget *each) { return each == m_widget; }) || isInMenu(widget) ||
           worksWhenModal(widget);
}

void ModalFocus::windowActivated(const QWidget *widget)
{
    if (m_widget && widget->isWindow() && widget != m_widget->window() && widget != m_front && !isLive(widget)) {
        QMetaObject::invokeMethod(this, &ModalFocus::activateAgain, Qt::QueuedConnection);
    }
}

// What the program brought to the front is left like any other window from then on.
void ModalFocus::windowDeactivated(const QWidget *widget)
{
    if (widget == m_front) {
        m_front = nullptr;
    }
}

// A window manager activates another window when the modal one is minimised; that is not yet the user's wish to have
// it back.
void ModalFocus::activateAgain()
{
    if (m_widget && !m_widget->window()->isMinimized()) {
        bringBack();
    }
}

void ModalFocus::bringBack()
{
    QWidget *const window = m_widget ? m_widget->window() : nullptr;
    if (window && (window->isMinimized() || !window->isActiveWindow())) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->raise();
        window->activateWindow();
    }
}

// The application overlooks that a window gets the keyboard while a menu is open, and would go on showing the focus in
// the one that had it before.
void ModalFocus::followKeyboard()
{
    QWidget *window = widgetOfWindow(QGuiApplication::focusWindow());
    const bool isOver = !QApplication::activePopupWidget();
    if (isOver && window && window->isVisible() && window->windowType() != Qt::Popup && !window->isActiveWindow()) {
        // The recommended activateWindow() does nothing for the window that has the keyboard already.
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        QApplication::setActiveWindow(window);
        QT_WARNING_POP
    }
}

void ModalFocus::focusMoved(QWidget *now)
{
    if (!m_widget || !now) {
        return;
    }
    if (m_widget == now || m_widget->isAncestorOf(now)) {
        m_lastFocus = now;
    } else if ((!isLive(now) || isIdleBar(now)) && now->window() == m_widget->window()) {
        focusInside();
    }
}

bool isInMenu(const QWidget *widget)
{
    return holdsOutwards(widget, [](const QWidget *each) {
        return qobject_cast<const QMenu *>(each) || qobject_cast<const QMenuBar *>(each);
    });
}

// A menu bar has the keyboard while one of its titles is highlighted. When its window was left and entered again
// meanwhile, the bar gets the focus back without that, and nothing the player can do would move it on.
bool isIdleBar(const QWidget *widget)
{
    const auto *bar = qobject_cast<const QMenuBar *>(widget);
    return bar && !bar->activeAction();
}

QPoint pressPosition(const QEvent *event)
{
    const auto *pointer = static_cast<const QPointerEvent *>(event);
    return pointer->pointCount() > 0 ? pointer->points().first().position().toPoint() : QPoint();
}

QWidget *widgetOfWindow(const QWindow *window)
{
    return window ? QWidget::find(window->winId()) : nullptr;
}

} // namespace tetrad
