#pragma once

#include <tetrad/console/console_document.h>

namespace tetrad {

/// The whole pixels that a rectangle touches, none farther than `farthest`; empty for one that is empty or not finite.
QRect pixelsOf(const QRectF &rect);

struct DisplayList::Entry
{
    CUI_PrintToWindowItem item;
    /// What drawing the item may touch; empty when it draws nothing.
    QRect ink;
    /// A text's measured width: whole 64ths of a pixel, which a float holds as they are.
    float width = 0;
    /// A text that was followed by the end of its line.
    bool endsLine = false;

    /// Measures what the item draws.
    static Entry of(const CUI_PrintToWindowItem &item);
    /// A text's box.
    QRectF box() const;
};

} // namespace tetrad
