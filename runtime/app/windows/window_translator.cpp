#include "runtime/app/windows/window_translator.h"

#include <tetrad/app/window_delegate.h>

#include <QEvent>
#include <QScreen>
#include <QTimerEvent>
#include <QWindow>
#include <QWindowStateChangeEvent>

namespace tetrad {

namespace {

using Notification = void (CUI_WindowDelegate::*)(Window *);

// Stops early when a callback deletes the window.
void notify(const QPointer<Window> &window, const QList<Notification> &notifications)
{
    for (const Notification notification : notifications) {
        if (window && window->delegate()) {
            (window->delegate()->*notification)(window);
        }
    }
}

// Asks whether the window may have the size it was given, and gives it the size in the answer.
// Returns whether the resize still has to be reported.
bool confirmSize(const QPointer<Window> &window, const QSizeF &size)
{
    const QSizeF answer = window->delegate()->windowWillResize(window, size);
    if (!window || answer == size || !answer.isValid()) {
        return window;
    }
    QRectF place = window->contentRect();
    place.setSize(answer);
    window->setContentRect(place);
    return window && window->contentRect().size() == size;
}

// Asks about a zoom that the window system has begun. It is undone later: the window system must
// not be contradicted while it is still at it.
void confirmZoom(const QPointer<Window> &window)
{
    QRectF standard = window->screen()->availableGeometry();
    standard.setTop(standard.top() + window->contentView()->y());
    const QRectF frame = window->delegate()->windowWillUseStandardFrame(window, standard);
    const bool zooms = window && window->delegate() && window->delegate()->windowShouldZoom(window, frame);
    if (!window || (zooms && frame == standard)) {
        return;
    }
    const auto undo = [window, zooms, frame] {
        window->setWindowState(window->windowState() & ~Qt::WindowMaximized);
        if (zooms) {
            window->setContentRect(frame);
        }
    };
    QMetaObject::invokeMethod(window.data(), undo, Qt::QueuedConnection);
}

} // namespace

WindowTranslator::WindowTranslator(Window *window) : m_window(window) {}

// No function touches a member after a callback: with the window its translator is gone as well.
void WindowTranslator::translate(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        shown();
        break;
    case QEvent::Move:
        moved(event->spontaneous());
        break;
    case QEvent::Resize:
        resized(event->spontaneous());
        break;
    case QEvent::Timer:
        if (static_cast<QTimerEvent *>(event)->timerId() == m_liveResize.timerId()) {
            m_liveResize.stop();
            notify(m_window, {&CUI_WindowDelegate::windowDidEndLiveResize});
        }
        break;
    case QEvent::WindowStateChange:
        stateChanged(static_cast<QWindowStateChangeEvent *>(event)->oldState());
        break;
    case QEvent::WindowActivate:
        notify(m_window, {&CUI_WindowDelegate::windowDidBecomeKey, &CUI_WindowDelegate::windowDidBecomeMain});
        break;
    case QEvent::WindowDeactivate:
        notify(m_window, {&CUI_WindowDelegate::windowDidResignKey, &CUI_WindowDelegate::windowDidResignMain});
        break;
    case QEvent::UpdateRequest:
        notify(m_window, {&CUI_WindowDelegate::windowDidUpdate});
        break;
    case QEvent::Close:
        if (event->isAccepted()) {
            notify(m_window, {&CUI_WindowDelegate::windowWillClose});
        }
        break;
    default:
        break;
    }
}

void WindowTranslator::shown()
{
    if (m_place.isNull()) {
        m_place = m_window->contentRect();
    }
    QWindow *const handle = m_window->windowHandle();
    if (handle && handle != m_watchedHandle) {
        m_watchedHandle = handle;
        QObject::connect(handle, &QWindow::screenChanged, m_window,
                         [window = m_window] { notify(window, {&CUI_WindowDelegate::windowDidChangeScreen}); });
    }
}

void WindowTranslator::moved(bool byWindowSystem)
{
    const QPointF place = m_window->contentRect().topLeft();
    if (m_place.isNull() || place == m_place.topLeft()) {
        return;
    }
    m_place.moveTopLeft(place);
    // As on the platform that the codes come from, only the user's moves are announced.
    if (byWindowSystem) {
        notify(m_window, {&CUI_WindowDelegate::windowWillMove, &CUI_WindowDelegate::windowDidMove});
    } else {
        notify(m_window, {&CUI_WindowDelegate::windowDidMove});
    }
}

void WindowTranslator::resized(bool byWindowSystem)
{
    const QPointer<Window> window = m_window;
    const QSizeF size = window->contentRect().size();
    if (m_place.isNull() || size == m_place.size()) {
        return;
    }
    m_place.setSize(size);
    const bool byUser = byWindowSystem && !(window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen));
    if (byUser && window->delegate()) {
        const bool begins = !m_liveResize.isActive();
        m_liveResize.start(liveResizePause_ms, window);
        if (begins) {
            notify(window, {&CUI_WindowDelegate::windowWillStartLiveResize});
        }
        if (!window || !confirmSize(window, size)) {
            return;
        }
    }
    notify(window, {&CUI_WindowDelegate::windowDidResize});
}

void WindowTranslator::stateChanged(Qt::WindowStates before)
{
    const QPointer<Window> window = m_window;
    const Qt::WindowStates entered = window->windowState() & ~before;
    const Qt::WindowStates left = before & ~window->windowState();
    if (entered & Qt::WindowMinimized) {
        notify(window, {&CUI_WindowDelegate::windowWillMiniaturize, &CUI_WindowDelegate::windowDidMiniaturize});
    } else if (left & Qt::WindowMinimized) {
        notify(window, {&CUI_WindowDelegate::windowDidDeminiaturize});
    }
    if (left & Qt::WindowFullScreen) {
        notify(window, {&CUI_WindowDelegate::windowWillExitFullScreen, &CUI_WindowDelegate::windowDidExitFullScreen});
    } else if (entered & Qt::WindowFullScreen) {
        notify(window, {&CUI_WindowDelegate::windowWillEnterFullScreen, &CUI_WindowDelegate::windowDidEnterFullScreen});
    }
    if ((entered & Qt::WindowMaximized) && window && window->delegate()) {
        confirmZoom(window);
    }
}

} // namespace tetrad
