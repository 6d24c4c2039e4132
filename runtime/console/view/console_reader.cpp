#include <tetrad/console/console_reader.h>

#include <tetrad/console/display_list.h>

#include <QPainter>
#include <QPalette>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <limits>

namespace tetrad {

namespace {

QRectF boxOf(const DisplayList::Entry &entry)
{
    return {entry.item.pt(), QSizeF(entry.width, entry.item.attributes().facts().lineHeight)};
}

double distance(double value, double from, double to)
{
    return std::max({from - value, value - to, 0.0});
}

} // namespace

ConsoleReader::ConsoleReader(const DisplayList &list, ItemPainter &painter) : m_list(list), m_painter(painter) {}

const ConsoleText &ConsoleReader::text()
{
    m_text.sync(m_list);
    return m_text;
}

QString ConsoleReader::takeNew()
{
    m_text.sync(m_list);
    return m_text.takeNew();
}

QString ConsoleReader::takeUnannounced()
{
    m_text.sync(m_list);
    return m_text.takeUnannounced();
}

void ConsoleReader::clear()
{
    m_text.clear();
    m_anchor = 0;
    m_caret = 0;
}

double ConsoleReader::xInPiece(const ConsoleText::Piece &piece, qsizetype offset)
{
    const CUI_PrintToWindowItem &item = m_list.item(piece.item);
    if (item.string().isEmpty()) {
        return 0;
    }
    const qsizetype length = drawnText(item.string(), item.attributes()).size();
    return m_painter.shaped(m_list, piece.item).xOf(std::clamp<qsizetype>(offset - piece.offset, 0, length));
}

QRectF ConsoleReader::characterRect(qsizetype offset)
{
    text();
    const ConsoleText::Piece *piece = m_text.pieceAt(offset);
    if (!piece) {
        return {};
    }
    const double from = xInPiece(*piece, offset);
    const double to = xInPiece(*piece, offset + 1);
    const QRectF box = boxOf(m_list.at(piece->item));
    return {box.left() + std::min(from, to), box.top(), std::abs(to - from), box.height()};
}

qsizetype ConsoleReader::characterAt(QPointF point)
{
    const ConsoleText::Piece *piece = pieceNear(point);
    if (!piece || !boxOf(m_list.at(piece->item)).contains(point)) {
        return -1;
    }
    qsizetype offset = caretNear(point);
    if (offset > piece->offset && !characterRect(offset).contains(point)) {
        --offset;
    }
    return characterRect(offset).contains(point) ? offset : -1;
}

qsizetype ConsoleReader::caretNear(QPointF point)
{
    const ConsoleText::Piece *piece = pieceNear(point);
    if (!piece) {
        return point.y() < 0 ? 0 : m_text.text().size();
    }
    const CUI_PrintToWindowItem &item = m_list.item(piece->item);
    if (item.string().isEmpty()) {
        return piece->offset;
    }
    return piece->offset + m_painter.shaped(m_list, piece->item).indexAt(point.x() - item.pt().x());
}

const ConsoleText::Piece *ConsoleReader::pieceNear(QPointF point)
{
    text();
    constexpr double reach = 500;
    const ConsoleText::Piece *nearest = nullptr;
    std::pair best(std::numeric_limits<double>::infinity(), 0.0);
    for (const quint32 index : m_list.itemsIn(point.y() - reach, point.y() + reach)) {
        const ConsoleText::Piece *piece = m_text.pieceOf(index);
        if (!piece) {
            continue;
        }
        const QRectF box = boxOf(m_list.at(index));
        const std::pair away(distance(point.y(), box.top(), box.bottom()),
                             distance(point.x(), box.left(), box.right()));
        // Of texts on top of each other the last one printed is the one that is seen.
        if (away <= best) {
            best = away;
            nearest = piece;
        }
    }
    return nearest;
}

qsizetype ConsoleReader::stepFrom(qsizetype offset, int direction)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text().text());
    finder.setPosition(offset);
    const qsizetype next = direction < 0 ? finder.toPreviousBoundary() : finder.toNextBoundary();
    return next < 0 ? offset : next;
}

QString ConsoleReader::selectedText()
{
    return text().text().mid(selectionStart(), selectionEnd() - selectionStart());
}

void ConsoleReader::select(qsizetype anchor, qsizetype caret)
{
    const qsizetype end = text().text().size();
    m_anchor = std::clamp<qsizetype>(anchor, 0, end);
    m_caret = std::clamp<qsizetype>(caret, 0, end);
}

void ConsoleReader::drawSelection(const ItemPainter::Canvas &canvas, const QPalette &palette, double top, double bottom)
{
    if (!hasSelection()) {
        return;
    }
    text();
    for (const quint32 index : m_list.itemsIn(top, bottom)) {
        const ConsoleText::Piece *piece = m_text.pieceOf(index);
        if (!piece) {
            continue;
        }
        const double from = xInPiece(*piece, selectionStart());
        const double to = xInPiece(*piece, selectionEnd());
        if (from == to) {
            continue;
        }
        const QRectF box = boxOf(m_list.at(index));
        const QPointF origin = ItemPainter::textOrigin(canvas, box.topLeft(), box.height());
        const QRectF lit(origin.x() + std::min(from, to), origin.y(), std::abs(to - from), box.height());
        canvas.painter.save();
        canvas.painter.setRenderHint(QPainter::Antialiasing, false);
        canvas.painter.fillRect(lit, palette.color(QPalette::Highlight));
        canvas.painter.setClipRect(lit, Qt::IntersectClip);
        m_painter.drawGlyphs(canvas, m_list, index, palette.color(QPalette::HighlightedText));
        canvas.painter.restore();
    }
}

} // namespace tetrad
