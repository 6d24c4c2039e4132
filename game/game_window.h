#pragma once

#include <QString>

namespace tetrad {

/// Opens the game's one window and makes it the output window. Returns 0.
int BuildWindow();

/// Paints over the area of the red error line in the window's black.
void EraseErrorText();

/// Shows the verdict with "Quit" and "Play Again". Returns 0 for Play Again; Quit ends the program.
int QuitOrPlayAlert(const QString &verdict);

} // namespace tetrad
