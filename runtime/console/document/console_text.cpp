#include "runtime/console/document/console_text.h"

#include "runtime/console/document/display_list.h"
#include "runtime/console/document/text_layout.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

// The parts between blank lines, without the white space around them.
QStringList paragraphs(const QString &text)
{
    QStringList parts = text.split(u"\n\n"_s);
    for (QString &part : parts) {
        part = part.trimmed();
    }
    parts.removeAll(QString());
    return parts;
}

} // namespace

void ConsoleText::sync(const DisplayList &list)
{
    for (; m_taken < list.size(); ++m_taken) {
        const DisplayList::Entry &entry = list.entry(m_taken);
        if (entry.item.isShape()) {
            continue;
        }
        QString drawn = drawnText(entry.item.string(), entry.item.attributes());
        drawn.replace(u'\t', u' ');
        if (!drawn.isEmpty()) {
            join(entry.item.pt());
            m_atLineStart = false;
        }
        m_pieces.push_back({m_text.size(), static_cast<quint32>(m_taken)});
        append(drawn);
        m_end = entry.item.pt() + QPointF(entry.width, 0);
        if (entry.endsLine) {
            m_text += u'\n';
            m_atLineStart = true;
        }
    }
}

void ConsoleText::join(QPointF at)
{
    constexpr double samePlace = 0.5;
    if (m_atLineStart) {
        return;
    }
    if (std::abs(at.y() - m_end.y()) > samePlace) {
        m_text += u'\n';
    } else if (std::abs(at.x() - m_end.x()) > samePlace) {
        m_text += u' ';
    }
}

void ConsoleText::append(const QString &drawn)
{
    for (qsizetype i = 1; i < drawn.size(); ++i) {
        if (drawn.at(i).isLowSurrogate() && drawn.at(i - 1).isHighSurrogate()) {
            m_pairs.push_back(m_text.size() + i);
        }
    }
    m_text += drawn;
}

void ConsoleText::clear()
{
    ConsoleText empty;
    empty.m_spoken = m_mark > 0 ? m_text.left(m_mark) : m_spoken;
    *this = std::move(empty);
}

const ConsoleText::Piece *ConsoleText::pieceAt(qsizetype offset) const
{
    const auto after = std::upper_bound(m_pieces.begin(), m_pieces.end(), offset,
                                        [](qsizetype value, const Piece &piece) { return value < piece.offset; });
    return after == m_pieces.begin() ? nullptr : &*std::prev(after);
}

const ConsoleText::Piece *ConsoleText::pieceOf(quint32 item) const
{
    const auto found = std::lower_bound(m_pieces.begin(), m_pieces.end(), item,
                                        [](const Piece &piece, quint32 value) { return piece.item < value; });
    return found != m_pieces.end() && found->item == item ? &*found : nullptr;
}

const ConsoleText::Piece *ConsoleText::pieceAfter(const Piece &piece) const
{
    const Piece *next = &piece + 1;
    return next == m_pieces.data() + m_pieces.size() ? nullptr : next;
}

qsizetype ConsoleText::charactersBefore(qsizetype offset) const
{
    const auto pairs = std::lower_bound(m_pairs.begin(), m_pairs.end(), offset) - m_pairs.begin();
    return offset - pairs;
}

qsizetype ConsoleText::offsetOfCharacter(qsizetype character) const
{
    // The pairs ascend by at least two, so the numbers of the characters after them ascend too.
    qsizetype pairs = 0;
    for (qsizetype end = static_cast<qsizetype>(m_pairs.size()); pairs < end;) {
        const qsizetype middle = (pairs + end) / 2;
        if (m_pairs[static_cast<std::size_t>(middle)] - middle <= character) {
            pairs = middle + 1;
        } else {
            end = middle;
        }
    }
    return character + pairs;
}

QString ConsoleText::takeUnannounced()
{
    return m_text.mid(std::exchange(m_announced, m_text.size()));
}

QString ConsoleText::takeNew()
{
    const QString gained = m_text.mid(std::exchange(m_mark, m_text.size()));
    const QStringList spoken = paragraphs(std::exchange(m_spoken, QString()));
    QStringList news = paragraphs(gained);
    news.removeIf([&](const QString &paragraph) { return spoken.contains(paragraph); });
    return news.join(u'\n');
}

} // namespace tetrad
