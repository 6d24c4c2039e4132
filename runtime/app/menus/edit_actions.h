#pragma once

class QMenu;

namespace tetrad {

/// Makes the Edit menu: Undo, Redo, Cut, Copy, Paste, Delete, Select All. Each item works on the first
/// responder: the nearest widget, from the one with the focus outwards to its window, that has an
/// invokable slot of the action's name (undo, redo, cut, copy, paste, del, selectAll). A widget may
/// report whether an action would do anything by a bool property canUndo, canRedo, canCut, canCopy,
/// canPaste, canDelete or canSelectAll. While the menu is open, items that would do nothing are
/// disabled. The caller owns the menu.
QMenu *makeEditMenu();

} // namespace tetrad
