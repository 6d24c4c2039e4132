#include "runtime/console/view/shape_painter.h"

#include "runtime/console/document/shape_geometry.h"
#include <tetrad/console/console_item.h>

#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace tetrad {

namespace {

using Item = CUI_PrintToWindowItem;

// A pen refuses a greater width and would stay at 1. A smaller one cannot be seen, and its dashes, which are counted in
// widths, would become infinite.
constexpr double narrowestPen = 1e-3;
constexpr double widestPen = 32767;

// Outlining the dashes of a shape that is larger than any screen takes too long; the painter follows the visible ones.
constexpr double largestOutlined = 5000;

Qt::PenCapStyle capStyle(quint32 code)
{
    switch (code) {
    case 1:
        return Qt::RoundCap;
    case 2:
        return Qt::SquareCap;
    default:
        return Qt::FlatCap;
    }
}

// Dashes that are much wider than long take seconds to draw.
constexpr double shortestPattern = 0.05; // in widths

bool isUsable(const QList<double> &pattern, double width)
{
    double length = 0;
    for (const double part : pattern) {
        if (!(part >= 0) || !std::isfinite(part)) {
            return false;
        }
        length += part;
    }
    return length > shortestPattern * width;
}

void setDashes(QPen &pen, const LineStyle &style)
{
    // The pen counts dashes in widths and needs pairs, so a pattern of odd length is given twice.
    QList<qreal> dashes;
    const qsizetype count = style.lineDashPattern.size() * (style.lineDashPattern.size() % 2 == 0 ? 1 : 2);
    for (qsizetype i = 0; i < count; ++i) {
        const double dash = style.lineDashPattern.at(i % style.lineDashPattern.size());
        dashes.append(std::min(dash, farthest) / pen.widthF());
    }
    pen.setDashPattern(dashes);
    pen.setDashOffset(style.lineDashPhase / pen.widthF());
}

QPen penFor(const LineStyle &style, double thinnest)
{
    QPen pen(style.strokeColor.isValid() ? style.strokeColor : QColor(Qt::black));
    pen.setWidthF(style.lineWidth > 0 ? std::clamp(style.lineWidth, narrowestPen, widestPen) : thinnest);
    pen.setCapStyle(capStyle(style.lineCapStyle));
    pen.setJoinStyle(Qt::MiterJoin);
    if (isUsable(style.lineDashPattern, pen.widthF())) {
        setDashes(pen, style);
    }
    return pen;
}

void fill(QPainter &painter, const Item &item, const QRectF &extent)
{
    if (!item.fillColor().isValid()) {
        return;
    }
    if (item.type() == Item::rectangle) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.fillRect(extent.normalized(), item.fillColor());
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(item.fillColor());
    painter.drawEllipse(extent.normalized());
}

// Whether the painter skips what is clipped without advancing in the dash pattern, so that a partial repaint would put
// the dashes elsewhere. Lines of one device pixel are followed exactly.
bool losesItsPosition(const QPainter &painter, const QPen &pen, const QRectF &extent)
{
    const QRectF bounds = extent.normalized();
    return pen.style() == Qt::CustomDashLine && bounds.width() < largestOutlined && bounds.height() < largestOutlined &&
           (pen.widthF() > 1 || painter.deviceTransform().type() > QTransform::TxTranslate);
}

void stroke(QPainter &painter, const Item &item, const QRectF &extent)
{
    if (!(item.lineStyle().lineWidth >= 0)) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    QPainterPath path;
    if (item.type() == Item::line) {
        path.moveTo(extent.topLeft());
        path.lineTo(extent.bottomRight());
    } else if (item.type() == Item::rectangle) {
        path.addRect(extent);
    } else {
        path.addEllipse(extent);
    }
    const QPen pen = penFor(item.lineStyle(), 1.0 / painter.deviceTransform().m11());
    if (losesItsPosition(painter, pen, extent)) {
        painter.fillPath(QPainterPathStroker(pen).createStroke(path), pen.color());
    } else {
        painter.strokePath(path, pen);
    }
}

} // namespace

void drawShape(QPainter &painter, const CUI_PrintToWindowItem &item)
{
    const QRectF extent = shapeExtent(item);
    if (item.type() != Item::line) {
        fill(painter, item, extent);
    }
    stroke(painter, item, extent);
}

} // namespace tetrad
