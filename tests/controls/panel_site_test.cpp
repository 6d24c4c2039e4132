#include "runtime/app/content_view.h"
#include "runtime/app/popover.h"
#include "runtime/controls/panels.h"
#include "runtime/controls/popover_events.h"
#include "runtime/controls/popover_statements.h"
#include "runtime/controls/toolbar.h"
#include "runtime/controls/toolbar_events.h"
#include "tests/controls/site_helper.h"

#include <QAction>
#include <QColorDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QToolBar>

using namespace tetrad;

namespace {

class PopoverSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        m_popover = makePopover();
    }
    void TearDown() override
    {
        delete m_popover;
        SiteTest::TearDown();
    }

    static Popover *makePopover()
    {
        CUI_Popover(9, QSizeF(80, 60), popoverApplicationDefined);
        setPopoverAsks(CUI_PopoverWithTag(9), true);
        return CUI_PopoverWithTag(9);
    }
    static void show() { PopoverShow(9, contentViewTag, QRectF(0, 0, 5, 5), Qt::BottomEdge); }
    static void drag(Popover *popover) { dragMouse(popover->contentView(), QPoint(10, 10), QPoint(60, 50)); }

    QPointer<Popover> m_popover;
};

TEST_F(PopoverSite, TellsWhenItShowsAndCloses)
{
    show();
    EXPECT_EQ(takeSiteCalls(), u"1302 9 9, 1303 9 9"_qs);
    PopoverClose(9);
    EXPECT_EQ(takeSiteCalls(), u"1301 9 9"_qs);
    EXPECT_TRUE(m_popover->isVisible()) << "the preset answer is no";
    atEvent = [](qint64 event) { answer(event == popoverEventShouldClose); };
    PopoverClose(9);
    EXPECT_EQ(takeSiteCalls(), u"1301 9 9, 1304 9 9, 1305 9 9"_qs);
    EXPECT_FALSE(m_popover->isVisible());
    EXPECT_EQ(CUI_OutputWindowTag(), 9);
    setPopoverAsks(m_popover, false);
    show();
    drag(m_popover);
    takeSiteCalls();
    PopoverClose(9);
    EXPECT_EQ(takeSiteCalls(), u"1304 9 9, 1305 9 9"_qs) << "unasked";
}

TEST_F(PopoverSite, IsDraggedOffAsAWindowOrGivesWayToOne)
{
    QWidget window;
    const Table<bool, bool, QString> rows = {{"refused", false, false, u"1307 9 9"_qs},
                                             {"another window", true, true, u"1307 9 9, 1300 9 9, 1306 9 9"_qs},
                                             {"itself", true, false, u"1307 9 9, 1300 9 9, 1306 9 9"_qs}};
    for (const auto &[name, lets, givesWindow, calls] : rows) {
        SCOPED_TRACE(name);
        show();
        takeSiteCalls();
        atEvent = [yes = lets, other = givesWindow ? &window : nullptr](qint64 event) {
            answer(yes);
            if (event == popoverEventDetachableWindow && other) {
                CUI_DialogEventObj()->viewObj = other;
            }
        };
        const QPoint before = m_popover->pos();
        drag(m_popover);
        EXPECT_EQ(takeSiteCalls(), calls);
        EXPECT_EQ(m_popover->isVisible(), !givesWindow);
        EXPECT_EQ(window.isVisible(), givesWindow);
        EXPECT_EQ((givesWindow ? window.pos() : m_popover->pos()) == before, !lets);
        window.hide();
        atEvent = nullptr;
    }
}

TEST_F(PopoverSite, SurvivesBeingDeletedAtEveryEvent)
{
    delete m_popover;
    const auto appear = [](Popover *) { show(); };
    const auto close = [](Popover *) { PopoverClose(9); };
    const auto yes = [](qint64) { answer(true); };
    expectSurvival<Popover>({1301, 1302, 1304, 1305}, makePopover, {appear, close}, yes);
    expectSurvival<Popover>({1300, 1306, 1307}, makePopover, {appear, drag}, yes);
}

using ToolbarSite = SiteTest;

TEST_F(ToolbarSite, ClicksAreToldAndItemsValidatedWhenAsked)
{
    QToolBar *const toolbar = CUI_Toolbar(3);
    QAction *const item = CUI_ToolbarAddItem(3, 8, u"Go"_qs);
    takeSiteCalls();
    QTest::mouseClick(toolbar->widgetForAction(item), Qt::LeftButton);
    EXPECT_EQ(takeSiteCalls(), u"1900 8 7"_qs);
    EXPECT_EQ(lastObject, tagFromObject(item));
    bool enabled = true;
    atEvent = [&enabled](qint64 event) { answer(event == toolbarEventValidateItem && enabled); };
    setToolbarItemValidates(item, true);
    EXPECT_EQ(takeSiteCalls(), u"1901 8 7"_qs);
    EXPECT_TRUE(item->isEnabled());
    enabled = false;
    QTest::mouseClick(m_content, Qt::LeftButton);
    EXPECT_EQ(takeSiteCalls(), u"1901 8 7"_qs);
    EXPECT_FALSE(item->isEnabled());
}

TEST_F(ToolbarSite, SurvivesItsItemBeingDeleted)
{
    QToolBar *const toolbar = CUI_Toolbar(3);
    for (const bool validates : {false, true}) {
        const auto make = [validates] {
            QAction *const item = CUI_ToolbarAddItem(3, 8, u"Go"_qs);
            setToolbarItemValidates(item, validates);
            takeSiteCalls();
            return item;
        };
        const auto click = [&](QAction *item) { QTest::mouseClick(toolbar->widgetForAction(item), Qt::LeftButton); };
        expectSurvival<QAction>({validates ? 1901 : 1900}, make, {click});
    }
}

using PanelSite = SiteTest;

TEST_F(PanelSite, ColoursAndFontsAreToldAsTheyAreChosen)
{
    QColorDialog *const colors = CUI_ColorPanel(Qt::red);
    valuesOf = [](qint64 event) {
        const CUI_DialogEvent &record = *CUI_DialogEventObj();
        return event == colorPanelEventAction ? record.colorObj.name() : QString::number(record.fontObj.pointSize());
    };
    takeSiteCalls();
    auto *const hex = colors->findChild<QLineEdit *>();
    ASSERT_TRUE(hex);
    hex->selectAll();
    QTest::keyClicks(hex, u"#0000ff"_qs);
    QTest::keyClick(hex, Qt::Key_Return);
    EXPECT_TRUE(takeSiteCalls().endsWith(u"2600 0 7 #0000ff"_qs));
    EXPECT_EQ(lastObject, tagFromObject(colors));
    expectSurvival<QColorDialog>({2600}, [] { return CUI_ColorPanel(Qt::red); },
                                 {[](QColorDialog *dialog) { dialog->setCurrentColor(Qt::green); }});
    EXPECT_TRUE(CUI_ColorPanel(Qt::red)->isVisible());
    CUI_ColorPanel(Qt::red)->hide();

    QFont font = QApplication::font();
    font.setPointSize(10);
    QFontDialog *const fonts = CUI_FontPanel(font);
    takeSiteCalls();
    font.setPointSize(14);
    fonts->setCurrentFont(font);
    EXPECT_TRUE(takeSiteCalls().endsWith(u"2200 0 7 14"_qs));
    fonts->hide();
}

} // namespace
