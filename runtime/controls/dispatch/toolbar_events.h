#pragma once

class QAction;

namespace tetrad {

/// Makes a tool bar's item report its clicks to the dialog function (code 1900). Call it once for each item.
void reportToolbarItemEvents(QAction *item);

/// See ToolbarItemSetValidates.
void setToolbarItemValidates(QAction *item, bool validates);

/// Sends the question 1901 and enables or disables the item. The item may be gone afterwards.
void validateToolbarItem(QAction *item);

} // namespace tetrad
