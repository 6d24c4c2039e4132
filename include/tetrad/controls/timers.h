#pragma once

// Implemented in runtime/controls/statements/timers.cpp.
#include <tetrad/events/tag.h>

namespace tetrad {

/// The timer statement: starts the timer |tag|, from the beginning if it runs already. It sends 1450 to the dialog
/// function each time its interval has passed while a modal run waits. A tag below 0 stops the timer, 0 shows an alert.
/// interval_s: in seconds; repeats: whether it goes on after the first time.
void CUI_Timer(Tag tag, double interval_s, bool repeats);

} // namespace tetrad
