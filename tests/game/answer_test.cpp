#include "game/answer.h"

#include "answer_fixture.h"
#include "runtime/strings/number_reader.h"
#include "runtime/strings/string_stack.h"

#include <gtest/gtest.h>

using namespace tetrad;

namespace {

QString parenthesised(int depth, const QString &inside)
{
    return QString(depth, u'(') + inside + QString(depth, u')');
}

} // namespace

TEST(Answer, IsJudgedInTheOrderOfTheChecks)
{
    const struct
    {
        const char *name;
        const char *puzzle;
        const char *answer;
        Outcome outcome;
    } rows[] = {
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
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(judgeAnswer(QString::fromUtf8(row.answer), numbersOf(QString::fromUtf8(row.puzzle))), row.outcome);
        EXPECT_EQ(gZRStk, 0);
    }
    EXPECT_EQ(judgeAnswer(QString(), numbersOf(QStringLiteral("1 3 4 6"))), Outcome::nothingTyped);
}

TEST(EvaluateMath, GivesTheValueAsText)
{
    const struct
    {
        const char *name;
        const char *answer;
        const char *text;
        qint64 leading;
    } rows[] = {
        {"whole", "9+6+1+8", "24", 24},
        {"integers divide as decimals", "9/2", "4.500", 4},
        {"rounds up to 24", "23.9996", "24", 24},
        {"does not round up to 24", "23.9994", "23.999", 23},
        {"x", "2x3X4", "24", 24},
        {"negative fraction", "1/2-1", "-0.500", 0},
        {"whole but not in single precision", "16777217", "16777217.000", 16777217},
        {"whole in single precision", "16777216", "16777216", 16777216},
        {"unbalanced", "6/(1-3/4", "'(' without ')' at position 5", 0},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const QString text = EvaluateMath(QString::fromUtf8(row.answer));
        EXPECT_EQ(text.toStdString(), row.text);
        EXPECT_EQ(StringIntegerValue(text), row.leading);
    }
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
