#pragma once

#include <tetrad/app/popover.h>

#include <QRectF>
#include <QSizeF>

namespace tetrad {

class Popover;

/// Makes a popover tell the dialog function when it shows, closes and detaches (codes 1300 to 1307, with the popover's
/// tag as both tags); once is enough, and every popover that the statement makes does. Whether it may close and
/// whether it may be dragged off its place is asked only of one that was told to ask, because the
/// preset answer to both is no.
void reportPopoverEvents(Popover *popover);

/// Whether the program answers the popover's questions; false at first.
bool popoverAsks(const Popover *popover);
void setPopoverAsks(Popover *popover, bool asks);

/// The popover statement: makes the popover |tag| with a content of this size, or changes the size of one that is
/// there, and makes it the output window, so that the statements that follow put their views into it. It is
/// not shown here. An empty size leaves the size, or takes 200 x 100. A tag that a window has, or 0, shows
/// an alert and does nothing. The popover lives until PopoverRemove.
void CUI_Popover(Tag tag, const QSizeF &contentSize, PopoverBehavior behavior);

/// Shows the popover on an edge of a rectangle in a view (tag or object), which it does not cover; an empty
/// rectangle stands for the whole view. An unknown popover shows an alert.
void PopoverShow(Tag tag, Tag relativeToView, const QRectF &rect, Qt::Edge preferredEdge);

/// Asks the popover's program whether it may close, and closes it. An unknown tag does nothing.
void PopoverClose(Tag tag);

/// Takes the popover off the screen without asking and deletes it once control is back in the event loop; its
/// tag is free at once. An unknown tag does nothing.
void PopoverRemove(Tag tag);

} // namespace tetrad
