#pragma once

#include <QBasicTimer>
#include <QDeadlineTimer>
#include <QList>
#include <QPointer>
#include <QRectF>

class QEvent;
class QWindow;

namespace tetrad {

class Window;

/// The states in which the window system decides the size.
inline constexpr Qt::WindowStates spreadOut = Qt::WindowMaximized | Qt::WindowFullScreen;

/// Turns the window system's events for one window into calls of the window's delegate; nothing else
/// looks at event types for that purpose.
///
/// This platform reports a dragged size or a zoom only after the fact. The delegate is queried then, and a different
/// answer corrects what was done. A live resize is a run of resizes by the window
/// system that ends when none has come for liveResizePause_ms.
class WindowTranslator
{
public:
    static constexpr int liveResizePause_ms = 250;
    static constexpr int judgePause_ms = 30;

    explicit WindowTranslator(Window *window);

    /// To be called when the window has done its own part of the event. The window may be gone
    /// afterwards.
    void translate(QEvent *event);

    /// Reports what the program did to the position and size without waiting for the event loop. The window may be gone
    /// afterwards, so this must not be called while Qt is still moving the window.
    void reportProgramsChange();

private:
    void shown();
    void changed(bool byWindowSystem);
    void timedOut(int timer);
    void judge();
    void report(bool userMoved, bool userResized);
    void confirmSize(const QSizeF &size);
    void endLiveResize();
    void stateChanged(Qt::WindowStates before);

    QPointer<Window> m_window;
    QBasicTimer m_judge;
    QBasicTimer m_liveResize;
    QDeadlineTimer m_spreading = QDeadlineTimer(0);
    // The window's geometries that the program requested, newest first.
    QList<QRect> m_requested;
    // The width and height in the answer that the window is held at; negative where it is free.
    QSizeF m_held;
    bool m_isSettled = false;
    // The content rectangle last reported; null until the window was first shown.
    QRectF m_reported;
    QPointer<QWindow> m_watchedHandle;
};

} // namespace tetrad
