#include "tests/support/table.h"
#include <tetrad/strings/mac_roman.h>
#include <tetrad/strings/pascal_strings.h>

#include <algorithm>
#include <cstdlib>
#include <iconv.h>
#include <numeric>
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

struct StringStack : testing::Test
{
    void TearDown() override { gZRStk = 0; }
};

using StringStackDeathTest = StringStack;
using PascalStrings = StringStack;

TEST_F(StringStack, handsOutSlots1To64WithoutUnderflow)
{
    for (int slot = 1; slot <= stringStackSize; ++slot) {
        EXPECT_EQ(STACK_PUSH(), gZRStrStk[slot]);
    }
    EXPECT_EQ(gZRStk, 64);
    popString();
    pushed("kept");
    popString();
    EXPECT_EQ(charactersOf(STACK_PUSH()), "kept") << "a popped slot is free again, but not cleared";
    gZRStk = -1000;
    EXPECT_EQ(STACK_PUSH(), gZRStrStk[0]) << "no address before the storage";
    EXPECT_EQ(gZRStk, -999);
}

TEST_F(StringStackDeathTest, stopsWhenFull)
{
    const std::string message = "Pascal String stack index \\( gZRStk \\) exceeds string stack size of 64. "
                                "Zarvane will terminate";
    gZRStk = stringStackSize;
    EXPECT_EXIT(STACK_PUSH(), testing::KilledBySignal(SIGABRT), message);
    setStringStackStop([](const QString &text, const QString &informative, qint32 fatal) {
        std::fprintf(stderr, "%s|%s|%d", qUtf8Printable(text), qUtf8Printable(informative), fatal);
    });
    EXPECT_EXIT(STACK_PUSH(), testing::KilledBySignal(SIGABRT),
                message + "\n" + message +
                    "\\|If 'Source File Combining'\\( in Build Settings \\) is turned OFF, try setting to "
                    "Medium or Maximum\\|-1")
        << "aborts if the stop returns";
    setStringStackStop(nullptr);
}

TEST_F(PascalStrings, giveTheirParts)
{
    const Table<qint16, qint16, std::string> rows = {
        {"from the first", 1, 2, "24"},
        {"to the last", 3, 2, "68"},
        {"a start below 1 keeps the count", -3, 3, "246"},
        {"a count beyond the end", 3, 100, "68"},
        {"past the end", 5, 1, ""},
        {"a count of 0", 2, 0, ""},
        {"a negative count", 2, -1, ""},
        {"the largest numbers", 32767, 32767, ""},
        {"the smallest start", -32768, 32767, "2468"},
    };
    for (const auto &[name, start, count, part] : rows) {
        EXPECT_EQ(charactersOf(PSmid(pushed("2468"), start, count)), part) << name;
    }
    EXPECT_EQ(PSlen(pushed("24\x80")), 3);
    EXPECT_EQ(PSasc(pushed("\x80xy")), 0x80);
    EXPECT_EQ(PSasc(pushed("")), 0);
    EXPECT_EQ(StringWithPascalString(pushed(std::string("a\0b", 3))), u"a"_s) << "a zero ends a text";
    EXPECT_FALSE(StringWithPascalString(pushed("")).isNull()) << "empty, not none";
    EXPECT_EQ(gZRStk, 0) << "each took its argument";
}

// But for two bytes, which the C library reads as the Greek capital delta and as a private character of its own.
TEST(MacRoman, IsTheCLibrarys)
{
    iconv_t library = iconv_open("UTF-32LE", "MACINTOSH");
    if (library == iconv_t(-1)) {
        GTEST_SKIP() << "the C library has no Mac Roman here";
    }
    QByteArray bytes(256, Qt::Uninitialized);
    std::iota(bytes.begin(), bytes.end(), char(0));
    std::u32string characters(256, U'\0');
    char *in = bytes.data();
    char *out = reinterpret_cast<char *>(characters.data());
    std::size_t left = 256;
    std::size_t room = 4 * left;
    EXPECT_EQ(iconv(library, &in, &left, &out, &room), 0U);
    iconv_close(library);
    characters[0xC6] = U'\u2206';
    characters[0xF0] = U'\uF8FF';
    EXPECT_EQ(fromMacRoman(bytes), QString::fromStdU32String(characters));
    EXPECT_EQ(toMacRoman(QString::fromStdU32String(characters)), bytes);
}

TEST_F(PascalStrings, shareOneResult)
{
    EXPECT_EQ(PSmid(pushed("first"), 1, 5), gReturnedString);
    EXPECT_EQ(StringPascalString(u"second"_s), gReturnedString);
    EXPECT_EQ(charactersOf(PSmid(gReturnedString, 2, 3)), "eco") << "a result is its own next source";
    unsigned char buffer[300] = {3, 2, 'a', 'b'};
    EXPECT_EQ(charactersOf(PSstrcpy(buffer + 1, buffer)), "\2ab") << "a copy may overlap";
}

TEST_F(PascalStrings, convertFromTexts)
{
    const Table<QString, std::string> rows = {
        {"none", {}, ""},
        {"accent of its own", u"6/e\u0301"_s, "6/\x8E"},
        {"255 characters", QString(255, u'é'), std::string(255, '\x8E')},
        {"256 characters give none", QString(256, u'x'), ""},
        {"as does a character outside the basic plane", u"hard 🟡"_s, ""},
        {"zero", QString(u"a" + QString(1, QChar(0)) + u"b"), std::string("a\0b", 3)},
    };
    for (const auto &[name, text, bytes] : rows) {
        StringPascalString(u"what was there before"_s);
        EXPECT_EQ(charactersOf(StringPascalString(text)), bytes) << name;
    }
}

} // namespace
