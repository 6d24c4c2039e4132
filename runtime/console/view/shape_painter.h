#pragma once

class QPainter;

namespace tetrad {

class CUI_PrintToWindowItem;

/// Fills and strokes a shape in the painter's coordinates. A rectangle's fill covers whole device pixels, so that it
/// hides completely what it is drawn over; everything else is smoothed. Coordinates and widths beyond a hundred million
/// pixels count as that, since farther out the painter draws what is not there.
void drawShape(QPainter &painter, const CUI_PrintToWindowItem &item);

} // namespace tetrad
