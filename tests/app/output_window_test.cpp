#include <tetrad/app/windows.h>

#include "tests/app/alert_helper.h"
#include <tetrad/app/content_view.h>
#include <tetrad/app/popover.h>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

using OutputWindow = WindowTest;

TEST_F(OutputWindow, IsFoundByTheAbsoluteTag)
{
    Popover popover(9, QSize(100, 50));
    Window *const one = open(1);
    Window *const hidden = open(-2);
    const Table<Tag, Tag, QWidget *, QWidget *> rows = {
        {"none", 0, 0, nullptr, nullptr},
        {"window", 1, 1, one, one->contentView()},
        {"hidden window, negative tag", -2, 2, hidden, hidden->contentView()},
        {"popover", 9, 9, &popover, popover.contentView()},
        {"unknown", -5, 5, nullptr, nullptr},
    };
    for (const auto &[name, set, stored, output, contentView] : rows) {
        SCOPED_TRACE(name);
        CUI_OutputWindowSetTag(set);
        EXPECT_EQ(CUI_OutputWindowTag(), stored);
        EXPECT_EQ(CUI_OutputWindow(), output);
        EXPECT_EQ(CUI_OutputWindowContentView(), contentView);
        EXPECT_EQ(CUI_TargetWithTag(set), output);
    }
}

TEST_F(OutputWindow, TargetIsTheOutputWindowElseTheFrontmost)
{
    Tag none = 0;
    EXPECT_EQ(CUI_TargetWindow(&none), nullptr);
    EXPECT_EQ(none, 0);
    open(1);
    open(2);
    open(-3);
    const Table<Tag, Tag, Tag, Tag> rows = {
        {"output window, though hidden", 3, 0, 3, 3},
        {"no output window: the frontmost", 0, 0, 2, 2},
        {"output tag of no window: the frontmost", 8, 0, 2, 2},
        {"a tag", 3, -1, 1, -1},
        {"an unknown tag", 3, 8, 0, 8},
    };
    for (const auto &[name, output, asked, found, writtenBack] : rows) {
        SCOPED_TRACE(name);
        CUI_OutputWindowSetTag(output);
        Tag tag = asked;
        EXPECT_EQ(CUI_TargetWindow(&tag), CUI_WindowWithTag(found));
        EXPECT_EQ(tag, writtenBack);
    }
}

TEST_F(OutputWindow, WindowsCannotTakeAPopoversTag)
{
    Popover popover(9, QSize(100, 50));
    QString warning;
    whenAlertRuns([&warning](Alert *alert) {
        warning = alert->text() % u' ' % alert->informativeText();
        clicks(0)(alert);
    });
    open(-9);
    EXPECT_TRUE(QTest::qWaitFor([&warning] { return !warning.isNull(); }));
    EXPECT_EQ(warning, u"Window tag error. Windows and Popovers cannot have same tag value."_s);
    EXPECT_EQ(CUI_WindowWithTag(9), nullptr);
    EXPECT_EQ(CUI_OutputWindowTag(), 0);
}

TEST_F(OutputWindow, PopoverStandsBesideItsAnchorAndClosesByEscapeIfItMay)
{
    QWidget *const view = open(1)->contentView();
    Popover popover(9, QSize(100, 50));
    popover.setBehavior(popoverTransient);
    bool agrees = false;
    QObject::connect(&popover, &Popover::shouldClose, [&](bool *answer) { *answer = agrees; });
    const QRect anchor(100, 100, 20, 10);
    popover.showRelativeTo(view, anchor, Qt::BottomEdge);
    EXPECT_EQ(CUI_PopoverShown(), &popover);
    EXPECT_EQ(popover.contentView()->size(), QSize(100, 50));
    EXPECT_EQ(popover.y(), view->mapToGlobal(anchor.bottomLeft()).y() + 1);
    for (const bool lets : {false, true}) {
        agrees = lets;
        QTest::keyClick(&popover, Qt::Key_Escape);
        EXPECT_EQ(popover.isVisible(), !lets);
    }
    popover.showRelativeTo(view, QRect(100, -view->mapToGlobal(QPoint()).y(), 20, 10), Qt::TopEdge);
    EXPECT_GT(popover.y(), 0) << "no room above: below";
}

} // namespace
