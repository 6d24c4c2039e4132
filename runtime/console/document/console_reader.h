#pragma once

#include "runtime/console/document/console_text.h"

#include <QRectF>

#include <algorithm>

namespace tetrad {

class DisplayList;

/// Reads a display list as a text: where its characters are, which of them are selected, where the caret is. Positions
/// are in the document's coordinates, offsets count UTF-16 units of text().
class ConsoleReader
{
public:
    explicit ConsoleReader(const DisplayList &list) : m_list(list) {}

    /// Up to date with the list.
    const ConsoleText &text();
    /// As it was when it was last brought up to date.
    const QString &knownText() const { return m_text.text(); }
    QString takeNew();
    /// Starts over after the list changed in any other way than by appending.
    void clear();

    /// From the character's left edge to the next one's; a line's end has no width.
    QRectF characterRect(qsizetype offset);
    /// The character under a point, or -1.
    qsizetype characterAt(QPointF point);
    /// The position between characters that is nearest to a point; 0 when nothing was printed.
    qsizetype caretNear(QPointF point);
    /// The position nearest to the caret in the next line above (-1) or below (1); the caret itself if there is
    /// no such line.
    qsizetype caretBeyond(int direction);

    /// The next position between characters to the left (-1) or right (1), never within a character.
    qsizetype stepFrom(qsizetype offset, int direction);

    qsizetype caret() const { return m_caret; }
    qsizetype anchor() const { return m_anchor; }
    qsizetype selectionStart() const { return std::min(m_anchor, m_caret); }
    qsizetype selectionEnd() const { return std::max(m_anchor, m_caret); }
    bool hasSelection() const { return m_anchor != m_caret; }
    QString selectedText();
    /// The selected part of a text item's box; empty when nothing of it is selected.
    QRectF selectedBox(quint32 index);
    /// Offsets outside the text count as its nearer end.
    void select(qsizetype anchor, qsizetype caret);

private:
    using Piece = ConsoleText::Piece;

    /// The part of a piece's box between two offsets, which are cut to the piece.
    QRectF boxBetween(const Piece &piece, qsizetype start, qsizetype end) const;
    /// The text item nearest to a point by height, then sideways, of those whose middle lies between two heights; null
    /// when there is none.
    const Piece *pieceNear(QPointF point, double below, double above);
    qsizetype caretIn(const Piece &piece, double x) const;

    const DisplayList &m_list;
    ConsoleText m_text;
    qsizetype m_anchor = 0;
    qsizetype m_caret = 0;
};

} // namespace tetrad
