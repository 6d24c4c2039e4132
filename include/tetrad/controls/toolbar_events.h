#pragma once

class QAction;

namespace tetrad {

/// Makes a tool bar's item tell the dialog function when it is clicked (code 1900, with the item as the object); once
/// is enough, and every item that the statement makes does.
void CUI_ToolbarItemReportEvents(QAction *item);

/// Whether the program is asked, after each release of a key or mouse button, if the item is enabled (code 1901);
/// false at first, because the preset answer is no.
bool toolbarItemValidates(const QAction *item);
void setToolbarItemValidates(QAction *item, bool validates);

/// Asks for one item now and enables or disables it. The item may be gone afterwards.
void CUI_ToolbarValidateItem(QAction *item);

} // namespace tetrad
