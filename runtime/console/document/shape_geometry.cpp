#include "runtime/console/document/shape_geometry.h"

#include <tetrad/console/console_item.h>

#include <algorithm>
#include <cmath>

namespace tetrad {

QPointF limited(QPointF point)
{
    return {std::clamp(point.x(), -farthest, farthest), std::clamp(point.y(), -farthest, farthest)};
}

QRectF shapeExtent(const CUI_PrintToWindowItem &item)
{
    const bool isLine = item.type() == CUI_PrintToWindowItem::line;
    const QRectF extent = isLine ? QRectF(item.linePt1(), item.linePt2()) : item.rect();
    const QPointF first = limited(extent.topLeft());
    const QPointF second = limited(extent.bottomRight());
    return first == extent.topLeft() && second == extent.bottomRight() ? extent : QRectF(first, second);
}

QRectF shapeInk(const CUI_PrintToWindowItem &item)
{
    const QRectF extent = shapeExtent(item);
    if (std::isnan(extent.x() + extent.y() + extent.width() + extent.height())) {
        return {};
    }
    // Half a width to each side, more at caps and corners; the corners of a rectangle without height point out by twice
    // the width.
    const double width = item.lineStyle().lineWidth;
    const double room = (width >= 0 ? 2 * std::clamp(width, 1.0, farthest) : 0) + 2;
    return extent.normalized().adjusted(-room, -room, room, room);
}

} // namespace tetrad
