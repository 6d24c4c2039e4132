#include "game/rules/answer.h"

#include "game/rules/puzzle_deck.h"
#include "solutions.h"
#include "tests/support/table.h"
#include <tetrad/strings/pascal_strings.h>

using namespace tetrad;
using namespace Qt::StringLiterals;
using namespace Qt::Literals::StringLiterals;

namespace {

PuzzleNumbers numbersOf(const QString &puzzle)
{
    PuzzleNumbers numbers([](quint32 index, quint32, quint32, const QString &) { return index; });
    const QStringList digits = puzzle.split(u' ');
    for (qint16 i = 1; i <= 4; ++i) {
        numbers.at(i, 0) = digits.at(i - 1).toShort();
    }
    return numbers;
}

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
        {"a command only alone", "1 3 4 6", "qq", Outcome::wrongNumbers},
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
}

TEST(Answer, HasATextOfItsValue)
{
    const Table<QString, const char *> rows = {
        {"whole", u"6*4"_s, "24"},
        {"x multiplies", u"6x2X2"_s, "24"},
        {"integers divide as decimals", u"7/2+.5/2"_s, "3.750"},
        {"rounded to whole", u"24-1/9999"_s, "24"},
        {"more than a float's bits", u"16777217"_s, "16777217.000"},
        {"infinite", u"-1/0"_s, "-inf"},
        {"none", u"2+"_s, "missing operand after '+' at position 4"},
    };
    for (const auto &[name, answer, text] : rows) {
        EXPECT_EQ(EvaluateMath(answer).toStdString(), text) << name;
    }
}

TEST(Answer, OfAnyLengthIsJudged)
{
    const PuzzleNumbers numbers = numbersOf(u"1 3 4 6"_s);
    EXPECT_EQ(judgeAnswer(QString(), numbers), Outcome::nothingTyped);
    // The digits of an answer without a length-prefixed form are not counted.
    EXPECT_EQ(judgeAnswer(parenthesised(123, u"1+3+4+6+8"_s), numbers), Outcome::extraNumbers);
    EXPECT_EQ(judgeAnswer(parenthesised(124, u"1+3+4+6+8"_s), numbers), Outcome::incorrect);
    EXPECT_EQ(judgeAnswer(u"1+3+4+6+8あ"_s, numbers), Outcome::incorrect);
    EXPECT_EQ(judgeAnswer(parenthesised(100000, u"6/(1-3/4)"_s), numbers), Outcome::correct);
    EXPECT_EQ(judgeAnswer(QString(u"1+"_s.repeated(100000) + u"346"), numbers), Outcome::incorrect);
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
