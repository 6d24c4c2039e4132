#pragma once

#include <QPointF>
#include <QString>

#include <vector>

namespace tetrad {

class DisplayList;

/// What has been printed since the last clear, as one text to be read or copied: in order, without control characters,
/// a newline at each line's end, pieces of one row joined (by a blank where a gap lies between them), a tab as a blank.
/// Costs nothing until it is read; then it catches up with the list.
class ConsoleText
{
public:
    /// A printed piece and where it starts in the text. Everything up to the next piece's start belongs to it: its
    /// drawn characters, then a newline or a blank.
    struct Piece
    {
        qsizetype offset = 0;
        quint32 item = 0;
    };

    /// Takes in what the list gained since the last call.
    void sync(const DisplayList &list);
    void clear();

    const QString &text() const { return m_text; }

    /// The piece that owns the character at an offset of 0 to text().size(); null when nothing was printed.
    const Piece *pieceAt(qsizetype offset) const;
    /// The piece made from an item; null when the item is not a text.
    const Piece *pieceOf(quint32 item) const;
    /// Null after the last one.
    const Piece *pieceAfter(const Piece &piece) const;

    // Offsets count UTF-16 units; some assistive technology counts characters, where a surrogate pair is one.
    qsizetype charactersBefore(qsizetype offset) const;
    qsizetype offsetOfCharacter(qsizetype character) const;

    /// What was added since the last call, without blank lines. The first call after a clear leaves out the paragraphs
    /// (parts between blank lines) that earlier calls returned from the text before the clear.
    QString takeNew();

private:
    void join(QPointF at);

    QString m_text;
    std::vector<Piece> m_pieces;
    qsizetype m_taken = 0;
    bool m_atLineStart = true;
    QPointF m_end;
    qsizetype m_mark = 0;
    QString m_spoken; ///< What takeNew has returned of the text before the clear.
};

} // namespace tetrad
