#include "game/expression.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace tetrad;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

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

// A few that are to be read; the comparison with another evaluator tries many more.
TEST(Expression, HasItsValue)
{
    const struct
    {
        const char *name;
        const char *text;
        double value;
    } rows[] = {
        {"fraction inside a division", "6.0/(1.0-3.0/4.0)", 24.0},
        {"product before sum", "2+3*4-6/2", 11.0},
        {"same rank from the left", "8/4/2-1-1", -1.0},
        {"many signs", "-+--4", -4.0},
        {"divided by a signed parenthesis", "12/-(1-4)", 4.0},
        {"no digit after the point", "5.+1", 6.0},
        {"by zero", "1/0", infinity},
        {"the sign of zero lasts", "1/(-0.0)", -infinity},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(valueOf(QString::fromUtf8(row.text)), row.value) << row.name;
    }
    EXPECT_TRUE(std::isnan(valueOf(QStringLiteral("0/0"))));
}

TEST(Expression, FailureNamesWhatIsWrongAndWhere)
{
    const struct
    {
        const char *name;
        const char *text;
        const char *description;
    } rows[] = {
        {"nothing", "", "the expression is empty"},
        {"operator at the end", "2*3+", "missing operand after '+' at position 4"},
        {"operator at the start", "*2", "missing operand before '*' at position 1"},
        {"operator after a parenthesis", "(/2)", "missing operand after '(' at position 1"},
        {"empty parentheses", "2*()", "empty parentheses at position 3"},
        {"closed too often", "(1+2))*3", "')' without '(' at position 6"},
        {"never closed", "2*(3+(4)", "'(' without ')' at position 3"},
        {"numbers side by side", "2 3", "two numbers side by side at position 3"},
        {"letter", "1+2+q", "unexpected 'q' at position 5"},
        {"emoji", "1+\xF0\x9F\x98\x80", "unexpected '\xF0\x9F\x98\x80' at position 3"},
        {"digits of another script", "\xD9\xA3+1", "unexpected '\xD9\xA3' at position 1"},
        {"control character", "1+\x1b", "unexpected character U+001B at position 3"},
        {"two points", "1.2.3", "malformed number '1.2.3' at position 1"},
        {"only a point", "3*.", "malformed number '.' at position 3"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(failureOf(QString::fromUtf8(row.text)).toStdString(), row.description) << row.name;
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
