#pragma once

#include <tetrad/console/console_text.h>
#include <tetrad/console/item_painter.h>

#include <QRectF>

#include <algorithm>

namespace tetrad {

class DisplayList;

/// Reads a display list as a text: where its characters are, which of them are selected, where the caret is. Places are
/// in the list's own coordinates, offsets count UTF-16 units of text().
class ConsoleReader
{
public:
    ConsoleReader(const DisplayList &list, ItemPainter &painter);

    /// Up to date with the list.
    const ConsoleText &text();
    QString takeNew();
    QString takeUnannounced();
    /// To be called when the list was cleared.
    void clear();

    /// From the character's left edge to the next one's; a line's end has no width.
    QRectF characterRect(qsizetype offset);
    /// The character under a point, or -1.
    qsizetype characterAt(QPointF point);
    /// The place between characters that is nearest to a point; 0 when nothing was printed.
    qsizetype caretNear(QPointF point);

    /// One place between characters to the left (-1) or right (1), never within a character.
    qsizetype stepFrom(qsizetype offset, int direction);

    qsizetype caret() const { return m_caret; }
    qsizetype anchor() const { return m_anchor; }
    qsizetype selectionStart() const { return std::min(m_anchor, m_caret); }
    qsizetype selectionEnd() const { return std::max(m_anchor, m_caret); }
    bool hasSelection() const { return m_anchor != m_caret; }
    QString selectedText();
    /// Offsets outside the text count as its nearer end.
    void select(qsizetype anchor, qsizetype caret);

    /// The highlighted boxes and the items whose glyphs lie in them.
    void drawSelection(const ItemPainter::Canvas &canvas, const QPalette &palette, double top, double bottom);

private:
    /// How far right of the piece's origin an offset lies.
    double xInPiece(const ConsoleText::Piece &piece, qsizetype offset);
    /// The text item nearest to a point by height, then sideways; null when none is near.
    const ConsoleText::Piece *pieceNear(QPointF point);

    const DisplayList &m_list;
    ItemPainter &m_painter;
    ConsoleText m_text;
    qsizetype m_anchor = 0;
    qsizetype m_caret = 0;
};

} // namespace tetrad
