#pragma once

#include <QRectF>

namespace tetrad {

class CUI_PrintToWindowItem;

/// No coordinate that is drawn lies farther away.
inline constexpr double farthest = 1e8;

/// From a shape's first corner or end to the other, neither farther away than that.
QRectF shapeExtent(const CUI_PrintToWindowItem &item);

/// A shape with NaN for a coordinate is not drawn.
bool isDrawable(const QRectF &extent);

/// Covers every pixel that drawing the shape may touch, with room to spare; empty when it is not drawn.
QRectF shapeInk(const CUI_PrintToWindowItem &item);

} // namespace tetrad
