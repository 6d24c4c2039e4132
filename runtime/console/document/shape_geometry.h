#pragma once

#include <QRectF>

namespace tetrad {

class CUI_PrintToWindowItem;

/// No coordinate that is drawn lies farther away.
inline constexpr double farthest = 1e8;

/// The nearest point that is not farther away.
QPointF limited(QPointF point);

/// From a shape's first corner or end to the other, neither farther away than that.
QRectF shapeExtent(const CUI_PrintToWindowItem &item);

/// Covers every pixel that drawing the shape may touch, with room to spare; empty for a shape with NaN for a
/// coordinate, which is not drawn.
QRectF shapeInk(const CUI_PrintToWindowItem &item);

} // namespace tetrad
