#include "game/rules/puzzle_history.h"

#include <tetrad/strings/numbers.h>
#include <tetrad/strings/text_functions.h>

#include <array>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<quint32, numbersPerPuzzle> numberStoredLines = {181, 182, 183, 184};

QString keyOfParts(const QStringList &parts)
{
    QString key = u""_s;
    for (const QString &part : parts) {
        key = StringByAppendingString(StringByAppendingString(key, part), u" "_s);
    }
    return key;
}

// Late in a cycle this draws many times, about 96 for the last puzzle; repeats are avoided by drawing again.
QStringList drawUnseenPuzzle(PuzzleHistory &history, const RandomSource &source)
{
    for (;;) {
        QStringList parts = StringComponentsSeparatedByString(GetRandomNumbers(source), u" "_s);
        QString key = keyOfParts(parts);
        history.clearWhenFull();
        if (!history.holds(key)) {
            history.add(key);
            return parts;
        }
    }
}

} // namespace

PuzzleHistory::PuzzleHistory(BoundsCheck check) : m_slots(check)
{
    clear(128);
}

bool PuzzleHistory::holds(QString &key) const
{
    for (qint16 slot = 1; slot <= puzzleCount; ++slot) {
        if (StringIsEqual(key, m_slots.at(slot, 172))) {
            // Deliberate: nobody reads this copy, but its access to the slot is one of those a range error names.
            key = StringWithString(m_slots.at(m_count, 173));
            return true;
        }
    }
    return false;
}

void PuzzleHistory::clearWhenFull()
{
    if (m_count >= puzzleCount) {
        clear(166);
    }
}

void PuzzleHistory::add(const QString &key)
{
    ++m_count;
    m_slots.at(m_count, 179) = StringWithString(key);
}

void PuzzleHistory::clear(quint32 line)
{
    m_count = 0;
    for (qint16 slot = 1; slot <= puzzleCount; ++slot) {
        m_slots.at(slot, line) = u""_s;
    }
}

Level choosePuzzle(PuzzleHistory &history, PuzzleNumbers &numbers, const RandomSource &source)
{
    const QStringList parts = drawUnseenPuzzle(history, source);
    for (qint16 i = 1; i <= numbersPerPuzzle; ++i) {
        numbers.at(i, numberStoredLines[static_cast<std::size_t>(i - 1)]) =
            static_cast<qint16>(StringIntegerValue(parts.at(i - 1)));
    }
    return levelAtPosition(gPosition);
}

} // namespace tetrad
