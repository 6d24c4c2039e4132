#include "game/answer.h"

#include "answer_fixture.h"
#include "game/puzzle_deck.h"
#include "runtime/strings/string_stack.h"
#include "solutions.h"
#include "tests/table.h"

using namespace tetrad;
using namespace Qt::Literals::StringLiterals;

namespace {

// The first digit replaced by another one that the puzzle does not have.
QString withAForeignDigit(QString solution, const QString &puzzle)
{
    const auto digit = std::find_if(solution.begin(), solution.end(), [](QChar c) { return c.isDigit(); });
    const QString digits = u"123456789"_s;
    *digit = *std::find_if(digits.begin(), digits.end(), [&puzzle](QChar c) { return !puzzle.contains(c); });
    return solution;
}

QString parenthesised(int depth, const QString &inside)
{
    return QString(depth, u'(') + inside + QString(depth, u')');
}

} // namespace

TEST(Answer, IsJudgedInTheOrderOfTheChecks)
{
    const Table<const char *, const char *, Outcome> rows = {
        {"empty", "1 3 4 6", "", Outcome::nothingTyped},
        {"Q", "1 3 4 6", "Q", Outcome::quit},
        {"S", "1 3 4 6", "S", Outcome::skip},
        {"q is a command only alone", "1 3 4 6", "qq", Outcome::wrongNumbers},
        {"first example of the instructions", "1 6 8 9", "9+6+1+8", Outcome::correct},
        {"second example of the instructions", "1 3 3 7", "((3*1)*7)+3", Outcome::correct},
        {"only with fractions", "1 3 4 6", "6/(1-3/4)", Outcome::correct},
        {"five digits, before all else", "1 3 4 6", "1+2+3+4+5", Outcome::extraNumbers},
        {"five digits and all the right ones", "1 3 4 6", "6/(1-3/4)*1", Outcome::extraNumbers},
        {"joined digits that are not the puzzle's", "1 3 4 6", "12+12", Outcome::wrongNumbers},
        {"joined digits of the puzzle", "1 2 3 4", "13+24", Outcome::incorrect},
        {"one number missing, another twice", "1 3 4 6", "6*4+1-1", Outcome::wrongNumbers},
        {"a repeated number used once", "2 2 3 9", "2*3+9+9", Outcome::correct},
        {"wrong value", "1 3 4 6", "1+3+4+6", Outcome::incorrect},
        {"above 24 and below 25", "1 2 4 9", "49/2*1", Outcome::correct},
        {"25 and above", "1 2 5 9", "(9+1)*5/2", Outcome::incorrect},
        {"unbalanced", "1 3 4 6", "6/(1-3/4", Outcome::incorrect},
        {"a letter", "1 3 4 6", "1+3+4+6q", Outcome::incorrect},
        {"division by zero", "1 3 4 6", "6/(4-3-1)", Outcome::incorrect},
    };
    for (const auto &[name, puzzle, answer, outcome] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(judgeAnswer(QString::fromUtf8(answer), numbersOf(QString::fromUtf8(puzzle))), outcome);
        EXPECT_EQ(gZRStk, 0);
    }
    EXPECT_EQ(judgeAnswer(QString(), numbersOf(QStringLiteral("1 3 4 6"))), Outcome::nothingTyped);
}

TEST(DigitCount, AnswerWithoutALengthPrefixedFormCountsAsEmpty)
{
    const QString digits = QStringLiteral("12345");
    EXPECT_FALSE(passesDigitCount(parenthesised(125, digits)));
    EXPECT_TRUE(passesDigitCount(parenthesised(126, digits)));
    EXPECT_TRUE(passesDigitCount(QString(digits + QChar(0x3042))));
    EXPECT_EQ(gZRStk, 0);
}

TEST(Answer, HugeOnesAreJudgedLikeAnyOther)
{
    const PuzzleNumbers numbers = numbersOf(QStringLiteral("1 3 4 6"));
    EXPECT_EQ(judgeAnswer(parenthesised(100000, QStringLiteral("6/(1-3/4)")), numbers), Outcome::correct);
    EXPECT_EQ(judgeAnswer(QString(QStringLiteral("1+").repeated(100000) + u"346"), numbers), Outcome::incorrect);
    EXPECT_EQ(judgeAnswer(QString(200000, u'1'), numbers), Outcome::wrongNumbers);
}

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
            EXPECT_EQ(judgeAnswer(QString(u'-' + solution), numbers), Outcome::incorrect);
            EXPECT_EQ(judgeAnswer(solution.chopped(1), numbers), Outcome::incorrect);
            EXPECT_EQ(judgeAnswer(QString(solution + u"*1"), numbers), Outcome::extraNumbers);
            const Outcome foreign = judgeAnswer(withAForeignDigit(solution, puzzle), numbers);
            EXPECT_TRUE(foreign == Outcome::wrongNumbers || foreign == Outcome::incorrect);
        }
        count += static_cast<int>(solutions.size());
    }
    EXPECT_EQ(count, 1438);
}
