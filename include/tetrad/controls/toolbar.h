#pragma once

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

/// The same with a view of the program's own in place of a labelled button. The tool bar owns the view.
QAction *CUI_ToolbarAddViewItem(Tag toolbarTag, Tag itemTag, QWidget *view);

} // namespace tetrad
