#include "panel_helper.h"

#include "runtime/input/control_formatter.h"
#include "runtime/input/input_format.h"

#include <QClipboard>
#include <QLineEdit>

using namespace tetrad;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString answerKeys = u"123456789+-*/()qs"_s;

class FormattedField : public testing::Test
{
protected:
    void format(const QString &list, bool pass = true, quint64 length = 0, qint64 caseOption = 0)
    {
        ControlSetFormat(tagFromObject(&field), list, pass, length, caseOption);
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
    EXPECT_EQ(settled(), u"12+3"_s);
    field.undo();
    EXPECT_EQ(settled(), u"12"_s);
    field.undo();
    EXPECT_EQ(settled(), u""_s);
    field.redo();
    field.redo();
    EXPECT_EQ(settled(), u"12+3"_s);
}

TEST_F(FormattedField, tooLongAPasteChangesNothing)
{
    format(u"1"_s, true, 3);
    QTest::keyClicks(&field, u"11"_s);
    EXPECT_EQ(paste(u"11"_s), u"11"_s);
    EXPECT_EQ(field.cursorPosition(), 2);
    format(u"2"_s);
    EXPECT_EQ(paste(u"12"_s), u"2"_s) << "the new format alone counts";
    EXPECT_EQ(field.findChildren<CUI_ControlFormatter *>().size(), 1);
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

TEST_F(PanelTest, aControlIsFoundByTagInTheFrontWindow)
{
    auto *const field = new QLineEdit(host->contentView());
    setObjectTag(field, 7);
    ControlSetFormat(8, u"1"_s, true, 0, 0);
    EXPECT_EQ(field->validator(), nullptr);
    ControlSetFormat(7, u"1"_s, true, 0, 0);
    ASSERT_NE(field->validator(), nullptr);
}

} // namespace
