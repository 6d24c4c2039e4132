#include "panel_helper.h"

#include "runtime/input/control_formatter.h"
#include "runtime/input/input_format.h"
#include "runtime/strings/not_given.h"

using namespace tetrad;
using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Formatter, judgesAProposal)
{
    const QString answerKeys = u"123456789+-*/()qs"_s;
    const struct
    {
        const char *shows;
        QString list;
        bool pass;
        quint64 length;
        qint64 caseOption;
        QString proposal;
        QString expected; ///< null: refused outright
    } rows[] = {
        {"the other case is in the list", answerKeys, true, 0, 0, u"Q"_s, u"Q"_s},
        {"zero and blank are removed", answerKeys, true, 0, 0, u"1 0+2"_s, u"1+2"_s},
        {"case-sensitive list", u"q"_s, true, 0, 1, u"qQ"_s, u"q"_s},
        {"refusing list", u"ab"_s, false, 0, 0, u"aBcA1"_s, u"c1"_s},
        {"empty allowing list refuses all", u""_s, true, 0, 0, u"abc"_s, u""_s},
        {"empty refusing list allows all", u""_s, false, 0, 0, u"a\n1"_s, u"a\n1"_s},
        {"at the limit", u""_s, false, 3, 0, u"abc"_s, u"abc"_s},
        {"beyond the limit", u""_s, false, 3, 0, u"abcd"_s, QString()},
        {"limit counts what would be removed", u"1"_s, true, 2, 0, u"1xx"_s, QString()},
        {"limit counts pairs once", u""_s, false, 2, 0, u"\U0001F600\U0001F601"_s, u"\U0001F600\U0001F601"_s},
        {"lowered", u"ab"_s, true, 0, 2, u"aXB"_s, u"ab"_s},
        {"raised", u"ab"_s, true, 0, 3, u"abc"_s, u"AB"_s},
        {"capitalized", u""_s, false, 0, 4, u"o'neil mcDONALD\tx"_s, u"O'neil Mcdonald\tX"_s},
        {"half a pair is not the pair", u"\U0001F600"_s, true, 0, 0, u"\U0001F600\U0001F601"_s, u"\U0001F600"_s},
        {"marks and controls", answerKeys, true, 0, 0, u"\u202E1\u0007\r\n+\u05D0\0172"_s, u"1+2"_s},
        {"dotless i is no i", u"i"_s, true, 0, 0, u"iI\u0131\u0130"_s, u"iI"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.shows);
        const CUI_ControlFormatter formatter(row.list, row.pass, row.length, row.caseOption);
        QString text = row.proposal;
        int cursor = static_cast<int>(text.size());
        const bool refused = formatter.validate(text, cursor) == QValidator::Invalid;
        EXPECT_EQ(refused ? QString() : text, row.expected);
        EXPECT_EQ(cursor, text.size());
    }
}

TEST(InputFormat, defaultsStandForValuesNotGiven)
{
    InputSetFormat(u"ab"_s, notGiven, notGiven, notGiven);
    ASSERT_NE(pendingInputFormat(), nullptr);
    EXPECT_EQ(pendingInputFormat()->maxLength, 0U);
    EXPECT_EQ(pendingInputFormat()->caseOption, 0);
    for (const qint64 pass : {qint64(-1), notGiven, qint64(0), qint64(1)}) {
        InputSetFormat(u"cd"_s, pass, 7, 3);
        EXPECT_EQ(pendingInputFormat()->pass, pass != 0) << pass;
    }
    InputRemoveFormat();
    EXPECT_EQ(pendingInputFormat(), nullptr);
}

} // namespace
