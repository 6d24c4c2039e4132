#pragma once

// Implemented in runtime/controls/statements/toolbar.cpp.
#include <tetrad/events/tag.h>

#include <QString>

class QAction;
class QToolBar;
class QWidget;

namespace tetrad {

/// The tool bar of a window, which is the first that carries a tag, or null.
QToolBar *CUI_WindowToolbar(const QWidget *window);

/// A tool bar's tag; 0 when never set.
Tag CUI_ToolbarTag(const QToolBar *toolbar);

/// The item of a tool bar with this tag, or null; 0 gives null.
QAction *ToolbarItemWithTag(const QToolBar *toolbar, Tag tag);

/// The tool bar statement: the tool bar |tag| of the output window, made when it has none. A positive tag
/// shows it, a negative one hides it. Null after an alert when there is no window or the tag is 0.
QToolBar *CUI_Toolbar(Tag tag);

/// The add-item statement: adds an item to the tool bar with this tag in the output window, or changes the label
/// of the one that has the item's tag; a null label leaves it. Null after an alert when there is
/// no such tool bar or the item's tag is 0.
QAction *CUI_ToolbarAddItem(Tag toolbarTag, Tag itemTag, const QString &label);

/// The same with a view (tag or object) in place of a labelled button. The tool bar owns the view.
QAction *CUI_ToolbarAddViewItem(Tag toolbarTag, Tag itemTag, Tag view);

/// Whether the program is asked, after each release of a key or mouse button, if the item is enabled (code 1901). It
/// is not asked at first, since the answer is preset to no. A missing item shows an alert.
void ToolbarItemSetValidates(Tag toolbarTag, Tag itemTag, bool validates);

/// Shows a view (tag or object) at the trailing end of the window's title area, next to its menus, after those added
/// before. The window owns it. A plain view that is to be found by tag carries the tag in its objectName. A
/// missing window or view shows an alert.
void WindowAddTitlebarAccessoryView(Tag wndTag, Tag view);

} // namespace tetrad
