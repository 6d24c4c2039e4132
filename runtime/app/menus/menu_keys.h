#pragma once

class QMenu;
class QMenuBar;

namespace tetrad {

/// F10 opens the first menu of the bar, as a tapped Alt goes to the bar without opening one.
void openWithF10(QMenuBar *bar);

/// Escape in the open menu of a bar closes it and gives the keyboard back at once, to the widget that had it before the
/// menu. Without this the bar would keep it until a second Escape, and what is typed meanwhile would be lost.
void leaveBarWithEscape(QMenu *menu);

} // namespace tetrad
