#pragma once

// Implemented in runtime/app/windows/windows.cpp and output_window.cpp

#include <tetrad/events/tag.h>

#include <QColor>
#include <QRectF>
#include <QString>

class QWidget;

namespace tetrad {

/// Creates a window, not shown yet. An empty rectangle stands for 550 x 400 at (0, 0); an origin of
/// exactly (0, 0) means centred. The tag is stored as given and not checked against other windows.
/// The window deletes itself when closed.
Window *WindowInit(Tag tag, const QRectF &contentRect);

/// The window statement: opens, reconfigures, shows (tag > 0) or hides (tag <= 0) the window |tag| and
/// makes it the output window. A null title, a style of notGiven and an empty rectangle leave what
/// is there or take the default. A tag that a popover has shows an alert and does nothing else.
void CUI_Window(Tag tag, const QString &title, qint64 style, const QRectF &contentRect);

/// The window with the tag |tag|, or null; 0 gives null. A value above largestTag is taken to be the
/// window itself.
Window *CUI_WindowWithTag(Tag tag);

/// Both do nothing when the tag is unknown.
void WindowSetBackgroundColor(Tag tag, const QColor &color);
void WindowCenter(Tag tag);

/// Whether the window works during modal runs of others: line and key input, alerts, runModalForWindow. False at first.
/// Does nothing when the tag is unknown.
void WindowSetWorksWhenModal(Tag tag, bool works);

/// Serves the window until it is closed or the run is ended; see runModalForWindow.
qint64 WindowRunModal(Tag tag);

/// All runtime windows, front to back: the order in which they were last active or shown.
QList<Window *> orderedWindows();

/// The frontmost visible window of the application, or null.
Window *CUI_FrontWindow();

/// One-shot: the next WindowInit makes a WindowSC. Reading clears it.
void CUI_SetSubclassFlag(bool flag);
bool CUI_IsSubclassFlag();

/// For windows that were loaded from an interface file: makes the window the output window and
/// reports dialog event 10059.
void CUI_WindowSubclassAwakeFromNib(Window *window);

/// The window with the output-window tag, else the popover with it, else null.
QWidget *CUI_OutputWindow();

/// The content view of the output window or popover, or null.
QWidget *CUI_OutputWindowContentView();

/// The window, else the popover, with this tag, or null.
QWidget *CUI_TargetWithTag(Tag tag);

/// With *tag 0: the output window or, when there is none, the frontmost window, whose tag is written
/// back. With any other tag: CUI_TargetWithTag. Null when nothing is found.
QWidget *CUI_TargetWindow(Tag *tag);

/// Whether a popover has this tag. If one has, an alert says that windows and popovers cannot
/// share tags.
bool CUI_ObjectIsPopover(Tag tag);

} // namespace tetrad
