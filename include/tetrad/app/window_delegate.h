#pragma once

// Implemented in runtime/app/windows/window_delegate.cpp

#include <tetrad/app/window.h>
#include <tetrad/events/event_codes.h>

#include <QObject>
#include <QStringList>

class QMenu;

namespace tetrad {

/// Reports what happens to windows: one method for each notification, called by the window's event
/// translator, by the code that shows sheets, or by a program. Each hands its code to forwardEvent
/// and, for a question event, returns the answer. Sizes and rectangles are those of the content, in
/// device-independent pixels. A callback may close the window, give it another
/// tag or delete it: at once in the events of moving, resizing and closing, with deleteLater in the others, during
/// which the platform goes on working with it. The window may be gone when a method returns.
class CUI_WindowDelegate : public QObject
{
    Q_OBJECT

public:
    /// Calls the window's own callback; else the callback for all windows, with null user data; else
    /// the dialog function with the code, `tag`, the window's tag and `obj`.
    void forwardEvent(Window *window, qint64 event, Tag tag, qint64 obj);

    QRectF windowWillPositionSheet(Window *window, QWidget *sheet, const QRectF &rect);
    void windowWillBeginSheet(Window *window) { reportAsOutput(window, windowEventWillBeginSheet); }
    void windowDidEndSheet(Window *window) { reportAsOutput(window, windowEventDidEndSheet); }

    QSizeF windowWillResize(Window *window, const QSizeF &size);
    void windowDidResize(Window *window) { report(window, windowEventDidResize); }
    void windowWillStartLiveResize(Window *window) { report(window, windowEventWillStartLiveResize); }
    void windowDidEndLiveResize(Window *window) { reportAsOutput(window, windowEventDidEndLiveResize); }

    void windowWillMiniaturize(Window *window) { report(window, windowEventWillMiniaturize); }
    void windowDidMiniaturize(Window *window) { report(window, windowEventDidMiniaturize); }
    void windowDidDeminiaturize(Window *window) { reportAsOutput(window, windowEventDidDeminiaturize); }

    QRectF windowWillUseStandardFrame(Window *window, const QRectF &frame);
    bool windowShouldZoom(Window *window, const QRectF &frame);

    QSizeF windowWillUseFullScreenContentSize(Window *window, const QSizeF &size);
    qint64 windowWillUseFullScreenPresentationOptions(Window *window, qint64 options);
    void windowWillEnterFullScreen(Window *window) { report(window, windowEventWillEnterFullScreen); }
    void windowDidEnterFullScreen(Window *window) { reportAsOutput(window, windowEventDidEnterFullScreen); }
    void windowWillExitFullScreen(Window *window) { report(window, windowEventWillExitFullScreen); }
    void windowDidExitFullScreen(Window *window) { reportAsOutput(window, windowEventDidExitFullScreen); }
    void windowDidFailToEnterFullScreen(Window *window) { report(window, windowEventDidFailToEnterFullScreen); }
    void windowDidFailToExitFullScreen(Window *window) { report(window, windowEventDidFailToExitFullScreen); }

    void windowWillMove(Window *window) { reportAsOutput(window, windowEventWillMove); }
    void windowDidMove(Window *window) { reportAsOutput(window, windowEventDidMove); }
    void windowDidChangeScreen(Window *window) { reportAsOutput(window, windowEventDidChangeScreen); }

    bool windowShouldClose(Window *window) { return ask(window, windowEventShouldClose); }
    /// Also takes a window that is released when closed off the application delegate's list.
    void windowWillClose(Window *window);

    void windowDidBecomeKey(Window *window) { reportAsOutput(window, windowEventDidBecomeKey); }
    void windowDidResignKey(Window *window) { report(window, windowEventDidResignKey); }
    void windowDidBecomeMain(Window *window) { reportAsOutput(window, windowEventDidBecomeMain); }
    void windowDidResignMain(Window *window) { report(window, windowEventDidResignMain); }
    void windowDidUpdate(Window *window) { report(window, windowEventDidUpdate); }

    bool windowShouldPopUpDocumentPathMenu(Window *window, QMenu *menu);

    bool boolVal = false;
    QSizeF sizeVal;
    QRectF rectVal;
    /// Receives the events of every window that has no callback of its own.
    WindowCallback allWindowsCallback = nullptr;
    QStringList dragFileTypes;
    QStringList dragFileExtensions;
    bool dragInside = false;

private:
    void report(Window *window, WindowEvent event, const QObject *obj = nullptr);
    void reportAsOutput(Window *window, WindowEvent event);
    bool ask(Window *window, WindowEvent event, const QObject *obj = nullptr);
};

/// The delegate of every window that WindowInit makes; it lives from first use to the end of the
/// program.
CUI_WindowDelegate *CUI_WindowDelegateObj();

} // namespace tetrad
