#include <tetrad/app/window_delegate.h>

#include <tetrad/app/app_delegate.h>
#include <tetrad/app/windows.h>
#include <tetrad/events/dialog_event.h>

#include <QMenu>

namespace tetrad {

CUI_WindowDelegate *CUI_WindowDelegateObj()
{
    // Deliberately never freed: windows may outlive every static object.
    static auto *const delegate = new CUI_WindowDelegate;
    return delegate;
}

void CUI_WindowDelegate::forwardEvent(Window *window, qint64 event, Tag tag, qint64 obj)
{
    if (const WindowCallback callback = window->cuiWindowCallback()) {
        callback(window->tag(), event, window->cuiWindowUserData());
    } else if (allWindowsCallback) {
        allWindowsCallback(window->tag(), event, nullptr);
    } else {
        CallUserDefinedOnDialogFunction(event, tag, window->tag(), obj);
    }
}

void CUI_WindowDelegate::report(Window *window, WindowEvent event, const QObject *obj)
{
    forwardEvent(window, event, window->tag(), tagFromObject(obj));
}

void CUI_WindowDelegate::reportAsOutput(Window *window, WindowEvent event)
{
    CUI_OutputWindowSetTag(window->tag());
    report(window, event);
}

bool CUI_WindowDelegate::ask(Window *window, WindowEvent event, const QObject *obj)
{
    CUI_DialogEventObj()->boolVal = true;
    report(window, event, obj);
    return CUI_DialogEventObj()->boolVal;
}

QRectF CUI_WindowDelegate::windowWillPositionSheet(Window *window, QWidget *sheet, const QRectF &rect)
{
    CUI_DialogEventObj()->rectVal = rect;
    report(window, windowEventWillPositionSheet, sheet);
    return CUI_DialogEventObj()->rectVal;
}

void CUI_WindowDelegate::windowWillBeginSheet(Window *window)
{
    reportAsOutput(window, windowEventWillBeginSheet);
}

void CUI_WindowDelegate::windowDidEndSheet(Window *window)
{
    reportAsOutput(window, windowEventDidEndSheet);
}

QSizeF CUI_WindowDelegate::windowWillResize(Window *window, const QSizeF &size)
{
    CUI_DialogEventObj()->sizeVal = size;
    reportAsOutput(window, windowEventWillResize);
    return CUI_DialogEventObj()->sizeVal;
}

void CUI_WindowDelegate::windowDidResize(Window *window)
{
    report(window, windowEventDidResize);
}

void CUI_WindowDelegate::windowWillStartLiveResize(Window *window)
{
    report(window, windowEventWillStartLiveResize);
}

void CUI_WindowDelegate::windowDidEndLiveResize(Window *window)
{
    reportAsOutput(window, windowEventDidEndLiveResize);
}

void CUI_WindowDelegate::windowWillMiniaturize(Window *window)
{
    report(window, windowEventWillMiniaturize);
}

void CUI_WindowDelegate::windowDidMiniaturize(Window *window)
{
    report(window, windowEventDidMiniaturize);
}

void CUI_WindowDelegate::windowDidDeminiaturize(Window *window)
{
    reportAsOutput(window, windowEventDidDeminiaturize);
}

QRectF CUI_WindowDelegate::windowWillUseStandardFrame(Window *window, const QRectF &frame)
{
    CUI_DialogEventObj()->rectVal = frame;
    report(window, windowEventWillUseStandardFrame);
    return CUI_DialogEventObj()->rectVal;
}

bool CUI_WindowDelegate::windowShouldZoom(Window *window, const QRectF &frame)
{
    CUI_DialogEventObj()->rectVal = frame;
    return ask(window, windowEventShouldZoom);
}

QSizeF CUI_WindowDelegate::windowWillUseFullScreenContentSize(Window *window, const QSizeF &size)
{
    CUI_DialogEventObj()->sizeVal = size;
    report(window, windowEventWillUseFullScreenContentSize);
    return CUI_DialogEventObj()->sizeVal;
}

qint64 CUI_WindowDelegate::windowWillUseFullScreenPresentationOptions(Window *window, qint64 options)
{
    CUI_DialogEventObj()->longVal = options;
    report(window, windowEventWillUseFullScreenPresentationOptions);
    return CUI_DialogEventObj()->longVal;
}

void CUI_WindowDelegate::windowWillEnterFullScreen(Window *window)
{
    report(window, windowEventWillEnterFullScreen);
}

void CUI_WindowDelegate::windowDidEnterFullScreen(Window *window)
{
    reportAsOutput(window, windowEventDidEnterFullScreen);
}

void CUI_WindowDelegate::windowWillExitFullScreen(Window *window)
{
    report(window, windowEventWillExitFullScreen);
}

void CUI_WindowDelegate::windowDidExitFullScreen(Window *window)
{
    reportAsOutput(window, windowEventDidExitFullScreen);
}

void CUI_WindowDelegate::windowDidFailToEnterFullScreen(Window *window)
{
    report(window, windowEventDidFailToEnterFullScreen);
}

void CUI_WindowDelegate::windowDidFailToExitFullScreen(Window *window)
{
    report(window, windowEventDidFailToExitFullScreen);
}

void CUI_WindowDelegate::windowWillMove(Window *window)
{
    reportAsOutput(window, windowEventWillMove);
}

void CUI_WindowDelegate::windowDidMove(Window *window)
{
    reportAsOutput(window, windowEventDidMove);
}

void CUI_WindowDelegate::windowDidChangeScreen(Window *window)
{
    reportAsOutput(window, windowEventDidChangeScreen);
}

bool CUI_WindowDelegate::windowShouldClose(Window *window)
{
    return ask(window, windowEventShouldClose);
}

void CUI_WindowDelegate::windowWillClose(Window *window)
{
    const QPointer<Window> guard(window);
    report(window, windowEventWillClose);
    if (guard && guard->isReleasedWhenClosed()) {
        CUI_AppDelegateRemoveWindow(guard);
    }
}

void CUI_WindowDelegate::windowDidBecomeKey(Window *window)
{
    reportAsOutput(window, windowEventDidBecomeKey);
}

void CUI_WindowDelegate::windowDidResignKey(Window *window)
{
    report(window, windowEventDidResignKey);
}

void CUI_WindowDelegate::windowDidBecomeMain(Window *window)
{
    reportAsOutput(window, windowEventDidBecomeMain);
}

void CUI_WindowDelegate::windowDidResignMain(Window *window)
{
    report(window, windowEventDidResignMain);
}

void CUI_WindowDelegate::windowDidUpdate(Window *window)
{
    report(window, windowEventDidUpdate);
}

bool CUI_WindowDelegate::windowShouldPopUpDocumentPathMenu(Window *window, QMenu *menu)
{
    return ask(window, windowEventShouldPopUpDocumentPathMenu, menu);
}

} // namespace tetrad
