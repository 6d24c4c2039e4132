#pragma once

class QEvent;
class QMenu;
class QRect;
class QWidget;

namespace tetrad {

/// What every view class that reports its own events shares: a function for each event, called first thing
/// where the platform delivers it. Each makes the view's window the output window, calls the dialog function with
/// the event's code and the view's tag, and returns true when nothing is left for the view to do: the
/// program handled the event, or it deleted the view. While it draws and on a right mouse-down a view
/// goes with deleteLater only; the platform still works on it then.

/// The mouse, key, enter and leave events by whatever code they have; false for all others.
bool CUI_ViewSubclassEvent(QWidget *view, QEvent *event);

/// The part to draw is in pixels from the view's top left.
bool CUI_ViewSubclassDrawRect(QWidget *view, const QRect &dirtyRect);
bool CUI_ViewSubclassWantsUpdateLayer(QWidget *view);
bool CUI_ViewSubclassUpdateLayer(QWidget *view);
/// Whether the program lets the view take the keyboard; false also when the view is gone.
bool CUI_ViewSubclassAcceptsFirstResponder(QWidget *view);

bool CUI_ViewSubclassMouseDown(QWidget *view, QEvent *event);
bool CUI_ViewSubclassMouseDragged(QWidget *view, QEvent *event);
bool CUI_ViewSubclassMouseUp(QWidget *view, QEvent *event);
bool CUI_ViewSubclassMouseMoved(QWidget *view, QEvent *event);
bool CUI_ViewSubclassMouseEntered(QWidget *view, QEvent *event);
bool CUI_ViewSubclassMouseExited(QWidget *view, QEvent *event);
bool CUI_ViewSubclassRightMouseDown(QWidget *view, QEvent *event);
bool CUI_ViewSubclassRightMouseDragged(QWidget *view, QEvent *event);
bool CUI_ViewSubclassRightMouseUp(QWidget *view, QEvent *event);
bool CUI_ViewSubclassKeyDown(QWidget *view, QEvent *event);
bool CUI_ViewSubclassKeyUp(QWidget *view, QEvent *event);
bool CUI_ViewSubclassFlagsChanged(QWidget *view, QEvent *event);
bool CUI_ViewSubclassResetCursorRects(QWidget *view);
bool CUI_ViewSubclassAppearanceChanged(QWidget *view);
bool CUI_ViewSubclassAwakeFromNib(QWidget *view);

/// With a drop event or one derived from it, whose data goes into arrayObj (the file addresses), pbTypes (the
/// MIME types), pasteboardObj (the data) and pointVal (the place in the view).
bool CUI_ViewSubclassDraggingEntered(QWidget *view, QEvent *event);
bool CUI_ViewSubclassDraggingExited(QWidget *view, QEvent *event);
bool CUI_ViewSubclassPerformDragOperation(QWidget *view, QEvent *event);

/// `*menu` is the view's own menu on entry, may be null, and the one to pop up when the function
/// returns false.
bool CUI_ViewSubclassMenuForEvent(QWidget *view, QEvent *event, QMenu **menu);

} // namespace tetrad
