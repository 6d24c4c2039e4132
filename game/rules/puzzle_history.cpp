#include "game/rules/puzzle_history.h"

#include <tetrad/strings/numbers.h>
#include <tetrad/strings/text_functions.h>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

QString keyOfParts(const QStringList &parts)
{
    QString key = u""_s;
    for (const QString &part : parts) {
        key = StringByAppendingString(StringByAppendingString(key, part), u" "_s);
    }
    return key;
}

// Late in a cycle this draws many times, about 96 for the last puzzle; repeats are avoided by drawing again.
QStringList drawUnseenPuzzle(PuzzleHistory &history, const RandomSource &random)
{
    for (;;) {
        QStringList parts = StringComponentsSeparatedByString(GetRandomNumbers(random), u" "_s);
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
    clear(source::historyEmptiedAtStart);
}

bool PuzzleHistory::holds(QString &key) const
{
    for (qint16 slot = 1; slot <= puzzleCount; ++slot) {
        if (StringIsEqual(key, m_slots.at(slot, source::historyCompared))) {
            // Deliberate: the copy is not used, but its access to the slot is one that a range error can name.
            key = StringWithString(m_slots.at(m_count, source::historyReadAfterRepeat));
            return true;
        }
    }
    return false;
}

void PuzzleHistory::clearWhenFull()
{
    if (m_count >= puzzleCount) {
        clear(source::historyEmptiedWhenFull);
    }
}

void PuzzleHistory::add(const QString &key)
{
    ++m_count;
    m_slots.at(m_count, source::historyStored) = StringWithString(key);
}

void PuzzleHistory::clear(quint32 line)
{
    m_count = 0;
    for (qint16 slot = 1; slot <= puzzleCount; ++slot) {
        m_slots.at(slot, line) = u""_s;
    }
}

Puzzle choosePuzzle(PuzzleHistory &history, const RandomSource &random)
{
    const QStringList parts = drawUnseenPuzzle(history, random);
    Puzzle puzzle{.numbers = PuzzleNumbers(history.boundsCheck()), .level = levelAtPosition(gPosition)};
    for (qint16 i = 1; i <= numbersPerPuzzle; ++i) {
        puzzle.numbers.at(i, source::firstNumberStored + static_cast<quint32>(i - 1)) =
            static_cast<qint16>(StringIntegerValue(parts.at(i - 1)));
    }
    return puzzle;
}

} // namespace tetrad
