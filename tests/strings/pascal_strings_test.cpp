#include "runtime/strings/mac_roman.h"
#include "runtime/strings/pascal_strings.h"
#include "runtime/strings/text_format.h"
#include "tests/table.h"

#include <algorithm>
#include <cstdlib>
#include <string>

using namespace tetrad;

namespace {

/// A pushed slot holding the characters.
unsigned char *pushed(const std::string &characters)
{
    PascalString string = {static_cast<unsigned char>(characters.size())};
    std::copy(characters.begin(), characters.end(), string + 1);
    return PSstrcpy(STACK_PUSH(), string);
}

std::string charactersOf(const unsigned char *string)
{
    return {reinterpret_cast<const char *>(string + 1), string[0]};
}

TEST(StringStack, handsOutSlots1To64)
{
    for (int slot = 1; slot <= stringStackSize; ++slot) {
        EXPECT_EQ(STACK_PUSH(), gZRStrStk[slot]);
    }
    EXPECT_EQ(gZRStk, 64);
    popString();
    pushed("kept");
    popString();
    EXPECT_EQ(charactersOf(STACK_PUSH()), "kept") << "a popped slot is free again, but not cleared";
}

TEST(StringStack, doesNotCheckForUnderflow)
{
    popString();
    EXPECT_EQ(gZRStk, -1);
    EXPECT_EQ(STACK_PUSH(), gZRStrStk[0]);
    gZRStk = -1000;
    EXPECT_EQ(STACK_PUSH(), gZRStrStk[0]) << "no address before the storage";
    EXPECT_EQ(gZRStk, -999);
}

#define OVERFLOW_MESSAGE                                                                                               \
    "Pascal String stack index \\( gZRStk \\) exceeds string stack size of 64. Zarvane will terminate"

TEST(StringStackDeathTest, abortsWhenFull)
{
    gZRStk = stringStackSize;
    EXPECT_EXIT(STACK_PUSH(), testing::KilledBySignal(SIGABRT), OVERFLOW_MESSAGE);
}

void reportAndReturn(const QString &message, const QString &informative, qint32 fatal)
{
    std::fprintf(stderr, "%s|%s|%d", qUtf8Printable(message), qUtf8Printable(informative), fatal);
}

TEST(StringStackDeathTest, tellsTheStopAndAbortsIfItReturns)
{
    setStringStackStop(reportAndReturn);
    gZRStk = 1000;
    EXPECT_EXIT(STACK_PUSH(), testing::KilledBySignal(SIGABRT),
                OVERFLOW_MESSAGE "\\|If 'Source File Combining'\\( in Build Settings \\) is turned OFF, try setting to "
                                 "Medium or Maximum\\|-1");
}

TEST(PascalStrings, midClampsItsArguments)
{
    const std::string longest(255, 'x');
    const Table<std::string, int, int, std::string> rows = {
        {"inside", "HELLO", 2, 3, "ELL"},
        {"count beyond the end", "HELLO", 4, 10, "LO"},
        {"start beyond the end", "HELLO", 6, 1, ""},
        {"start 0 does not shorten the count", "HELLO", 0, 2, "HE"},
        {"all", "HELLO", -3, 9, "HELLO"},
        {"no characters", "HELLO", 2, 0, ""},
        {"negative count", "HELLO", 2, -1, ""},
        {"longest", longest, 1, 255, longest},
        {"arguments are cut to 16 bits", "HELLO", 65536 + 2, 65536 + 3, "ELL"},
    };
    for (const auto &[name, source, start, count, result] : rows) {
        const unsigned char *part = PSmid(pushed(source), static_cast<qint16>(start), static_cast<qint16>(count));
        EXPECT_EQ(charactersOf(part), result) << name;
    }
}

TEST(PascalStrings, shareOneResult)
{
    const unsigned char *first = PSmid(pushed("first"), 1, 5);
    EXPECT_EQ(first, gReturnedString);
    EXPECT_EQ(StringPascalString(u"second"_qs), first);
    EXPECT_EQ(charactersOf(first), "second");
    EXPECT_EQ(charactersOf(PSmid(gReturnedString, 2, 3)), "eco") << "a result is its own next source";
}

TEST(PascalStrings, copyIsSafeOnOverlap)
{
    unsigned char buffer[300] = {3, 2, 'a', 'b'};
    EXPECT_EQ(PSstrcpy(buffer + 1, buffer), buffer + 1);
    EXPECT_EQ(charactersOf(buffer + 1), "\2ab");
}

TEST(PascalStrings, convertFromTexts)
{
    const Table<QString, std::string> rows = {
        {"none", {}, ""},
        {"ASCII", u"6/(1-3/4)"_qs, "6/(1-3/4)"},
        {"Mac Roman", u"Ä€\uF8FFˇ"_qs, "\x80\xDB\xF0\xFF"},
        {"accent of its own", u"e\u0301"_qs, "\x8E"},
        {"255 characters", QString(255, u'é'), std::string(255, '\x8E')},
        {"256 characters give none", QString(256, u'x'), ""},
        {"as does a character outside Mac Roman", u"easy ⚪"_qs, ""},
        {"and one outside the basic plane", u"hard 🟡"_qs, ""},
        {"zero", QString(u"a" + QString(1, QChar(0)) + u"b"), std::string("a\0b", 3)},
    };
    for (const auto &[name, text, bytes] : rows) {
        StringPascalString(u"what was there before"_qs);
        EXPECT_EQ(charactersOf(StringPascalString(text)), bytes) << name;
    }
}

TEST(PascalStrings, convertToTexts)
{
    EXPECT_EQ(StringWithPascalString(pushed("6*4")), u"6*4");
    EXPECT_EQ(StringWithPascalString(pushed(std::string("ab\0cd", 5))), u"ab") << "a zero byte ends the text";
    EXPECT_EQ(StringWithPascalString(pushed("")), u"");
    EXPECT_FALSE(StringWithPascalString(pushed("")).isNull());
    EXPECT_EQ(StringWithPascalString(pushed(std::string(255, '\x8E'))), QString(255, u'é'));
}

TEST(MacRoman, everyByteReadsBackTheSame)
{
    for (int byte = 1; byte < 256; ++byte) {
        const std::string bytes(1, static_cast<char>(byte));
        const QString text = StringWithPascalString(pushed(bytes));
        EXPECT_EQ(charactersOf(StringPascalString(text)), bytes) << "byte " << byte;
        EXPECT_EQ(StringWithFormat(u"%.*s"_qs, 1, bytes.c_str()), text) << "byte " << byte;
        EXPECT_EQ(toMacRoman(text), QByteArray::fromStdString(bytes)) << "byte " << byte;
    }
    EXPECT_EQ(toMacRoman(u"⚪"_qs), std::nullopt);
}

} // namespace
