#include "solutions.h"

#include "answer_fixture.h"
#include "game/answer.h"
#include "game/puzzle_deck.h"

#include <gtest/gtest.h>

using namespace tetrad;

namespace {

// The same digits with the value of the whole negated: -24.
QString negated(const QString &solution)
{
    return u'-' + solution;
}

// The first digit replaced by another one that the puzzle does not have.
QString withAForeignDigit(const QString &solution, const QString &puzzle)
{
    const auto digitAt = std::find_if(solution.begin(), solution.end(), [](QChar c) { return c.isDigit(); });
    QString changed = solution;
    for (char16_t foreign = u'1'; foreign <= u'9'; ++foreign) {
        if (!puzzle.contains(foreign)) {
            changed[digitAt - solution.begin()] = foreign;
            break;
        }
    }
    return changed;
}

} // namespace

TEST(Solutions, AllAreCorrectAndPerturbedOnesAreNot)
{
    int count = 0;
    for (qint64 position = 0; position < puzzleCount; ++position) {
        const QString puzzle = puzzleText(position);
        const PuzzleNumbers numbers = numbersOf(puzzle);
        const QStringList solutions = solutionsOf(puzzle);
        EXPECT_FALSE(solutions.isEmpty()) << puzzle.toStdString();
        for (const QString &solution : solutions) {
            SCOPED_TRACE(puzzle.toStdString() + ": " + solution.toStdString());
            EXPECT_EQ(EvaluateMath(solution), QStringLiteral("24"));
            EXPECT_EQ(judgeAnswer(solution, numbers), Outcome::correct);
            EXPECT_EQ(judgeAnswer(negated(solution), numbers), Outcome::incorrect);
            EXPECT_EQ(judgeAnswer(solution.chopped(1), numbers), Outcome::incorrect);
            EXPECT_EQ(judgeAnswer(QString(solution + u"*1"), numbers), Outcome::extraNumbers);
            const Outcome foreign = judgeAnswer(withAForeignDigit(solution, puzzle), numbers);
            EXPECT_TRUE(foreign == Outcome::wrongNumbers || foreign == Outcome::incorrect);
        }
        count += static_cast<int>(solutions.size());
    }
    EXPECT_EQ(count, 1438);
}
