#pragma once

#include "game/rules/guarded_array.h"

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

/// Passes with at most four digits of 1 to 9; 0 is deliberately not counted, since no puzzle has one.
/// An answer that has no length-prefixed form (above 255 characters, or one outside Mac Roman) counts
/// as empty and passes.
bool passesDigitCount(const QString &answer);

/// Passes when the digit of every puzzle number occurs somewhere. How often it occurs is deliberately
/// not looked at: "2*3+9+9" passes for 2, 2, 3, 9.
bool passesNumberCheck(const QString &answer, const PuzzleNumbers &numbers);

/// The answer's value as a text: the digits of a whole number ("24"), three decimals of any other
/// ("23.500"), or the description of why it has none. "x" multiplies, integers divide as decimals.
QString EvaluateMath(const QString &answer);

} // namespace tetrad
