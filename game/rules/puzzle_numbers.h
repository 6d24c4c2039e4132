#pragma once

#include "game/rules/guarded_array.h"

namespace tetrad {

inline constexpr qint16 numbersPerPuzzle = 4;

/// The numbers of a puzzle, in the order of its text, at the indices 1 to 4; index 0 is not used.
using PuzzleNumbers = GuardedArray<qint16, numbersPerPuzzle>;

} // namespace tetrad
