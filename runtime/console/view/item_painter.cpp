#include "runtime/console/view/item_painter.h"

#include "runtime/console/document/console_reader.h"
#include "runtime/console/document/display_list.h"
#include "runtime/console/document/text_layout.h"
#include "runtime/console/view/shape_painter.h"

#include <QPainter>

namespace tetrad {

namespace {

void fillBox(QPainter &painter, const QRectF &box, const QColor &color)
{
    // Not smoothed: rows that touch must neither overlap nor leave a seam, at any scale factor.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(box, color);
}

void drawGlyphs(QPainter &painter, const ShapedText &shape, QPointF topLeft, const QColor &color)
{
    painter.setPen(color);
    for (const QGlyphRun &run : shape.glyphRuns()) {
        painter.drawGlyphRun(topLeft + QPointF(0, shape.baseline()), run);
    }
}

void drawText(const Canvas &canvas, const DisplayList::Entry &entry, const QRectF &selected)
{
    const TextAttributes &attributes = entry.item.attributes();
    const QRectF box = canvas.mirror.mapRect(entry.box());
    if (const QColor background = attributes.backgroundColor(); background.isValid() && background.alpha() != 0) {
        fillBox(canvas.painter, box, background);
    }
    const QColor foreground = attributes.foregroundColor();
    const auto shape = shapedText(entry.item.string(), attributes);
    drawGlyphs(canvas.painter, *shape, box.topLeft(),
               foreground.isValid() ? foreground : canvas.palette.color(QPalette::WindowText));
    if (selected.isEmpty()) {
        return;
    }
    const QRectF lit = canvas.mirror.mapRect(selected);
    canvas.painter.save();
    fillBox(canvas.painter, lit, canvas.palette.color(QPalette::Highlight));
    canvas.painter.setClipRect(lit, Qt::IntersectClip);
    drawGlyphs(canvas.painter, *shape, box.topLeft(), canvas.palette.color(QPalette::HighlightedText));
    canvas.painter.restore();
}

} // namespace

void drawItem(const Canvas &canvas, ConsoleDocument &document, quint32 index)
{
    const DisplayList::Entry &entry = document.items().entry(index);
    if (entry.ink.isEmpty()) {
        return;
    }
    if (entry.item.isShape()) {
        canvas.painter.save();
        canvas.painter.setTransform(canvas.mirror, true);
        drawShape(canvas.painter, entry.item);
        canvas.painter.restore();
    } else {
        drawText(canvas, entry, document.reader().selectedBox(index));
    }
}

void drawItems(const Canvas &canvas, ConsoleDocument &document, const QRectF &part, qsizetype from)
{
    for (const quint32 index : document.items().itemsIn(part, from)) {
        drawItem(canvas, document, index);
    }
}

} // namespace tetrad
