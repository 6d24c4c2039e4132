#include "runtime/strings/case_tables.h"
#include "runtime/strings/number_printer.h"
#include "runtime/strings/number_reader.h"
#include "runtime/strings/text_format.h"
#include "runtime/strings/text_functions.h"
#include "tests/table.h"

#include <cctype>
#include <clocale>
#include <cstdlib>

using namespace tetrad;

namespace {

class UnderLocale : public testing::TestWithParam<const char *>
{
protected:
    void SetUp() override
    {
        ::setenv("LOCPATH", TEST_LOCALES, 1);
        if (std::setlocale(LC_ALL, GetParam()) == nullptr) {
            GTEST_SKIP() << GetParam() << " is neither installed nor in " TEST_LOCALES;
        }
    }
    void TearDown() override { std::setlocale(LC_ALL, "C"); }
};

TEST_P(UnderLocale, numbersHaveADecimalPoint)
{
    EXPECT_EQ(CopyDblToString(1.5), u" 1.5");
    EXPECT_EQ(StringWithFormat(u"%.3f %g %e"_qs, 1234.5, 0.5, 0.5), u"1234.500 0.5 5.000000e-01");
    EXPECT_EQ(StringWithFormat(u"%'d %@"_qs, 1234567, 1.5), u"1234567 1.5");
    EXPECT_EQ(StringDoubleValue(u"1.5"_qs), 1.5);
    EXPECT_EQ(StringDoubleValue(u"1,5"_qs), 1);
}

TEST_P(UnderLocale, asciiKeepsItsCase)
{
    InitZRGlobals();
    for (int letter = 0; letter < 26; ++letter) {
        EXPECT_EQ(gZRUpperChar['a' + letter], 'A' + letter);
        EXPECT_EQ(gZRLowerChar['A' + letter], 'a' + letter);
    }
    EXPECT_EQ(UcaseCFString(u"quit"_qs), u"QUIT");
    EXPECT_EQ(LcaseCFString(u"QUIT"_qs), u"quit");
    EXPECT_EQ(InString(0, u"QUIT"_qs, u"i"_qs, searchCaseInsensitive), 2);
}

INSTANTIATE_TEST_SUITE_P(Locales, UnderLocale, testing::Values("C", "de_DE.UTF-8", "tr_TR.UTF-8"),
                         [](const auto &row) { return std::string(row.param, 0, std::string(row.param).find('_')); });

TEST(CaseTables, mapEveryByte)
{
    EXPECT_EQ(InitZRGlobals(), 0);
    for (int value = 0; value < 256; ++value) {
        EXPECT_EQ(gZRUpperChar[value], std::toupper(value)) << "byte " << value;
        EXPECT_EQ(gZRLowerChar[value], std::tolower(value)) << "byte " << value;
    }
}

} // namespace
