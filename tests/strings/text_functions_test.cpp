#include "runtime/strings/text_functions.h"
#include "tests/table.h"

#include <QSet>
#include <QVariant>

using namespace tetrad;

namespace {

TEST(InString, searchesByStartAndOptions)
{
    const Table<qint32, QString, QString, qint64, qint64> rows = {
        {"options not given", 0, u"ABC"_qs, u"C"_qs, notGiven, 2},
        {"start at the end", 3, u"ABC"_qs, u"C"_qs, notGiven, notFound},
        {"start beyond the end", 2147483647, u"ABC"_qs, u"C"_qs, searchLiteral, notFound},
        {"negative start", -5, u"ABC"_qs, u"A"_qs, searchLiteral, 0},
        {"empty needle", 0, u"ABC"_qs, u""_qs, notGiven, notFound},
        {"no texts", 0, {}, {}, notGiven, notFound},
        {"other case", 0, u"ABC"_qs, u"c"_qs, searchLiteral, notFound},
        {"other case allowed", 0, u"ABC"_qs, u"c"_qs, searchCaseInsensitive, 2},
        {"backwards over everything", -5, u"ABCABC"_qs, u"B"_qs, searchBackwards, 4},
        {"backwards, match after start", 3, u"ABCABC"_qs, u"B"_qs, searchBackwards, 1},
        {"backwards, match reaching past start", 4, u"ABCABC"_qs, u"BC"_qs, searchBackwards, 1},
        {"positions are UTF-16 units", 0, u"🟡B"_qs, u"B"_qs, notGiven, 2},
    };
    for (const auto &[name, start, haystack, needle, options, location] : rows) {
        EXPECT_EQ(InString(start, haystack, needle, options), location) << name;
    }
}

TEST(TextFunctions, rightStringTakesWhatThereIs)
{
    EXPECT_EQ(RightString(u"HELLO"_qs, 2), u"LO");
    EXPECT_EQ(RightString(u"HELLO"_qs, notFound), u"HELLO");
    EXPECT_EQ(RightString(u"HELLO"_qs, -1), u"");
    EXPECT_FALSE(RightString(u"HELLO"_qs, 0).isNull()) << "empty, not none";
}

TEST(TextFunctions, lenCountsElementsOrCharacters)
{
    EXPECT_EQ(LenCF(u"HELLO"_qs), 5);
    EXPECT_EQ(LenCF(QStringList{u"a"_qs, u"b"_qs}), 2);
    EXPECT_EQ(LenCF(QVariantList{1, 2, 3}), 3);
    EXPECT_EQ(LenCF(QVariant::fromValue(QSet<int>{1, 2})), 2);
    EXPECT_EQ(LenCF(QVariantMap{{u"key"_qs, 1}}), 1);
    EXPECT_EQ(LenCF(QByteArray("1234")), 4);
    EXPECT_EQ(LenCF(12345), 0);
    EXPECT_EQ(LenCF(QVariant()), 0);
}

TEST(TextFunctions, compareLiterally)
{
    EXPECT_EQ(StringIsEqual(u"Q"_qs, u"q"_qs), 0);
    EXPECT_EQ(StringIsEqual(u"é"_qs, u"e\u0301"_qs), 0);
    EXPECT_EQ(StringIsEqual(u""_qs, u""_qs), 1);
    EXPECT_EQ(StringIsEqual(u""_qs, {}), 0) << "none is not empty";
    EXPECT_EQ(StringContainsString(u"HELLO"_qs, u"ELL"_qs), 1);
    EXPECT_EQ(StringContainsString(u"HELLO"_qs, u"ell"_qs), 0);
    EXPECT_EQ(StringContainsString(u"HELLO"_qs, u""_qs), 0);
}

TEST(TextFunctions, splitAtASeparator)
{
    EXPECT_EQ(StringComponentsSeparatedByString(u"24.500"_qs, u"."_qs), (QStringList{u"24"_qs, u"500"_qs}));
    EXPECT_EQ(StringComponentsSeparatedByString(u"1  2"_qs, u" "_qs), (QStringList{u"1"_qs, u""_qs, u"2"_qs}));
    EXPECT_EQ(StringComponentsSeparatedByString(u""_qs, u"."_qs), QStringList{u""_qs});
    EXPECT_EQ(StringComponentsSeparatedByString(u"24"_qs, u""_qs), QStringList{u"24"_qs});
    EXPECT_EQ(StringComponentsSeparatedByString({}, u"."_qs), QStringList());
}

TEST(TextFunctions, cutRangesToTheText)
{
    const Table<qint64, qint64, QString, QString> rows = {
        {"inside", 1, 3, u"ELL"_qs, u"H-O"_qs},
        {"everything", 0, 5, u"HELLO"_qs, u"-"_qs},
        {"too long", 3, notFound, u"LO"_qs, u"HEL-"_qs},
        {"beyond the end", notFound, notFound, u""_qs, u"HELLO-"_qs},
        {"negative location", -2, 1, u"H"_qs, u"-ELLO"_qs},
        {"negative length", 1, -1, u""_qs, u"H-ELLO"_qs},
    };
    for (const auto &[name, location, length, part, replaced] : rows) {
        EXPECT_EQ(StringSubstringWithRange(u"HELLO"_qs, location, length), part) << name;
        EXPECT_EQ(StringByReplacingCharactersInRange(u"HELLO"_qs, location, length, u"-"_qs), replaced) << name;
    }
}

TEST(TextFunctions, replaceEveryOccurrence)
{
    EXPECT_EQ(StringByReplacingOccurrencesOfString(u"4x3x2"_qs, u"x"_qs, u"*"_qs), u"4*3*2");
    EXPECT_EQ(StringByReplacingOccurrencesOfString(u"xx"_qs, u"x"_qs, u"xx"_qs), u"xxxx");
    EXPECT_EQ(StringByReplacingOccurrencesOfString(u"4x3"_qs, u""_qs, u"*"_qs), u"4x3");
    EXPECT_EQ(StringByReplacingOccurrencesOfString(u"x"_qs, u"x"_qs, {}), u"");
}

TEST(TextFunctions, noneStaysNone)
{
    for (const QString &text :
         {LcaseCFString({}), UcaseCFString({}), StringWithString({}), StringByAppendingString({}, u"x"_qs),
          StringSubstringWithRange({}, 0, 1), StringByReplacingOccurrencesOfString({}, u"x"_qs, u"y"_qs),
          StringByReplacingCharactersInRange({}, 0, 0, u"y"_qs)}) {
        EXPECT_TRUE(text.isNull());
    }
    EXPECT_EQ(StringByAppendingString(u"x"_qs, {}), u"x");
}

} // namespace
