#include "runtime/console/view/shape_painter.h"

#include <tetrad/console/console_item.h>

#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace tetrad {

namespace {

using Item = CUI_PrintToWindowItem;

constexpr double farthest = 1e8;

// A pen refuses any wider one and would stay at 1. Below the narrowest nothing is seen, and dashes, which are counted
// in widths, would become infinite.
constexpr double narrowestPen = 1e-3;
constexpr double widestPen = 32767;

// Dashes of what is larger than any screen are followed by the painter, at the cost of those it shows.
constexpr double largestOutlined = 5000;

QPointF limited(QPointF point)
{
    return {std::clamp(point.x(), -farthest, farthest), std::clamp(point.y(), -farthest, farthest)};
}

/// From the first corner or end to the other, neither of them too far away.
QRectF placeOf(const Item &item)
{
    const QRectF place = item.type() == Item::line ? QRectF(item.linePt1(), item.linePt2()) : item.rect();
    const QPointF first = limited(place.topLeft());
    const QPointF second = limited(place.bottomRight());
    return first == place.topLeft() && second == place.bottomRight() ? place : QRectF(first, second);
}

bool isSomewhere(const QRectF &place)
{
    return !std::isnan(place.x() + place.y() + place.width() + place.height());
}

bool isStroked(const Item &item)
{
    return item.lineStyle().lineWidth >= 0;
}

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

/// Only a pattern that gets somewhere can be followed.
bool isUsable(const QList<double> &pattern)
{
    double length = 0;
    for (const double part : pattern) {
        if (!(part >= 0) || !std::isfinite(part)) {
            return false;
        }
        length += part;
    }
    return length > 0;
}

void setDashes(QPen &pen, const LineStyle &style)
{
    // The pen counts dashes in widths and wants pairs; a pattern of odd length is gone through twice per round.
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
    if (isUsable(style.lineDashPattern)) {
        setDashes(pen, style);
    }
    return pen;
}

void fill(QPainter &painter, const Item &item, const QRectF &place)
{
    if (!item.fillColor().isValid()) {
        return;
    }
    if (item.type() == Item::rectangle) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.fillRect(place.normalized(), item.fillColor());
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(item.fillColor());
    painter.drawEllipse(place.normalized());
}

/// The painter loses its place in a dash pattern at what need not be repainted, so that dashes would be broken after a
/// part was drawn anew. It does not where it follows a line of one device pixel.
bool losesItsPlace(const QPainter &painter, const QPen &pen, const QRectF &place)
{
    const QRectF bounds = place.normalized();
    return pen.style() == Qt::CustomDashLine && bounds.width() < largestOutlined && bounds.height() < largestOutlined &&
           (pen.widthF() > 1 || painter.deviceTransform().type() > QTransform::TxTranslate);
}

void stroke(QPainter &painter, const Item &item, const QRectF &place)
{
    if (!isStroked(item)) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    QPainterPath path;
    if (item.type() == Item::line) {
        path.moveTo(place.topLeft());
        path.lineTo(place.bottomRight());
    } else if (item.type() == Item::rectangle) {
        path.addRect(place);
    } else {
        path.addEllipse(place);
    }
    const QPen pen = penFor(item.lineStyle(), 1.0 / painter.device()->devicePixelRatioF());
    if (losesItsPlace(painter, pen, place)) {
        painter.fillPath(QPainterPathStroker(pen).createStroke(path), pen.color());
    } else {
        painter.strokePath(path, pen);
    }
}

} // namespace

QRectF shapeInk(const CUI_PrintToWindowItem &item)
{
    const QRectF place = placeOf(item);
    if (!isSomewhere(place)) {
        return {};
    }
    // Half a width to each side, more at caps and corners; those of a rectangle without height point twice the width
    // out.
    const double room = (isStroked(item) ? 2 * std::clamp(item.lineStyle().lineWidth, 1.0, farthest) : 0) + 2;
    return place.normalized().adjusted(-room, -room, room, room);
}

void drawShape(QPainter &painter, const CUI_PrintToWindowItem &item)
{
    const QRectF place = placeOf(item);
    if (!isSomewhere(place)) {
        return;
    }
    if (item.type() != Item::line) {
        fill(painter, item, place);
    }
    stroke(painter, item, place);
}

} // namespace tetrad
