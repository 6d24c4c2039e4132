#include "panel_helper.h"

#include "runtime/input/field_formatter.h"
#include <tetrad/input/line_input.h>

#include <QClipboard>
#include <QLineEdit>

using namespace tetrad;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString answerKeys = u"123456789+-*/()qs"_s;

TEST(Formatter, judgesAProposal)
{
    const Table<QString, bool, quint64, qint64, QString, QString> rows = {
        {"the other case is in the list", answerKeys, true, 0, 0, u"Q"_s, u"Q"_s},
        {"zero and blank are removed", answerKeys, true, 0, 0, u"1 0+2"_s, u"1+2"_s},
        {"case-sensitive list", u"q"_s, true, 0, 1, u"qQ"_s, u"q"_s},
        {"refusing list", u"ab"_s, false, 0, 0, u"aBcA1"_s, u"c1"_s},
        {"empty allowing list refuses all", u""_s, true, 0, 0, u"abc"_s, u""_s},
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
    for (const auto &[shows, list, pass, length, caseOption, proposal, expected] : rows) {
        SCOPED_TRACE(shows);
        const CUI_ControlFormatter formatter(list, pass, length, caseOption);
        QString text = proposal;
        int cursor = static_cast<int>(text.size());
        const bool refused = formatter.validate(text, cursor) == QValidator::Invalid;
        EXPECT_EQ(refused ? QString() : text, expected);
        EXPECT_EQ(cursor, text.size());
    }
}

class FormattedField : public testing::Test
{
protected:
    void format(const QString &list, bool pass = true, quint64 length = 0, qint64 caseOption = 0)
    {
        attachFormatter(&field, list, pass, length, caseOption);
        field.show();
    }
    QString paste(const QString &text)
    {
        QGuiApplication::clipboard()->setText(text);
        field.paste();
        return settled();
    }
    QString settled()
    {
        QCoreApplication::processEvents();
        return field.text();
    }

    QLineEdit field;
};

TEST_F(FormattedField, filtersEveryWayIn)
{
    format(answerKeys, true, 0, caseForceUpper);
    QTest::keyClicks(&field, u"0q1 s"_s); // no turn of the event loop between the keys
    EXPECT_EQ(settled(), u"Q1S"_s);
    EXPECT_EQ(paste(u"x(\n"_s), u"Q1S("_s);
    compose(&field, u"0+é"_s);
    EXPECT_EQ(settled(), u"Q1S(+"_s);
}

TEST_F(FormattedField, editsInTheMiddleKeepTheCursorThere)
{
    format(answerKeys);
    field.setText(u"12"_s);
    field.setCursorPosition(1);
    EXPECT_EQ(paste(u"0+x*"_s), u"1+*2"_s);
    EXPECT_EQ(field.cursorPosition(), 3);
    field.setSelection(1, 2);
    QTest::keyClicks(&field, u"x"_s);
    EXPECT_EQ(settled(), u"12"_s);
    EXPECT_EQ(field.cursorPosition(), 1);
}

TEST_F(FormattedField, undoAndRedoSurviveTheFilter)
{
    format(answerKeys);
    QTest::keyClicks(&field, u"12"_s);
    paste(u"+ 3"_s);
    QTest::keyClicks(&field, u"0"_s);
    QStringList texts = {settled()};
    for (void (QLineEdit::*const step)() : {&QLineEdit::undo, &QLineEdit::undo, &QLineEdit::redo, &QLineEdit::redo}) {
        (field.*step)();
        texts << settled();
    }
    EXPECT_EQ(texts.join(u' '), u"12+3 12  12 12+3"_s);
}

TEST_F(FormattedField, tooLongAPasteChangesNothingAndTheNewestFormatCounts)
{
    format(u"1"_s, true, 3);
    QTest::keyClicks(&field, u"11"_s);
    EXPECT_EQ(paste(u"11"_s), u"11"_s);
    format(u"2"_s);
    EXPECT_EQ(paste(u"12"_s), u"2"_s);
}

TEST_F(FormattedField, aTextSetByTheProgramStandsAndTheNextEditIsJudged)
{
    format(answerKeys, true, 3);
    field.setText(u"1+20"_s);
    QTest::keyClicks(&field, u"5"_s);
    EXPECT_EQ(settled(), u"1+20"_s) << "beyond the limit";
    field.setText(u"0"_s);
    QTest::keyClick(&field, Qt::Key_Home);
    EXPECT_EQ(settled(), u"0"_s);
    QTest::keyClicks(&field, u"5"_s);
    EXPECT_EQ(settled(), u"5"_s);
}

TEST_F(FormattedField, hugePastes)
{
    format(answerKeys);
    const QString nested = QString(100'000, u'(') + u'1' + QString(100'000, u')');
    EXPECT_EQ(paste(nested).size(), nested.size());
    field.clear();
    EXPECT_EQ(paste(QString(1'000'000, u'0')).size(), 0);
    EXPECT_EQ(paste(u"\u202Eא0\U0001F600\u0001"_s.repeated(100'000) + u'7'), u"7"_s);
}

} // namespace
