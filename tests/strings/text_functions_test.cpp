#include "tests/support/table.h"
#include <tetrad/strings/text_functions.h>

#include <QSet>
#include <QVariant>

using namespace tetrad;

namespace {

TEST(InString, searchesByStartAndOptions)
{
    const Table<qint32, QString, QString, qint64, qint64> rows = {
        {"options not given", 0, u"ABC"_s, u"C"_s, notGiven, 2},
        {"start beyond the end", 2147483647, u"ABC"_s, u"C"_s, searchLiteral, notFound},
        {"negative start", -5, u"ABC"_s, u"A"_s, searchLiteral, 0},
        {"empty needle", 0, u"ABC"_s, u""_s, notGiven, notFound},
        {"other case allowed", 0, u"ABC"_s, u"c"_s, searchCaseInsensitive, 2},
        {"backwards over everything", -5, u"ABCABC"_s, u"B"_s, searchBackwards, 4},
        {"backwards, match after start", 3, u"ABCABC"_s, u"B"_s, searchBackwards, 1},
        {"backwards, match reaching past start", 4, u"ABCABC"_s, u"BC"_s, searchBackwards, 1},
    };
    for (const auto &[name, start, haystack, needle, options, location] : rows) {
        EXPECT_EQ(InString(start, haystack, needle, options), location) << name;
    }
}

TEST(TextFunctions, countCompareAndSplit)
{
    const Table<QVariant, QVariant> rows = {
        {"length of a text", LenCF(u"HELLO"_s), 5},
        {"of an array of texts", LenCF(QStringList{u"a"_s, u"b"_s}), 2},
        {"of a set", LenCF(QVariant::fromValue(QSet<int>{1, 2})), 2},
        {"of a dictionary", LenCF(QVariantMap{{u"key"_s, 1}}), 1},
        {"of bytes", LenCF(QByteArray("1234")), 4},
        {"of a number", LenCF(12345), 0},
        {"equal", StringIsEqual(u""_s, u""_s), 1},
        {"none is not empty", StringIsEqual(u""_s, {}), 0},
        {"contained", StringContainsString(u"HELLO"_s, u"ELL"_s), 1},
        {"nothing is contained", StringContainsString(u"HELLO"_s, u""_s), 0},
        {"split", StringComponentsSeparatedByString(u"1  2"_s, u" "_s), QStringList{u"1"_s, u""_s, u"2"_s}},
        {"split by nothing", StringComponentsSeparatedByString(u"24"_s, u""_s), QStringList{u"24"_s}},
        {"none split", StringComponentsSeparatedByString({}, u"."_s), QStringList()},
        {"right part", RightString(u"HELLO"_s, 2), u"LO"_s},
        {"right part beyond the start", RightString(u"HELLO"_s, notFound), u"HELLO"_s},
        {"negative right part", RightString(u"HELLO"_s, -1), u""_s},
        {"nothing replaced", StringByReplacingOccurrencesOfString(u"4x3"_s, u""_s, u"*"_s), u"4x3"_s},
        {"none appended", StringByAppendingString(u"x"_s, {}), u"x"_s},
    };
    for (const auto &[name, found, expected] : rows) {
        EXPECT_EQ(found, expected) << name;
    }
    EXPECT_FALSE(RightString(u"HELLO"_s, 0).isNull()) << "empty, not none";
    EXPECT_TRUE(StringByAppendingString({}, u"x"_s).isNull()) << "none stays none";
}

TEST(TextFunctions, cutRangesToTheText)
{
    const Table<qint64, qint64, QString, QString> rows = {
        {"inside", 1, 3, u"ELL"_s, u"H-O"_s},
        {"too long", 3, notFound, u"LO"_s, u"HEL-"_s},
        {"beyond the end", notFound, notFound, u""_s, u"HELLO-"_s},
        {"negative location", -2, 1, u"H"_s, u"-ELLO"_s},
        {"negative length", 1, -1, u""_s, u"H-ELLO"_s},
    };
    for (const auto &[name, location, length, part, replaced] : rows) {
        EXPECT_EQ(StringSubstringWithRange(u"HELLO"_s, location, length), part) << name;
        EXPECT_EQ(StringByReplacingCharactersInRange(u"HELLO"_s, location, length, u"-"_s), replaced) << name;
    }
    EXPECT_TRUE(StringSubstringWithRange({}, 0, 1).isNull()) << "none stays none";
    EXPECT_TRUE(StringByReplacingCharactersInRange({}, 0, 0, u"y"_s).isNull());
}

} // namespace
