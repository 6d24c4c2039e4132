#include "runtime/controls/control_statements.h"
#include "runtime/controls/split_view.h"
#include "tests/controls/site_helper.h"

#include <QPainter>

namespace tetrad {

namespace {

using namespace testing_helpers;

/// Split view 3, 205 wide, of the buttons 21 and 22, each at least 40 wide, with a divider of 5 at 100.
class SplitSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        CUI_SplitView(3, Qt::Horizontal, QRectF(10, 10, 205, 80));
        for (const Tag tag : {21, 22}) {
            CUI_Button(tag, QString::number(tag), QRectF(0, 0, 10, 10));
            CUI_ViewWithTag(tag)->setMinimumWidth(40);
            SplitViewAddSubview(3, tag);
        }
        m_split = settled<SplitView>(3);
        m_split->setHandleWidth(5);
        m_split->setSizes({100, 100});
        settled<SplitView>(3);
        ASSERT_EQ(m_split->position(0), 100);
        valuesOf = describe;
    }

    static QString describe(qint64 event)
    {
        const CUI_DialogEvent &record = *CUI_DialogEventObj();
        const bool isCoordinate =
            event >= splitViewEventConstrainMaxCoordinate && event <= splitViewEventConstrainSplitPosition;
        return isCoordinate ? QString::asprintf("%lld:%g", record.longVal, double(record.floatVal)) : QString();
    }

    void drag(int distance)
    {
        QWidget *const divider = m_split->handle(1);
        QTest::mousePress(divider, Qt::LeftButton, {}, QPoint(2, 10));
        const QPoint place(2 + distance, 10);
        QMouseEvent event(QEvent::MouseMove, place, divider->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(divider, &event);
    }

    QPointer<SplitView> m_split;
};

TEST_F(SplitSite, ADragAsksForBoundsAndPositionThenMovesAndTells)
{
    drag(20);
    EXPECT_EQ(takeSiteCalls(), "1509 3 7 0:40, 1508 3 7 0:160, 1510 3 7 0:120, 1501 3 7, 1502 3 7");
    EXPECT_EQ(m_split->position(0), 120);
    EXPECT_EQ(CUI_OutputWindowTag(), 7);
}

TEST_F(SplitSite, AnswersDecideWhereTheDividerGoes)
{
    struct Row
    {
        const char *name;
        int distance;
        qint64 event;
        float floatVal;
        bool boolVal;
        int expected;
    };
    const Row rows[] = {
        {"not at all below the least", -90, 0, 0, false, 40},
        {"collapses past half of the least", -90, splitViewEventCanCollapseSubview, 0, true, 0},
        {"does not collapse before half", -70, splitViewEventCanCollapseSubview, 0, true, 40},
        {"trailing subview stays", 98, 0, 0, false, 160},
        {"trailing subview collapses", 98, splitViewEventCanCollapseSubview, 0, true, 200},
        {"a higher least", -60, splitViewEventConstrainMinCoordinate, 70, false, 70},
        {"a lower most", 50, splitViewEventConstrainMaxCoordinate, 110, false, 110},
        {"a grid", 9, splitViewEventConstrainSplitPosition, 125, false, 125},
        {"rounded from single precision", 9, splitViewEventConstrainSplitPosition, 124.6F, false, 125},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        m_split->setSizes({100, 100});
        atEvent = [row](qint64 event) {
            if (event == row.event && event == splitViewEventCanCollapseSubview) {
                EXPECT_EQ(CUI_DialogEventObj()->longVal, row.distance < 0 ? 0 : 1);
                answer(row.boolVal);
            } else if (event == row.event) {
                CUI_DialogEventObj()->floatVal = row.floatVal;
            }
        };
        drag(row.distance);
        EXPECT_EQ(m_split->position(0), row.expected);
    }
}

TEST_F(SplitSite, ACollapsedSubviewAsksAgainWhenItsDividerIsDragged)
{
    bool collapses = true;
    atEvent = [&collapses](qint64 event) { answer(collapses && event == splitViewEventCanCollapseSubview); };
    SplitViewSetPosition(3, 3, 0);
    ASSERT_EQ(m_split->position(0), 0);
    collapses = false;
    SplitViewSetPosition(3, 3, 0);
    EXPECT_EQ(m_split->position(0), 40);
}

TEST_F(SplitSite, AResizeChangesOnlyTheSubviewsThatMay)
{
    struct Row
    {
        const char *name;
        bool first;
        bool second;
        int expected;
    };
    for (const Row &row : {Row{"first", true, false, 140}, Row{"second", false, true, 100},
                           Row{"none", false, false, 120}, Row{"both", true, true, 120}}) {
        SCOPED_TRACE(row.name);
        atEvent = nullptr;
        m_split->resize(205, 80);
        takeSiteCalls();
        m_split->setSizes({100, 100});
        atEvent = [row](qint64 event) {
            if (event == splitViewEventShouldAdjustSizeOfSubview) {
                answer(CUI_DialogEventObj()->longVal == 0 ? row.first : row.second);
            }
        };
        m_split->resize(245, 80);
        EXPECT_EQ(takeSiteCalls(), "1501 3 7, 1504 3 7, 1504 3 7, 1502 3 7");
        EXPECT_NEAR(m_split->position(0), row.expected, 1);
    }
}

TEST_F(SplitSite, DividersTakeColourThicknessAndDrawing)
{
    bool draws = false;
    atEvent = [&draws](qint64 event) {
        CUI_DialogEvent &record = *CUI_DialogEventObj();
        if (event == splitViewEventDividerColor) {
            record.colorObj = Qt::red;
        } else if (event == splitViewEventDividerThickness) {
            EXPECT_EQ(record.floatVal, 5);
            record.floatVal = 9;
        } else if (event == splitViewEventDrawDivider && draws) {
            QPainter(qobject_cast<QWidget *>(record.viewObj)).fillRect(record.rectVal, Qt::blue);
            answer(true);
        }
    };
    m_split->hide();
    m_split->show();
    takeSiteCalls();
    QWidget *const divider = m_split->handle(1);
    EXPECT_EQ(divider->width(), 9);
    EXPECT_EQ(divider->grab().toImage().pixelColor(4, 20), QColor(Qt::red));
    draws = true;
    EXPECT_EQ(divider->grab().toImage().pixelColor(4, 20), QColor(Qt::blue));
}

TEST_F(SplitSite, OnlyADividerAtTheEdgeMayBeHidden)
{
    atEvent = [](qint64 event) {
        answer(event == splitViewEventShouldHideDivider || event == splitViewEventCanCollapseSubview);
    };
    SplitViewSetPosition(3, 80, 0);
    EXPECT_EQ(takeSiteCodes().find("1506"), std::string::npos);
    SplitViewSetPosition(3, 0, 0);
    EXPECT_NE(takeSiteCodes().find("1506"), std::string::npos);
    EXPECT_TRUE(m_split->handle(1)->testAttribute(Qt::WA_TransparentForMouseEvents));
    SplitViewSetPosition(3, 80, 0);
    EXPECT_FALSE(m_split->handle(1)->testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(SplitSite, SurvivesBeingDeletedAtEveryQuestion)
{
    for (const qint64 deadly : {1501, 1502, 1503, 1504, 1506, 1508, 1509, 1510, 1511, 1512}) {
        SCOPED_TRACE(deadly);
        delete m_split;
        atEvent = nullptr;
        SplitSite::SetUp();
        const bool resizes = deadly == splitViewEventShouldAdjustSizeOfSubview;
        atEvent = [&](qint64 event) {
            answer(event == splitViewEventCanCollapseSubview);
            if (event == deadly) {
                delete m_split;
            }
        };
        resizes ? m_split->resize(300, 80) : drag(-95);
        if (m_split) {
            m_split->hide();
            m_split->show();
        }
        takeSiteCalls();
        EXPECT_FALSE(m_split);
    }
}

} // namespace

} // namespace tetrad
