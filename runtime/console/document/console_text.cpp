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
        m_text += drawn;
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
    const QStringView before = QStringView(m_text).first(std::max<qsizetype>(offset, 0));
    return offset - std::count_if(before.begin(), before.end(), [](QChar unit) { return unit.isLowSurrogate(); });
}

qsizetype ConsoleText::offsetOfCharacter(qsizetype character) const
{
    qsizetype offset = 0;
    for (; character > 0 && offset < m_text.size(); --character) {
        ++offset;
        offset += offset < m_text.size() && m_text.at(offset).isLowSurrogate() ? 1 : 0;
    }
    return offset + character;
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
