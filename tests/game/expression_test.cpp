#include "game/rules/expression.h"

#include "game/rules/regular_expression.h"
#include "tests/support/table.h"

#include <QFile>

using namespace tetrad;

namespace {

std::string outcomeOf(const QString &text)
{
    const ExpressionValue value = ExpressionValueWithObject({text}, QVariant(), QVariant());
    if (const auto *failure = std::get_if<ExpressionFailure>(&value)) {
        return failure->description().toStdString();
    }
    return StringWithFormat(u"%.17g"_s, std::get<double>(value)).replace(u"-nan"_s, u"nan"_s).toStdString();
}

} // namespace

TEST(Expression, HasTheValueThatPythonFinds)
{
    QFile expressions(QStringLiteral(TEST_EXPRESSIONS));
    ASSERT_TRUE(expressions.open(QIODevice::ReadOnly) && expressions.size() > 1'000'000);
    while (!expressions.atEnd()) {
        const QString text = QString::fromLatin1(expressions.readLine().chopped(1));
        const std::string outcome = outcomeOf(text.section(u'=', 0, 0));
        const bool isNumber = outcome.find(" at position ") == std::string::npos;
        EXPECT_EQ(isNumber ? outcome : "malformed", text.section(u'=', 1).toStdString()) << text.toStdString();
    }
}

TEST(Expression, FailureNamesWhatIsWrongAndWhere)
{
    const Table<const char *, const char *> rows = {
        {"nothing", "", "missing operand at position 1"},
        {"empty parentheses", "2*()", "empty parentheses at position 3"},
        {"closed too often", "(1+2))*3", "')' without '(' at position 6"},
        {"never closed", "2*(3+(4)", "'(' without ')' at position 3"},
        {"no operator", "2(3)", "missing operator before '(' at position 2"},
        {"numbers side by side", "2 3", "two numbers side by side at position 3"},
        {"emoji", "1+\xF0\x9F\x98\x80", "unexpected '\xF0\x9F\x98\x80' at position 3"},
        {"digits of another script", "\xD9\xA3+1", "unexpected '\xD9\xA3' at position 1"},
        {"two points", "1.2.3", "malformed number '1.2.3' at position 1"},
    };
    for (const auto &[name, text, description] : rows) {
        EXPECT_EQ(outcomeOf(QString::fromUtf8(text)), description) << name;
    }
}

// Too deep for an evaluator that recurses, too long for one that is not linear.
TEST(Expression, AnyDepthOfParentheses)
{
    constexpr int depth = 1000000;
    const QString opened(depth, u'(');
    const QString closed(depth, u')');
    EXPECT_EQ(outcomeOf(QString(depth, u'-') + u'7'), "7");
    EXPECT_EQ(outcomeOf(u"1+("_s.repeated(depth) + u'1' + closed), "1000001");
    EXPECT_EQ(outcomeOf(opened + closed), "empty parentheses at position 1000000");
    EXPECT_EQ(outcomeOf(opened + u'1'), "'(' without ')' at position 1000000");
}

TEST(Expression, IsMadeFromAFormat)
{
    EXPECT_EQ(outcomeOf(ExpressionWithFormat(u"9/2"_s).text), "4.5");
    EXPECT_EQ(outcomeOf(ExpressionWithFormat(u"%@*%d"_s, u"2"_s, 3).text), "6");
    EXPECT_EQ(outcomeOf(ExpressionWithFormat(u"5%@"_s).text), "unexpected '%' at position 2");
}

TEST(RegularExpression, MatchesWithinTheRangeInOrder)
{
    ErrorObject error;
    EXPECT_FALSE(RegularExpressionWithPattern(u"[0-9"_s, {}, &error).isValid());
    EXPECT_TRUE(error.description.contains(u"\"[0-9\"")) << error.description.toStdString();
    const auto letters = RegularExpressionWithPattern(u"[a-c]+"_s, QRegularExpression::CaseInsensitiveOption, nullptr);
    QList<TextRange> found;
    for (const auto &match : RegularExpressionMatches(letters, u"aa1Bc2cccc"_s, {}, 1, 7)) {
        found.append(TextCheckingResultRange(match));
    }
    EXPECT_EQ(found, (QList<TextRange>{{1, 1}, {3, 2}, {6, 2}}));
}
