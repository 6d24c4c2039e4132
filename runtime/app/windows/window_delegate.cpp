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

QSizeF CUI_WindowDelegate::windowWillResize(Window *window, const QSizeF &size)
{
    CUI_DialogEventObj()->sizeVal = size;
    reportAsOutput(window, windowEventWillResize);
    return CUI_DialogEventObj()->sizeVal;
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

void CUI_WindowDelegate::windowWillClose(Window *window)
{
    const QPointer<Window> guard(window);
    report(window, windowEventWillClose);
    if (guard && guard->isReleasedWhenClosed()) {
        CUI_AppDelegateRemoveWindow(guard);
    }
}

bool CUI_WindowDelegate::windowShouldPopUpDocumentPathMenu(Window *window, QMenu *menu)
{
    return ask(window, windowEventShouldPopUpDocumentPathMenu, menu);
}

} // namespace tetrad
