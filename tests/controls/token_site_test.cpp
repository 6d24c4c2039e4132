#include "runtime/controls/event_site.h"
#include "runtime/controls/token_field.h"
#include "tests/controls/site_helper.h"

#include <QAbstractItemView>

namespace tetrad {

namespace {

using namespace testing_helpers;

/// Token field 6 with the words "a" and "b".
class TokenSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        makeField();
    }

    void makeField()
    {
        CUI_TokenField(6, {u"a"_qs, u"b"_qs}, QRectF(0, 0, 200, 30));
        m_field = settled<TokenField>(6);
        m_field->setFocus();
        takeSiteCalls();
        valuesOf = [](qint64 event) {
            const CUI_DialogEvent &record = *CUI_DialogEventObj();
            return event == tokenFieldEventCompletions ? record.stringObj
                   : event == controlEventAction       ? QString()
                                                       : QVariant(record.arrayObj).toStringList().join(u'|');
        };
    }

    QPointer<TokenField> m_field;
};

TEST_F(TokenSite, AWordIsAskedAboutWhenItEndsAndTheFieldTold)
{
    QTest::keyClicks(m_field, u"c,"_qs);
    EXPECT_EQ(takeSiteCalls(), "2301 6 7 c, 2302 6 7 a|b|c");
    EXPECT_EQ(m_field->text(), u"a, b, c, "_qs);
    QTest::keyClicks(m_field, u"d"_qs);
    EXPECT_EQ(takeSiteCalls(), "2300 6 7 d");
    QTest::keyClick(m_field, Qt::Key_Return);
    EXPECT_EQ(takeSiteCalls(), "2301 6 7 d, 2302 6 7 a|b|c|d, 1 6 7");
    atEvent = [](qint64 event) {
        if (event == tokenFieldEventAddTokens) {
            CUI_DialogEventObj()->arrayObj.clear();
        }
    };
    QTest::keyClicks(m_field, u"e"_qs);
    m_field->clearFocus();
    EXPECT_EQ(takeSiteCodes(), "2300 2301");
    EXPECT_EQ(TokenFieldTokens(6).join(u'|'), u"a|b|c|d"_qs) << "refused";
}

TEST_F(TokenSite, OffersTheProgramsCompletions)
{
    atEvent = [](qint64 event) {
        if (event == tokenFieldEventCompletions) {
            CUI_DialogEventObj()->arrayObj = {u"candle"_qs, u"cat"_qs};
        }
    };
    QTest::keyClicks(m_field, u"c"_qs);
    takeSiteCalls();
    QWidget *const list = QApplication::activePopupWidget();
    ASSERT_TRUE(list);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    takeSiteCalls();
    EXPECT_EQ(TokenFieldTokens(6).join(u'|'), u"a|b|cat"_qs);
}

TEST_F(TokenSite, SurvivesBeingDeletedAtEveryEvent)
{
    for (const qint64 deadly : {2300, 2301, 2302, 1}) {
        atEvent = [&](qint64 event) {
            if (event == deadly) {
                delete m_field;
            }
        };
        QTest::keyPress(m_field, Qt::Key_X);
        takeSiteCalls();
        if (m_field) {
            QTest::keyPress(m_field, Qt::Key_Return);
            takeSiteCalls();
        }
        EXPECT_FALSE(m_field) << deadly;
        atEvent = nullptr;
        makeField();
    }
}

} // namespace

} // namespace tetrad
