#pragma once

#include <QString>

#include <functional>

namespace tetrad {

inline constexpr qint16 puzzleCount = 96;

enum class Level : qint16 { easy = 1, medium = 2, hard = 3 };

/// Where a draw takes its uniform 32-bit numbers from.
using RandomSource = std::function<quint32()>;

/// The system's own generator (arc4random where the C library has it).
quint32 systemRandom();

/// The 0-based deck position of the puzzle last drawn, 0 to 95, also when that puzzle was then rejected
/// as a repeat. Written by GetRandomNumbers only.
extern qint64 gPosition;

/// A number in lo to hi, both inclusive: one 32-bit random number modulo the span, whose small bias is accepted.
/// lo must not be above hi; of more than 2 to the power 32 numbers the upper ones never come.
qint64 ArcRandom(qint64 lo, qint64 hi, const RandomSource &source = systemRandom);

/// Draws one puzzle of the deck and sets gPosition.
QString GetRandomNumbers(const RandomSource &source = systemRandom);

/// The puzzle at a position of 0 to 95: four digits in ascending order with single spaces between
/// them, as in "1 3 4 6". Every puzzle of the deck has a solution.
QString puzzleText(qint64 position);

/// The deck lies in three runs: 33 easy, 32 medium, 31 hard puzzles.
Level levelAtPosition(qint64 position);

/// As shown to the player: one coloured circle for each step of difficulty, then the word.
QString levelLabel(Level level);

} // namespace tetrad
