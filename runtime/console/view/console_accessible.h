#pragma once

class QString;

namespace tetrad {

class CUI_PrintToWindowView;

/// Makes assistive technology see every console view as a read-only text. Only the first call has an effect.
void installConsoleAccessibility();

// What assistive technology is notified of while some is listening.

/// The text grew by what was printed since it was last read.
void announceInsertion(CUI_PrintToWindowView *view);
/// The whole text, given, is gone.
void announceRemoval(CUI_PrintToWindowView *view, const QString &removed);
/// The caret moved or the selection changed.
void announceSelection(CUI_PrintToWindowView *view);

} // namespace tetrad
