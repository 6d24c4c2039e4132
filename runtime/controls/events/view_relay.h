#pragma once

#include <tetrad/events/event_codes.h>
#include <tetrad/events/tag.h>

class QRect;

namespace tetrad {

/// What every view class that reports its own events shares: a function for each event, called first thing where the
/// platform delivers it. Each makes the view's window the output window, calls the dialog function with the event's
/// code and the view's tag, and returns true when nothing is left for the view to do: the program handled the
/// event or deleted the view. While it draws, a view must be deleted with deleteLater.

/// A view as its events name it. wndTag: the window or popover that shows it, 0 without one.
struct ReportingView
{
    QObject *view = nullptr;
    Tag tag = 0;
    Tag wndTag = 0;
};

/// `event`, which may be null, is the dialog function's object.
bool reportViewEvent(const ReportingView &view, ViewEvent code, QEvent *event);

template <ViewEvent code>
bool reportViewEvent(const ReportingView &view, QEvent *event)
{
    return reportViewEvent(view, code, event);
}

template <ViewEvent code>
bool reportViewQuestion(const ReportingView &view)
{
    return reportViewEvent(view, code, nullptr);
}

inline constexpr auto CUI_ViewSubclassMouseDown = reportViewEvent<viewEventMouseDown>;
inline constexpr auto CUI_ViewSubclassMouseDragged = reportViewEvent<viewEventMouseDragged>;
inline constexpr auto CUI_ViewSubclassMouseUp = reportViewEvent<viewEventMouseUp>;
inline constexpr auto CUI_ViewSubclassMouseMoved = reportViewEvent<viewEventMouseMoved>;
inline constexpr auto CUI_ViewSubclassMouseEntered = reportViewEvent<viewEventMouseEntered>;
inline constexpr auto CUI_ViewSubclassMouseExited = reportViewEvent<viewEventMouseExited>;
inline constexpr auto CUI_ViewSubclassRightMouseDown = reportViewEvent<viewEventRightMouseDown>;
inline constexpr auto CUI_ViewSubclassRightMouseDragged = reportViewEvent<viewEventRightMouseDragged>;
inline constexpr auto CUI_ViewSubclassRightMouseUp = reportViewEvent<viewEventRightMouseUp>;
inline constexpr auto CUI_ViewSubclassKeyDown = reportViewEvent<viewEventKeyDown>;
inline constexpr auto CUI_ViewSubclassKeyUp = reportViewEvent<viewEventKeyUp>;
inline constexpr auto CUI_ViewSubclassFlagsChanged = reportViewEvent<viewEventFlagsChanged>;
inline constexpr auto CUI_ViewSubclassDraggingExited = reportViewEvent<viewEventDraggingExited>;

inline constexpr auto CUI_ViewSubclassWantsUpdateLayer = reportViewQuestion<viewEventWantsUpdateLayer>;
inline constexpr auto CUI_ViewSubclassUpdateLayer = reportViewQuestion<viewEventUpdateLayer>;
inline constexpr auto CUI_ViewSubclassResetCursorRects = reportViewQuestion<viewEventResetCursorRects>;
inline constexpr auto CUI_ViewSubclassAppearanceChanged = reportViewQuestion<viewEventAppearanceChanged>;
inline constexpr auto CUI_ViewSubclassAwakeFromNib = reportViewQuestion<viewEventAwakeFromNib>;

/// The function above that belongs to a mouse, key, enter or leave event. False without a call for every other event
/// and for buttons that views do not report. The second press of a double click is a mouse-down like the first.
bool CUI_ViewSubclassEvent(const ReportingView &view, QEvent *event);

/// dirtyRect: in pixels from the view's top left.
bool CUI_ViewSubclassDrawRect(const ReportingView &view, const QRect &dirtyRect);

/// Whether the program lets the view take the keyboard; false also when the view is gone.
bool CUI_ViewSubclassAcceptsFirstResponder(const ReportingView &view);

/// With a drop event or one derived from it, whose data goes into arrayObj (the file addresses), pbTypes (the MIME
/// types), pasteboardObj (the data) and pointVal (the position in the view).
bool CUI_ViewSubclassDraggingEntered(const ReportingView &view, QEvent *event);
bool CUI_ViewSubclassPerformDragOperation(const ReportingView &view, QEvent *event);

/// `*menu` is the view's own menu on entry, may be null, and the one to pop up when the function returns false.
bool CUI_ViewSubclassMenuForEvent(const ReportingView &view, QEvent *event, QObject **menu);

} // namespace tetrad
