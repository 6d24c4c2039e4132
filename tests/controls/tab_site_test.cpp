#include "runtime/controls/tab_view.h"
#include "tests/controls/site_helper.h"

#include <QWheelEvent>

namespace tetrad {

namespace {

using namespace testing_helpers;

class TabSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        makeTabs();
    }

    void makeTabs()
    {
        CUI_TabView(4, {u"A"_qs, u"B & C"_qs, u"D"_qs}, QRectF(0, 0, 280, 150));
        m_tabs = settled<TabView>(4);
        valuesOf = [](qint64 event) {
            const CUI_DialogEvent &record = *CUI_DialogEventObj();
            const QString number = QString::number(record.longVal);
            return event == tabViewEventDidChangeCount ? number : number + u' ' + record.stringObj;
        };
    }

    void press(int index)
    {
        QTest::mousePress(m_tabs->tabBar(), Qt::LeftButton, {}, m_tabs->tabBar()->tabRect(index).center());
    }

    void wheel(int angle)
    {
        const QPointF place(5, 5);
        QWheelEvent event(place, m_tabs->tabBar()->mapToGlobal(place), QPoint(), QPoint(0, angle), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_tabs->tabBar(), &event);
    }

    QPointer<TabView> m_tabs;
};

TEST_F(TabSite, EveryWayOfSelectingIsAskedAboutAndTold)
{
    struct Row
    {
        const char *name;
        std::function<void()> select;
    };
    const QList<Row> rows = {
        {"press", [this] { press(1); }},
        {"wheel", [this] { wheel(-120); }},
        {"arrow key", [this] { QTest::keyClick(m_tabs->tabBar(), Qt::Key_Right); }},
        {"Ctrl+Tab", [this] { QTest::keyClick(m_tabs, Qt::Key_Tab, Qt::ControlModifier); }},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        row.select();
        EXPECT_EQ(takeSiteCalls(), "1600 4 7 1 B & C, 1601 4 7 1 B & C, 1602 4 7 1 B & C");
        EXPECT_EQ(lastObject, tagFromObject(TabViewPage(4, 1)));
        EXPECT_EQ(CUI_OutputWindowTag(), 7);
        TabViewSelectIndex(4, 0);
        EXPECT_EQ(takeSiteCalls(), "1602 4 7 0 A") << "the program's own selection is not asked about";
        atEvent = [](qint64) { answer(true); };
        row.select();
        EXPECT_EQ(takeSiteCalls(), "1600 4 7 1 B & C") << "refused";
        EXPECT_EQ(TabViewSelectedIndex(4), 0);
        atEvent = nullptr;
    }
}

TEST_F(TabSite, TellsHowManyTabsThereAre)
{
    m_tabs->removeTab(2);
    EXPECT_EQ(takeSiteCalls(), "1603 4 7 2");
}

TEST_F(TabSite, SurvivesBeingDeletedOrLosingThePage)
{
    for (const qint64 deadly : {1600, 1601, 1602}) {
        atEvent = [&](qint64 event) {
            if (event == deadly) {
                delete m_tabs;
            }
        };
        press(1);
        takeSiteCalls();
        EXPECT_FALSE(m_tabs) << deadly;
        atEvent = nullptr;
        makeTabs();
    }
    atEvent = [this](qint64 event) {
        if (event == tabViewEventWillSelect) {
            delete m_tabs->widget(1);
        }
    };
    press(1);
    takeSiteCalls();
    EXPECT_EQ(m_tabs->count(), 2);
}

} // namespace

} // namespace tetrad
