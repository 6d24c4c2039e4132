#pragma once

// Implemented in runtime/controls/statements/popover_statements.cpp.
#include <tetrad/app/popover.h>

#include <QRectF>
#include <QSizeF>

namespace tetrad {

/// The popover statement: makes the popover |tag| with a content of this size, or changes the size of one that is
/// there, and makes it the output window, so that the statements that follow put their views into it. It is
/// not shown here. An empty size leaves the size, or takes 200 x 100. A tag that a window has, or 0, shows
/// an alert and does nothing. The popover lives until PopoverRemove.
void CUI_Popover(Tag tag, const QSizeF &contentSize, PopoverBehavior behavior);

/// Whether the program is asked if the popover may close (code 1301) and may be dragged off (1307). It is not asked at
/// first, since both answers are preset to no: an unasked popover closes and cannot be dragged off. An unknown popover
/// shows an alert.
void PopoverSetAsks(Tag tag, bool asks);

/// Shows the popover on an edge of a rectangle in a view (tag or object), which it does not cover; an empty
/// rectangle stands for the whole view. An unknown popover shows an alert.
void PopoverShow(Tag tag, Tag relativeToView, const QRectF &rect, Qt::Edge preferredEdge);

/// Closes the popover, if the program lets it. An unknown tag does nothing.
void PopoverClose(Tag tag);

/// Takes the popover off the screen unasked and deletes it once control is back in the event loop; its
/// tag is free at once. An unknown tag does nothing.
void PopoverRemove(Tag tag);

} // namespace tetrad
