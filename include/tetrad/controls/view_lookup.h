#pragma once

// Implemented in runtime/controls/lookup/view_lookup.cpp and tag_lookup.cpp, and
// runtime/controls/statements/view_statement.cpp and toolbar.cpp.
#include <tetrad/events/tag.h>

#include <QString>

class QWidget;

namespace tetrad {

/// The view with this tag: in the popover now shown, else in the content view of the output window (of the
/// frontmost window when there is none), its title bar's accessories and its tool bar. 0 gives null,
/// contentViewTag the content view itself, a value above largestTag the view whose address it is.
QWidget *CUI_ViewWithTag(Tag tagOrView);

/// The first view with this tag below a view, each view before what lies in it, or null. Tab views are
/// searched into in the order of their tabs, whichever is selected; segmented controls never.
QWidget *CUI_ViewSubviewWithTag(QWidget *view, Tag tag);

/// The view with this tag among the title bar's accessories of the output window, or null.
QWidget *TitlebarAccessoryViewWithTag(Tag tag);

/// The view, if it is of the class or of one derived from it, else null after the alert that says what is wrong.
QWidget *CUI_ValidateViewKindOfClass(Tag tagOrView, const QString &className);

/// CUI_ValidateViewKindOfClass with "NSControl".
QWidget *ControlWithTag(Tag tagOrControl);

/// The tag that a view's own events report. For exactly NSView, ViewSC and ContentViewSC it is the
/// number its objectName begins with, so that a content view reports contentViewTag; lookups deliberately do not
/// count a content view so, and count NSVisualEffectView.
Tag CUI_ViewTag(const QWidget *view);

/// The tag of the window or popover that shows the view; 0 when there is none.
Tag CUI_ViewWindowTag(const QWidget *view);

/// Moves a view, with what lies in it, into another view, for example into a tab's page. Its position counts from the
/// new superview's top left. Either may be a tag or an object; nothing happens, after an alert, when
/// one of them is missing.
void ViewAddSubview(Tag superview, Tag subview);

/// Takes a view off its window and deletes it once control is back in the event loop; its tag is free at
/// once. A missing view and a content view, which stays in its window, show an alert.
void ViewRemoveFromSuperview(Tag tag);

} // namespace tetrad
