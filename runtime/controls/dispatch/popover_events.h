#pragma once

namespace tetrad {

class Popover;

/// Makes a popover report to the dialog function when it is shown, closed and detached (codes 1300 to 1307, with the
/// popover's tag as both tags). Call it once for each popover.
void reportPopoverEvents(Popover *popover);

/// See PopoverSetAsks.
bool popoverAsks(const Popover *popover);
void setPopoverAsks(Popover *popover, bool asks);

} // namespace tetrad
