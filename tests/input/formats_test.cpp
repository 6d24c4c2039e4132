#include "panel_helper.h"

#include "runtime/input/control_formatter.h"
#include "runtime/input/inkey_format.h"
#include "runtime/input/input_format.h"
#include "runtime/strings/not_given.h"

using namespace tetrad;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto answerKeys = "123456789+-*/()qs";

struct FormatterCase
{
    const char *shows;
    QString list;
    bool pass;
    quint64 length;
    qint64 caseOption;
    QString proposal;
    QString expected; ///< null: refused outright
    int cursor = -1;  ///< in the proposal; -1: at its end
    int cursorAfter = -1;
};

void PrintTo(const FormatterCase &row, std::ostream *out)
{
    *out << row.shows;
}

class Formatter : public testing::TestWithParam<FormatterCase>
{};

TEST_P(Formatter, judgesAProposal)
{
    const FormatterCase &row = GetParam();
    const CUI_ControlFormatter formatter(row.list, row.pass, row.length, row.caseOption);
    QString text = row.proposal;
    int cursor = row.cursor < 0 ? static_cast<int>(text.size()) : row.cursor;
    const QValidator::State state = formatter.validate(text, cursor);
    EXPECT_EQ(state == QValidator::Invalid, row.expected.isNull());
    if (!row.expected.isNull()) {
        EXPECT_EQ(text, row.expected);
        EXPECT_EQ(cursor, row.cursorAfter < 0 ? text.size() : row.cursorAfter);
    }
}

const FormatterCase formatterCases[] = {
    {"theOtherCaseIsInTheList", QLatin1String(answerKeys), true, 0, 0, u"Q"_s, u"Q"_s},
    {"zeroAndBlankAreRemoved", QLatin1String(answerKeys), true, 0, 0, u"1 0+2"_s, u"1+2"_s},
    {"caseSensitiveList", u"q"_s, true, 0, 1, u"qQ"_s, u"q"_s},
    {"refusingList", u"ab"_s, false, 0, 0, u"aBcA1"_s, u"c1"_s},
    {"refusingListCaseSensitive", u"ab"_s, false, 0, 1, u"aBcA1"_s, u"BcA1"_s},
    {"emptyAllowingListRefusesAll", u""_s, true, 0, 0, u"abc"_s, u""_s},
    {"emptyRefusingListAllowsAll", u""_s, false, 0, 0, u"a\n1"_s, u"a\n1"_s},
    {"atTheLimit", u""_s, false, 3, 0, u"abc"_s, u"abc"_s},
    {"beyondTheLimit", u""_s, false, 3, 0, u"abcd"_s, QString()},
    {"limitCountsWhatWouldBeRemoved", u"1"_s, true, 2, 0, u"1xx"_s, QString()},
    {"limitCountsPairsOnce", u""_s, false, 2, 0, u"\U0001F600\U0001F601"_s, u"\U0001F600\U0001F601"_s},
    {"lowered", u"ab"_s, true, 0, 2, u"aXB"_s, u"ab"_s},
    {"raised", u"ab"_s, true, 0, 3, u"abc"_s, u"AB"_s},
    {"capitalized", u""_s, false, 0, 4, u"o'neil mcDONALD\tx"_s, u"O'neil Mcdonald\tX"_s},
    {"unknownOptionFoldsNothing", u"ab"_s, true, 0, 9, u"aB"_s, u"aB"_s},
    {"emojiOutsideTheList", QLatin1String(answerKeys), true, 0, 0, u"1\U0001F600+"_s, u"1+"_s},
    {"halfAPairIsNotThePair", u"\U0001F600"_s, true, 0, 0, u"\U0001F600\U0001F601"_s, u"\U0001F600"_s},
    {"directionMarksAndControls", QLatin1String(answerKeys), true, 0, 0, u"\u202E1\u0007\r\n+\u05D0\0172"_s, u"1+2"_s},
    {"cursorStaysAfterWhatItFollowed", u"12"_s, true, 0, 0, u"1xx2xx"_s, u"12"_s, 3, 1},
    {"dotlessIIsNoI", u"i"_s, true, 0, 0, u"iI\u0131\u0130"_s, u"iI"_s},
};

INSTANTIATE_TEST_SUITE_P(, Formatter, testing::ValuesIn(formatterCases),
                         [](const auto &row) { return row.param.shows; });

TEST(InputFormat, defaultsStandForValuesNotGiven)
{
    InputSetFormat(u"ab"_s, notGiven, notGiven, notGiven);
    ASSERT_NE(pendingInputFormat(), nullptr);
    EXPECT_TRUE(pendingInputFormat()->pass);
    EXPECT_EQ(pendingInputFormat()->maxLength, 0U);
    EXPECT_EQ(pendingInputFormat()->caseOption, 0);
    InputSetFormat(u"cd"_s, -1, 7, 3);
    EXPECT_EQ(pendingInputFormat()->characters, u"cd"_s);
    EXPECT_TRUE(pendingInputFormat()->pass);
    EXPECT_EQ(pendingInputFormat()->maxLength, 7U);
    EXPECT_EQ(pendingInputFormat()->caseOption, 3);
    InputSetFormat(u"cd"_s, 0, 7, 3);
    EXPECT_FALSE(pendingInputFormat()->pass);
    InputRemoveFormat();
    EXPECT_EQ(pendingInputFormat(), nullptr);
}

TEST(InkeyFormat, setIsTheListOrItsInverse)
{
    InkeySetFormat(u"aQ\U0001F600"_s, notGiven, notGiven);
    EXPECT_TRUE(pendingInkeyFormat()->characterSet.containsFirstOf(u"Q"));
    EXPECT_FALSE(pendingInkeyFormat()->characterSet.containsFirstOf(u"q"));
    EXPECT_TRUE(pendingInkeyFormat()->characterSet.containsFirstOf(u"\U0001F600"));
    InkeySetFormat(u"aQ"_s, 0, caseForceUpper);
    EXPECT_FALSE(pendingInkeyFormat()->characterSet.containsFirstOf(u"Q"));
    EXPECT_TRUE(pendingInkeyFormat()->characterSet.containsFirstOf(u"q"));
    EXPECT_EQ(pendingInkeyFormat()->caseOption, caseForceUpper);
    InkeyRemoveFormat();
    EXPECT_EQ(pendingInkeyFormat(), nullptr);
}

} // namespace
