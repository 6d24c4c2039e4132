#include "game/expression.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace tetrad;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

struct ValueRow
{
    const char *name;
    const char *text;
    double value;
};

const ValueRow valueRows[] = {
    {"fraction inside a division", "6.0/(1.0-3.0/4.0)", 24.0},
    {"product before sum", "2+3*4-6/2", 11.0},
    {"same rank from the left", "8/4/2-1-1", -1.0},
    {"product of quotients", "2/3*6", 4.0},
    {"parentheses", "((3.0*1.0)*7.0)+3.0", 24.0},
    {"redundant parentheses", "(((7)))", 7.0},
    {"signs", "-2*+3", -6.0},
    {"sign after an operator", "2*-3", -6.0},
    {"minus a negative", "2--3", 5.0},
    {"many signs", "-+--4", -4.0},
    {"signed parenthesis", "-(2+3)*2", -10.0},
    {"divided by a signed parenthesis", "12/-(1-4)", 4.0},
    {"no digit before the point", ".5*4", 2.0},
    {"no digit after the point", "5.+1", 6.0},
    {"nearest double", "0.1+0.2", 0.1 + 0.2},
    {"blanks between tokens", " 9 + 6 +\t1 + 8 ", 24.0},
    {"by zero", "1/0", infinity},
    {"minus by zero", "-1/0", -infinity},
    {"the sign of zero lasts", "1/(-0.0)", -infinity},
    {"too many digits for a double", "1/3.00000000000000000000000000000000000000000000000000000000000000000000000000",
     1.0 / 3.0},
};

struct FailureRow
{
    const char *name;
    const char *text;
    const char *description;
};

const FailureRow failureRows[] = {
    {"nothing", "", "the expression is empty"},
    {"only a blank", " ", "the expression is empty"},
    {"operator at the end", "2*3+", "missing operand after '+' at position 4"},
    {"operator at the start", "*2", "missing operand before '*' at position 1"},
    {"two operators", "2**3", "missing operand after '*' at position 2"},
    {"only a sign", "-", "missing operand after '-' at position 1"},
    {"operator before a parenthesis", "(2+)", "missing operand after '+' at position 3"},
    {"operator after a parenthesis", "(/2)", "missing operand after '(' at position 1"},
    {"opened at the end", "2+(", "missing operand after '(' at position 3"},
    {"empty parentheses", "2*()", "empty parentheses at position 3"},
    {"closed too often", "(1+2))*3", "')' without '(' at position 6"},
    {"closed first", ")", "missing operand before ')' at position 1"},
    {"never closed", "2*(3+(4)", "'(' without ')' at position 3"},
    {"numbers side by side", "2 3", "two numbers side by side at position 3"},
    {"number after a parenthesis", "(2)3", "two numbers side by side at position 4"},
    {"parenthesis after a number", "2(3)", "missing operator before '(' at position 2"},
    {"letter", "1+2+q", "unexpected 'q' at position 5"},
    {"letter after a number", "2q", "unexpected 'q' at position 2"},
    {"exponent", "1e5", "unexpected 'e' at position 2"},
    {"power", "2^3", "unexpected '^' at position 2"},
    {"per cent", "5%2", "unexpected '%' at position 2"},
    {"emoji", "1+\xF0\x9F\x98\x80", "unexpected '\xF0\x9F\x98\x80' at position 3"},
    {"digits of another script", "\xD9\xA3+1", "unexpected '\xD9\xA3' at position 1"},
    {"control character", "1+\x1b", "unexpected character U+001B at position 3"},
    {"two points", "1.2.3", "malformed number '1.2.3' at position 1"},
    {"points in a row", "4+1..2", "malformed number '1..2' at position 3"},
    {"only a point", "3*.", "malformed number '.' at position 3"},
};

double valueOf(const QString &text)
{
    return evaluateExpression(text);
}

QString failureOf(const QString &text)
{
    try {
        const double value = evaluateExpression(text);
        return QStringLiteral("no failure but the value ") + QString::number(value);
    } catch (const ExpressionError &error) {
        return error.description();
    }
}

QString nested(int depth, const QString &inside)
{
    return QString(depth, u'(') + inside + QString(depth, u')');
}

} // namespace

TEST(Expression, HasItsValue)
{
    for (const ValueRow &row : valueRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(valueOf(QString::fromUtf8(row.text)), row.value);
    }
    EXPECT_TRUE(std::isnan(valueOf(QStringLiteral("0/0"))));
}

TEST(Expression, FailureNamesWhatIsWrongAndWhere)
{
    for (const FailureRow &row : failureRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(failureOf(QString::fromUtf8(row.text)).toStdString(), row.description);
    }
}

TEST(Expression, NumbersOutsideTheRangeOfADouble)
{
    const QString zeros(400, u'0');
    EXPECT_EQ(valueOf(u'1' + zeros), infinity);
    EXPECT_EQ(valueOf(u'-' + zeros + u'1' + zeros + u".5"), -infinity);
    EXPECT_EQ(valueOf(u"0." + zeros + u'1'), 0.0);
    EXPECT_EQ(valueOf(zeros + u"7"), 7.0);
}

// Deep enough to exhaust the call stack of an evaluator that recurses, long enough to outlast the
// test's time limit in one that is not linear.
TEST(Expression, AnyDepthOfParentheses)
{
    constexpr int depth = 1000000;
    EXPECT_EQ(valueOf(nested(depth, QStringLiteral("24"))), 24.0);
    EXPECT_EQ(valueOf(QString(depth, u'-') + u'7'), 7.0);
    EXPECT_EQ(valueOf(QStringLiteral("1+(").repeated(depth) + u'1' + QString(depth, u')')), depth + 1.0);
    EXPECT_EQ(failureOf(nested(depth, QString())).toStdString(), "empty parentheses at position 1000000");
    EXPECT_EQ(failureOf(QString(depth, u'(') + u'1').toStdString(), "'(' without ')' at position 1000000");
}

TEST(Expression, IsMadeFromAFormat)
{
    const Expression plain = ExpressionWithFormat(QStringLiteral("9/2"));
    EXPECT_EQ(ExpressionValueWithObject(plain, QVariant(), QVariant()).toDouble(), 4.5);
    EXPECT_EQ(ExpressionWithFormat(QStringLiteral("%@*%d"), QStringLiteral("2"), 3).value(), 6.0);
    EXPECT_THROW(ExpressionWithFormat(QStringLiteral("5%@")), ExpressionError);
}
