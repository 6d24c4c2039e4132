#include "tests/controls/site_helper.h"
#include <tetrad/controls/tab_view.h>

#include <QTabBar>
#include <QWheelEvent>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

class TabSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        valuesOf = [](qint64 event) {
            const CUI_DialogEvent &record = *CUI_DialogEventObj();
            const QString number = QString::number(record.longVal);
            return event == tabViewEventDidChangeCount ? number : number + u' ' + record.stringObj;
        };
    }

    TabViewSC *makeTabs()
    {
        CUI_TabView(4, {u"A"_s, u"B & C"_s, u"D"_s}, QRectF(0, 0, 280, 150));
        return settled<TabViewSC>(4);
    }
    static void press(TabViewSC *tabs)
    {
        QTest::mousePress(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(1).center());
    }
    static void wheel(TabViewSC *tabs)
    {
        const QPointF place(5, 5);
        QWheelEvent event(place, tabs->tabBar()->mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(tabs->tabBar(), &event);
    }
};

TEST_F(TabSite, EveryWayOfSelectingIsAskedAboutAndTold)
{
    TabViewSC *const tabs = makeTabs();
    const Table<std::function<void(TabViewSC *)>> rows = {
        {"press", press},
        {"wheel", wheel},
        {"arrow key", [](TabViewSC *view) { QTest::keyClick(view->tabBar(), Qt::Key_Right); }},
        {"Ctrl+Tab", [](TabViewSC *view) { QTest::keyClick(view, Qt::Key_Tab, Qt::ControlModifier); }},
    };
    for (const auto &[name, select] : rows) {
        SCOPED_TRACE(name);
        select(tabs);
        EXPECT_EQ(takeSiteCalls(), u"1600 4 7 1 B & C, 1601 4 7 1 B & C, 1602 4 7 1 B & C"_s);
        EXPECT_EQ(lastObject, tagFromObject(tabs));
        EXPECT_EQ(CUI_DialogEventObj()->viewObj, TabViewPage(4, 1));
        EXPECT_EQ(objectWindowTag(TabViewPage(4, 1)), 7);
        EXPECT_EQ(CUI_OutputWindowTag(), 7);
        TabViewSelectIndex(4, 0);
        EXPECT_EQ(takeSiteCalls(), u"1602 4 7 0 A"_s) << "the program's own selection is not asked about";
        atEvent = [](qint64) { answer(true); };
        select(tabs);
        EXPECT_EQ(takeSiteCalls(), u"1600 4 7 1 B & C"_s) << "refused";
        EXPECT_EQ(TabViewSelectedIndex(4), 0);
        atEvent = nullptr;
    }
    TabViewRemoveTab(4, 2);
    EXPECT_EQ(takeSiteCalls(), u"1603 4 7 2"_s);
    TabViewAddTab(4, 99, u"E & F"_s);
    EXPECT_EQ(takeSiteCalls(), u"1603 4 7 3"_s);
    EXPECT_EQ(tabs->tabText(2), u"E && F"_s);
}

TEST_F(TabSite, SurvivesBeingDeletedOrLosingThePage)
{
    const auto make = [this] { return makeTabs(); };
    expectSurvival<TabViewSC>({1600, 1601, 1602}, make, {press});
    expectSurvival<TabViewSC>(
        {1600, 1601}, make, {press}, [](qint64) {}, [](TabViewSC *tabs) { delete tabs->widget(1); });
}

} // namespace
