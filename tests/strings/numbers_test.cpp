#include "tests/support/table.h"
#include <tetrad/strings/numbers.h>
#include <tetrad/strings/text_format.h>
#include <tetrad/strings/text_functions.h>

#include <QStringList>
#include <QVariant>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

using namespace tetrad;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr qint64 largest = std::numeric_limits<qint64>::max();

TEST(NumberPrinter, printsEachForm)
{
    const Table<quint8, double, const char *> rows = {
        {"negative whole", 10, -24, "-24"},
        {"minus zero", 10, -0.0, " 0"},
        {"zeros after the point are dropped", 10, 2.05, " 2.5"},
        {"between -1 and 0 the sign is lost", 10, -0.5, " 0.5"},
        {"fraction that rounds up to 1", 10, 2.99999999999, " 2.1."},
        {"ten digits", 10, 1.0 / 3, " 0.3333333333"},
        {"the smallest is 1e-6 in single precision, a little below 1e-6", 10, 9.99999999e-7, " 0.1"},
        {"below that", 10, 9.9999997e-7, " 0"},
        {"largest 64-bit", 10, 9223372036854775807.0, " 9223372036854775807"},
        {"below 64 bits", 10, -1e300, "-9223372036854775808"},
        {"no number", 10, std::nan(""), " 0.nan"},
        {"two digits", 2, 1.0 / 3, " 0.33"},
        {"a fraction of zeros only leaves the point", 2, 7.001, " 7."},
        {"no digits", 0, 7.25, " 7."},
    };
    EXPECT_EQ(gZRFloatMaxDigits, 10);
    for (const auto &[name, digits, number, printed] : rows) {
        const quint8 before = std::exchange(gZRFloatMaxDigits, digits);
        EXPECT_EQ(CopyDblToString(number).toStdString(), printed) << name;
        gZRFloatMaxDigits = before;
    }
}

TEST(NumberReader, readsTheLeadingNumber)
{
    const Table<QString, double, qint64> rows = {
        {"none", {}, 0, 0},
        {"negative", u"-23.5"_s, -23.5, -23},
        {"plus sign", u"+7"_s, 7, 7},
        {"two signs", u"+-7"_s, 0, 0},
        {"blanks first", u" \t\n 8.5"_s, 8.5, 8},
        {"no digit before the point", u".5"_s, 0.5, 0},
        {"exponent", u"1.5e3"_s, 1500, 1},
        {"named numbers", u"inf"_s, 0, 0},
        {"digits of another script", u"\u0664"_s, 0, 0},
        {"largest integer", u"9223372036854775807"_s, 9223372036854775807.0, largest},
        {"above it", u"9223372036854775808"_s, 9223372036854775808.0, largest},
        {"below the smallest", u"-9223372036854775809"_s, -9223372036854775809.0, -largest - 1},
        {"too large for a double", u"1e400"_s, infinity, 1},
        {"too small", u"1e-400"_s, 0, 1},
    };
    for (const auto &[name, text, asDouble, asInteger] : rows) {
        EXPECT_EQ(StringDoubleValue(text), asDouble) << name;
        EXPECT_EQ(StringIntegerValue(text), asInteger) << name;
    }
    EXPECT_EQ(ZRDblVal(QVariant::fromValue(-7L)), -7);
    EXPECT_EQ(ZRDblVal(true), 1);
    EXPECT_EQ(ZRDblVal(u" 4.5 apples"_s), 4.5);
    EXPECT_EQ(ZRDblVal(QStringList{u"4"_s}), 0) << "neither number nor text";
}

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
            EXPECT_EQ(gZRUpperChar[value], value >= 'a' && value <= 'z' ? value - 32 : value) << "byte " << value;
            EXPECT_EQ(gZRLowerChar[value], value >= 'A' && value <= 'Z' ? value + 32 : value) << "byte " << value;
        }
    }
}

} // namespace
