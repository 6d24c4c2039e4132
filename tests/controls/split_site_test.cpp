#include "tests/controls/site_helper.h"
#include <tetrad/controls/control_statements.h>
#include <tetrad/controls/split_view.h>

#include <QPainter>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

class SplitSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        m_split = makeSplit();
    }
    /// Split view 3, 205 wide, of the buttons 21 and 22, each at least 40 wide, with a divider of 5 at 100.
    SplitViewSC *makeSplit()
    {
        CUI_SplitView(3, Qt::Horizontal, QRectF(10, 10, 205, 80));
        for (const Tag tag : {21, 22}) {
            CUI_Button(tag, QString::number(tag), QRectF(0, 0, 10, 10));
            CUI_ViewWithTag(tag)->setMinimumWidth(40);
            SplitViewAddSubview(3, tag);
        }
        auto *const split = settled<SplitViewSC>(3);
        split->setHandleWidth(5);
        split->setSizes({100, 100});
        settled<SplitViewSC>(3);
        EXPECT_EQ(split->position(0), 100);
        return split;
    }

    void drag(int distance) { dragMouse(m_split->handle(1), QPoint(2, 10), QPoint(2 + distance, 10)); }

    QPointer<SplitViewSC> m_split;
};

TEST_F(SplitSite, ADragAsksForBoundsAndPositionThenMovesAndTells)
{
    valuesOf = [](qint64 event) {
        const bool asksForPlace = event >= 1508 && event <= 1510;
        return asksForPlace ? QString::number(CUI_DialogEventObj()->floatVal) : QString();
    };
    drag(20);
    EXPECT_EQ(takeSiteCalls(), u"1509 3 7 40, 1508 3 7 160, 1510 3 7 120, 1501 3 7, 1502 3 7"_s);
    EXPECT_EQ(m_split->position(0), 120);
    SplitViewSetPosition(3, 90, 0);
    EXPECT_EQ(m_split->position(0), 90);
    auto *const moved = new QWidget(open(2)->contentView());
    SplitViewAddSubview(tagFromObject(m_split), tagFromObject(moved));
    EXPECT_EQ(objectWindowTag(moved), 7);
}

TEST_F(SplitSite, AnswersDecideWhereTheDividerGoes)
{
    constexpr qint64 collapse = splitViewEventCanCollapseSubview;
    const Table<int, qint64, float, int> rows = {
        {"not at all below the least", -90, 0, 0, 40},
        {"collapses past half of the least", -90, collapse, 0, 0},
        {"does not collapse before half", -70, collapse, 0, 40},
        {"trailing subview stays", 98, 0, 0, 160},
        {"trailing subview collapses", 98, collapse, 0, 200},
        {"a higher least", -60, splitViewEventConstrainMinCoordinate, 70, 70},
        {"a lower most", 50, splitViewEventConstrainMaxCoordinate, 110, 110},
        {"no most at all", 20, splitViewEventConstrainMaxCoordinate, 3e38F, 120},
        {"no least at all", -20, splitViewEventConstrainMinCoordinate, -3e38F, 80},
        {"rounded, from single precision", 9, splitViewEventConstrainSplitPosition, 124.6F, 125},
    };
    for (const auto &[name, distance, asked, coordinate, expected] : rows) {
        SCOPED_TRACE(name);
        m_split->setSizes({100, 100});
        atEvent = [question = asked, value = coordinate](qint64 event) {
            if (event == question) {
                CUI_DialogEventObj()->floatVal = value;
                answer(true);
            }
        };
        drag(distance);
        EXPECT_EQ(m_split->position(0), expected);
    }
}

TEST_F(SplitSite, AResizeChangesOnlyTheSubviewsThatMay)
{
    const Table<QList<bool>, int> rows = {{"first", {true, false}, 140},
                                          {"second", {false, true}, 100},
                                          {"none", {false, false}, 120},
                                          {"both", {true, true}, 120}};
    for (const auto &[name, may, expected] : rows) {
        SCOPED_TRACE(name);
        atEvent = nullptr;
        m_split->resize(205, 80);
        takeSiteCalls();
        m_split->setSizes({100, 100});
        atEvent = [&answers = may](qint64 event) {
            if (event == splitViewEventShouldAdjustSizeOfSubview) {
                answer(answers.value(CUI_DialogEventObj()->longVal));
            }
        };
        m_split->resize(245, 80);
        EXPECT_EQ(takeSiteCodes(), u"1501 1504 1504 1502"_s);
        EXPECT_NEAR(m_split->position(0), expected, 1);
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
            record.floatVal += 4;
        } else if (event == splitViewEventDrawDivider && draws) {
            QPainter(qobject_cast<QWidget *>(record.viewObj)).fillRect(record.rectVal, Qt::blue);
            answer(true);
        }
    };
    m_split->hide();
    m_split->show();
    takeSiteCalls();
    const auto colour = [this] { return m_split->handle(1)->grab().toImage().pixelColor(4, 20); };
    EXPECT_EQ(m_split->handle(1)->width(), 9);
    EXPECT_EQ(colour(), QColor(Qt::red));
    draws = true;
    EXPECT_EQ(colour(), QColor(Qt::blue));
}

TEST_F(SplitSite, SurvivesBeingDeletedAtEveryQuestion)
{
    delete m_split;
    const auto make = [this] { return makeSplit(); };
    const auto drag = [](SplitViewSC *split) { dragMouse(split->handle(1), QPoint(2, 10), QPoint(-93, 10)); };
    const auto hide = [](SplitViewSC *split) { split->hide(); };
    const auto show = [](SplitViewSC *split) { split->show(); };
    const auto collapse = [](qint64 event) { answer(event == splitViewEventCanCollapseSubview); };
    expectSurvival<SplitViewSC>({1501, 1502, 1503, 1506, 1508, 1509, 1510, 1511, 1512}, make, {drag, hide, show},
                                collapse);
    expectSurvival<SplitViewSC>({1504}, make, {[](SplitViewSC *split) { split->resize(300, 80); }}, collapse);
}

} // namespace
