#pragma once

#include "game/rules/puzzle_numbers.h"

namespace tetrad {

/// What the game does about an answer.
enum class Outcome {
    nothingTyped, ///< cancelled or empty: ask again
    quit,
    skip,
    extraNumbers, ///< more than four digits
    wrongNumbers, ///< a puzzle number does not occur
    noSequence,   ///< no result at all
    incorrect,
    correct,
};

/// Judges an answer: first the commands Q and S, then the two checks, then its value.
Outcome judgeAnswer(const QString &answer, const PuzzleNumbers &numbers);

/// The answer's value as a text: the digits of a whole number ("24"), three decimals of any other
/// ("23.500"), or the description of why it has none. "x" multiplies, integers divide as decimals.
QString EvaluateMath(const QString &answer);

} // namespace tetrad
