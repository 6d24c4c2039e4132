#include "runtime/app/content_view.h"
#include "runtime/app/popover.h"
#include "runtime/controls/class_names.h"
#include "runtime/controls/control_statements.h"
#include "runtime/controls/popover_statements.h"
#include "runtime/controls/segmented_control.h"
#include "runtime/controls/titlebar_accessory.h"
#include "runtime/controls/toolbar.h"
#include "runtime/controls/view_lookup.h"
#include "runtime/controls/view_tag.h"
#include "runtime/controls/visual_effect_view.h"
#include "tests/controls/site_helper.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QFrame>
#include <QLineEdit>
#include <QMenuBar>
#include <QSlider>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeView>

#include <memory>

using namespace tetrad;

namespace {

class Lookup : public WindowTest
{
protected:
    template <typename View = QWidget>
    static View *named(QWidget *parent, const QString &identifier)
    {
        auto *const view = new View(parent);
        view->setObjectName(identifier);
        return view;
    }
    template <typename View = QPushButton>
    static View *tagged(QWidget *parent, Tag tag)
    {
        auto *const view = new View(parent);
        setObjectTag(view, tag);
        return view;
    }
};

TEST_F(Lookup, ReadsEachClassesTagInItsPlace)
{
    QWidget *const content = open(1)->contentView();
    QWidget *const plain = named(content, u"7"_qs);
    QWidget *const trailing = named(content, u"14 apples"_qs);
    QWidget *const effect = named<VisualEffectView>(content, u"10"_qs);
    named<QPushButton>(content, u"8"_qs);
    named<QFrame>(content, u"13"_qs);
    tagged<QWidget>(content, 9);
    QWidget *const button = tagged(content, 5);
    QWidget *const inner = tagged<ContentViewSC>(content, 11);
    const Table<Tag, QWidget *> rows = {
        {"no view", 0, nullptr},
        {"unknown", 99, nullptr},
        {"negative", -5, nullptr},
        {"plain view by its identifier", 7, plain},
        {"number with text behind it", 14, trailing},
        {"visual-effect view by its identifier", 10, effect},
        {"button by its tag", 5, button},
        {"inner content view by its tag", 11, inner},
        {"a button's identifier does not count", 8, nullptr},
        {"nor does that of a class derived from the plain view", 13, nullptr},
        {"a plain view's tag does not count", 9, nullptr},
        {"the content view itself", contentViewTag, content},
        {"a view in place of a tag", tagFromObject(effect), effect},
    };
    for (const auto &[name, tag, found] : rows) {
        EXPECT_EQ(CUI_ViewWithTag(tag), found) << name;
    }
    EXPECT_EQ(CUI_ViewSubviewWithTag(content, 0), content->findChild<QPushButton *>(u"8"_qs))
        << "a view without a tag counts as 0";
}

TEST_F(Lookup, ReportsAndSearchesByDifferentTags)
{
    QWidget *const content = open(1)->contentView();
    setObjectTag(content, 70);
    QWidget *const effect = named<VisualEffectView>(content, u"10"_qs);
    setObjectTag(effect, 71);
    QWidget *const plain = named(content, u"12"_qs);
    setObjectTag(plain, 72);
    EXPECT_EQ(CUI_ViewSearchTag(content), 70);
    EXPECT_EQ(CUI_ViewTag(content), contentViewTag);
    EXPECT_EQ(CUI_ViewSearchTag(effect), 10);
    EXPECT_EQ(CUI_ViewTag(effect), 71);
    EXPECT_EQ(CUI_ViewSearchTag(plain), 12);
    EXPECT_EQ(CUI_ViewTag(plain), 12);
    EXPECT_EQ(CUI_ViewWindowTag(plain), 1);
}

TEST_F(Lookup, GoesDepthFirstAndTakesTheFirst)
{
    QWidget *const content = open(1)->contentView();
    QWidget *const box = named(content, {});
    QWidget *const deeper = named(box, {});
    QWidget *const deep = tagged(deeper, 3);
    QWidget *const shallow = tagged(content, 3);
    EXPECT_EQ(CUI_ViewWithTag(3), deep) << "what lies in an earlier subview comes before a later subview";
    QWidget *const outer = tagged(content, 4);
    tagged(outer, 4);
    EXPECT_EQ(CUI_ViewWithTag(4), outer) << "a view comes before what lies in it";
    box->raise();
    EXPECT_EQ(CUI_ViewWithTag(3), shallow) << "the order is that of the subviews now";
    QDialog dialog(content);
    tagged(&dialog, 6);
    EXPECT_EQ(CUI_ViewWithTag(6), nullptr) << "another window";
}

TEST_F(Lookup, SearchesAllTabsAndNoSegments)
{
    QWidget *const content = open(1)->contentView();
    auto *const tabs = tagged<QTabWidget>(content, 20);
    tabs->addTab(named(nullptr, u"24"_qs), u"One"_qs);
    tabs->addTab(named(nullptr, {}), u"Two"_qs);
    QWidget *const second = tagged(tabs->widget(1), 21);
    tagged(tabs->widget(1), 22);
    QWidget *const firstOfTwo = tagged(tabs->widget(0), 22);
    auto *const segments = tagged<SegmentedControl>(content, 30);
    segments->setLabels({u"a"_qs, u"b"_qs});
    setObjectTag(segments->findChildren<QAbstractButton *>().constLast(), 31);
    ASSERT_EQ(tabs->currentIndex(), 0);
    EXPECT_EQ(CUI_ViewWithTag(20), tabs);
    EXPECT_EQ(CUI_ViewWithTag(21), second) << "not the selected tab";
    EXPECT_EQ(CUI_ViewWithTag(22), firstOfTwo) << "in the order of the tabs, not of creation";
    EXPECT_EQ(CUI_ViewWithTag(24), nullptr) << "a tab's own view is not compared";
    EXPECT_EQ(CUI_ViewWithTag(30), segments);
    EXPECT_EQ(CUI_ViewWithTag(31), nullptr);
}

TEST_F(Lookup, TakesTheShownPopoverThenTheOutputWindowThenTheFront)
{
    EXPECT_EQ(CUI_ViewWithTag(3), nullptr);
    EXPECT_EQ(CUI_ViewWithTag(contentViewTag), nullptr);
    QWidget *const one = open(1)->contentView();
    QWidget *const two = open(2)->contentView();
    QWidget *const inOne = tagged(one, 3);
    QWidget *const inTwo = tagged(two, 3);
    Popover popover(9, QSize(100, 50));
    QWidget *const inPopover = tagged(popover.contentView(), 3);
    EXPECT_EQ(CUI_ViewWithTag(3), inTwo);
    CUI_OutputWindowSetTag(1);
    EXPECT_EQ(CUI_ViewWithTag(3), inOne);
    CUI_OutputWindowSetTag(0);
    EXPECT_EQ(CUI_ViewWithTag(3), inTwo) << "the frontmost window";
    CUI_OutputWindowSetTag(9);
    EXPECT_EQ(CUI_ViewWithTag(3), inPopover) << "a hidden popover as the output window";
    CUI_OutputWindowSetTag(1);
    popover.showRelativeTo(one, QRect(), Qt::BottomEdge);
    EXPECT_EQ(CUI_ViewWithTag(3), inPopover);
    EXPECT_EQ(CUI_ViewWindowTag(inPopover), 9);
    CUI_OutputWindowSetTag(1);
    EXPECT_EQ(CUI_ViewWithTag(contentViewTag), one) << "not the popover's";
}

TEST_F(Lookup, FindsAccessoriesAndToolbarItems)
{
    QWidget *const content = open(1)->contentView();
    Window *const window = CUI_WindowWithTag(1);
    const QSize before = content->size();
    QWidget *const accessory = named<QFrame>(nullptr, u"40"_qs);
    accessory->setFixedSize(30, 20);
    CUI_WindowAddTitlebarAccessoryView(window, accessory);
    auto *const second = new QWidget;
    QWidget *const inAccessory = tagged(second, 41);
    CUI_WindowAddTitlebarAccessoryView(window, second);
    CUI_Toolbar(50);
    QAction *const item = CUI_ToolbarAddItem(50, 42, u"Go"_qs);
    auto *const view = new QSlider;
    CUI_ToolbarAddViewItem(50, 43, view);
    CUI_ToolbarAddItem(50, 41, u"Hidden behind the accessory"_qs);
    QToolBar *const toolbar = CUI_WindowToolbar(window);

    EXPECT_TRUE(QTest::qWaitFor([&] { return toolbar->isVisible() && toolbar->height() >= view->height(); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return content->size() == before; })) << "neither is taken from the content";
    EXPECT_GE(window->menuBar()->height(), 20) << "beside no menus too";
    EXPECT_TRUE(accessory->isVisible());
    EXPECT_EQ(titlebarAccessoryViews(window), QList<QWidget *>({accessory, second}));
    EXPECT_EQ(CUI_ViewWithTag(40), accessory) << "by the identifier, whatever its class";
    EXPECT_EQ(CUI_ViewWithTag(41), inAccessory);
    EXPECT_EQ(CUI_ViewWithTag(42), toolbar->widgetForAction(item));
    EXPECT_EQ(CUI_ViewWithTag(43), view);
    EXPECT_EQ(ToolbarItemWithTag(toolbar, 0), nullptr);
    QWidget *const inContent = tagged(content, 42);
    EXPECT_EQ(CUI_ViewWithTag(42), inContent) << "the content comes first";
    delete inContent;

    CUI_OutputWindowSetTag(0);
    EXPECT_EQ(TitlebarAccessoryViewWithTag(40), nullptr) << "the output window's only";
    EXPECT_EQ(CUI_ViewWithTag(43), view) << "the front window's tool bar";
    CUI_OutputWindowSetTag(1);
    window->setStyleMask(windowStyleBorderless);
    EXPECT_EQ(TitlebarAccessoryViewWithTag(40), nullptr) << "no title bar";
    EXPECT_EQ(alertsOf([] { CUI_ToolbarAddItem(51, 1, {}); }), u"Tag error.|Can't find tool bar 51 in window 1."_qs);
}

TEST_F(Lookup, TellsWhatIsWrong)
{
    QWidget *const content = open(1)->contentView();
    QWidget *const plain = named(content, u"5"_qs);
    QWidget *const button = tagged(content, 6);
    QAction action;
    const auto hex = [](const QObject *object) -> QString {
        return u"0x"_qs + QString::number(tagFromObject(object), 16);
    };
    const Table<Tag, QString, QWidget *, QString> rows = {
        {"a control", 6, u"NSControl"_qs, button, {}},
        {"its own class", 6, u"NSButton"_qs, button, {}},
        {"a control as an object", tagFromObject(button), u"NSControl"_qs, button, {}},
        {"content view", contentViewTag, u"NSView"_qs, content, {}},
        {"tag 0", 0, u"NSControl"_qs, nullptr, u"Tag error.|Can't find view 0 in window 1."_qs},
        {"unknown", -4, u"NSControl"_qs, nullptr, u"Tag error.|Can't find view -4 in window 1."_qs},
        {"plain view", 5, u"NSControl"_qs, nullptr,
         u"Class error.|View 5 (NSView), in window 1, cannot respond to NSControl messages."_qs},
        {"other control", 6, u"NSSlider"_qs, nullptr,
         u"Class error.|View 6 (NSButton), in window 1, cannot respond to NSSlider messages."_qs},
        {"content view", contentViewTag, u"NSControl"_qs, nullptr,
         u"Class error.|View -1437226411 (ContentViewSC), in window 1, cannot respond to NSControl messages."_qs},
        {"object", tagFromObject(plain), u"NSControl"_qs, nullptr,
         u"Class error.|View <NSView: %1> cannot respond to NSControl messages."_qs.arg(hex(plain))},
        {"object that is no view", tagFromObject(&action), u"NSView"_qs, nullptr,
         u"Class error.|View <NSToolbarItem: %1> cannot respond to NSView messages."_qs.arg(hex(&action))},
    };
    for (const auto &[name, argument, className, expected, alert] : rows) {
        SCOPED_TRACE(name);
        const QWidget *found = nullptr;
        EXPECT_EQ(alertsOf([&, a = argument, c = className] { found = CUI_ValidateViewKindOfClass(a, c); }), alert);
        EXPECT_EQ(found, expected);
    }
}

TEST_F(Lookup, TellsWhenThereIsNoWindow)
{
    QWidget *found = nullptr;
    EXPECT_EQ(alertsOf([&] { found = ControlWithTag(3); }), u"Error.|Can't find any windows."_qs);
    EXPECT_EQ(found, nullptr);
    QPushButton loose;
    EXPECT_EQ(alertsOf([&] { found = ControlWithTag(tagFromObject(&loose)); }), QString());
    EXPECT_EQ(found, &loose) << "an object needs no window";
    EXPECT_EQ(alertsOf([&] { CUI_Button(3, u"x"_qs, {}); }), u"Error.|Can't find any windows."_qs);
}

TEST_F(Lookup, NamesClassesByTheirNearestName)
{
    const auto row = [](const QObject &object, const QString &name, bool isControl) {
        SCOPED_TRACE(object.metaObject()->className());
        EXPECT_EQ(viewClassName(&object), name);
        EXPECT_EQ(isKindOfViewClass(&object, u"NSControl"), isControl);
        EXPECT_EQ(isKindOfViewClass(&object, u"NSView"), qobject_cast<const QWidget *>(&object) != nullptr);
        EXPECT_FALSE(isKindOfViewClass(&object, u"NSNothing"));
    };
    row(QWidget(), u"NSView"_qs, false);
    row(QFrame(), u"NSView"_qs, false);
    row(QCheckBox(), u"NSButton"_qs, true);
    row(QSlider(), u"NSSlider"_qs, true);
    row(QLineEdit(), u"NSTextField"_qs, true);
    row(QTreeView(), u"NSOutlineView"_qs, true);
    row(QTabWidget(), u"NSTabView"_qs, false);
    row(SegmentedControl(), u"NSSegmentedControl"_qs, true);
    row(VisualEffectView(), u"NSVisualEffectView"_qs, false);
    row(QAction(), u"NSToolbarItem"_qs, false);
    EXPECT_TRUE(isKindOfViewClass(std::make_unique<QTreeView>().get(), u"NSTableView"));
    QFrame frame;
    EXPECT_FALSE(isExactlyViewClass(&frame, u"NSView"));
}

} // namespace
