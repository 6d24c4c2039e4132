#include "tests/support/table.h"
#include <tetrad/strings/pascal_strings.h>

#include <algorithm>
#include <cstdlib>
#include <string>

using namespace tetrad;
using namespace Qt::StringLiterals;

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

TEST(StringStack, handsOutSlots1To64WithoutUnderflow)
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

void reportAndReturn(const QString &message, const QString &informative, qint32 fatal)
{
    std::fprintf(stderr, "%s|%s|%d", qUtf8Printable(message), qUtf8Printable(informative), fatal);
}

TEST(StringStackDeathTest, stopsWhenFull)
{
    const std::string message = "Pascal String stack index \\( gZRStk \\) exceeds string stack size of 64. "
                                "Zarvane will terminate";
    gZRStk = stringStackSize;
    EXPECT_EXIT(STACK_PUSH(), testing::KilledBySignal(SIGABRT), message);
    setStringStackStop(reportAndReturn);
    gZRStk = 1000;
    EXPECT_EXIT(STACK_PUSH(), testing::KilledBySignal(SIGABRT),
                message + "\n" + message +
                    "\\|If 'Source File Combining'\\( in Build Settings \\) is turned OFF, try setting to "
                    "Medium or Maximum\\|-1")
        << "aborts if the stop returns";
}

// Parts of strings and conversions there and back are compared with a model by the fuzz harness.
TEST(PascalStrings, shareOneResult)
{
    const unsigned char *first = PSmid(pushed("first"), 1, 5);
    EXPECT_EQ(first, gReturnedString);
    EXPECT_EQ(StringPascalString(u"second"_s), first);
    EXPECT_EQ(charactersOf(PSmid(gReturnedString, 2, 3)), "eco") << "a result is its own next source";
    unsigned char buffer[300] = {3, 2, 'a', 'b'};
    EXPECT_EQ(charactersOf(PSstrcpy(buffer + 1, buffer)), "\2ab") << "a copy may overlap";
}

TEST(PascalStrings, convertFromTexts)
{
    const Table<QString, std::string> rows = {
        {"none", {}, ""},
        {"Mac Roman", u"6/Ä€\uF8FFˇ"_s, "6/\x80\xDB\xF0\xFF"},
        {"accent of its own", u"e\u0301"_s, "\x8E"},
        {"255 characters", QString(255, u'é'), std::string(255, '\x8E')},
        {"256 characters give none", QString(256, u'x'), ""},
        {"as does a character outside the basic plane", u"hard 🟡"_s, ""},
        {"zero", QString(u"a" + QString(1, QChar(0)) + u"b"), std::string("a\0b", 3)},
    };
    for (const auto &[name, text, bytes] : rows) {
        StringPascalString(u"what was there before"_s);
        EXPECT_EQ(charactersOf(StringPascalString(text)), bytes) << name;
    }
    EXPECT_FALSE(StringWithPascalString(pushed("")).isNull()) << "empty, not none";
}

} // namespace
