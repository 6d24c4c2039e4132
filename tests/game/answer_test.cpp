#include "game/rules/answer.h"

#include "game/rules/puzzle_deck.h"
#include "tests/game/puzzles.h"
#include "tests/support/table.h"
#include <tetrad/strings/pascal_strings.h>

#include <random>

using namespace tetrad;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace {

QString parenthesised(int depth, const QString &inside)
{
    return QString(depth, u'(') + inside + QString(depth, u')');
}

} // namespace

TEST(Answer, IsJudgedInTheOrderOfTheChecks)
{
    const Table<const char *, QString, Outcome> rows = {
        {"empty", "1 3 4 6", u""_s, Outcome::nothingTyped},
        {"Q", "1 3 4 6", u"Q"_s, Outcome::quit},
        {"S", "1 3 4 6", u"S"_s, Outcome::skip},
        {"a command only alone", "1 3 4 6", u"qq"_s, Outcome::wrongNumbers},
        {"only with fractions", "1 3 4 6", u"6/(1-3/4)"_s, Outcome::correct},
        {"five digits, before all else", "1 3 4 6", u"1+2+3+4+5"_s, Outcome::extraNumbers},
        {"joined digits that are not the puzzle's", "1 3 4 6", u"12+12"_s, Outcome::wrongNumbers},
        {"joined digits of the puzzle", "1 2 3 4", u"13+24"_s, Outcome::incorrect},
        {"one number missing, another twice", "1 3 4 6", u"6*4+1-1"_s, Outcome::wrongNumbers},
        {"a repeated number used once", "2 2 3 9", u"2*3+9+9"_s, Outcome::correct},
        {"wrong value", "1 3 4 6", u"1+3+4+6"_s, Outcome::incorrect},
        {"above 24 and below 25", "1 2 4 9", u"49/2*1"_s, Outcome::correct},
        {"25 and above", "1 2 5 9", u"(9+1)*5/2"_s, Outcome::incorrect},
        {"unbalanced", "1 3 4 6", u"6/(1-3/4"_s, Outcome::incorrect},
        {"division by zero", "1 3 4 6", u"6/(4-3-1)"_s, Outcome::incorrect},
        // The digits of an answer without a length-prefixed form are not counted.
        {"255 characters", "1 3 4 6", parenthesised(123, u"1+3+4+6+8"_s), Outcome::extraNumbers},
        {"257 characters", "1 3 4 6", parenthesised(124, u"1+3+4+6+8"_s), Outcome::incorrect},
        {"outside Mac Roman", "1 3 4 6", u"1+3+4+6+8あ"_s, Outcome::incorrect},
        {"deep", "1 3 4 6", parenthesised(100000, u"6/(1-3/4)"_s), Outcome::correct},
        {"long", "1 3 4 6", QString(u"1+"_s.repeated(100000) + u"346"), Outcome::incorrect},
        {"a long number", "1 3 4 6", QString(200000, u'1'), Outcome::wrongNumbers},
    };
    for (const auto &[name, puzzle, answer, outcome] : rows) {
        EXPECT_EQ(judgeAnswer(answer, numbersOf(QString::fromUtf8(puzzle))), outcome) << name;
        EXPECT_EQ(gZRStk, 0) << name;
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
        {"divided by it", u"1/(3/0)"_s, "0"},
        {"none", u"2+"_s, "missing operand after '+' at position 4"},
    };
    for (const auto &[name, answer, text] : rows) {
        EXPECT_EQ(EvaluateMath(answer).toStdString(), text) << name;
    }
}

TEST(Answer, OfEverySolutionIsCorrectAndOfADamagedOneIsNot)
{
    const QMap<QString, QStringList> solved = solvedPuzzles();
    for (qint64 position = 0; position < puzzleCount; ++position) {
        const QString puzzle = puzzleText(position);
        const PuzzleNumbers numbers = numbersOf(puzzle);
        EXPECT_NE(solved[puzzle].first(), u"") << puzzle.toStdString();
        for (const QString &solution : solved[puzzle]) {
            SCOPED_TRACE(puzzle.toStdString() + ": " + solution.toStdString());
            EXPECT_EQ(judgeAnswer(solution, numbers), Outcome::correct);
            EXPECT_EQ(judgeAnswer(QString(u'-' + solution), numbers), Outcome::incorrect);
            EXPECT_EQ(judgeAnswer(solution.chopped(1), numbers), Outcome::incorrect);
            EXPECT_EQ(judgeAnswer(QString(solution + u"*1"), numbers), Outcome::extraNumbers);
        }
    }
}

TEST(Answer, OfAnyTextHasOneOutcome)
{
    std::mt19937 random(1); // NOLINT(bugprone-random-generator-seed): the same texts every time
    const auto below = [&random](qsizetype bound) { return qsizetype(random() % std::size_t(bound)); };
    const QByteArray bytes = "0123456789+-*/().xqs #%\t\xC3\xA9\xF0";
    const QMap<QString, QStringList> solved = solvedPuzzles();
    for (int i = 0; i < 50'000; ++i) {
        const auto position = below(puzzleCount);
        QByteArray input = char(position) + solved[puzzleText(position)].first().toLatin1();
        for (qsizetype changes = below(12); changes > 0; --changes) {
            input.replace(1 + below(input.size()), below(4), bytes.mid(below(bytes.size()), below(3)));
        }
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.constData()), static_cast<size_t>(input.size()));
    }
}
