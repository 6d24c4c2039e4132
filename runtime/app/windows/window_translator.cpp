#include "runtime/app/windows/window_translator.h"

#include <tetrad/app/window_delegate.h>

#include <QEvent>
#include <QScreen>
#include <QTimerEvent>
#include <QWindow>
#include <QWindowStateChangeEvent>

#include <algorithm>
#include <utility>

namespace tetrad {

namespace {

// How many geometries that the program requested may still be echoed.
constexpr qsizetype mostRequested = 6;

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

// Queries the delegate about a zoom that the window system has begun. It is undone later: the window system must
// not be contradicted while it is still at it.
void confirmZoom(const QPointer<Window> &window)
{
    QRectF standard = window->screen()->availableGeometry() - window->frameMargins();
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
    case QEvent::Resize:
        changed(event->spontaneous());
        break;
    case QEvent::Timer:
        timedOut(static_cast<QTimerEvent *>(event)->timerId());
        break;
    case QEvent::WindowStateChange:
        stateChanged(static_cast<QWindowStateChangeEvent *>(event)->oldState());
        break;
    case QEvent::WindowActivate:
        m_isSettled = true;
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
    if (m_reported.isNull()) {
        m_reported = m_window->contentRect();
    }
    QWindow *const handle = m_window->windowHandle();
    if (handle && handle != m_watchedHandle) {
        m_watchedHandle = handle;
        QObject::connect(handle, &QWindow::screenChanged, m_window,
                         [window = m_window] { notify(window, {&CUI_WindowDelegate::windowDidChangeScreen}); });
    }
}

// What the window system did is judged a moment later: a new state of the window and the geometry that belongs to it
// come in either order, and a drag comes in more steps than the delegate should be queried about.
void WindowTranslator::changed(bool byWindowSystem)
{
    if (m_reported.isNull()) {
        return;
    }
    if (!byWindowSystem) {
        m_requested.prepend(m_window->geometry());
        m_requested.resize(std::min(m_requested.size(), mostRequested));
    }
    if (!m_judge.isActive()) {
        m_judge.start(judgePause_ms, m_window);
    }
}

void WindowTranslator::reportProgramsChange()
{
    if (m_window->isVisible() && !m_reported.isNull()) {
        report(false, false);
    }
}

void WindowTranslator::timedOut(int timer)
{
    if (timer == m_judge.timerId()) {
        m_judge.stop();
        judge();
    } else if (timer == m_liveResize.timerId()) {
        m_liveResize.stop();
        endLiveResize();
    }
}

// Not the user's: what the window manager does before the window is in use, what comes with maximising and back, and
// the late echo of what the program requested.
void WindowTranslator::judge()
{
    const QRect now = m_window->geometry();
    const bool mayBeUser = m_isSettled && !(m_window->windowState() & spreadOut) && m_spreading.hasExpired();
    const bool isMove = mayBeUser && std::ranges::none_of(m_requested, [now](const QRect &requested) {
                            return requested.topLeft() == now.topLeft();
                        });
    const bool isResize = mayBeUser && std::ranges::none_of(m_requested, [now](const QRect &requested) {
                              return requested.size() == now.size();
                          });
    if (isMove || isResize) {
        m_requested.clear();
    }
    report(isMove, isResize);
}

void WindowTranslator::report(bool userMoved, bool userResized)
{
    const QPointer<Window> window = m_window;
    const QRectF now = window->contentRect();
    const QRectF before = std::exchange(m_reported, now);
    if (now.topLeft() != before.topLeft()) {
        // As on the platform that the codes come from, only the user's moves are announced.
        if (userMoved) {
            notify(window, {&CUI_WindowDelegate::windowWillMove});
        }
        notify(window, {&CUI_WindowDelegate::windowDidMove});
    }
    if (!window || now.size() == before.size()) {
        return;
    }
    if (userResized && window->delegate()) {
        confirmSize(now.size());
    } else {
        notify(window, {&CUI_WindowDelegate::windowDidResize});
    }
}

// Queries the delegate once for each size that is offered. A window manager may go on with its own size as long as the
// user drags, so the window is held at another width or height in the answer until the drag is over.
void WindowTranslator::confirmSize(const QSizeF &size)
{
    const QPointer<Window> window = m_window;
    if (!m_liveResize.isActive()) {
        m_liveResize.start(liveResizePause_ms, window);
        notify(window, {&CUI_WindowDelegate::windowWillStartLiveResize});
    }
    const QSizeF answer = window && window->delegate() ? window->delegate()->windowWillResize(window, size) : size;
    if (!window) {
        return;
    }
    m_liveResize.start(liveResizePause_ms, window);
    if (answer.isValid() && answer != size) {
        if (answer.width() != size.width()) {
            m_held.setWidth(answer.width());
        }
        if (answer.height() != size.height()) {
            m_held.setHeight(answer.height());
        }
        window->holdContentSize(m_held);
        reportProgramsChange();
    } else {
        notify(window, {&CUI_WindowDelegate::windowDidResize});
    }
}

void WindowTranslator::endLiveResize()
{
    if (std::exchange(m_held, QSizeF()) != QSizeF()) {
        m_window->holdContentSize(QSizeF());
    }
    notify(m_window, {&CUI_WindowDelegate::windowDidEndLiveResize});
}

void WindowTranslator::stateChanged(Qt::WindowStates before)
{
    const QPointer<Window> window = m_window;
    const Qt::WindowStates entered = window->windowState() & ~before;
    const Qt::WindowStates left = before & ~window->windowState();
    if ((entered | left) & spreadOut) {
        m_spreading.setRemainingTime(liveResizePause_ms);
    }
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
