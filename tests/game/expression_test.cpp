#include "game/expression.h"

#include "game/pattern.h"
#include "tests/table.h"

using namespace tetrad;

namespace {

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

// The values are compared with those of another evaluator, see evaluator_against_python.py.
TEST(Expression, FailureNamesWhatIsWrongAndWhere)
{
    const Table<const char *, const char *> rows = {
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
    for (const auto &[name, text, description] : rows) {
        EXPECT_EQ(failureOf(QString::fromUtf8(text)).toStdString(), description) << name;
    }
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

TEST(Pattern, MatchesWithinTheRangeInOrder)
{
    const auto letters =
        RegularExpressionWithPattern(QStringLiteral("[a-c]+"), QRegularExpression::CaseInsensitiveOption, nullptr);
    const auto matches =
        RegularExpressionMatches(letters, QStringLiteral("aa1Bc2cccc"), QRegularExpression::NoMatchOption, 1, 7);
    ASSERT_EQ(matches.size(), 3);
    EXPECT_EQ(TextCheckingResultRange(matches[0]), (TextRange{1, 1}));
    EXPECT_EQ(TextCheckingResultRange(matches[1]), (TextRange{3, 2}));
    EXPECT_EQ(TextCheckingResultRange(matches[2]), (TextRange{6, 2}));
}

TEST(Pattern, FaultIsReportedWithThePattern)
{
    ErrorObject error;
    EXPECT_FALSE(
        RegularExpressionWithPattern(QStringLiteral("[0-9"), QRegularExpression::NoPatternOption, &error).isValid());
    EXPECT_TRUE(error.description.contains(u"\"[0-9\"")) << error.description.toStdString();
}
