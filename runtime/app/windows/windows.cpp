#include <tetrad/app/windows.h>

#include "runtime/app/process/tag_registry.h"
#include <tetrad/app/app_delegate.h>
#include <tetrad/app/modal.h>
#include <tetrad/app/window.h>
#include <tetrad/app/window_delegate.h>
#include <tetrad/events/dialog_event.h>
#include <tetrad/strings/not_given.h>

#include <QPointer>

#include <utility>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

bool subclassFlag = false;

} // namespace

Window *WindowInit(Tag tag, const QRectF &contentRect)
{
    const QRectF rect = contentRect.isEmpty() ? QRectF(0, 0, 550, 400) : contentRect;
    auto *const window = CUI_IsSubclassFlag() ? new WindowSC(rect) : new Window(rect);
    (new CUI_WindowController)->setWindow(window);
    window->setAutorecalculatesKeyViewLoop(true);
    window->setTag(tag);
    window->setWindowTitle(u"Untitled"_s);
    if (rect.topLeft() == QPointF(0, 0)) {
        window->center();
    }
    window->setDelegate(CUI_WindowDelegateObj());
    CUI_AppDelegateAddWindow(window);
    return window;
}

void CUI_Window(Tag tag, const QString &title, qint64 style, const QRectF &contentRect)
{
    const Tag wndTag = tagIdentity(tag);
    if (CUI_ObjectIsPopover(wndTag)) {
        return;
    }
    QPointer<Window> window = CUI_WindowWithTag(wndTag);
    const bool existed = window;
    if (!existed) {
        window = WindowInit(wndTag, contentRect);
    }
    CUI_SetSubclassFlag(false);
    if (!title.isNull()) {
        window->setWindowTitle(title);
    }
    if (existed && !contentRect.isEmpty()) {
        window->setContentRect(contentRect);
    }
    if (window && style != notGiven) {
        window->setStyleMask(style);
    }
    if (!window) {
        return;
    }
    if (tag < 1) {
        window->hide();
    } else {
        window->makeKeyAndOrderFront();
    }
    CUI_OutputWindowSetTag(wndTag);
}

Window *CUI_WindowWithTag(Tag tag)
{
    const Tag wndTag = tagIdentity(tag);
    if (wndTag == 0) {
        return nullptr;
    }
    if (isObjectAddress(wndTag)) {
        // Deliberately unchecked: the caller passed a window where a tag is expected.
        return static_cast<Window *>(objectFromTag(wndTag));
    }
    return TagRegistry<Window>::instance().withTag(wndTag);
}

void WindowSetBackgroundColor(Tag tag, const QColor &color)
{
    if (Window *const window = CUI_WindowWithTag(tag)) {
        window->setBackgroundColor(color);
    }
}

void WindowCenter(Tag tag)
{
    if (Window *const window = CUI_WindowWithTag(tag)) {
        window->center();
    }
}

void WindowSetWorksWhenModal(Tag tag, bool works)
{
    if (Window *const window = CUI_WindowWithTag(tag)) {
        setWorksWhenModal(window, works);
    }
}

qint64 WindowRunModal(Tag tag)
{
    return runModalForWindow(CUI_WindowWithTag(tag));
}

QList<Window *> orderedWindows()
{
    return TagRegistry<Window>::instance().frontToBack();
}

Window *CUI_FrontWindow()
{
    return TagRegistry<Window>::instance().frontVisible();
}

void CUI_SetSubclassFlag(bool flag)
{
    subclassFlag = flag;
}

bool CUI_IsSubclassFlag()
{
    return std::exchange(subclassFlag, false);
}

void CUI_WindowSubclassAwakeFromNib(Window *window)
{
    const Tag wndTag = window->tag();
    CUI_OutputWindowSetTag(wndTag);
    CallUserDefinedOnDialogFunction(windowEventAwakeFromNib, wndTag, wndTag, 0);
}

} // namespace tetrad
