#pragma once

// Implemented in runtime/controls/events/view_relay.cpp

#include <tetrad/events/event_codes.h>
#include <tetrad/events/tag.h>

class QRect;

namespace tetrad {

/// A view as its events name it. wndTag: the window or popover that shows it, 0 without one.
struct ReportingView
{
    QObject *view = nullptr;
    Tag tag = 0;
    Tag wndTag = 0;
};

namespace detail {

bool reportViewEvent(const ReportingView &view, ViewEvent code, QEvent *event);

template <ViewEvent code>
bool reportPlatformEvent(const ReportingView &view, QEvent *event)
{
    return reportViewEvent(view, code, event);
}

template <ViewEvent code>
bool reportQuestion(const ReportingView &view)
{
    return reportViewEvent(view, code, nullptr);
}

} // namespace detail

/// What a view class calls to report its own events, first thing where the platform delivers each of them. Every
/// function makes the view's window the output window, calls the dialog function with the event's code and the view's
/// tag, and returns true when nothing is left for the view to do: the program handled the event or deleted the view.
/// While it draws, a view must be deleted with deleteLater.
///
/// These take the view and the platform event, which may be null: `bool (const ReportingView &, QEvent *)`.
inline const auto CUI_ViewSubclassMouseDown = detail::reportPlatformEvent<viewEventMouseDown>;
inline const auto CUI_ViewSubclassMouseDragged = detail::reportPlatformEvent<viewEventMouseDragged>;
inline const auto CUI_ViewSubclassMouseUp = detail::reportPlatformEvent<viewEventMouseUp>;
inline const auto CUI_ViewSubclassMouseMoved = detail::reportPlatformEvent<viewEventMouseMoved>;
inline const auto CUI_ViewSubclassMouseEntered = detail::reportPlatformEvent<viewEventMouseEntered>;
inline const auto CUI_ViewSubclassMouseExited = detail::reportPlatformEvent<viewEventMouseExited>;
inline const auto CUI_ViewSubclassRightMouseDown = detail::reportPlatformEvent<viewEventRightMouseDown>;
inline const auto CUI_ViewSubclassRightMouseDragged = detail::reportPlatformEvent<viewEventRightMouseDragged>;
inline const auto CUI_ViewSubclassRightMouseUp = detail::reportPlatformEvent<viewEventRightMouseUp>;
inline const auto CUI_ViewSubclassKeyDown = detail::reportPlatformEvent<viewEventKeyDown>;
inline const auto CUI_ViewSubclassKeyUp = detail::reportPlatformEvent<viewEventKeyUp>;
inline const auto CUI_ViewSubclassFlagsChanged = detail::reportPlatformEvent<viewEventFlagsChanged>;
inline const auto CUI_ViewSubclassDraggingExited = detail::reportPlatformEvent<viewEventDraggingExited>;

/// These take the view alone: `bool (const ReportingView &)`.
inline const auto CUI_ViewSubclassWantsUpdateLayer = detail::reportQuestion<viewEventWantsUpdateLayer>;
inline const auto CUI_ViewSubclassUpdateLayer = detail::reportQuestion<viewEventUpdateLayer>;
inline const auto CUI_ViewSubclassResetCursorRects = detail::reportQuestion<viewEventResetCursorRects>;
inline const auto CUI_ViewSubclassAppearanceChanged = detail::reportQuestion<viewEventAppearanceChanged>;
inline const auto CUI_ViewSubclassAwakeFromNib = detail::reportQuestion<viewEventAwakeFromNib>;

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
