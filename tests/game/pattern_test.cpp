#include "game/pattern.h"

#include <gtest/gtest.h>

using namespace tetrad;

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
