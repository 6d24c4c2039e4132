// Answers, judged whole: by libFuzzer, and by rules_test with damaged solutions. Input: a puzzle's position, then the
// answer. That the values are right is seen by expression_test.

#include "tests/game/puzzles.h"

#include "game/rules/answer.h"
#include "game/rules/expression.h"
#include "game/rules/puzzle_deck.h"
#include <tetrad/strings/numbers.h>
#include <tetrad/strings/pascal_strings.h>

using namespace tetrad;

namespace {

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
    const ExpressionValue value = ExpressionValueWithObject({answer}, QVariant(), QVariant());
    if (const auto *failure = std::get_if<ExpressionFailure>(&value)) {
        const QString description = failure->description();
        require(!description.isEmpty() && StringIntegerValue(description) == 0, "no failure reads as a number", answer);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView input(data, static_cast<qsizetype>(size));
    if (!input.isEmpty()) {
        judge(QString::fromUtf8(input.sliced(1)), puzzleText(static_cast<quint8>(input.front()) % puzzleCount));
    }
    return 0;
}
