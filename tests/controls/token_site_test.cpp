#include "runtime/controls/dispatch/event_site.h"
#include "tests/controls/site_helper.h"
#include <tetrad/controls/control_statements.h>
#include <tetrad/controls/token_field.h>

#include <QAbstractItemView>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

/// Token field 6 with the words "a" and "b".
class TokenSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        valuesOf = [](qint64 event) {
            const CUI_DialogEvent &record = *CUI_DialogEventObj();
            return event == tokenFieldEventCompletions ? record.stringObj
                   : event == controlEventAction       ? QString()
                                                       : QVariant(record.arrayObj).toStringList().join(u'|');
        };
    }

    TokenFieldSC *makeField()
    {
        CUI_TokenField(6, {u"a"_s, u"b"_s}, QRectF(0, 0, 200, 30));
        auto *const field = settled<TokenFieldSC>(6);
        field->setFocus();
        takeSiteCalls();
        return field;
    }
};

TEST_F(TokenSite, AWordIsAskedAboutWhenItEndsAndTheFieldTold)
{
    TokenFieldSC *const field = makeField();
    QTest::keyClicks(field, u"c,"_s);
    EXPECT_EQ(takeSiteCalls(), u"2301 6 7 c, 2302 6 7 a|b|c"_s);
    EXPECT_EQ(field->text(), u"a, b, c, "_s);
    QTest::keyClicks(field, u"d"_s);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(takeSiteCalls(), u"2300 6 7 d, 2301 6 7 d, 2302 6 7 a|b|c|d, 1 6 7"_s);
    atEvent = [](qint64) { CUI_DialogEventObj()->arrayObj.clear(); };
    QTest::keyClicks(field, u"e"_s);
    field->clearFocus();
    EXPECT_EQ(takeSiteCodes(), u"2300 2301"_s);
    EXPECT_EQ(TokenFieldTokens(6).join(u'|'), u"a|b|c|d"_s) << "refused";
    ControlSetStringValue(6, u""_s);
    EXPECT_EQ(TokenFieldTokens(6), QStringList());
}

TEST_F(TokenSite, OffersTheProgramsCompletions)
{
    atEvent = [](qint64 event) {
        if (event == tokenFieldEventCompletions) {
            CUI_DialogEventObj()->arrayObj = {u"candle"_s, u"cat"_s};
        }
    };
    QTest::keyClicks(makeField(), u"c"_s);
    takeSiteCalls();
    QWidget *const list = QApplication::activePopupWidget();
    ASSERT_TRUE(list);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}) {
        QTest::keyClick(list, key);
    }
    takeSiteCalls();
    EXPECT_EQ(TokenFieldTokens(6).join(u'|'), u"a|b|cat"_s);
}

TEST_F(TokenSite, SurvivesBeingDeletedAtEveryEvent)
{
    expectSurvival<TokenFieldSC>({2300, 2301, 2302, 1}, [this] { return makeField(); },
                                 {[](TokenFieldSC *field) { QTest::keyPress(field, Qt::Key_X); },
                                  [](TokenFieldSC *field) { QTest::keyPress(field, Qt::Key_Return); }});
}

} // namespace
