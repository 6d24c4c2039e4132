#pragma once

class QPainter;

namespace tetrad {

class CUI_PrintToWindowItem;

/// Fills and strokes a shape in the painter's coordinates. A rectangle's fill covers whole device pixels, so that it
/// hides completely what it is drawn over; everything else is smoothed.
void drawShape(QPainter &painter, const CUI_PrintToWindowItem &item);

} // namespace tetrad
