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
/// tag or delete it; deleting at once, not with deleteLater, only where the platform is not just then
/// delivering the event. The window may be gone when a method returns.
class CUI_WindowDelegate : public QObject
{
    Q_OBJECT

public:
    /// Calls the window's own callback; else the callback for all windows, with null user data; else
    /// the dialog function with the code, `tag`, the window's tag and `obj`.
    void forwardEvent(Window *window, qint64 event, Tag tag, qint64 obj);

    QRectF windowWillPositionSheet(Window *window, QWidget *sheet, const QRectF &rect);
    void windowWillBeginSheet(Window *window);
    void windowDidEndSheet(Window *window);

    QSizeF windowWillResize(Window *window, const QSizeF &size);
    void windowDidResize(Window *window);
    void windowWillStartLiveResize(Window *window);
    void windowDidEndLiveResize(Window *window);

    void windowWillMiniaturize(Window *window);
    void windowDidMiniaturize(Window *window);
    void windowDidDeminiaturize(Window *window);

    QRectF windowWillUseStandardFrame(Window *window, const QRectF &frame);
    bool windowShouldZoom(Window *window, const QRectF &frame);

    QSizeF windowWillUseFullScreenContentSize(Window *window, const QSizeF &size);
    qint64 windowWillUseFullScreenPresentationOptions(Window *window, qint64 options);
    void windowWillEnterFullScreen(Window *window);
    void windowDidEnterFullScreen(Window *window);
    void windowWillExitFullScreen(Window *window);
    void windowDidExitFullScreen(Window *window);
    void windowDidFailToEnterFullScreen(Window *window);
    void windowDidFailToExitFullScreen(Window *window);

    void windowWillMove(Window *window);
    void windowDidMove(Window *window);
    void windowDidChangeScreen(Window *window);

    bool windowShouldClose(Window *window);
    /// Also takes a window that is released when closed off the application delegate's list.
    void windowWillClose(Window *window);

    void windowDidBecomeKey(Window *window);
    void windowDidResignKey(Window *window);
    void windowDidBecomeMain(Window *window);
    void windowDidResignMain(Window *window);
    void windowDidUpdate(Window *window);

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
