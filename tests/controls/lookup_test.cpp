#include "tests/controls/site_helper.h"

#include <QAction>
#include <QFrame>
#include <QSlider>
#include <QTabWidget>
#include <QToolBar>

using namespace tetrad;

namespace {

template <typename View = QWidget>
View *named(QWidget *parent, const QString &identifier)
{
    auto *const view = new View(parent);
    view->setObjectName(identifier);
    return view;
}

template <typename View = QPushButton>
View *tagged(QWidget *parent, Tag tag)
{
    auto *const view = new View(parent);
    setObjectTag(view, tag);
    return view;
}

void expectFound(const Table<Tag, QWidget *> &rows)
{
    for (const auto &[name, tag, found] : rows) {
        EXPECT_EQ(CUI_ViewWithTag(tag), found) << name;
    }
}

using Lookup = WindowTest;

TEST_F(Lookup, ReadsEachClassesTagInItsPosition)
{
    QWidget *const content = open(1)->contentView();
    QWidget *const plain = named(content, u"7"_s);
    QWidget *const effect = named<VisualEffectView>(content, u"10"_s);
    QWidget *const untagged = named<QPushButton>(content, u"8"_s);
    named<QFrame>(content, u"13"_s);
    tagged<QWidget>(content, 9);
    auto *const tabs = tagged<QTabWidget>(content, 20);
    tabs->addTab(named(nullptr, u"24"_s), u"One"_s);
    tabs->addTab(named(nullptr, {}), u"Two"_s);
    tagged(tabs->widget(1), 22);
    QWidget *const firstOfTwo = tagged(tabs->widget(0), 22);
    auto *const segments = tagged<SegmentedControlSC>(content, 30);
    segments->setLabels({u"a"_s, u"b"_s});
    setObjectTag(segments->findChildren<QAbstractButton *>().constLast(), 31);
    QWidget *const box = named(content, {});
    QWidget *const deep = tagged(named(box, {}), 3);
    QWidget *const shallow = tagged(content, 3);
    QWidget *const outer = tagged(content, 4);
    tagged(outer, 4);
    expectFound({
        {"no view", 0, nullptr},
        {"unknown", 99, nullptr},
        {"negative", -5, nullptr},
        {"plain view by its identifier", 7, plain},
        {"number with text behind it", 14, named(content, u"14 apples"_s)},
        {"visual-effect view by its identifier", 10, effect},
        {"button by its tag", 5, tagged(content, 5)},
        {"inner content view by its tag", 11, tagged<ContentViewSC>(content, 11)},
        {"a button's identifier does not count", 8, nullptr},
        {"nor does that of a class derived from the plain view", 13, nullptr},
        {"a plain view's tag does not count", 9, nullptr},
        {"the content view itself", contentViewTag, content},
        {"a view instead of a tag", tagFromObject(effect), effect},
        {"the tab view itself", 20, tabs},
        {"in a tab that is not selected", 21, tagged(tabs->widget(1), 21)},
        {"in the order of the tabs, not of creation", 22, firstOfTwo},
        {"a tab's own view is not compared", 24, nullptr},
        {"a segmented control", 30, segments},
        {"no segment", 31, nullptr},
        {"in an earlier subview, before a later subview", 3, deep},
        {"a view, before what lies in it", 4, outer},
    });
    EXPECT_EQ(CUI_ViewSubviewWithTag(content, 0), untagged) << "a view without a tag counts as 0";
    box->raise();
    EXPECT_EQ(CUI_ViewWithTag(3), shallow) << "the order is that of the subviews now";
    for (const auto &[view, tag] : {std::pair(content, contentViewTag), {effect, Tag(70)}, {plain, Tag(7)}}) {
        setObjectTag(view, 70);
        EXPECT_EQ(CUI_ViewTag(view), tag);
    }
}

TEST_F(Lookup, TakesTheShownPopoverThenTheOutputWindowThenTheFront)
{
    EXPECT_EQ(CUI_ViewWithTag(contentViewTag), nullptr);
    QWidget *const one = open(1)->contentView();
    QWidget *const two = open(2)->contentView();
    Popover popover(9, QSize(100, 50));
    QWidget *const inPopover = popover.contentView();
    for (QWidget *const each : {one, two, inPopover}) {
        tagged(each, 3);
    }
    const auto expectFoundIn = [](const QWidget *parent, Tag output) {
        CUI_OutputWindowSetTag(output);
        const QWidget *const found = CUI_ViewWithTag(3);
        EXPECT_TRUE(found->parentWidget() == parent && CUI_ViewWindowTag(found) == CUI_ViewWindowTag(parent)) << output;
    };
    expectFoundIn(one, 1);
    expectFoundIn(two, 0);
    expectFoundIn(inPopover, 9);
    EXPECT_EQ(CUI_ViewWithTag(contentViewTag), inPopover);
    popover.showRelativeTo(one, QRect(), Qt::BottomEdge);
    expectFoundIn(inPopover, 1);
    EXPECT_EQ(CUI_ViewWithTag(contentViewTag), one) << "a shown popover comes first, but for the content view";
}

TEST_F(Lookup, FindsAccessoriesAndToolbarItems)
{
    QWidget *const content = open(1)->contentView();
    Window *const window = CUI_WindowWithTag(1);
    const QSize before = content->size();
    QWidget *const accessory = named<QFrame>(nullptr, u"40"_s);
    accessory->setFixedSize(30, 20);
    WindowAddTitlebarAccessoryView(tagFromObject(window), tagFromObject(accessory));
    QWidget *const inAccessory = tagged(accessory, 41);
    new QToolBar(window);
    CUI_Toolbar(50);
    QToolBar *const toolbar = CUI_WindowToolbar(window);
    QAction *const item = CUI_ToolbarAddItem(50, 44, u"Go"_s);
    auto *const view = new QSlider;
    CUI_ToolbarAddViewItem(50, 43, tagFromObject(view));
    CUI_ToolbarAddItem(50, 41, u"Hidden behind the accessory"_s);
    CUI_ToolbarAddItem(50, 42, u"Hidden behind the content"_s);
    QWidget *const inContent = tagged(content, 42);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->toolBarArea(toolbar) && toolbar->height() >= view->height(); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return content->size() == before; })) << "neither is taken from the content";
    EXPECT_TRUE(accessory->isVisible() && window->menuBar()->height() >= 20) << "beside no menus too";
    expectFound({
        {"by the identifier, whatever its class", 40, accessory},
        {"in an accessory, before the tool bar", 41, inAccessory},
        {"in the content, before the tool bar", 42, inContent},
        {"in the tool bar", 43, view},
        {"an item without a view of its own", 44, toolbar->widgetForAction(item)},
    });
    CUI_OutputWindowSetTag(0);
    EXPECT_EQ(TitlebarAccessoryViewWithTag(40), nullptr) << "the output window's only";
    EXPECT_EQ(CUI_ViewWithTag(43), view) << "the front window's tool bar";
    EXPECT_EQ(alertsOf([] { CUI_ToolbarAddItem(51, 1, {}); }), u"Tag error.|Can't find tool bar 51 in window 1."_s);
}

TEST_F(Lookup, SaysWhatIsWrong)
{
    QPushButton loose;
    EXPECT_EQ(alertsOf([] { EXPECT_FALSE(ControlWithTag(3)); }), u"Error.|Can't find any windows."_s);
    EXPECT_EQ(alertsOf([] { CUI_Toolbar(3); }), u"Error.|Can't find any windows."_s);
    EXPECT_EQ(alertsOf([&] { EXPECT_EQ(ControlWithTag(tagFromObject(&loose)), &loose); }), QString());
    QWidget *const content = open(1)->contentView();
    QWidget *const plain = named(content, u"5"_s);
    QWidget *const button = tagged(content, 6);
    QAction action;
    // Where the text has a %1, the address.
    const Table<Tag, QString, QWidget *, QString> rows = {
        {"a control", 6, u"NSControl"_s, button, {}},
        {"its own class", 6, u"NSButton"_s, button, {}},
        {"a control as an object", tagFromObject(button), u"NSControl"_s, button, {}},
        {"content view", contentViewTag, u"NSView"_s, content, {}},
        {"tag 0", 0, u"NSControl"_s, nullptr, u"Tag error.|Can't find view 0 in window 1."_s},
        {"unknown", -4, u"NSControl"_s, nullptr, u"Tag error.|Can't find view -4 in window 1."_s},
        {"plain view", 5, u"NSControl"_s, nullptr,
         u"Class error.|View 5 (NSView), in window 1, cannot respond to NSControl messages."_s},
        {"other control", 6, u"NSSlider"_s, nullptr,
         u"Class error.|View 6 (NSButton), in window 1, cannot respond to NSSlider messages."_s},
        {"content view as a control", contentViewTag, u"NSControl"_s, nullptr,
         u"Class error.|View -1437226411 (ContentViewSC), in window 1, cannot respond to NSControl messages."_s},
        {"object", tagFromObject(plain), u"NSControl"_s, nullptr,
         u"Class error.|View <NSView: 0x%1> cannot respond to NSControl messages."_s},
        {"object that is no view", tagFromObject(&action), u"NSView"_s, nullptr,
         u"Class error.|View <NSToolbarItem: 0x%1> cannot respond to NSView messages."_s},
    };
    for (const auto &[name, argument, className, expected, alert] : rows) {
        const QWidget *found = nullptr;
        const QString seen = alertsOf([&, a = argument, c = className] { found = CUI_ValidateViewKindOfClass(a, c); });
        EXPECT_EQ(seen, QString(alert).replace(u"%1"_s, QString::number(argument, 16))) << name;
        EXPECT_EQ(found, expected) << name;
    }
}

} // namespace
