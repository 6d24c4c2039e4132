#include <tetrad/console/item_painter.h>

#include "runtime/console/view/shape_painter.h"
#include <tetrad/console/display_list.h>

#include <QPainter>

namespace tetrad {

QPointF ItemPainter::textOrigin(const Canvas &canvas, QPointF pt, double lineHeight)
{
    return canvas.upwards ? QPointF(pt.x(), canvas.documentHeight - pt.y() - lineHeight) : pt;
}

void ItemPainter::draw(const Canvas &canvas, const DisplayList &list, quint32 index)
{
    const DisplayList::Entry &entry = list.at(index);
    const CUI_PrintToWindowItem &item = entry.item;
    QPainter &painter = canvas.painter;
    if (item.isShape()) {
        painter.save();
        if (canvas.upwards) {
            painter.translate(0, canvas.documentHeight);
            painter.scale(1, -1);
        }
        drawShape(painter, item);
        painter.restore();
        return;
    }
    if (item.string().isEmpty()) {
        return;
    }
    const TextAttributes &attributes = item.attributes();
    if (const QColor background = attributes.backgroundColor(); background.isValid() && background.alpha() != 0) {
        const double lineHeight = attributes.facts().lineHeight;
        // Not smoothed: rows that touch must neither overlap nor leave a seam, at any scale factor.
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.fillRect(QRectF(textOrigin(canvas, item.pt(), lineHeight), QSizeF(entry.width, lineHeight)),
                         background);
    }
    const QColor foreground = attributes.foregroundColor();
    drawGlyphs(canvas, list, index, foreground.isValid() ? foreground : canvas.standardTextColor);
}

void ItemPainter::drawPart(const Canvas &canvas, const DisplayList &list, const QRectF &part)
{
    for (const quint32 index : list.itemsIn(part.top(), part.bottom())) {
        if (list.isBetween(index, part.left(), part.right())) {
            draw(canvas, list, index);
        }
    }
}

void ItemPainter::drawGlyphs(const Canvas &canvas, const DisplayList &list, quint32 index, const QColor &color)
{
    const CUI_PrintToWindowItem &item = list.item(index);
    const ShapedText &shape = shaped(list, index);
    const QPointF origin = textOrigin(canvas, item.pt(), item.attributes().facts().lineHeight);
    canvas.painter.setPen(color);
    for (const QGlyphRun &run : shape.glyphRuns()) {
        canvas.painter.drawGlyphRun(origin + QPointF(0, shape.baseline()), run);
    }
}

const ShapedText &ItemPainter::shaped(const DisplayList &list, quint32 index)
{
    if (const ShapedText *known = m_shapes.object(index)) {
        return *known;
    }
    const CUI_PrintToWindowItem &item = list.item(index);
    auto *shape = new ShapedText(drawnText(item.string(), item.attributes()), item.attributes());
    m_shapes.insert(index, shape);
    return *shape;
}

} // namespace tetrad
