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

namespace tetrad {

namespace {

using namespace testing_helpers;

class PopoverSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        CUI_Popover(9, QSizeF(80, 60), popoverApplicationDefined);
        m_popover = CUI_PopoverWithTag(9);
        setPopoverAsks(m_popover, true);
        takeSiteCalls();
    }

    void TearDown() override
    {
        delete m_popover;
        SiteTest::TearDown();
    }

    void show() { PopoverShow(9, contentViewTag, QRectF(0, 0, 5, 5), Qt::BottomEdge); }

    void drag()
    {
        QWidget *const content = m_popover->contentView();
        QTest::mousePress(content, Qt::LeftButton, {}, QPoint(10, 10));
        const QPoint place(60, 50);
        QMouseEvent event(QEvent::MouseMove, place, content->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(content, &event);
    }

    QPointer<Popover> m_popover;
};

TEST_F(PopoverSite, TellsWhenItShowsAndCloses)
{
    show();
    EXPECT_EQ(takeSiteCalls(), "1302 9 9, 1303 9 9");
    PopoverClose(9);
    EXPECT_EQ(takeSiteCalls(), "1301 9 9");
    EXPECT_TRUE(m_popover->isVisible()) << "the preset answer is no";
    atEvent = [](qint64 event) { answer(event == popoverEventShouldClose); };
    PopoverClose(9);
    EXPECT_EQ(takeSiteCalls(), "1301 9 9, 1304 9 9, 1305 9 9");
    EXPECT_FALSE(m_popover->isVisible());
    EXPECT_EQ(CUI_OutputWindowTag(), 9);
}

TEST_F(PopoverSite, ThatDoesNotAskClosesUnasked)
{
    setPopoverAsks(m_popover, false);
    show();
    drag();
    takeSiteCalls();
    PopoverClose(9);
    EXPECT_EQ(takeSiteCalls(), "1304 9 9, 1305 9 9");
}

TEST_F(PopoverSite, IsDraggedOffAsAWindowOrGivesWayToOne)
{
    struct Row
    {
        const char *name;
        bool lets;
        bool givesWindow;
        const char *calls;
    };
    QWidget window;
    for (const Row &row :
         {Row{"refused", false, false, "1307 9 9"}, Row{"another window", true, true, "1307 9 9, 1300 9 9, 1306 9 9"},
          Row{"itself", true, false, "1307 9 9, 1300 9 9, 1306 9 9"}}) {
        SCOPED_TRACE(row.name);
        show();
        takeSiteCalls();
        atEvent = [&](qint64 event) {
            answer(row.lets);
            if (event == popoverEventDetachableWindow && row.givesWindow) {
                CUI_DialogEventObj()->viewObj = &window;
            }
        };
        const QPoint before = m_popover->pos();
        drag();
        EXPECT_EQ(takeSiteCalls(), row.calls);
        EXPECT_EQ(m_popover->isVisible(), !row.givesWindow);
        EXPECT_EQ(window.isVisible(), row.givesWindow);
        const bool staysInPlace = !row.lets;
        EXPECT_EQ((row.givesWindow ? window.pos() : m_popover->pos()) == before, staysInPlace);
        window.hide();
        atEvent = nullptr;
    }
}

TEST_F(PopoverSite, SurvivesBeingDeletedAtEveryEvent)
{
    for (const qint64 deadly : {1300, 1301, 1302, 1304, 1305, 1306, 1307}) {
        atEvent = [&](qint64 event) {
            answer(true);
            if (event == deadly) {
                delete m_popover;
            }
        };
        show();
        const bool detaches = deadly == 1300 || deadly >= 1306;
        if (m_popover && detaches) {
            drag();
        } else if (m_popover) {
            PopoverClose(9);
        }
        EXPECT_FALSE(m_popover) << deadly;
        CUI_Popover(9, QSizeF(80, 60), popoverApplicationDefined);
        m_popover = CUI_PopoverWithTag(9);
        setPopoverAsks(m_popover, true);
    }
}

using ToolbarSite = SiteTest;

TEST_F(ToolbarSite, ClicksAreToldAndItemsValidatedWhenAsked)
{
    QToolBar *const toolbar = CUI_Toolbar(3);
    QAction *const item = CUI_ToolbarAddItem(3, 8, u"Go"_qs);
    takeSiteCalls();
    QWidget *const button = toolbar->widgetForAction(item);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(takeSiteCalls(), "1900 8 7");
    EXPECT_EQ(lastObject, tagFromObject(item));
    bool enabled = true;
    atEvent = [&enabled](qint64 event) { answer(event == toolbarEventValidateItem && enabled); };
    setToolbarItemValidates(item, true);
    EXPECT_EQ(takeSiteCalls(), "1901 8 7");
    EXPECT_TRUE(item->isEnabled());
    enabled = false;
    QTest::mouseClick(m_content, Qt::LeftButton);
    EXPECT_EQ(takeSiteCalls(), "1901 8 7");
    EXPECT_FALSE(item->isEnabled());
}

TEST_F(ToolbarSite, SurvivesItsItemBeingDeleted)
{
    for (const qint64 deadly : {toolbarEventItemAction, toolbarEventValidateItem}) {
        QToolBar *const toolbar = CUI_Toolbar(3);
        const QPointer<QAction> item = CUI_ToolbarAddItem(3, 8, u"Go"_qs);
        setToolbarItemValidates(item, deadly == toolbarEventValidateItem);
        takeSiteCalls();
        atEvent = [&](qint64) { delete item; };
        QTest::mouseClick(toolbar->widgetForAction(item), Qt::LeftButton);
        takeSiteCalls();
        EXPECT_FALSE(item);
        atEvent = nullptr;
    }
}

using PanelSite = SiteTest;

TEST_F(PanelSite, ColoursAndFontsAreToldAsTheyAreChosen)
{
    const QPointer<QColorDialog> colors = CUI_ColorPanel(Qt::red);
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
    EXPECT_TRUE(QString::fromStdString(takeSiteCalls()).endsWith(u"2600 0 7 #0000ff"_qs));
    EXPECT_EQ(lastObject, tagFromObject(colors));
    atEvent = [&](qint64) { delete colors; };
    colors->setCurrentColor(Qt::green);
    takeSiteCalls();
    EXPECT_FALSE(colors);
    atEvent = nullptr;
    EXPECT_TRUE(CUI_ColorPanel(Qt::red)->isVisible());
    CUI_ColorPanel(Qt::red)->hide();

    QFont font = QApplication::font();
    font.setPointSize(10);
    QFontDialog *const fonts = CUI_FontPanel(font);
    takeSiteCalls();
    font.setPointSize(14);
    fonts->setCurrentFont(font);
    EXPECT_TRUE(QString::fromStdString(takeSiteCalls()).endsWith(u"2200 0 7 14"_qs));
    fonts->hide();
}

} // namespace

} // namespace tetrad
