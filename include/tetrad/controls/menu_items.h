#pragma once

// Implemented in runtime/controls/statements/menu_items.cpp.
#include <tetrad/events/tag.h>

#include <QString>

namespace tetrad {

/// What a menu statement's state asks for.
enum MenuItemState : qint64 {
    menuItemDisabled = 0,
    menuItemEnabled = 1,
    menuItemTicked = 2, ///< enabled, with a tick
};

/// The menu statement: makes or changes the item |item| of the menu |menuTag| in the menu bar, or with the item 0 the
/// menu's own title and whether it can be opened. A tag that no menu has adds a menu after the others.
/// state: a MenuItemState, or notGiven to leave it. A null title leaves the title, "-" makes a separator. key: the
/// character that chooses the item together with Ctrl (Command on macOS), in upper case with Shift too; null leaves it,
/// empty removes it. An invalid tag shows an alert.
///
/// A chosen item sends 1400 with the menu's tag, longVal the item; before a menu opens, 1401 asks about each of its
/// items whether to disable it.
void CUI_Menu(Tag menuTag, qint64 item, qint64 state, const QString &title, const QString &key);

} // namespace tetrad
