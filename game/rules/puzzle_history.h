#pragma once

#include "game/rules/puzzle_deck.h"
#include "game/rules/puzzle_numbers.h"

namespace tetrad {

/// The puzzles shown since the history was last empty, so that no puzzle is repeated before all 96 were shown.
/// A puzzle is stored as its key: each number followed by one space, as in "1 3 4 6 ".
class PuzzleHistory
{
public:
    explicit PuzzleHistory(BoundsCheck check);

    /// The number of keys stored, 0 to 96. The newest key is in the slot of that number.
    qint16 count() const { return m_count; }

    BoundsCheck boundsCheck() const { return m_slots.boundsCheck(); }

    /// Whether a puzzle was shown already. A repeat turns the key into the newest one stored.
    bool holds(QString &key) const;

    /// Forgets everything once all 96 puzzles were shown.
    void clearWhenFull();

    /// Stores a key that is not held; to be called with fewer than 96 stored.
    void add(const QString &key);

private:
    void clear(quint32 line);

    GuardedArray<QString, 97> m_slots; ///< slots 1 to 96 are used
    qint16 m_count = 0;
};

struct Puzzle
{
    PuzzleNumbers numbers;
    Level level = Level::easy;
};

/// Draws until a puzzle comes up that is not in the history, and records it there. The 97th choice starts with an
/// empty history.
Puzzle choosePuzzle(PuzzleHistory &history, const RandomSource &random = systemRandom);

} // namespace tetrad
