#pragma once

class QString;

namespace tetrad {

class CUI_PrintToWindowView;

/// Makes assistive technology see every console view as a read-only text with the role terminal. Only the first call
/// has an effect.
void installConsoleAccessibility();

/// Whether an assistive technology wants to know what changes.
bool assistiveTechnologyListens();

// What a listening assistive technology is told.

/// The text grew by what was printed since the last announcement.
void announceInsertion(CUI_PrintToWindowView *view);
/// The whole text, given, is gone.
void announceRemoval(CUI_PrintToWindowView *view, const QString &removed);
/// The caret moved or the selection changed.
void announceSelection(CUI_PrintToWindowView *view);

} // namespace tetrad
