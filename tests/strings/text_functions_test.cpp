#include "tests/support/table.h"
#include <tetrad/strings/text_functions.h>

#include <QSet>
#include <QVariant>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

TEST(InString, searchesByStartAndOptions)
{
    const Table<qint32, QString, QString, qint64, qint64> rows = {
        {"options not given", 0, u"ABC"_s, u"C"_s, notGiven, 2},
        {"start at the end", 3, u"ABC"_s, u"C"_s, notGiven, notFound},
        {"start beyond the end", 2147483647, u"ABC"_s, u"C"_s, searchLiteral, notFound},
        {"negative start", -5, u"ABC"_s, u"A"_s, searchLiteral, 0},
        {"empty needle", 0, u"ABC"_s, u""_s, notGiven, notFound},
        {"no texts", 0, {}, {}, notGiven, notFound},
        {"other case", 0, u"ABC"_s, u"c"_s, searchLiteral, notFound},
        {"other case allowed", 0, u"ABC"_s, u"c"_s, searchCaseInsensitive, 2},
        {"backwards over everything", -5, u"ABCABC"_s, u"B"_s, searchBackwards, 4},
        {"backwards, match after start", 3, u"ABCABC"_s, u"B"_s, searchBackwards, 1},
        {"backwards, match reaching past start", 4, u"ABCABC"_s, u"BC"_s, searchBackwards, 1},
        {"positions are UTF-16 units", 0, u"🟡B"_s, u"B"_s, notGiven, 2},
    };
    for (const auto &[name, start, haystack, needle, options, location] : rows) {
        EXPECT_EQ(InString(start, haystack, needle, options), location) << name;
    }
}

TEST(TextFunctions, rightStringTakesWhatThereIs)
{
    EXPECT_EQ(RightString(u"HELLO"_s, 2), u"LO");
    EXPECT_EQ(RightString(u"HELLO"_s, notFound), u"HELLO");
    EXPECT_EQ(RightString(u"HELLO"_s, -1), u"");
    EXPECT_FALSE(RightString(u"HELLO"_s, 0).isNull()) << "empty, not none";
}

TEST(TextFunctions, lenCountsElementsOrCharacters)
{
    EXPECT_EQ(LenCF(u"HELLO"_s), 5);
    EXPECT_EQ(LenCF(QStringList{u"a"_s, u"b"_s}), 2);
    EXPECT_EQ(LenCF(QVariantList{1, 2, 3}), 3);
    EXPECT_EQ(LenCF(QVariant::fromValue(QSet<int>{1, 2})), 2);
    EXPECT_EQ(LenCF(QVariantMap{{u"key"_s, 1}}), 1);
    EXPECT_EQ(LenCF(QByteArray("1234")), 4);
    EXPECT_EQ(LenCF(12345), 0);
    EXPECT_EQ(LenCF(QVariant()), 0);
}

TEST(TextFunctions, compareLiterally)
{
    EXPECT_EQ(StringIsEqual(u"Q"_s, u"q"_s), 0);
    EXPECT_EQ(StringIsEqual(u"é"_s, u"e\u0301"_s), 0);
    EXPECT_EQ(StringIsEqual(u""_s, u""_s), 1);
    EXPECT_EQ(StringIsEqual(u""_s, {}), 0) << "none is not empty";
    EXPECT_EQ(StringContainsString(u"HELLO"_s, u"ELL"_s), 1);
    EXPECT_EQ(StringContainsString(u"HELLO"_s, u"ell"_s), 0);
    EXPECT_EQ(StringContainsString(u"HELLO"_s, u""_s), 0);
}

TEST(TextFunctions, splitAtASeparator)
{
    EXPECT_EQ(StringComponentsSeparatedByString(u"24.500"_s, u"."_s), (QStringList{u"24"_s, u"500"_s}));
    EXPECT_EQ(StringComponentsSeparatedByString(u"1  2"_s, u" "_s), (QStringList{u"1"_s, u""_s, u"2"_s}));
    EXPECT_EQ(StringComponentsSeparatedByString(u""_s, u"."_s), QStringList{u""_s});
    EXPECT_EQ(StringComponentsSeparatedByString(u"24"_s, u""_s), QStringList{u"24"_s});
    EXPECT_EQ(StringComponentsSeparatedByString({}, u"."_s), QStringList());
}

TEST(TextFunctions, cutRangesToTheText)
{
    const Table<qint64, qint64, QString, QString> rows = {
        {"inside", 1, 3, u"ELL"_s, u"H-O"_s},
        {"everything", 0, 5, u"HELLO"_s, u"-"_s},
        {"too long", 3, notFound, u"LO"_s, u"HEL-"_s},
        {"beyond the end", notFound, notFound, u""_s, u"HELLO-"_s},
        {"negative location", -2, 1, u"H"_s, u"-ELLO"_s},
        {"negative length", 1, -1, u""_s, u"H-ELLO"_s},
    };
    for (const auto &[name, location, length, part, replaced] : rows) {
        EXPECT_EQ(StringSubstringWithRange(u"HELLO"_s, location, length), part) << name;
        EXPECT_EQ(StringByReplacingCharactersInRange(u"HELLO"_s, location, length, u"-"_s), replaced) << name;
    }
}

TEST(TextFunctions, replaceEveryOccurrence)
{
    EXPECT_EQ(StringByReplacingOccurrencesOfString(u"4x3x2"_s, u"x"_s, u"*"_s), u"4*3*2");
    EXPECT_EQ(StringByReplacingOccurrencesOfString(u"xx"_s, u"x"_s, u"xx"_s), u"xxxx");
    EXPECT_EQ(StringByReplacingOccurrencesOfString(u"4x3"_s, u""_s, u"*"_s), u"4x3");
    EXPECT_EQ(StringByReplacingOccurrencesOfString(u"x"_s, u"x"_s, {}), u"");
}

TEST(TextFunctions, noneStaysNone)
{
    for (const QString &text :
         {LcaseCFString({}), UcaseCFString({}), StringWithString({}), StringByAppendingString({}, u"x"_s),
          StringSubstringWithRange({}, 0, 1), StringByReplacingOccurrencesOfString({}, u"x"_s, u"y"_s),
          StringByReplacingCharactersInRange({}, 0, 0, u"y"_s)}) {
        EXPECT_TRUE(text.isNull());
    }
    EXPECT_EQ(StringByAppendingString(u"x"_s, {}), u"x");
}

} // namespace
