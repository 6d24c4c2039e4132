#pragma once

class QMessageBox;

namespace tetrad {

/// Makes every text of a box readable in full: a label becomes wide enough for its lines, and a text that is higher
/// than half the screen, or has a word wider than the box may become, moves from its label into a view that scrolls
/// and breaks anywhere. Call it before each showing.
void fitTextsToScreen(QMessageBox *box);

} // namespace tetrad
