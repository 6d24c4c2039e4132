#include "tests/support/table.h"
#include <tetrad/strings/numbers.h>
#include <tetrad/strings/text_format.h>
#include <tetrad/strings/text_functions.h>

#include <clocale>
#include <cstdlib>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

TEST(Locales, changeNeitherNumbersNorTheCaseOfAscii)
{
    ::setenv("LOCPATH", TEST_LOCALES, 1);
    for (const char *locale : {"C", "de_DE.UTF-8", "tr_TR.UTF-8"}) {
        SCOPED_TRACE(locale);
        if (std::setlocale(LC_ALL, locale) == nullptr) {
            GTEST_SKIP() << locale << " is neither installed nor in " TEST_LOCALES;
        }
        EXPECT_EQ(CopyDblToString(1.5), u" 1.5");
        EXPECT_EQ(StringWithFormat(u"%.3f %g %e %'d %@"_s, 1.5, 0.5, 0.5, 1234567, 1.5),
                  u"1.500 0.5 5.000000e-01 1234567 1.5");
        EXPECT_EQ(StringDoubleValue(u"1.5"_s), 1.5);
        EXPECT_EQ(StringDoubleValue(u"1,5"_s), 1);
        EXPECT_EQ(UcaseCFString(u"quit"_s), u"QUIT");
        EXPECT_EQ(LcaseCFString(u"QUIT"_s), u"quit");
        EXPECT_EQ(InString(0, u"QUIT"_s, u"i"_s, searchCaseInsensitive), 2);
        EXPECT_EQ(InitZRGlobals(), 0);
        for (int value = 0; value < 256; ++value) { // Above ASCII these locales have multibyte characters.
            const bool isUpper = value >= 'A' && value <= 'Z';
            const bool isLower = value >= 'a' && value <= 'z';
            EXPECT_EQ(gZRUpperChar[value], isLower ? value - 32 : value) << "byte " << value;
            EXPECT_EQ(gZRLowerChar[value], isUpper ? value + 32 : value) << "byte " << value;
        }
    }
}

} // namespace
