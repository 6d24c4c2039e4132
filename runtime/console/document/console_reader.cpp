#include "runtime/console/document/console_reader.h"

#include "runtime/console/document/display_list.h"
#include "runtime/console/document/text_layout.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <limits>

namespace tetrad {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

double distance(double value, double from, double to)
{
    return std::max({from - value, value - to, 0.0});
}

} // namespace

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

void ConsoleReader::clear()
{
    m_text.clear();
    m_anchor = 0;
    m_caret = 0;
}

QRectF ConsoleReader::boxBetween(const Piece &piece, qsizetype start, qsizetype end) const
{
    const DisplayList::Entry &entry = m_list.entry(piece.item);
    const TextAttributes &attributes = entry.item.attributes();
    const qsizetype length = drawnText(entry.item.string(), attributes).size();
    const auto shape = shapedText(entry.item.string(), attributes);
    const double from = shape->xOf(std::clamp<qsizetype>(start - piece.offset, 0, length));
    const double to = shape->xOf(std::clamp<qsizetype>(end - piece.offset, 0, length));
    const QRectF box = entry.box();
    return {box.left() + std::min(from, to), box.top(), std::abs(to - from), box.height()};
}

QRectF ConsoleReader::characterRect(qsizetype offset)
{
    const Piece *piece = text().pieceAt(offset);
    return piece ? boxBetween(*piece, offset, offset + 1) : QRectF();
}

qsizetype ConsoleReader::characterAt(QPointF point)
{
    const Piece *piece = pieceNear(point, -infinity, infinity);
    if (!piece || !m_list.entry(piece->item).box().contains(point)) {
        return -1;
    }
    qsizetype offset = caretIn(*piece, point.x());
    if (offset > piece->offset && !characterRect(offset).contains(point)) {
        --offset;
    }
    return characterRect(offset).contains(point) ? offset : -1;
}

qsizetype ConsoleReader::caretNear(QPointF point)
{
    const Piece *piece = pieceNear(point, -infinity, infinity);
    return piece ? caretIn(*piece, point.x()) : 0;
}

qsizetype ConsoleReader::caretBeyond(int direction)
{
    const QRectF here = characterRect(m_caret);
    const Piece *piece = direction < 0 ? pieceNear(here.topLeft(), -infinity, here.top())
                                       : pieceNear(here.bottomLeft(), here.bottom(), infinity);
    return piece ? caretIn(*piece, here.left()) : m_caret;
}

qsizetype ConsoleReader::caretIn(const Piece &piece, double x) const
{
    const CUI_PrintToWindowItem &item = m_list.at(piece.item);
    return piece.offset + shapedText(item.string(), item.attributes())->indexAt(x - item.pt().x());
}

const ConsoleText::Piece *ConsoleReader::pieceNear(QPointF point, double below, double above)
{
    text();
    const Piece *nearest = nullptr;
    std::pair best(infinity, 0.0);
    // Most lines have others nearby, so that few items are looked at. Items are found by their ink, which goes beyond
    // the box: one that is farther away than the search reaches may hide the nearest.
    double reach = 0;
    while (best.first > reach && reach < 1e10) {
        reach = std::max(500.0, reach * 8);
        const double top = std::max(point.y() - reach, below);
        const double bottom = std::min(point.y() + reach, above);
        for (const quint32 index : m_list.itemsIn({QPointF(-1e9, top), QPointF(1e9, bottom)})) {
            const QRectF box = m_list.entry(index).box();
            const Piece *piece = m_text.pieceOf(index);
            if (!piece || box.center().y() <= below || box.center().y() >= above) {
                continue;
            }
            const std::pair away(distance(point.y(), box.top(), box.bottom()),
                                 distance(point.x(), box.left(), box.right()));
            // Where texts overlap, the last one printed is visible.
            if (away <= best) {
                best = away;
                nearest = piece;
            }
        }
    }
    return nearest;
}

qsizetype ConsoleReader::stepFrom(qsizetype offset, int direction)
{
    // No character spans lines, and analysing one line takes less time than a long text.
    const QStringView all(text().text());
    const qsizetype start =
        all.first(std::max<qsizetype>(0, direction < 0 ? offset - 1 : offset)).lastIndexOf(u'\n') + 1;
    const qsizetype newline = all.indexOf(u'\n', offset);
    const QString line = all.sliced(start, (newline < 0 ? all.size() : newline + 1) - start).toString();
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, line);
    finder.setPosition(offset - start);
    const qsizetype next = direction < 0 ? finder.toPreviousBoundary() : finder.toNextBoundary();
    return next < 0 ? offset : start + next;
}

QString ConsoleReader::selectedText()
{
    return text().text().mid(selectionStart(), selectionEnd() - selectionStart());
}

QRectF ConsoleReader::selectedBox(quint32 index)
{
    const Piece *piece = hasSelection() ? text().pieceOf(index) : nullptr;
    return piece ? boxBetween(*piece, selectionStart(), selectionEnd()) : QRectF();
}

void ConsoleReader::select(qsizetype anchor, qsizetype caret)
{
    const qsizetype end = text().text().size();
    m_anchor = std::clamp<qsizetype>(anchor, 0, end);
    m_caret = std::clamp<qsizetype>(caret, 0, end);
}

} // namespace tetrad
