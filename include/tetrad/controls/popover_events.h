#pragma once

namespace tetrad {

class Popover;

/// Makes a popover tell the dialog function when it shows, closes and detaches (codes 1300 to 1307, with the popover's
/// tag as both tags); once is enough, and every popover that the statement makes does. Whether it may close and
/// whether it may be dragged off its place is asked only of one that was told to ask, because the
/// preset answer to both is no.
void CUI_PopoverReportEvents(Popover *popover);

/// Whether the program answers the popover's questions; false at first.
bool popoverAsks(const Popover *popover);
void setPopoverAsks(Popover *popover, bool asks);

} // namespace tetrad
