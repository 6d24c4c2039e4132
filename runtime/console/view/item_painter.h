#pragma once

#include <QPalette>
#include <QRectF>
#include <QTransform>

class QPainter;

namespace tetrad {

class ConsoleDocument;

/// What items are drawn onto; valid while one picture is drawn.
struct Canvas
{
    QPainter &painter;
    /// From the document to the painter's coordinates. Texts stay upright.
    QTransform mirror;
    /// For the selection, and for texts that have no colour of their own.
    QPalette palette;
};

/// Draws an item and highlights what is selected of it, so that a later item covers both.
void drawItem(const Canvas &canvas, ConsoleDocument &document, quint32 index);

/// The items from one on that may touch a part of the document, in drawing order.
void drawItems(const Canvas &canvas, ConsoleDocument &document, const QRectF &part, qsizetype from = 0);

} // namespace tetrad
