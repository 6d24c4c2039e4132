#include "tests/support/windows.h"

#include <QGroupBox>
#include <QToolBar>

using namespace tetrad;

namespace {

using Windows = WindowTest;

TEST_F(Windows, StatementMakesAndShows)
{
    const Table<Tag, QRectF, QSizeF, bool, bool> rows = {
        {"empty rectangle", 1, QRectF(), QSizeF(550, 400), true, true},
        {"size without height counts as empty", 1, QRectF(10, 10, 300, 0), QSizeF(550, 400), true, true},
        {"origin (0, 0)", 1, QRectF(0, 0, 580, 250), QSizeF(580, 250), true, true},
        {"another origin", 1, QRectF(40, 60, 300, 200), QSizeF(300, 200), false, true},
        {"origin (0, y)", 1, QRectF(0, 60, 300, 200), QSizeF(300, 200), false, true},
        {"negative tag hides", -1, QRectF(0, 0, 300, 200), QSizeF(300, 200), true, false},
    };
    for (const auto &[name, tag, rect, size, centred, shown] : rows) {
        SCOPED_TRACE(name);
        Window *const window = open(tag, rect);
        EXPECT_EQ(window->contentRect().size(), size);
        const QPoint off = window->frameGeometry().center() - window->screen()->availableGeometry().center();
        EXPECT_EQ(std::abs(off.x()) <= 2 && std::abs(off.y()) <= 12, centred);
        // The offscreen platform keeps the 2 pixels of its frame on the screen.
        EXPECT_TRUE(centred || (window->contentRect().topLeft() - rect.topLeft()).manhattanLength() <= 2);
        EXPECT_EQ(window->isVisible(), shown);
        EXPECT_EQ(CUI_OutputWindowTag(), 1);
        delete window;
    }
    const Window *const large = open(1, QRectF(0, 0, 2000, 1500));
    EXPECT_TRUE(large->screen()->availableGeometry().contains(large->frameGeometry().topLeft())) << "its title bar";
}

TEST_F(Windows, StatementChangesWhatIsGiven)
{
    CUI_Window(-1, u"First"_s, windowStyleTitled, QRectF(50, 70, 300, 200));
    Window *const window = CUI_WindowWithTag(1);
    const QRectF moved(80, 90, 400, 100);
    const Table<Tag, QString, qint64, QRectF, QString> rows = {
        {"shows the hidden one", 1, {}, notGiven, {}, u"First: content 300x200 at 50,70, style 1, key"_s},
        {"title only", 1, u"Second"_s, notGiven, {}, u"Second: content 300x200 at 50,70, style 1, key"_s},
        {"empty title", 1, u""_s, notGiven, {}, u": content 300x200 at 50,70, style 1, key"_s},
        {"rectangle only, fixed size", 1, {}, notGiven, moved, u": content 400x100 at 80,90, style 1, key"_s},
        {"borderless", 1, {}, 0, {}, u": content 400x100 at 80,90, style 0, key"_s},
        {"style only", 1, {}, windowStyleDefault, {}, u": content 400x100 at 80,90, style 15, key"_s},
        {"tag of the other sign hides", -1, {}, notGiven, {}, u": content 400x100 at 80,90, style 15"_s},
    };
    for (const auto &[name, tag, title, style, rect, look] : rows) {
        SCOPED_TRACE(name);
        CUI_SetSubclassFlag(true);
        CUI_Window(tag, title, style, rect);
        QApplication::processEvents();
        EXPECT_EQ(QString(window->windowTitle() % u": " % window->dump()), look);
        EXPECT_EQ(window->menuBar()->isVisible(), tag > 0 && window->styleMask() != 0);
        EXPECT_FALSE(CUI_IsSubclassFlag());
    }
    EXPECT_EQ(orderedWindows(), QList<Window *>{window});
    EXPECT_FALSE(window->isVisible());
}

TEST_F(Windows, InitTakesAnyTagAndTheFlagOnceLookupFindsTheFirst)
{
    CUI_SetSubclassFlag(true);
    Window *const first = WindowInit(5, QRectF(40, 60, 300, 200));
    Window *const second = WindowInit(5, QRectF(40, 60, 300, 200));
    Window *const negative = WindowInit(-6, QRectF(40, 60, 300, 200));
    EXPECT_FALSE(first->isVisible());
    EXPECT_EQ(CUI_AppDelegateObj()->windows, (QList<Window *>{first, second, negative}));
    EXPECT_TRUE(qobject_cast<WindowSC *>(first) && !qobject_cast<WindowSC *>(second));
    EXPECT_TRUE(CUI_WindowWithTag(5) == first && CUI_WindowWithTag(-5) == first);
    EXPECT_EQ(CUI_WindowWithTag(tagFromObject(second)), second);
    EXPECT_TRUE(!CUI_WindowWithTag(6) && !CUI_WindowWithTag(0) && !CUI_WindowWithTag(largestTag));
    CUI_OutputWindowSetTag(1);
    CUI_WindowSubclassAwakeFromNib(second);
    EXPECT_EQ(CUI_OutputWindowTag(), 5);
}

TEST_F(Windows, ContentStaysThroughMenuBarsAndTinyWindows)
{
    for (const qint64 style : {qint64(windowStyleTitled), qint64(windowStyleDefault)}) {
        CUI_Window(1, QString(), style, QRectF(40, 60, 300, 200));
        Window *const window = CUI_WindowWithTag(1);
        const auto shrinkForAWhile = [window] {
            const QSize size = window->size();
            for (const QSize tiny : {QSize(1, 1), QSize(200, 1), QSize(1, 100), size}) {
                window->resize(tiny);
                QApplication::processEvents();
                EXPECT_GT(window->width(), 0);
            }
        };
        const Table<std::function<void()>> rows = {
            {"made", [] {}},
            {"menus added", [] { CUI_EditMenu(2); }},
            {"bar taken out of the window", [window] { window->menuBar()->hide(); }},
            {"bar put back", [window] { window->menuBar()->show(); }},
            {"tool bar added", [window] { window->addToolBar(u"Bar"_s)->addAction(u"Item"_s); }},
            {"tiny for a while", shrinkForAWhile},
        };
        for (const auto &[name, happening] : rows) {
            happening();
            QApplication::processEvents();
            EXPECT_EQ(window->contentRect(), QRectF(40, 60, 300, 200)) << name;
        }
        send<QContextMenuEvent>(window->menuBar(), QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(50, 70));
        EXPECT_FALSE(QApplication::activePopupWidget()) << "a menu that hides the tool bar";
        window->resize(window->width() + 20, window->height() + 30);
        QApplication::processEvents();
        const QSizeF grown = style & windowStyleResizable ? QSizeF(320, 230) : QSizeF(300, 200);
        EXPECT_EQ(window->contentRect().size(), grown) << "resized by the program";
        delete window;
    }
}

TEST_F(Windows, FrontToBackOrder)
{
    Window *const one = open(1);
    Window *const two = open(2);
    Window *const hidden = WindowInit(3, QRectF());
    open(1, QRectF());
    EXPECT_EQ(CUI_FrontWindow(), one);
    two->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(two));
    EXPECT_EQ(orderedWindows(), (QList<Window *>{two, one, hidden}));
    open(-2, QRectF());
    EXPECT_EQ(CUI_FrontWindow(), one);
    open(-1, QRectF());
    EXPECT_EQ(CUI_FrontWindow(), nullptr);
    two->showMinimized();
    open(2, QRectF());
    EXPECT_FALSE(two->isMinimized());
}

TEST_F(Windows, BackgroundColoursTheContentOnly)
{
    Window *const window = open(1);
    QWidget child(window->contentView());
    const auto colour = [window] { return window->contentView()->grab().toImage().pixelColor(5, 5); };
    const QPalette plain = QApplication::palette();
    EXPECT_EQ(colour(), plain.color(QPalette::Window));
    WindowSetBackgroundColor(-1, Qt::red);
    EXPECT_EQ(colour(), QColor(Qt::red));
    for (const QPalette &palette : {window->menuBar()->palette(), child.palette()}) {
        EXPECT_EQ(palette.color(QPalette::Window), plain.color(QPalette::Window));
        EXPECT_EQ(palette.color(QPalette::Base), plain.color(QPalette::Base));
    }
}

TEST_F(Windows, ClosingReleasesUnlessSetOtherwiseAndIsReportedOnceWhileTheWindowIsKnown)
{
    // Whether it is released as set before it closes, and as set by the callback.
    static bool released = false;
    for (const auto &[before, later] : {std::pair(true, true), {false, false}, {true, false}}) {
        QPointer<Window> window = open(1);
        window->setReleasedWhenClosed(before);
        released = later;
        window->setCuiWindowCallback([](Tag tag, qint64 event, void *) {
            if (event == windowEventWillClose) {
                dialogCalls << u"will close"_s;
                CUI_WindowWithTag(tag)->setReleasedWhenClosed(released);
                CUI_WindowWithTag(tag)->close(); // already closing
            }
        });
        EXPECT_TRUE(window->close());
        EXPECT_EQ(std::exchange(dialogCalls, {}), QStringList{u"will close"_s});
        EXPECT_EQ(CUI_AppDelegateObj()->windows.contains(window), !released);
        EXPECT_EQ(CUI_WindowWithTag(1), released ? nullptr : window.data());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(window.isNull(), released);
    }
    EXPECT_TRUE(open(1, QRectF())->isVisible());
}

TEST_F(Windows, TabGoesByPosition)
{
    Window *const window = open(1);
    QList<QLineEdit *> fields;
    for (const QPoint place : {QPoint(10, 90), QPoint(120, 10), QPoint(10, 10), QPoint(10, 50)}) {
        fields.append(new QLineEdit(window->contentView()));
        fields.last()->setGeometry(QRect(place, QSize(80, 25)));
        fields.last()->show();
    }
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    fields[2]->setFocus();
    for (const int next : {1, 3, 0, 2}) {
        QTest::keyClick(window, Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), fields[next]) << next;
    }
}

TEST_F(Windows, AreDumpedWithTheirViews)
{
    CUI_Window(7, u"Title"_s, windowStyleBorderless, QRectF(50, 70, 300, 200));
    QWidget *const content = CUI_WindowWithTag(7)->contentView();
    QGroupBox group(u"group"_s, content);
    QLineEdit field(u"text"_s, &group);
    group.setGeometry(1, 2, 30, 40);
    field.setGeometry(3, 4, 20, 10);
    setObjectTag(&field, 5);
    group.show();
    const QWidget plain(&group);
    field.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(content->window()));
    const QString seen = dumpViews();
    EXPECT_TRUE(seen.contains(u"tetrad::Window tag 7 (50,70 300x200) \"Title\"\n"
                              "  | content 300x200 at 50,70, style 0, key\n"
                              "  tetrad::ContentViewSC #-1437226411 (0,0 300x200)\n"
                              "    QGroupBox (1,2 30x40) \"group\"\n"
                              "      QLineEdit tag 5 (3,4 20x10) focus \"text\"\n"
                              "      QWidget (0,0 100x30) hidden\n"_s))
        << seen.toStdString();
}

TEST_F(Windows, TargetIsTheOutputWindowElseTheFrontmost)
{
    Tag none = 0;
    EXPECT_EQ(CUI_TargetWindow(&none), nullptr);
    EXPECT_EQ(none, 0);
    open(1);
    open(2);
    open(-3);
    const Table<Tag, Tag, Tag, Tag> rows = {
        {"output window, though hidden, of either sign", -3, 0, 3, 3},
        {"no output window: the frontmost", 0, 0, 2, 2},
        {"output tag of no window: the frontmost", 8, 0, 2, 2},
        {"a tag", 3, -1, 1, -1},
        {"an unknown tag", 3, 8, 0, 8},
    };
    for (const auto &[name, output, given, found, writtenBack] : rows) {
        CUI_OutputWindowSetTag(output);
        Tag tag = given;
        EXPECT_EQ(CUI_TargetWindow(&tag), CUI_WindowWithTag(found)) << name;
        EXPECT_EQ(tag, writtenBack) << name;
    }
}

TEST_F(Windows, PopoverIsNextToItsAnchorAndKeepsItsTag)
{
    QWidget *const view = open(1)->contentView();
    Popover popover(9, QSize(100, 50));
    const Table<Qt::Edge, QRect, QPoint> rows = {
        {"above", Qt::TopEdge, QRect(100, 100, 20, 10), QPoint(59, 48)},
        {"no room on the left", Qt::LeftEdge, QRect(10, 100, 20, 10), QPoint(30, 79)},
        {"no room on either side", Qt::LeftEdge, QRect(0, 100, 2000, 10), QPoint(-102, 79)},
        {"on the right", Qt::RightEdge, QRect(100, 100, 20, 10), QPoint(120, 79)},
        {"below", Qt::BottomEdge, QRect(100, 100, 20, 10), QPoint(59, 110)},
    };
    for (const auto &[name, edge, rect, position] : rows) {
        SCOPED_TRACE(name);
        const bool isTransient = edge != Qt::BottomEdge; // One of each kind is enough for Escape.
        popover.setBehavior(isTransient ? popoverTransient : popoverApplicationDefined);
        popover.showRelativeTo(view, rect, edge);
        EXPECT_EQ(popover.geometry(), QRect(view->mapToGlobal(position), QSize(102, 52)));
        EXPECT_EQ(send<QKeyEvent>(&popover, QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier), isTransient);
        EXPECT_EQ(popover.isVisible(), !isTransient);
    }
    EXPECT_EQ(CUI_PopoverShown(), &popover);
    EXPECT_EQ(alertsOf([] { CUI_Window(-9, {}, notGiven, {}); }),
              u"Window tag error.|Windows and Popovers cannot have same tag value."_s);
    EXPECT_EQ(CUI_WindowWithTag(9), nullptr);
    EXPECT_EQ(CUI_OutputWindowTag(), 1);
    auto *const later = new Popover(8, QSize(100, 50));
    later->showRelativeTo(view, QRect(), Qt::BottomEdge);
    EXPECT_EQ(CUI_PopoverShown(), later);
    delete later;
    EXPECT_TRUE(CUI_PopoverShown() == &popover && !CUI_PopoverWithTag(8));
}

} // namespace
