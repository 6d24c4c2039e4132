#include "runtime/controls/event_site.h"
#include "runtime/controls/outline_view.h"
#include "runtime/controls/table_view.h"
#include "tests/controls/site_helper.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>

namespace tetrad {

namespace {

using namespace testing_helpers;

QStringList callbackCalls;

qint64 ownDelegate(Tag tag, qint64 event)
{
    callbackCalls << QString::asprintf("%lld %lld", tag, event);
    CUI_DialogEventObj()->longVal = event == tableViewEventRowCount ? 1 : 0;
    return 5;
}

/// Table 3 of two columns and three rows, whose cells say "row.column".
class TableSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        makeTable();
    }

    void makeTable()
    {
        atEvent = fill;
        CUI_TableView(3, {u"A"_qs, u"B"_qs}, QRectF(0, 0, 260, 180));
        m_table = settled<TableView>(3);
        valuesOf = [](qint64 event) {
            const CUI_DialogEvent &record = *CUI_DialogEventObj();
            const QString row = QString::number(record.longVal);
            const QString column = record.tableColumnObj.toString();
            switch (event) {
            case tableViewEventColumnClicked:
                return column;
            case tableViewEventDidEdit:
                return QString(row + u'.' + column + u'=' + record.object.toString());
            default:
                return row;
            }
        };
    }

    static void fill(qint64 event)
    {
        CUI_DialogEvent &record = *CUI_DialogEventObj();
        switch (event) {
        case tableViewEventRowCount:
            record.longVal = 3;
            break;
        case tableViewEventValue:
            record.object = QString(QString::number(record.longVal) + u'.' + record.tableColumnObj.toString());
            break;
        case tableViewEventRowHeight:
            record.doubleVal = record.longVal == 1 ? 41 : record.doubleVal;
            break;
        case tableViewEventShouldEdit:
            answer(record.tableColumnObj == 1);
            break;
        case tableHeaderEventTextColor:
            record.colorObj = Qt::red;
            break;
        case tableHeaderEventFont:
            record.fontObj.setItalic(record.tableColumnObj == 1);
            break;
        default:
            break;
        }
    }

    void press(int row)
    {
        const QPoint place = m_table->visualItemRect(m_table->item(row, 0)).center();
        QTest::mousePress(m_table->viewport(), Qt::LeftButton, {}, place);
    }

    QPointer<TableView> m_table;
};

TEST_F(TableSite, ShowsWhatTheProgramAnswers)
{
    ASSERT_EQ(m_table->rowCount(), 3);
    EXPECT_EQ(m_table->item(2, 1)->text(), u"2.1"_qs);
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
    TableViewReloadData(3);
    EXPECT_EQ(m_table->rowCount(), 1);
    EXPECT_TRUE(qobject_cast<QLineEdit *>(m_table->cellWidget(0, 1)));
}

TEST_F(TableSite, SelectionByMouseAndKeyIsAskedAboutAndTold)
{
    m_table->setFocus();
    press(1);
    EXPECT_EQ(takeSiteCalls(), "1706 3 7 1, 1707 3 7 1");
    EXPECT_EQ(CUI_OutputWindowTag(), 7);
    QTest::keyClick(m_table, Qt::Key_Down);
    EXPECT_EQ(takeSiteCalls(), "1706 3 7 2, 1707 3 7 2");
    atEvent = [](qint64) { answer(true); };
    press(0);
    QTest::keyClick(m_table, Qt::Key_Home);
    QTest::keyClick(m_table, Qt::Key_Up);
    EXPECT_EQ(takeSiteCodes(), "1706 1706");
    EXPECT_EQ(TableViewSelectedRow(3), 2) << "refused";
}

TEST_F(TableSite, EditsAndColumnClicksAreTold)
{
    m_table->setCurrentCell(1, 1);
    m_table->editItem(m_table->item(1, 1));
    takeSiteCalls();
    auto *const editor = m_table->findChild<QLineEdit *>();
    ASSERT_TRUE(editor);
    editor->setText(u"new"_qs);
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_EQ(takeSiteCalls(), "1705 3 7 1.1=new");
    QHeaderView *const header = m_table->horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(header->sectionViewportPosition(1) + 10, 5));
    const std::string calls = takeSiteCalls();
    EXPECT_NE(calls.find("1708 3 7 1"), std::string::npos) << calls;
}

TEST_F(TableSite, RowsDrawBehindTheirCells)
{
    atEvent = [](qint64 event) {
        CUI_DialogEvent &record = *CUI_DialogEventObj();
        if (event == tableViewEventDrawRow && record.longVal == 1) {
            QPainter(qobject_cast<QWidget *>(record.viewObj)).fillRect(record.rectVal, Qt::green);
        }
    };
    const QImage image = m_table->viewport()->grab().toImage();
    const QRect cell = m_table->visualItemRect(m_table->item(1, 0));
    EXPECT_EQ(image.pixelColor(cell.right() - 2, cell.top() + 2), QColor(Qt::green));
    EXPECT_NE(image.pixelColor(cell.right() - 2, cell.top() - 3), QColor(Qt::green));
}

TEST_F(TableSite, ADelegateCallbackTakesThePlaceOfTheDialogFunction)
{
    setDelegateCallback(m_table, ownDelegate);
    callbackCalls.clear();
    EXPECT_EQ(CUI_TableViewDelegateObj()->forwardEvent(m_table, 1799, 0), 5);
    TableViewReloadData(3);
    EXPECT_EQ(callbackCalls.value(0), u"3 1799"_qs);
    EXPECT_EQ(callbackCalls.value(1), u"3 1700"_qs);
    EXPECT_EQ(m_table->rowCount(), 1);
    EXPECT_EQ(takeSiteCalls(), "");
    EXPECT_EQ(CUI_OutputWindowTag(), 7);
}

TEST_F(TableSite, SurvivesBeingDeletedAtEveryQuestion)
{
    for (const qint64 deadly : {1700, 1701, 1702, 1703, 1704, 1706, 1707, 4200, 4300}) {
        SCOPED_TRACE(deadly);
        atEvent = [&](qint64 event) {
            fill(event);
            if (event == deadly) {
                delete m_table;
            }
        };
        TableViewReloadData(3);
        if (m_table) {
            press(1);
        }
        takeSiteCalls();
        EXPECT_FALSE(m_table);
        makeTable();
    }
}

TEST_F(TableSite, SurvivesBeingReloadedWhileItReloads)
{
    int rows = 3;
    atEvent = [&rows](qint64 event) {
        fill(event);
        if (event == tableViewEventRowCount) {
            CUI_DialogEventObj()->longVal = rows;
        } else if (event == tableViewEventValue && rows == 3) {
            rows = 1;
            TableViewReloadData(3);
        }
    };
    TableViewReloadData(3);
    EXPECT_EQ(m_table->rowCount(), 1);
}

/// Outline 5: every item is the text of its path, has two children and no end.
class OutlineSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        makeOutline();
    }

    void makeOutline()
    {
        atEvent = fill;
        CUI_OutlineView(5, {u"Name"_qs, u"Kind"_qs}, QRectF(0, 0, 280, 180));
        m_outline = settled<OutlineView>(5);
        valuesOf = [](qint64) { return CUI_DialogEventObj()->object.toString(); };
    }

    static void fill(qint64 event)
    {
        CUI_DialogEvent &record = *CUI_DialogEventObj();
        const QString path = record.object.toString();
        if (event == outlineViewEventChildCount) {
            record.longVal = 2;
        } else if (event == outlineViewEventChild) {
            record.object = QString(path + u'/' + QString::number(record.longVal));
        } else if (event == outlineViewEventText) {
            record.stringObj = record.tableColumnObj == 0 ? path : u"kind"_qs;
        }
    }

    void press(QTreeWidgetItem *item)
    {
        QTest::mousePress(m_outline->viewport(), Qt::LeftButton, {}, m_outline->visualItemRect(item).center());
    }

    QPointer<OutlineView> m_outline;
};

TEST_F(OutlineSite, AsksForChildrenWhenTheirParentIsOpenedFirst)
{
    ASSERT_EQ(m_outline->topLevelItemCount(), 2);
    QTreeWidgetItem *const item = m_outline->topLevelItem(1);
    EXPECT_EQ(item->text(0), u"/1"_qs);
    EXPECT_EQ(item->text(1), u"kind"_qs);
    EXPECT_EQ(item->childCount(), 0);
    item->setExpanded(true);
    const std::string calls = takeSiteCalls();
    ASSERT_EQ(item->childCount(), 2);
    EXPECT_EQ(item->child(0)->text(0), u"/1/0"_qs);
    EXPECT_TRUE(QString::fromStdString(calls).endsWith(u"1803 5 7 /1"_qs)) << calls;
    item->setExpanded(false);
    EXPECT_EQ(takeSiteCalls(), "1804 5 7 /1");
    item->setExpanded(true);
    EXPECT_EQ(takeSiteCalls(), "1803 5 7 /1") << "the children are there already";
}

TEST_F(OutlineSite, SelectionByMouseAndKeyIsAskedAboutAndTold)
{
    m_outline->setFocus();
    press(m_outline->topLevelItem(0));
    EXPECT_EQ(takeSiteCalls(), "1805 5 7 /0, 1806 5 7 /0");
    QTest::keyClick(m_outline, Qt::Key_Down);
    EXPECT_EQ(takeSiteCalls(), "1805 5 7 /1, 1806 5 7 /1");
    atEvent = [](qint64) { answer(true); };
    QTest::keyClick(m_outline, Qt::Key_Up);
    press(m_outline->topLevelItem(0));
    EXPECT_EQ(takeSiteCalls(), "1805 5 7 /0, 1805 5 7 /0");
    EXPECT_EQ(m_outline->selectedObject(), u"/1"_qs);
}

TEST_F(OutlineSite, SurvivesBeingDeletedOrReloadedAtEveryQuestion)
{
    for (const bool deletes : {true, false}) {
        for (const qint64 dangerous : {1800, 1801, 1802, 1803, 1804, 1805, 1806}) {
            SCOPED_TRACE(dangerous);
            bool harmed = false;
            atEvent = [&](qint64 event) {
                fill(event);
                if (event != dangerous || std::exchange(harmed, true)) {
                    return;
                }
                if (deletes) {
                    delete m_outline;
                } else {
                    OutlineViewReloadData(5);
                }
            };
            m_outline->topLevelItem(1)->setExpanded(true);
            takeSiteCalls();
            if (m_outline && m_outline->topLevelItem(1)) {
                m_outline->topLevelItem(1)->setExpanded(false);
                press(m_outline->topLevelItem(0));
                takeSiteCalls();
            }
            EXPECT_TRUE(harmed || (!deletes && dangerous == 1804));
            EXPECT_EQ(bool(m_outline), !deletes);
            delete m_outline;
            makeOutline();
        }
    }
}

} // namespace

} // namespace tetrad
