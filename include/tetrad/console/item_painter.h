#pragma once

#include <tetrad/console/text_layout.h>

#include <QCache>
#include <QColor>

class QPainter;

namespace tetrad {

class CUI_PrintToWindowItem;
class DisplayList;

/// Draws items of a display list. Keeps the shapes of the texts drawn last, so that redrawing what is visible shapes
/// nothing anew.
class ItemPainter
{
public:
    /// What items are drawn onto; valid while one picture is drawn.
    struct Canvas
    {
        QPainter &painter;
        /// For texts that name no colour of their own.
        QColor standardTextColor;
        /// Whether y grows upwards from the bottom of a document this high.
        bool upwards = false;
        double documentHeight = 0;
    };

    /// index: the item's place in the list, under which its shape is kept.
    void draw(const Canvas &canvas, const DisplayList &list, quint32 index);

    /// The items that may touch a part of the document, in drawing order.
    void drawPart(const Canvas &canvas, const DisplayList &list, const QRectF &part);

    /// A text's glyphs again in one colour, without its background.
    void drawGlyphs(const Canvas &canvas, const DisplayList &list, quint32 index, const QColor &color);

    const ShapedText &shaped(const DisplayList &list, quint32 index);

    /// Hands over the shape of a text that was shaped before it was drawn.
    void keepShape(quint32 index, std::unique_ptr<ShapedText> shape) { m_shapes.insert(index, shape.release()); }

    /// To be called when the list was cleared.
    void forget() { m_shapes.clear(); }

    /// Where a text's box of this height has its top left on the canvas.
    static QPointF textOrigin(const Canvas &canvas, QPointF pt, double lineHeight);

private:
    QCache<quint32, ShapedText> m_shapes{512};
};

} // namespace tetrad
