#include "runtime/app/modal/modal_filter.h"

#include <tetrad/app/modal.h>
#include <tetrad/app/window.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QVariant>
#include <QWindow>

#include <algorithm>

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

QPoint pressPosition(QEvent *event)
{
    const auto *pointer = static_cast<const QPointerEvent *>(event);
    return pointer->pointCount() > 0 ? pointer->points().first().position().toPoint() : QPoint();
}

QWidget *widgetOfWindow(const QWindow *window)
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() == window) {
            return widget;
        }
    }
    return nullptr;
}

bool isInMenu(const QWidget *widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (qobject_cast<const QMenu *>(widget) != nullptr || qobject_cast<const QMenuBar *>(widget) != nullptr) {
            return true;
        }
    }
    return false;
}

/// A menu bar has the keyboard while one of its titles is highlighted. When its window was left and entered again
/// meanwhile, the bar gets the focus back without that, and nothing the player can do would move it on.
bool isIdleBar(const QWidget *widget)
{
    const auto *bar = qobject_cast<const QMenuBar *>(widget);
    return bar != nullptr && bar->activeAction() == nullptr;
}

QWidget *firstFocusable(QWidget *inside)
{
    if (inside->focusPolicy() != Qt::NoFocus && inside->focusProxy() == nullptr) {
        return inside;
    }
    for (QWidget *next = inside->nextInFocusChain(); next != nullptr && next != inside;
         next = next->nextInFocusChain()) {
        if (inside->isAncestorOf(next) && (next->focusPolicy() & Qt::TabFocus) != 0 && next->isEnabled() &&
            next->isVisibleTo(inside)) {
            return next;
        }
    }
    return inside;
}

} // namespace

ModalFilter::ModalFilter()
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { focusMoved(now); });
}

ModalFilter::~ModalFilter() = default;

void ModalFilter::install()
{
    qApp->installEventFilter(this);
}

void ModalFilter::remove()
{
    qApp->removeEventFilter(this);
}

void ModalFilter::setWidget(QWidget *widget)
{
    m_widget = widget;
    m_lastFocus = nullptr;
    m_front = nullptr;
}

void ModalFilter::focusInside()
{
    if (m_widget == nullptr) {
        return;
    }
    QWidget *target = m_lastFocus != nullptr ? m_lastFocus.data() : m_widget->focusWidget();
    (target != nullptr ? target : firstFocusable(m_widget))->setFocus(Qt::OtherFocusReason);
}

void ModalFilter::deliverKeptKeys()
{
    auto kept = std::move(m_keptKeys);
    m_keptKeys.clear();
    for (auto &key : kept) {
        QWidget *focus = m_widget != nullptr ? m_widget->window()->focusWidget() : nullptr;
        if (focus == nullptr) {
            // The run was ended by one of the keys: the rest is for the one after it.
            m_keptKeys.push_back(std::move(key));
            continue;
        }
        QCoreApplication::sendEvent(focus, key.get());
    }
}

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
    if (QApplication::activePopupWidget() != nullptr) {
        return false;
    }
    if (isKey(event->type())) {
        return m_widget == nullptr && keepKey(event);
    }
    const QWidget *top = isPress(event->type()) ? widgetOfWindow(window) : nullptr;
    if (top == nullptr) {
        return false;
    }
    const QWidget *child = top->childAt(pressPosition(event));
    const QWidget *target = child != nullptr ? child : top;
    if (qobject_cast<const QMenuBar *>(QApplication::focusWidget()) != nullptr && !isInMenu(target)) {
        focusInside();
    }
    if (isLive(target) || isScrollBar(target)) {
        return false;
    }
    bringBack();
    return true;
}

bool ModalFilter::isWithheldFromWidget(QWidget *widget, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Hide && !event->spontaneous()) {
        Q_EMIT hidden(widget);
        if (widget->windowType() == Qt::Popup) {
            QMetaObject::invokeMethod(this, &ModalFilter::followKeyboard, Qt::QueuedConnection);
        }
        return false;
    }
    if (type == QEvent::WindowActivate) {
        windowActivated(widget);
        return false;
    }
    if (type == QEvent::WindowDeactivate && widget == m_front) {
        m_front = nullptr;
    }
    const bool isLost = isKey(type) && isIdleBar(widget) && widget->hasFocus();
    if (m_redirecting || (isLive(widget) && !isLost)) {
        return false;
    }
    if (isLost) {
        return redirectKey(event);
    }
    if (isKey(type)) {
        return comesFromInside(widget) ? endHere(event) : redirectKey(event);
    }
    if (type == QEvent::Close && event->spontaneous()) {
        // A runtime window asks its delegate, whatever runs; the answer it gives is its own.
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

// The application overlooks that a window gets the keyboard while a menu is open, and would go on showing the focus in
// the one that had it before.
void ModalFilter::followKeyboard()
{
    QWidget *window = widgetOfWindow(QGuiApplication::focusWindow());
    const bool isOver = QApplication::activePopupWidget() == nullptr;
    if (isOver && window != nullptr && window->isVisible() && window->windowType() != Qt::Popup &&
        !window->isActiveWindow()) {
        // The recommended activateWindow() does nothing for the window that has the keyboard already.
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        QApplication::setActiveWindow(window);
        QT_WARNING_POP
    }
}

// A key that repeats because it is held down is not typed ahead, and a release counts only after
// its press.
bool ModalFilter::keepKey(QEvent *event)
{
    const auto *key = static_cast<const QKeyEvent *>(event);
    const auto samePress = [key](const auto &kept) { return kept->key() == key->key(); };
    const bool wanted = event->type() == QEvent::KeyPress ||
                        (event->type() == QEvent::KeyRelease && std::ranges::any_of(m_keptKeys, samePress));
    if (wanted && !key->isAutoRepeat()) {
        m_keptKeys.emplace_back(key->clone());
    }
    event->setAccepted(event->type() != QEvent::ShortcutOverride);
    return true;
}

// With the run ended this can only be the very key that ended it, on its way from the focus outwards: it
// must not be kept as if it had been typed again.
bool ModalFilter::redirectKey(QEvent *event)
{
    if (m_widget == nullptr) {
        return endHere(event);
    }
    // The key that brings the window back does nothing else.
    if (m_widget->window()->isMinimized()) {
        if (event->type() == QEvent::KeyPress) {
            bringBack();
        }
        return endHere(event);
    }
    const QScopedValueRollback guard(m_redirecting, true);
    bringBack();
    focusInside();
    if (QWidget *focus = m_widget->window()->focusWidget()) {
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
    return focus != nullptr && widget->isAncestorOf(focus) && isLive(focus);
}

bool ModalFilter::isLive(const QWidget *widget) const
{
    for (const QWidget *each = widget; each != nullptr; each = each->parentWidget()) {
        if (each == m_widget) {
            return true;
        }
    }
    return isInMenu(widget) || worksWhenModal(widget);
}

bool ModalFilter::isCarrier(const QWidget *window) const
{
    for (const QWidget *each = m_widget; each != nullptr; each = each->parentWidget()) {
        if (each == window) {
            return true;
        }
    }
    return false;
}

bool ModalFilter::isScrollBar(const QWidget *widget) const
{
    return qobject_cast<const QScrollBar *>(widget) != nullptr && isCarrier(widget->window());
}

bool ModalFilter::scrolls(const QWidget *widget) const
{
    const bool isViewport = qobject_cast<const QAbstractScrollArea *>(widget->parentWidget()) != nullptr;
    return isScrollBar(widget) || (isViewport && isCarrier(widget->window()));
}

void ModalFilter::windowActivated(const QWidget *widget)
{
    if (m_widget && widget->isWindow() && widget != m_widget->window() && widget != m_front && !isLive(widget)) {
        QMetaObject::invokeMethod(this, &ModalFilter::activateAgain, Qt::QueuedConnection);
    }
}

// A window manager activates another window when the modal one is minimised; that is not yet the user's wish to have
// it back.
void ModalFilter::activateAgain()
{
    if (m_widget && !m_widget->window()->isMinimized()) {
        bringBack();
    }
}

void ModalFilter::bringBack()
{
    QWidget *const window = m_widget ? m_widget->window() : nullptr;
    if (window && (window->isMinimized() || !window->isActiveWindow())) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->raise();
        window->activateWindow();
    }
}

void ModalFilter::focusMoved(QWidget *now)
{
    if (m_widget == nullptr || now == nullptr) {
        return;
    }
    if (m_widget == now || m_widget->isAncestorOf(now)) {
        m_lastFocus = now;
    } else if ((!isLive(now) || isIdleBar(now)) && now->window() == m_widget->window()) {
        focusInside();
    }
}

} // namespace tetrad
