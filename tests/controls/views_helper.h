#pragma once

#include "tests/controls/site_helper.h"

#include <QAction>
#include <QHeaderView>
#include <QTabBar>

namespace tetrad {

/// What matters in the record at an event.
inline QString recorded(qint64 event)
{
    const CUI_DialogEvent &record = *CUI_DialogEventObj();
    const QString number = QString::number(record.longVal);
    const QString coordinate = number % u':' % QString::number(record.floatVal);
    const QRectF part = record.rectVal;
    const QString drawn = number % QString::asprintf(" %g,%g %gx%g", part.x(), part.y(), part.width(), part.height());
    const QString column = record.tableColumnObj.toString();
    const QString object = record.object.toString();
    const QString range = QString::asprintf("%llu+%llu", record.rangeVal.location, record.rangeVal.length);
    const QMap<qint64, QString> ofEvents = {
        {splitViewEventCanCollapseSubview, number},
        {splitViewEventShouldHideDivider, number},
        {splitViewEventDrawDivider, drawn},
        {splitViewEventConstrainMaxCoordinate, coordinate},
        {splitViewEventConstrainMinCoordinate, coordinate},
        {splitViewEventConstrainSplitPosition, coordinate},
        {tabViewEventDidChangeCount, number},
        {tableViewEventDrawRow, drawn},
        {tableViewEventColumnClicked, column},
        {outlineViewEventColumnClicked, column},
        {tableViewEventDidEdit, number % u'.' % column % u'=' % object},
        {textViewEventRefuseChange, range % u'=' % record.stringObj},
        {textViewEventSelectionChanged, range},
        {tokenFieldEventCompletions, record.stringObj},
        {fontPanelEventChanged, QString::number(record.fontObj.pointSize())},
        {colorPanelEventAction, record.colorObj.name()},
    };
    const QMap<qint64, QString> ofHundreds = {
        {16, number % u' ' % record.stringObj},
        {17, number},
        {18, object},
        {23, QVariant(record.arrayObj).toStringList().join(u'|')},
    };
    return ofEvents.value(event, ofHundreds.value(event / 100));
}

/// A program that has tables of three rows whose cells say "row.column" and outlines in which every item is the text of
/// its path, has two children and no end, and that agrees to what popovers, tool bars and split views ask.
inline Answers respond()
{
    using Record = CUI_DialogEvent;
    const auto agree = [](Record &it) { it.boolVal = true; };
    const auto path = [](const Record &it) { return it.object.toString(); };
    return {
        {tableViewEventRowCount, [](Record &it) { it.longVal = 3; }},
        {tableViewEventValue,
         [](Record &it) { it.object = u"%1.%2"_s.arg(it.longVal).arg(it.tableColumnObj.toInt()); }},
        {tableViewEventRowHeight, [](Record &it) { it.doubleVal = it.longVal == 1 ? 41 : it.doubleVal; }},
        {tableViewEventShouldEdit, [](Record &it) { it.boolVal = it.tableColumnObj == 1; }},
        {tableHeaderEventTextColor, [](Record &it) { it.colorObj = Qt::red; }},
        {tableHeaderEventFont, [](Record &it) { it.fontObj.setItalic(true); }},
        {outlineViewEventChildCount, [](Record &it) { it.longVal = 2; }},
        {outlineViewEventChild, [path](Record &it) { it.object = u"%1/%2"_s.arg(path(it)).arg(it.longVal); }},
        {outlineViewEventText, [path](Record &it) { it.stringObj = it.tableColumnObj == 0 ? path(it) : u"kind"_s; }},
        {popoverEventShouldClose, agree},
        {popoverEventShouldDetach, agree},
        {toolbarEventValidateItem, agree},
        {splitViewEventCanCollapseSubview, agree},
        {splitViewEventShouldHideDivider, agree},
        {splitViewEventDividerColor, [](Record &it) { it.colorObj = Qt::green; }},
        {splitViewEventDividerThickness, [](Record &it) { it.floatVal = 5; }},
    };
}

inline const auto refuse = [](qint64) { answer(true); };

/// Presses a key in the view with this tag.
inline std::function<void()> key(Tag tag, Qt::Key code, Qt::KeyboardModifiers modifiers = {})
{
    return [=] { QTest::keyPress(CUI_ViewWithTag(tag), code, modifiers); };
}

/// A window with one of each view, whose tags are their codes without the last two digits, a hidden popover 9 and an
/// item 19 in its tool bar 3. The split view is 205 wide, of two buttons at least 40 wide, with a divider of 5 at 100.
class Views : public SiteTest
{
protected:
    QPointer<TableViewSC> table;
    QPointer<OutlineViewSC> outline;
    QPointer<TabViewSC> tabs;
    QPointer<SplitViewSC> split;
    QPointer<TextViewSC> text;
    QPointer<TokenFieldSC> tokens;
    QPointer<Popover> popover;
    QPointer<QAction> item;

    void SetUp() override
    {
        SiteTest::SetUp();
        atEvent = answers(respond());
        CUI_TableView(17, {u"A"_s, u"B"_s}, QRectF(0, 0, 260, 180));
        CUI_OutlineView(18, {u"Name"_s, u"Kind"_s}, QRectF(0, 0, 280, 180));
        CUI_TabView(16, {u"A"_s, u"B & C"_s, u"D"_s}, QRectF(0, 0, 280, 150));
        CUI_SplitView(15, Qt::Horizontal, QRectF(10, 10, 205, 80));
        for (const Tag tag : {41, 42}) {
            CUI_Button(tag, QString::number(tag), QRectF(0, 0, 10, 10));
            CUI_ViewWithTag(tag)->setMinimumWidth(40);
            SplitViewAddSubview(15, tag);
        }
        CUI_TextView(21, u"one two"_s, QRectF(0, 0, 200, 100));
        CUI_TokenField(23, {u"a"_s, u"b"_s}, QRectF(0, 0, 200, 30));
        CUI_TokenField(23, {}, {});
        CUI_Toolbar(3);
        item = CUI_ToolbarAddItem(3, 19, u"Go"_s);
        table = m_content->findChild<TableViewSC *>();
        outline = m_content->findChild<OutlineViewSC *>();
        tabs = m_content->findChild<TabViewSC *>();
        split = m_content->findChild<SplitViewSC *>();
        text = m_content->findChild<TextViewSC *>();
        tokens = m_content->findChild<TokenFieldSC *>();
        CUI_Popover(9, QSizeF(80, 60), popoverApplicationDefined);
        EXPECT_EQ(CUI_OutputWindowTag(), 9);
        PopoverSetAsks(9, true);
        popover = CUI_PopoverWithTag(9);
        split->setSizes({100, 100});
        select(3, 3);
        tokens->setFocus();
        takeSiteCalls();
        CUI_OutputWindowSetTag(0);
        valuesOf = recorded;
    }
    void TearDown() override
    {
        delete popover;
        SiteTest::TearDown();
    }

    static void press(QWidget *view, const QRect &part) { QTest::mousePress(view, Qt::LeftButton, {}, part.center()); }
    QRect partOf(int row) const { return table->visualItemRect(table->item(row, 0)); }
    void pressRow(int row) const { press(table->viewport(), partOf(row)); }
    void expand(bool expands) const { outline->topLevelItem(1)->setExpanded(expands); }
    void pressItem() const { press(outline->viewport(), outline->visualItemRect(outline->topLevelItem(0))); }
    static void clickHeader(const QHeaderView *header)
    {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(header->sectionViewportPosition(1) + 10, 5));
    }
    void pressTab() const { press(tabs->tabBar(), tabs->tabBar()->tabRect(1)); }
    void dragDivider(int distance) const { dragMouse(split->handle(1), QPoint(2, 10), QPoint(2 + distance, 10)); }
    void select(int from, int to) const
    {
        QTextCursor cursor = text->textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        text->setTextCursor(cursor);
    }
    void setText(int from, int to) const
    {
        text->setFocus();
        text->setPlainText(u"one two"_s);
        select(from, to);
        takeSiteCalls();
    }
    static void showPopover() { PopoverShow(9, contentViewTag, QRectF(0, 0, 5, 5), Qt::BottomEdge); }
    void dragPopover() const { dragMouse(popover->contentView(), QPoint(10, 10), QPoint(60, 50)); }
    void clickItem() const { QTest::mouseClick(CUI_ViewWithTag(19), Qt::LeftButton); }
};

} // namespace tetrad
