#pragma once

#include <tetrad/events/tag.h>

class QWidget;

namespace tetrad {

/// The tag of the window that prints go to and that sheets attach to, stored as an absolute value; 0
/// means none. It follows the last window statement and the last window that became key or main,
/// moved, resized, or began or ended a sheet.
void CUI_OutputWindowSetTag(Tag tag);
Tag CUI_OutputWindowTag();

/// The window with the output-window tag, else the popover with it, else null.
QWidget *CUI_OutputWindow();

/// The content view of the output window or popover, or null.
QWidget *CUI_OutputWindowContentView();

/// The content view that views are looked up in: the output window's, else the frontmost window's, or null.
QWidget *CUI_SearchedContentView();

/// The content view of a window or popover, or null.
QWidget *CUI_ContentViewOf(const QWidget *windowOrPopover);

/// The window, else the popover, with this tag, or null.
QWidget *CUI_TargetWithTag(Tag tag);

/// With *tag 0: the output window or, when there is none, the frontmost window, whose tag is written
/// back. With any other tag: CUI_TargetWithTag. Null when nothing is found.
QWidget *CUI_TargetWindow(Tag *tag);

/// Whether a popover has this tag. If one has, the user is told that windows and popovers cannot
/// share tags.
bool CUI_ObjectIsPopover(Tag tag);

} // namespace tetrad
