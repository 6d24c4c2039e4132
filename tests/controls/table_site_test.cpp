#include "tests/controls/site_helper.h"
#include <tetrad/controls/outline_view.h>
#include <tetrad/controls/table_view.h>

#include <QHeaderView>
#include <QLineEdit>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

void fillTable(qint64 event)
{
    CUI_DialogEvent &record = *CUI_DialogEventObj();
    if (event == tableViewEventRowCount) {
        record.longVal = 3;
    } else if (event == tableViewEventValue) {
        record.object = QString(QString::number(record.longVal) + u'.' + record.tableColumnObj.toString());
    } else if (event == tableViewEventRowHeight && record.longVal == 1) {
        record.doubleVal = 41;
    } else if (event == tableViewEventShouldEdit) {
        answer(record.tableColumnObj == 1);
    } else if (event == tableHeaderEventTextColor) {
        record.colorObj = Qt::red;
    } else if (event == tableHeaderEventFont) {
        record.fontObj.setItalic(true);
    }
}

void pressRow(TableViewSC *table, int row)
{
    QTest::mousePress(table->viewport(), Qt::LeftButton, {}, table->visualItemRect(table->item(row, 0)).center());
}

/// Table 3 of two columns and three rows, whose cells say "row.column".
class TableSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        m_table = makeTable();
        valuesOf = [](qint64 event) {
            const CUI_DialogEvent &record = *CUI_DialogEventObj();
            const QString row = QString::number(record.longVal);
            const QString column = record.tableColumnObj.toString();
            return event == tableViewEventColumnClicked ? column
                   : event == tableViewEventDidEdit     ? QString(row + u'.' + column + u'=' + record.object.toString())
                                                        : row;
        };
    }

    TableViewSC *makeTable()
    {
        atEvent = fillTable;
        CUI_TableView(3, {u"A"_s, u"B"_s}, QRectF(0, 0, 260, 180));
        return settled<TableViewSC>(3);
    }

    QPointer<TableViewSC> m_table;
};

TEST_F(TableSite, ShowsWhatTheProgramAnswers)
{
    ASSERT_EQ(m_table->rowCount(), 3);
    EXPECT_EQ(m_table->item(2, 1)->text(), u"2.1"_s);
    EXPECT_EQ(m_table->rowHeight(1), 41);
    EXPECT_FALSE(m_table->item(0, 0)->flags() & Qt::ItemIsEditable);
    EXPECT_TRUE(m_table->item(0, 1)->flags() & Qt::ItemIsEditable);
    EXPECT_EQ(m_table->horizontalHeaderItem(0)->foreground().color(), QColor(Qt::red));
    EXPECT_TRUE(m_table->horizontalHeaderItem(1)->font().italic());
    atEvent = [](qint64 event) {
        CUI_DialogEvent &record = *CUI_DialogEventObj();
        record.longVal = event == tableViewEventRowCount ? 1 : record.longVal;
        if (event == tableViewEventViewForCell) {
            record.viewObj = new QLineEdit;
        }
    };
    TableViewSelectRow(3, 1);
    TableViewSetCell(3, 1, 0, u"own"_s);
    TableViewSetCell(3, 9, 0, u"outside"_s);
    EXPECT_EQ(TableViewCell(3, TableViewSelectedRow(3), 0), u"own"_s);
    EXPECT_EQ(takeSiteCalls(), u"1707 3 7 1"_s);
    TableViewSelectRow(3, -1);
    EXPECT_EQ(TableViewSelectedRow(3), -1);
    TableViewReloadData(3);
    EXPECT_EQ(m_table->rowCount(), 1);
    EXPECT_TRUE(qobject_cast<QLineEdit *>(m_table->cellWidget(0, 1)));
}

TEST_F(TableSite, SelectionByMouseAndKeyIsAskedAboutAndTold)
{
    m_table->setFocus();
    pressRow(m_table, 1);
    EXPECT_EQ(takeSiteCalls(), u"1706 3 7 1, 1707 3 7 1"_s);
    EXPECT_EQ(CUI_OutputWindowTag(), 7);
    QTest::keyClick(m_table, Qt::Key_Down);
    EXPECT_EQ(takeSiteCalls(), u"1706 3 7 2, 1707 3 7 2"_s);
    atEvent = [](qint64) { answer(true); };
    pressRow(m_table, 0);
    QTest::keyClick(m_table, Qt::Key_Home);
    QTest::keyClick(m_table, Qt::Key_Up);
    EXPECT_EQ(takeSiteCodes(), u"1706 1706"_s);
    EXPECT_EQ(TableViewSelectedRow(3), 2) << "refused";
}

TEST_F(TableSite, EachRowThatTheMouseIsDraggedOverIsAskedAboutOnce)
{
    atEvent = [](qint64) { answer(CUI_DialogEventObj()->longVal != 1); };
    const auto center = [this](int row) { return QPointF(m_table->visualItemRect(m_table->item(row, 0)).center()); };
    const auto dragTo = [this](const QPointF &position) {
        sendMouse(m_table->viewport(), QEvent::MouseMove, position, Qt::NoButton, Qt::LeftButton);
    };
    pressRow(m_table, 0);
    dragTo(center(0) + QPointF(1, 1));
    dragTo(center(1));
    dragTo(center(1) + QPointF(1, 1));
    dragTo(center(2));
    dragTo(QPointF(20, m_table->viewport()->height() - 2));
    EXPECT_EQ(takeSiteCalls(), u"1706 3 7 0, 1706 3 7 1, 1706 3 7 2, 1707 3 7 1"_s);
    EXPECT_EQ(TableViewSelectedRow(3), 1);
}

TEST_F(TableSite, EditsAndColumnClicksAreTold)
{
    m_table->setCurrentCell(1, 1);
    m_table->editItem(m_table->item(1, 1));
    takeSiteCalls();
    auto *const editor = m_table->findChild<QLineEdit *>();
    ASSERT_TRUE(editor);
    editor->setText(u"new"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_EQ(takeSiteCalls(), u"1705 3 7 1.1=new"_s);
    QHeaderView *const header = m_table->horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(header->sectionViewportPosition(1) + 10, 5));
    EXPECT_TRUE(takeSiteCalls().contains(u"1708 3 7 1"_s));
}

TEST_F(TableSite, SurvivesBeingDeletedOrReloadedAtEveryQuestion)
{
    delete m_table;
    const auto make = [this] { return makeTable(); };
    const QList<std::function<void(TableViewSC *)>> happenings = {[](TableViewSC *) { TableViewReloadData(3); },
                                                                  [](TableViewSC *table) { pressRow(table, 1); }};
    const QList<qint64> events = {1700, 1701, 1702, 1703, 1704, 1706, 1707, 4200, 4300};
    expectSurvival<TableViewSC>(events, make, happenings, fillTable);
    expectSurvival<TableViewSC>(events, make, happenings, fillTable, happenings.first());
}

/// Every item is the text of its path, has two children and no end.
void fillOutline(qint64 event)
{
    CUI_DialogEvent &record = *CUI_DialogEventObj();
    const QString path = record.object.toString();
    if (event == outlineViewEventChildCount) {
        record.longVal = 2;
    } else if (event == outlineViewEventChild) {
        record.object = QString(path + u'/' + QString::number(record.longVal));
    } else if (event == outlineViewEventText) {
        record.stringObj = record.tableColumnObj == 0 ? path : u"kind"_s;
    }
}

void pressFirst(OutlineViewSC *outline)
{
    const QPoint place = outline->visualItemRect(outline->topLevelItem(0)).center();
    QTest::mousePress(outline->viewport(), Qt::LeftButton, {}, place);
}

class OutlineSite : public SiteTest
{
protected:
    OutlineViewSC *makeOutline()
    {
        atEvent = fillOutline;
        CUI_OutlineView(5, {u"Name"_s, u"Kind"_s}, QRectF(0, 0, 280, 180));
        valuesOf = [](qint64) { return CUI_DialogEventObj()->object.toString(); };
        return settled<OutlineViewSC>(5);
    }
};

TEST_F(OutlineSite, AsksForChildrenWhenTheirParentIsOpenedFirst)
{
    const OutlineViewSC *const outline = makeOutline();
    ASSERT_EQ(outline->topLevelItemCount(), 2);
    QTreeWidgetItem *const item = outline->topLevelItem(1);
    EXPECT_EQ(item->text(0), u"/1"_s);
    EXPECT_EQ(item->text(1), u"kind"_s);
    EXPECT_EQ(item->childCount(), 0);
    item->setExpanded(true);
    EXPECT_TRUE(takeSiteCalls().endsWith(u"1803 5 7 /1"_s));
    ASSERT_EQ(item->childCount(), 2);
    EXPECT_EQ(item->child(0)->text(0), u"/1/0"_s);
    item->setExpanded(false);
    EXPECT_EQ(takeSiteCalls(), u"1804 5 7 /1"_s);
    item->setExpanded(true);
    EXPECT_EQ(takeSiteCalls(), u"1803 5 7 /1"_s) << "the children are there already";
}

TEST_F(OutlineSite, SelectionByMouseAndKeyIsAskedAboutAndTold)
{
    OutlineViewSC *const outline = makeOutline();
    outline->setFocus();
    pressFirst(outline);
    EXPECT_EQ(takeSiteCalls(), u"1805 5 7 /0, 1806 5 7 /0"_s);
    QTest::keyClick(outline, Qt::Key_Down);
    EXPECT_EQ(takeSiteCalls(), u"1805 5 7 /1, 1806 5 7 /1"_s);
    atEvent = [](qint64) { answer(true); };
    QTest::keyClick(outline, Qt::Key_Up);
    pressFirst(outline);
    EXPECT_EQ(takeSiteCalls(), u"1805 5 7 /0, 1805 5 7 /0"_s);
    EXPECT_EQ(outline->selectedObject(), u"/1"_s);
}

TEST_F(OutlineSite, SurvivesBeingDeletedOrReloadedAtEveryQuestion)
{
    const auto make = [this] { return makeOutline(); };
    const auto expand = [](OutlineViewSC *outline) { outline->topLevelItem(1)->setExpanded(true); };
    const auto collapse = [](OutlineViewSC *outline) { outline->topLevelItem(1)->setExpanded(false); };
    const QList<std::function<void(OutlineViewSC *)>> happenings = {expand, collapse, pressFirst};
    const QList<qint64> events = {1800, 1801, 1802, 1803, 1804, 1805, 1806};
    expectSurvival<OutlineViewSC>(events, make, happenings, fillOutline);
    const auto reload = [](OutlineViewSC *) { OutlineViewReloadData(5); };
    expectSurvival<OutlineViewSC>(events, make, happenings, fillOutline, reload);
}

} // namespace
