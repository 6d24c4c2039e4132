#include "tests/controls/views_helper.h"

#include <QColorDialog>
#include <QFontDialog>
#include <QToolBar>
#include <QWheelEvent>

using namespace tetrad;

namespace {

TEST_F(Views, TableShowsWhatTheProgramAnswers)
{
    ASSERT_EQ(table->rowCount(), 3);
    EXPECT_EQ(table->item(2, 1)->text(), u"2.1"_s);
    EXPECT_TRUE(~table->item(0, 0)->flags() & table->item(0, 1)->flags() & Qt::ItemIsEditable);
    EXPECT_EQ(table->horizontalHeaderItem(0)->foreground().color(), QColor(Qt::red));
    EXPECT_TRUE(table->horizontalHeaderItem(1)->font().italic());
    EXPECT_EQ(table->columnWidth(0), table->viewport()->width() / 2);
    TableViewSetCell(17, 1, 0, u"own"_s);
    TableViewSetCell(17, 9, 0, u"outside"_s);
    EXPECT_EQ(TableViewCell(17, 1, 0), u"own"_s);
    table->grab();
    EXPECT_TRUE(dialogCalls.contains(u"1709 17 7 1 0,%1 %2x41"_s.arg(partOf(1).y()).arg(table->viewport()->width())));
    atEvent = answers({{tableViewEventRowCount, [](auto &it) { it.longVal = 1; }},
                       {tableViewEventViewForCell, [](auto &it) { it.viewObj = new QLineEdit; }}});
    TableViewReloadData(17);
    EXPECT_EQ(table->rowCount(), 1);
    EXPECT_FALSE(takeSiteCalls().contains(u"1705"_s)) << "no edits of the user's";
    EXPECT_TRUE(qobject_cast<QLineEdit *>(table->cellWidget(0, 1)));
}

TEST_F(Views, TableQueriesAndReportsSelectionEditsAndColumnClicks)
{
    table->setFocus();
    const auto refuseAll = [&] {
        atEvent = refuse;
        pressRow(0);
        key(17, Qt::Key_Home)();
        key(17, Qt::Key_Up)();
    };
    const auto dragOverAll = [&] {
        atEvent = [](qint64) { answer(CUI_DialogEventObj()->longVal != 1); };
        pressRow(0);
        for (const QRect &part : {partOf(0), partOf(1), partOf(1), partOf(2), QRect(20, 170, 1, 1)}) {
            sendMouse(table->viewport(), QEvent::MouseMove, part.center(), Qt::NoButton, Qt::LeftButton);
        }
    };
    const auto edit = [&] {
        atEvent = nullptr;
        table->setCurrentCell(1, 1);
        table->editItem(table->item(1, 1));
        auto *const editor = table->findChild<QLineEdit *>();
        editor->setText(u"new"_s);
        QTest::keyClick(editor, Qt::Key_Return);
    };
    expectCalls(
        {
            {"press", [&] { pressRow(1); }, u"1706 17 7 1, 1707 17 7 1 -> 1"_s},
            {"key", key(17, Qt::Key_Down), u"1706 17 7 2, 1707 17 7 2 -> 2"_s},
            {"not the first letters", key(17, Qt::Key_0), u" -> 2"_s},
            {"refused", refuseAll, u"1706 17 7 0, 1706 17 7 1 -> 2"_s},
            {"drag, each row once", dragOverAll, u"1706 17 7 0, 1706 17 7 1, 1706 17 7 2, 1707 17 7 1 -> 1"_s},
            {"edit", edit, u"1705 17 7 1.1=new -> 1"_s},
            {"click on a header", [&] { clickHeader(table->horizontalHeader()); }, u"1708 17 7 1 -> 1"_s},
            {"the program's own", [] { TableViewSelectRow(17, 0); }, u"1707 17 7 0 -> 0"_s},
            {"none", [] { TableViewSelectRow(17, 3); }, u"1707 17 7 -1 -> -1"_s},
        },
        [] { return QString::number(TableViewSelectedRow(17)); });
}

TEST_F(Views, OutlineQueriesForChildrenWhenTheirParentIsOpenedFirstAndForSelections)
{
    outline->setFocus();
    const QTreeWidgetItem *const parent = outline->topLevelItem(1);
    EXPECT_EQ(outline->topLevelItemCount(), 2);
    EXPECT_EQ(parent->text(1), u"kind"_s);
    const auto refuseKey = [] {
        atEvent = refuse;
        key(18, Qt::Key_Up)();
    };
    expectCalls(
        {
            {"opened first", [&] { expand(true); },
             u"1800 18 7 /1, 1801 18 7 /1, 1802 18 7 /1/0, 1802 18 7 /1/0, 1800 18 7 /1/0, "
             "1801 18 7 /1, 1802 18 7 /1/1, 1802 18 7 /1/1, 1800 18 7 /1/1, 1803 18 7 /1 -> "_s},
            {"closed", [&] { expand(false); }, u"1804 18 7 /1 -> "_s},
            {"opened again", [&] { expand(true); }, u"1803 18 7 /1 -> "_s},
            {"press", [&] { pressItem(); }, u"1805 18 7 /0, 1806 18 7 /0 -> /0"_s},
            {"key", key(18, Qt::Key_Down), u"1805 18 7 /1, 1806 18 7 /1 -> /1"_s},
            {"key refused", refuseKey, u"1805 18 7 /0 -> /1"_s},
            {"press refused", [&] { pressItem(); }, u"1805 18 7 /0 -> /1"_s},
            {"closed by a key", key(18, Qt::Key_Left), u"1804 18 7 /1 -> /1"_s},
            {"opened by a key", key(18, Qt::Key_Right), u"1803 18 7 /1 -> /1"_s},
            {"click on a header", [&] { clickHeader(outline->header()); }, u"1807 18 7 1 -> /1"_s},
        },
        [&] { return outline->selectedObject().toString(); });
    EXPECT_EQ(parent->child(0)->text(0), u"/1/0"_s);
    atEvent = nullptr;
    OutlineViewReloadData(18);
    EXPECT_EQ(outline->topLevelItemCount(), 0);
}

TEST_F(Views, EveryWayOfSelectingATabIsQueriedAndReported)
{
    const auto wheel = [&] {
        send<QWheelEvent>(tabs->tabBar(), QPointF(5, 5), tabs->tabBar()->mapToGlobal(QPointF(5, 5)), QPoint(),
                          QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    };
    const Table<std::function<void()>> rows = {
        {"press", [&] { pressTab(); }},
        {"wheel", wheel},
        {"arrow key", [&] { QTest::keyClick(tabs->tabBar(), Qt::Key_Right); }},
        {"Ctrl+Tab", key(16, Qt::Key_Tab, Qt::ControlModifier)},
    };
    for (const auto &[name, act] : rows) {
        SCOPED_TRACE(name);
        const auto refused = [select = act] {
            atEvent = refuse;
            select();
        };
        expectCalls({{"agreed", act, u"1600 16 7 1 B & C, 1601 16 7 1 B & C, 1602 16 7 1 B & C -> 1"_s},
                     {"the program's own", [] { TabViewSelectIndex(16, 0); }, u"1602 16 7 0 A -> 0"_s},
                     {"refused", refused, u"1600 16 7 1 B & C -> 0"_s}},
                    [] { return QString::number(TabViewSelectedIndex(16)); });
        EXPECT_EQ(CUI_DialogEventObj()->viewObj, TabViewPage(16, 1));
        atEvent = nullptr;
    }
    key(16, Qt::Key_Backtab, Qt::ControlModifier)();
    QString selected = QString::number(TabViewSelectedIndex(16));
    tabs->setTabEnabled(1, false);
    for (const Qt::Key code : {Qt::Key_Left, Qt::Key_Left, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_A}) {
        QTest::keyClick(tabs->tabBar(), code);
        selected += QString::number(TabViewSelectedIndex(16));
    }
    EXPECT_EQ(selected, u"2002200"_s) << "a disabled tab is passed by";
    takeSiteCalls();
    expectCalls({{"removed", [] { TabViewRemoveTab(16, 2); }, u"1603 16 7 2"_s},
                 {"added", [] { TabViewAddTab(16, 99, u"E & F"_s); }, u"1603 16 7 3"_s}});
    EXPECT_EQ(tabs->tabText(2), u"E && F"_s);
    EXPECT_EQ(objectWindowTag(TabViewPage(16, 2)), 7);
}

TEST_F(Views, SplitDragQueriesBoundsAndPositionThenMovesAndReports)
{
    const auto isGreen = [&] { return split->handle(1)->grab().toImage().pixelColor(2, 9) == QColor(Qt::green); };
    EXPECT_TRUE(isGreen() && dialogCalls.contains(u"1513 15 7 0 0,0 5x%1"_s.arg(split->height())));
    expectCalls(
        {{"drag", [&] { dragDivider(20); },
          u"1509 15 7 0:40, 1508 15 7 0:160, 1510 15 7 0:120, 1501 15 7, 1502 15 7 -> 120 0 1"_s},
         {"the program's own", [] { SplitViewSetPosition(15, 90, 0); },
          u"1509 15 7 0:40, 1508 15 7 0:160, 1510 15 7 0:90, 1501 15 7, 1502 15 7 -> 90 0 1"_s},
         {"collapsed", [&] { dragDivider(108); },
          u"1509 15 7 0:40, 1508 15 7 0:160, 1510 15 7 0:198, 1503 15 7 1, 1501 15 7, 1502 15 7, 1506 15 7 0 -> 200 0 0"_s},
         {"no such divider", [] { SplitViewSetPosition(15, 50, -1), SplitViewSetPosition(15, 50, 1); },
          u" -> 200 0 0"_s}},
        [&] { return u"%1 %2 %3"_s.arg(split->position(0)).arg(split->position(1)).arg(isGreen()); });
    EXPECT_TRUE(split->handle(1)->testAttribute(Qt::WA_TransparentForMouseEvents));
    auto *const moved = new QWidget(open(2)->contentView());
    SplitViewAddSubview(tagFromObject(split), tagFromObject(moved));
    EXPECT_EQ(objectWindowTag(moved), 7);
    delete moved;
    constexpr qint64 collapse = splitViewEventCanCollapseSubview;
    const Table<int, qint64, float, int> rows = {
        {"not at all below the least", -90, 0, 0, 40},
        {"collapses past half of the least", -90, collapse, 0, 0},
        {"does not collapse before half", -70, collapse, 0, 40},
        {"nor does the trailing subview", 70, collapse, 0, 160},
        {"trailing subview collapses", 98, collapse, 0, 200},
        {"a higher least", -60, splitViewEventConstrainMinCoordinate, 70, 70},
        {"a lower most", 50, splitViewEventConstrainMaxCoordinate, 110, 110},
        {"no most at all", 20, splitViewEventConstrainMaxCoordinate, 3e38F, 120},
        {"no least at all", -20, splitViewEventConstrainMinCoordinate, -3e38F, 80},
        {"rounded, from single precision", 9, splitViewEventConstrainSplitPosition, 124.6F, 125},
    };
    for (const auto &[name, distance, queried, coordinate, expected] : rows) {
        split->setSizes({100, 100});
        atEvent = answers({{queried, [value = coordinate](auto &it) {
                                it.floatVal = value;
                                it.boolVal = true;
                            }}});
        dragDivider(distance);
        EXPECT_EQ(split->position(0), expected) << name;
    }
}

TEST_F(Views, SplitResizeChangesOnlyTheSubviewsThatMay)
{
    const Table<QList<bool>, int> rows = {{"first", {true, false}, 140},
                                          {"second", {false, true}, 100},
                                          {"none", {false, false}, 120},
                                          {"both", {true, true}, 120}};
    for (const auto &[name, may, expected] : rows) {
        split->resize(205, 80);
        split->setSizes({100, 100});
        takeSiteCalls();
        atEvent = answers(
            {{splitViewEventShouldAdjustSizeOfSubview, [&yes = may](auto &it) { it.boolVal = yes.at(it.longVal); }}});
        expectCalls({{name, [&] { split->resize(245, 80); }, u"1501 15 7, 1504 15 7, 1504 15 7, 1502 15 7"_s}});
        EXPECT_NEAR(split->position(0), expected, 1) << name;
        atEvent = nullptr;
    }
}

TEST_F(Views, EveryChangeOfATextByTheUserIsQueried)
{
    const auto menuCut = [&] {
        send<QContextMenuEvent>(text->viewport(), QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        menu->actions().at(3)->trigger();
        menu->close();
        text->activateWindow();
    };
    QGuiApplication::clipboard()->setText(u"ab"_s);
    const Table<int, int, std::function<void()>, QString, QString> rows = {
        {"typing", 3, 3, key(21, Qt::Key_X), u"3+0=x"_s, u"onex two"_s},
        {"Tab over a selection", 0, 3, key(21, Qt::Key_Tab), u"0+3=\t"_s, u"\t two"_s},
        {"Return", 3, 3, key(21, Qt::Key_Return), u"3+0=\n"_s, u"one\n two"_s},
        {"Backspace", 3, 3, key(21, Qt::Key_Backspace), u"2+1="_s, u"on two"_s},
        {"Delete", 3, 3, key(21, Qt::Key_Delete), u"3+1="_s, u"onetwo"_s},
        {"Delete of a selection", 0, 4, key(21, Qt::Key_Delete), u"0+4="_s, u"two"_s},
        {"word before", 3, 3, key(21, Qt::Key_Backspace, Qt::ControlModifier), u"0+3="_s, u" two"_s},
        {"Paste", 3, 3, key(21, Qt::Key_V, Qt::ControlModifier), u"3+0=ab"_s, u"oneab two"_s},
        {"Cut in the menu", 0, 3, menuCut, u"0+3="_s, u" two"_s},
        {"Delete in the menu", 0, 3, [&] { text->del(); }, u"0+3="_s, u" two"_s},
        {"Cut key", 0, 3, key(21, Qt::Key_X, Qt::ControlModifier), u"0+3="_s, u" two"_s},
    };
    for (const auto &[name, from, to, act, question, result] : rows) {
        for (const bool refuses : {true, false}) {
            setText(from, to);
            // The preset answer is no, whatever was left in the record.
            atEvent = answers({{textViewEventRefuseChange, [refuses](auto &it) { it.boolVal |= refuses; }}});
            answer(true);
            act();
            EXPECT_EQ(dialogCalls.value(0), u"2100 21 7 "_s + question) << name;
            EXPECT_EQ(TextViewString(21), refuses ? u"one two"_s : result) << name;
            EXPECT_EQ(takeSiteCalls().contains(u"2101 21 7"_s), !refuses) << name;
        }
    }
    setText(3, 3);
    expectCalls({{"selected", [&] { select(0, 3); }, u"2102 21 7 0+3"_s},
                 {"moving changes nothing", key(21, Qt::Key_Right), u"2102 21 7 3+0"_s},
                 {"left", [&] { text->clearFocus(); }, u"2104 21 7"_s},
                 {"entered", [&] { text->setFocus(); }, u"2103 21 7"_s}});
}

TEST_F(Views, ATokenIsQueriedWhenItEndsAndTheFieldReported)
{
    const auto type = [&](const QString &typed) { return [&, typed] { QTest::keyClicks(tokens, typed); }; };
    const auto refuseAndLeave = [&] {
        atEvent = answers({{tokenFieldEventAddTokens, [](auto &it) { it.arrayObj.clear(); }}});
        tokens->clearFocus();
    };
    const auto chooseCompletion = [&] {
        atEvent = answers({{tokenFieldEventCompletions, [](auto &it) { it.arrayObj = {u"candle"_s, u"cat"_s}; }}});
        tokens->setFocus();
        type(u"c"_s)();
        takeSiteCalls();
        for (const Qt::Key code : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}) {
            QTest::keyClick(QApplication::activePopupWidget(), code);
        }
    };
    expectCalls(
        {
            {"comma after a word that is there", type(u"a,"_s), u"2301 23 7 a, 2302 23 7 a|b|a -> a, b, a, "_s},
            {"word", type(u"d"_s), u"2300 23 7 d -> a, b, a, d"_s},
            {"Return", key(23, Qt::Key_Return), u"2301 23 7 d, 2302 23 7 a|b|a|d, 1 23 7 -> a, b, a, d, "_s},
            {"word", type(u"e"_s), u"2300 23 7 e -> a, b, a, d, e"_s},
            {"refused", refuseAndLeave, u"2301 23 7 e -> a, b, a, d, "_s},
            {"emptied by the program", [] { ControlSetStringValue(23, u""_s); }, u" -> "_s},
            {"completed", chooseCompletion, u"2301 23 7 cat, 2302 23 7 cat, 1 23 7 -> cat, "_s},
        },
        [&] { return tokens->text(); });
    EXPECT_EQ(TokenFieldTokens(23), QStringList{u"cat"_s});
}

TEST_F(Views, PopoverQueriesBeforeItClosesAndIsDraggedOffAsAWindowOrGivesWayToOne)
{
    QWidget window;
    QPoint shownAt;
    const auto show = [&] {
        showPopover();
        shownAt = popover->pos();
    };
    const auto moves = [&] { dragMouse(popover->contentView(), QPoint(10, 10), QPoint(10, 20)); };
    const auto state = [&] {
        const bool isTool = popover->windowType() == Qt::Tool && popover->pos() == shownAt + QPoint(50, 40);
        return popover->isVisible()
                   ? (isTool ? u"as a window"_s : u"at its view"_s)
                   : (window.isVisible() && window.y() > shownAt.y() ? u"another window"_s : u"hidden"_s);
    };
    atEvent = nullptr;
    expectCalls({{"show", show, u"1302 9 9, 1303 9 9 -> at its view"_s},
                 {"the preset answer is no", [] { PopoverClose(9); }, u"1301 9 9 -> at its view"_s},
                 {"drag refused", [&] { dragPopover(); }, u"1307 9 9 -> at its view"_s},
                 {"not far enough", moves, u" -> at its view"_s}},
                state);
    atEvent = answers(respond());
    expectCalls({{"close agreed", [] { PopoverClose(9); }, u"1301 9 9, 1304 9 9, 1305 9 9 -> hidden"_s},
                 {"show again", show, u"1302 9 9, 1303 9 9 -> at its view"_s},
                 {"dragged off", [&] { dragPopover(); }, u"1307 9 9, 1300 9 9, 1306 9 9 -> as a window"_s},
                 {"no more while it is one", [&] { dragPopover(); }, u" -> as a window"_s}},
                state);
    atEvent = answers({{popoverEventShouldDetach, [](auto &it) { it.boolVal = true; }},
                       {popoverEventDetachableWindow, [&](auto &it) { it.viewObj = &window; }}});
    showPopover();
    takeSiteCalls();
    expectCalls({{"replaced", [&] { dragPopover(); }, u"1307 9 9, 1300 9 9, 1306 9 9 -> another window"_s}}, state);
    CUI_Popover(9, QSizeF(90, 50), popoverTransient);
    EXPECT_TRUE(popover->contentView()->size() == QSize(90, 50) && popover->behavior() == popoverTransient);
    PopoverRemove(9);
    CUI_Popover(9, {}, popoverTransient);
    EXPECT_EQ(CUI_PopoverWithTag(9)->contentView()->size(), QSize(200, 100)) << "another one";
    PopoverRemove(9);
}

TEST_F(Views, ToolbarClicksAreReportedAndItemsValidatedOnRequest)
{
    atEvent = nullptr;
    expectCalls({{"click", [&] { clickItem(); }, u"1900 19 7"_s}});
    EXPECT_EQ(lastObject, tagFromObject(item));
    EXPECT_TRUE(CUI_ToolbarAddItem(3, 19, {}) == item && item->text() == u"Go");
    expectCalls({{"at once", [] { ToolbarItemSetValidates(3, 19, true); }, u"1901 19 7"_s}});
    for (const bool enabled : {true, false}) {
        atEvent = answers({{toolbarEventValidateItem, [enabled](auto &it) { it.boolVal = enabled; }}});
        QTest::mouseClick(m_content, Qt::LeftButton);
        EXPECT_EQ(takeSiteCalls(), u"1901 19 7"_s);
        EXPECT_EQ(item->isEnabled(), enabled);
    }
    ToolbarItemSetValidates(3, 19, false);
    expectCalls({{"no more", [&] { QTest::mouseClick(m_content, Qt::LeftButton); }, {}}});
    EXPECT_TRUE(CUI_Toolbar(-3)->isHidden());
}

TEST_F(Views, ColoursAndFontsAreReportedAsTheyAreChosen)
{
    CUI_OutputWindowSetTag(7);
    const QString family = QApplication::font().family();
    QColorDialog *const colors = CUI_ColorPanel(Qt::red);
    QFontDialog *const fonts = CUI_FontPanel(QFont(family, 10));
    EXPECT_TRUE(worksWhenModal(colors) && worksWhenModal(fonts) && colors->isVisible() && fonts->isVisible());
    takeSiteCalls();
    expectCalls({{"colour", [&] { colors->setCurrentColor(Qt::blue); }, u"2600 0 7 #0000ff"_s},
                 {"font", [&] { fonts->setCurrentFont(QFont(family, 14)); }, u"2200 0 7 14"_s}});
    delete colors;
    delete fonts;
}

} // namespace
