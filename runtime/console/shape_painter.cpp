#include "runtime/console/shape_painter.h"

#include "runtime/console/console_item.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <cmath>

namespace tetrad {

namespace {

using Item = CUI_PrintToWindowItem;

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
        dashes.append(style.lineDashPattern.at(i % style.lineDashPattern.size()) / pen.widthF());
    }
    pen.setDashPattern(dashes);
    pen.setDashOffset(style.lineDashPhase / pen.widthF());
}

QPen penFor(const LineStyle &style, double thinnest)
{
    QPen pen(style.strokeColor.isValid() ? style.strokeColor : QColor(Qt::black));
    pen.setWidthF(style.lineWidth > 0 ? style.lineWidth : thinnest);
    pen.setCapStyle(capStyle(style.lineCapStyle));
    pen.setJoinStyle(Qt::MiterJoin);
    if (isUsable(style.lineDashPattern)) {
        setDashes(pen, style);
    }
    return pen;
}

void fill(QPainter &painter, const Item &item)
{
    if (!item.fillColor().isValid()) {
        return;
    }
    if (item.type() == Item::rectangle) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.fillRect(item.rect().normalized(), item.fillColor());
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(item.fillColor());
    painter.drawEllipse(item.rect().normalized());
}

void stroke(QPainter &painter, const Item &item)
{
    if (!(item.lineStyle().lineWidth >= 0)) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    QPainterPath path;
    if (item.type() == Item::line) {
        path.moveTo(item.linePt1());
        path.lineTo(item.linePt2());
    } else if (item.type() == Item::rectangle) {
        path.addRect(item.rect());
    } else {
        path.addEllipse(item.rect());
    }
    painter.strokePath(path, penFor(item.lineStyle(), 1.0 / painter.device()->devicePixelRatioF()));
}

} // namespace

void drawShape(QPainter &painter, const CUI_PrintToWindowItem &item)
{
    if (item.type() != Item::line) {
        fill(painter, item);
    }
    stroke(painter, item);
}

} // namespace tetrad
