// Answers: judged whole, and the evaluator alone. Input: a puzzle's position, then the answer.

#include "tests/fuzz/fuzz_input.h"
#include "tests/game/puzzles.h"

#include "game/rules/answer.h"
#include "game/rules/expression.h"
#include "game/rules/puzzle_deck.h"
#include <tetrad/strings/numbers.h>
#include <tetrad/strings/pascal_strings.h>

#include <cmath>
#include <optional>

using namespace tetrad;
using namespace tetrad::fuzz;

namespace {

std::optional<double> valueOf(const QString &text)
{
    const ExpressionValue value = ExpressionValueWithObject({text}, QVariant(), QVariant());
    if (const auto *number = std::get_if<double>(&value)) {
        return *number;
    }
    const QString description = std::get<ExpressionFailure>(value).description();
    require(!description.isEmpty(), "a failure has a description", text);
    require(StringIntegerValue(description) == 0, "no description starts with a number", description);
    return std::nullopt;
}

bool same(std::optional<double> left, std::optional<double> right)
{
    const bool bothNoNumber = left && right && std::isnan(*left) && std::isnan(*right);
    return bothNoNumber || left == right;
}

// What an expression keeps when it is only written differently.
void evaluate(const QString &text)
{
    const auto value = valueOf(text);
    require(same(value, valueOf(u' ' + text + u'\t')), "blanks around change nothing", text);
    if (value) {
        require(same(value, valueOf(u'(' + text + u')')), "parentheses around change nothing", text);
        require(same(-*value, valueOf(u"-(" + text + u')')), "a minus before negates", text);
        require(!valueOf(text + u'+'), "an operator at the end is malformed", text);
        require(!valueOf(u'(' + text), "a parenthesis left open is malformed", text);
    }
}

void judge(const QString &answer, const QString &puzzle)
{
    const Outcome outcome = judgeAnswer(answer, numbersOf(puzzle));
    require(gZRStk == 0, "the string stack is back at its start", answer);
    require(outcome != Outcome::noSequence, "every text has a result", answer);
    require(answer.isEmpty() == (outcome == Outcome::nothingTyped), "nothing typed is the empty answer", answer);
    if (outcome == Outcome::correct || outcome == Outcome::incorrect) {
        for (const QString &digit : puzzle.split(u' ')) {
            require(answer.contains(digit), "every number was used", answer);
        }
        const qint64 value = StringIntegerValue(EvaluateMath(answer));
        require((value == 24) == (outcome == Outcome::correct), "24 is what wins", answer);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Input input(data, size);
    const QString puzzle = puzzleText(input.below(puzzleCount));
    const QString answer = input.textUntil('\0');
    judge(answer, puzzle);
    evaluate(answer);
    return 0;
}
