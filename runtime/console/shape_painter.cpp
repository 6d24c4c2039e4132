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
    const qsizetype count = style.dashPattern.size() * (style.dashPattern.size() % 2 == 0 ? 1 : 2);
    for (qsizetype i = 0; i < count; ++i) {
        dashes.append(style.dashPattern.at(i % style.dashPattern.size()) / pen.widthF());
    }
    pen.setDashPattern(dashes);
    pen.setDashOffset(style.dashPhase / pen.widthF());
}

QPen penFor(const LineStyle &style, double thinnest)
{
    QPen pen(style.strokeColor.isValid() ? style.strokeColor : QColor(Qt::black));
    pen.setWidthF(style.width > 0 ? style.width : thinnest);
    pen.setCapStyle(capStyle(style.capStyle));
    pen.setJoinStyle(Qt::MiterJoin);
    if (isUsable(style.dashPattern)) {
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
    if (!(item.lineStyle().width >= 0)) {
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

bool isShape(const CUI_PrintToWindowItem &item)
{
    return item.type() >= Item::line && item.type() <= Item::oval;
}

void drawShape(QPainter &painter, const CUI_PrintToWindowItem &item)
{
    if (item.type() != Item::line) {
        fill(painter, item);
    }
    stroke(painter, item);
}

} // namespace tetrad
