#include "runtime/app/window_delegate.h"

#include "runtime/app/app_delegate.h"
#include "runtime/app/application.h"
#include "runtime/app/content_view.h"
#include "runtime/app/current_event.h"
#include "runtime/app/output_window.h"
#include "runtime/app/windows.h"
#include "runtime/controls/dialog_event.h"
#include "runtime/controls/view_events.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

#include <functional>

namespace tetrad {

namespace {

using Codes = QList<qint64>;
using Delegate = CUI_WindowDelegate;

struct Call
{
    qint64 event = 0;
    Tag tag = 0;
    Tag wndTag = 0;
    qint64 obj = 0;

    friend bool operator==(const Call &, const Call &) = default;
};

QList<Call> calls;
std::function<void(qint64)> onEvent;

qint64 record(qint64 event, Tag tag, Tag wndTag, qint64 obj)
{
    calls.append({event, tag, wndTag, obj});
    if (onEvent) {
        onEvent(event);
    }
    return 0;
}

// The codes reported since the last call, without the repaints.
Codes takeCodes()
{
    QApplication::processEvents();
    Codes codes;
    for (const Call &call : std::exchange(calls, {})) {
        codes.append(call.event);
    }
    codes.removeAll(windowEventDidUpdate);
    return codes;
}

class WindowDelegate : public testing::Test
{
protected:
    void SetUp() override
    {
        CUI_Window(7, QString(), windowStyleDefault, QRectF(40, 60, 300, 200));
        m_window = CUI_WindowWithTag(7);
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window));
        QApplication::processEvents();
        CUI_SetOnDialogFunction(record);
        calls.clear();
    }

    void TearDown() override
    {
        onEvent = nullptr;
        CUI_SetOnDialogFunction(nullptr);
        CUI_WindowDelegateObj()->allWindowsCallback = nullptr;
        const QList<Window *> left = orderedWindows();
        qDeleteAll(left);
        CUI_OutputWindowSetTag(0);
    }

    // What the window system does when the user drags an edge or the title bar.
    void userResizes(const QSize &by) { m_window->windowHandle()->resize(m_window->size() + by); }
    void userMoves(const QPoint &by)
    {
        m_window->windowHandle()->setPosition(m_window->windowHandle()->position() + by);
    }

    QPointer<Window> m_window;
};

TEST_F(WindowDelegate, NotificationsAndTheOutputWindow)
{
    struct Row
    {
        qint64 code;
        void (Delegate::*notification)(Window *);
        bool setsOutput;
    };
    const Row rows[] = {
        {10001, &Delegate::windowWillBeginSheet, true},
        {10002, &Delegate::windowDidEndSheet, true},
        {10004, &Delegate::windowDidResize, false},
        {10005, &Delegate::windowWillStartLiveResize, false},
        {10006, &Delegate::windowDidEndLiveResize, true},
        {10007, &Delegate::windowWillMiniaturize, false},
        {10008, &Delegate::windowDidMiniaturize, false},
        {10009, &Delegate::windowDidDeminiaturize, true},
        {10014, &Delegate::windowWillEnterFullScreen, false},
        {10015, &Delegate::windowDidEnterFullScreen, true},
        {10016, &Delegate::windowWillExitFullScreen, false},
        {10017, &Delegate::windowDidExitFullScreen, true},
        {10022, &Delegate::windowDidFailToEnterFullScreen, false},
        {10025, &Delegate::windowDidFailToExitFullScreen, false},
        {10026, &Delegate::windowWillMove, true},
        {10027, &Delegate::windowDidMove, true},
        {10028, &Delegate::windowDidChangeScreen, true},
        {10032, &Delegate::windowWillClose, false},
        {10033, &Delegate::windowDidBecomeKey, true},
        {10034, &Delegate::windowDidResignKey, false},
        {10035, &Delegate::windowDidBecomeMain, true},
        {10036, &Delegate::windowDidResignMain, false},
        {10037, &Delegate::windowDidUpdate, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.code);
        CUI_OutputWindowSetTag(99);
        Tag outputDuringCall = 0;
        onEvent = [&](qint64) { outputDuringCall = CUI_OutputWindowTag(); };
        calls.clear();
        (CUI_WindowDelegateObj()->*row.notification)(m_window);
        EXPECT_EQ(calls, QList<Call>({{row.code, 7, 7, 0}}));
        EXPECT_EQ(outputDuringCall, row.setsOutput ? 7 : 99);
    }
}

TEST_F(WindowDelegate, QuestionsAndAnswers)
{
    Delegate *const delegate = CUI_WindowDelegateObj();
    CUI_DialogEvent *const event = CUI_DialogEventObj();
    QMenu menu;
    QWidget sheet;
    const QRectF rect(1, 2, 30, 40);
    const QRectF otherRect(5, 6, 70, 80);
    const QSizeF size(30, 40);
    const QSizeF otherSize(70, 80);
    struct Row
    {
        qint64 code;
        std::function<QVariant()> ask;
        std::function<QVariant()> stored;
        QVariant proposed;
        std::function<void()> answer;
        QVariant answered;
        const QObject *obj;
        bool setsOutput;
    };
    const auto sizeStored = [event] { return QVariant(event->sizeVal); };
    const auto rectStored = [event] { return QVariant(event->rectVal); };
    const auto boolStored = [event] { return QVariant(event->boolVal); };
    const auto otherSizeGiven = [&] { event->sizeVal = otherSize; };
    const auto otherRectGiven = [&] { event->rectVal = otherRect; };
    const auto refused = [event] { event->boolVal = false; };
    const Row rows[] = {
        {10000, [&] { return QVariant(delegate->windowWillPositionSheet(m_window, &sheet, rect)); }, rectStored, rect,
         otherRectGiven, otherRect, &sheet, false},
        {10003, [&] { return QVariant(delegate->windowWillResize(m_window, size)); }, sizeStored, size, otherSizeGiven,
         otherSize, nullptr, true},
        {10010, [&] { return QVariant(delegate->windowWillUseStandardFrame(m_window, rect)); }, rectStored, rect,
         otherRectGiven, otherRect, nullptr, false},
        {10011, [&] { return QVariant(delegate->windowShouldZoom(m_window, rect)); }, boolStored, true, refused, false,
         nullptr, false},
        {10011, [&] { return QVariant(delegate->windowShouldZoom(m_window, rect)); }, rectStored, rect, [] {}, true,
         nullptr, false},
        {10012, [&] { return QVariant(delegate->windowWillUseFullScreenContentSize(m_window, size)); }, sizeStored,
         size, otherSizeGiven, otherSize, nullptr, false},
        {10013, [&] { return QVariant(delegate->windowWillUseFullScreenPresentationOptions(m_window, 3)); },
         [event] { return QVariant(event->longVal); }, qint64(3), [event] { event->longVal = 12; }, qint64(12), nullptr,
         false},
        {10031, [&] { return QVariant(delegate->windowShouldClose(m_window)); }, boolStored, true, refused, false,
         nullptr, false},
        {10038, [&] { return QVariant(delegate->windowShouldPopUpDocumentPathMenu(m_window, &menu)); }, boolStored,
         true, refused, false, &menu, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.code);
        CUI_OutputWindowSetTag(99);
        calls.clear();
        event->boolVal = false;
        QVariant proposed;
        onEvent = [&](qint64) {
            proposed = row.stored();
            row.answer();
        };
        EXPECT_EQ(row.ask(), row.answered);
        EXPECT_EQ(proposed, row.proposed);
        EXPECT_EQ(calls, QList<Call>({{row.code, 7, 7, tagFromObject(row.obj)}}));
        EXPECT_EQ(CUI_OutputWindowTag(), row.setsOutput ? 7 : 99);
    }
}

TEST_F(WindowDelegate, RelayPrefersTheNearestCallback)
{
    static QList<QPair<const char *, const void *>> got;
    static int userData = 0;
    const auto own = [](Tag tag, qint64 event, void *data) {
        EXPECT_EQ(QPair(tag, event), QPair(Tag(7), qint64(10004)));
        got.append({"own", data});
    };
    const auto all = [](Tag tag, qint64 event, void *data) {
        EXPECT_EQ(QPair(tag, event), QPair(Tag(7), qint64(10004)));
        got.append({"all", data});
    };
    m_window->setCuiWindowCallback(own);
    m_window->setCuiWindowUserData(&userData);
    CUI_WindowDelegateObj()->allWindowsCallback = all;
    CUI_WindowDelegateObj()->forwardEvent(m_window, 10004, 20, 30);
    m_window->setCuiWindowCallback(nullptr);
    CUI_WindowDelegateObj()->forwardEvent(m_window, 10004, 20, 30);
    EXPECT_TRUE(calls.isEmpty());
    CUI_WindowDelegateObj()->allWindowsCallback = nullptr;
    CUI_WindowDelegateObj()->forwardEvent(m_window, 10004, 20, 30);
    EXPECT_EQ(calls, QList<Call>({{10004, 20, 7, 30}}));
    const QList<QPair<const char *, const void *>> wanted = {{"own", &userData}, {"all", nullptr}};
    EXPECT_EQ(got, wanted);
}

TEST_F(WindowDelegate, RealEvents)
{
    struct Row
    {
        const char *name;
        std::function<void()> happening;
        Codes codes;
    };
    const QRectF place = m_window->contentRect();
    const Row rows[] = {
        {"program moves", [&] { m_window->setContentRect(place.translated(10, 10)); }, {10027}},
        {"program resizes", [&] { m_window->setContentRect(place.adjusted(10, 10, 30, 40)); }, {10004}},
        {"nothing changes", [&] { m_window->setContentRect(m_window->contentRect()); }, {}},
        {"user moves",
         [&] {
             userMoves({5, 5});
         },
         {10026, 10027}},
        {"user resizes",
         [&] {
             userResizes({5, 5});
         },
         {10005, 10003, 10004}},
        {"and goes on",
         [&] {
             userResizes({5, 5});
         },
         {10003, 10004}},
        {"minimise", [&] { m_window->showMinimized(); }, {10007, 10008}},
        {"bring back", [&] { m_window->showNormal(); }, {10009}},
        {"program closes, asked", [&] { m_window->close(); }, {10031, 10032, 10034, 10036}},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        row.happening();
        Codes codes = takeCodes();
        if (!row.codes.contains(10034)) {
            codes.removeIf([](qint64 code) { return code >= 10033 && code <= 10036; });
        }
        EXPECT_EQ(codes, row.codes);
    }
}

TEST_F(WindowDelegate, SpreadingOut)
{
    m_window->showFullScreen();
    const Codes entered = takeCodes();
    EXPECT_EQ(entered.mid(entered.indexOf(10014), 2), Codes({10014, 10015}));
    m_window->showNormal();
    const Codes left = takeCodes();
    EXPECT_EQ(left.mid(left.indexOf(10016), 2), Codes({10016, 10017}));
    QRectF standard;
    onEvent = [&](qint64 event) {
        if (event == windowEventWillUseStandardFrame) {
            standard = CUI_DialogEventObj()->rectVal;
        }
    };
    m_window->showMaximized();
    const Codes zoomed = takeCodes();
    EXPECT_EQ(zoomed.mid(zoomed.indexOf(10010), 2), Codes({10010, 10011}));
    EXPECT_EQ(standard.width(), m_window->screen()->availableGeometry().width());
    EXPECT_TRUE(m_window->isMaximized());
}

TEST_F(WindowDelegate, AnswersReachTheWindow)
{
    const QRectF place = m_window->contentRect();
    onEvent = [](qint64 event) {
        if (event == windowEventWillResize) {
            CUI_DialogEventObj()->sizeVal = QSizeF(320, 240);
        }
        CUI_DialogEventObj()->boolVal = false;
    };
    userResizes({100, 100});
    EXPECT_EQ(takeCodes(), Codes({10005, 10003, 10004}));
    EXPECT_EQ(m_window->contentRect().size(), QSizeF(320, 240));

    EXPECT_FALSE(m_window->close());
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_EQ(CUI_AppDelegateObj()->windows(), QList<Window *>{m_window});

    m_window->showMaximized();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isMaximized(); })) << "zoom refused";

    const QRectF zoomed = place.adjusted(0, 0, 60, 70);
    onEvent = [&](qint64 event) {
        if (event == windowEventWillUseStandardFrame) {
            CUI_DialogEventObj()->rectVal = zoomed;
        }
    };
    m_window->showMaximized();
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_window->contentRect() == zoomed; })) << "zoom to another frame";
    EXPECT_FALSE(m_window->isMaximized());
}

TEST_F(WindowDelegate, LiveResizeEndsWhenItStops)
{
    userResizes({5, 5});
    EXPECT_TRUE(QTest::qWaitFor([] { return calls.contains(Call{10006, 7, 7, 0}); }));
    takeCodes();
    userResizes({5, 5});
    EXPECT_EQ(takeCodes(), Codes({10005, 10003, 10004})) << "the next one is a new one";
}

TEST_F(WindowDelegate, ActivationPassesFromWindowToWindow)
{
    CUI_Window(8, QString(), windowStyleDefault, QRectF(90, 90, 100, 100));
    ASSERT_TRUE(QTest::qWaitForWindowActive(CUI_WindowWithTag(8)));
    QList<Call> changes = std::exchange(calls, {});
    changes.removeIf([](const Call &call) { return call.event < 10033 || call.event > 10036; });
    const QList<Call> wanted = {{10033, 8, 8, 0}, {10035, 8, 8, 0}, {10034, 7, 7, 0}, {10036, 7, 7, 0}};
    EXPECT_EQ(changes, wanted);
    EXPECT_EQ(CUI_OutputWindowTag(), 8);
    m_window->update();
    EXPECT_TRUE(QTest::qWaitFor([] { return calls.contains(Call{10037, 7, 7, 0}); }));
}

TEST_F(WindowDelegate, CloseOrder)
{
    bool listed = false;
    bool found = false;
    onEvent = [&](qint64 event) {
        if (event == windowEventWillClose) {
            listed = CUI_AppDelegateObj()->windows().contains(m_window);
            found = CUI_WindowWithTag(7);
            m_window->close(); // already closing
        }
    };
    EXPECT_TRUE(m_window->close());
    EXPECT_TRUE(listed);
    EXPECT_TRUE(found);
    EXPECT_TRUE(CUI_AppDelegateObj()->windows().isEmpty());
    m_window->close();
    EXPECT_EQ(takeCodes().count(10032), 1);
}

// Each callback closes or deletes the window whose event it is told, or gives it another tag. Only where
// no event of the window system is being delivered may it be deleted at once.
TEST_F(WindowDelegate, SurvivesWhatCallbacksDo)
{
    struct Row
    {
        qint64 code;
        std::function<void()> happening;
        bool mayDelete = false;
    };
    const Row rows[] = {
        {10003,
         [this] {
             userResizes({9, 9});
         }},
        {10004,
         [this] {
             userResizes({9, 9});
         }},
        {10005,
         [this] {
             userResizes({9, 9});
         }},
        {10006,
         [this] {
             userResizes({9, 9});
         }},
        {10007, [this] { m_window->showMinimized(); }},
        {10010, [this] { m_window->setWindowState(Qt::WindowMaximized); }},
        {10011, [this] { m_window->setWindowState(Qt::WindowMaximized); }},
        {10026,
         [this] {
             userMoves({9, 9});
         }},
        {10027,
         [this] {
             userMoves({9, 9});
         }},
        {10031, [this] { m_window->close(); }, true},
        {10032, [this] { m_window->close(); }, true},
        {10032, [this] { CUI_WindowDelegateObj()->windowWillClose(m_window); }, true},
        {10033, [this] { QApplication::sendEvent(m_window, std::make_unique<QEvent>(QEvent::WindowActivate).get()); }},
        {10037, [this] { m_window->update(); }},
    };
    const auto destroys = [this](const Row &row) {
        row.mayDelete ? delete m_window.data() : static_cast<void>(m_window->close());
    };
    for (const bool isDestroyed : {true, false}) {
        for (const Row &row : rows) {
            SCOPED_TRACE(testing::Message() << row.code << (isDestroyed ? " destroys" : " gives another tag"));
            CUI_Window(7, QString(), windowStyleDefault, QRectF(40, 60, 300, 200));
            m_window = CUI_WindowWithTag(7);
            ASSERT_TRUE(QTest::qWaitForWindowActive(m_window));
            QApplication::processEvents();
            bool happened = false;
            onEvent = [&](qint64 event) {
                if (event == row.code && !happened) {
                    happened = true;
                    isDestroyed ? destroys(row) : m_window->setTag(70);
                }
            };
            row.happening();
            EXPECT_TRUE(QTest::qWaitFor([&] { return happened; }));
            QApplication::processEvents();
            onEvent = nullptr;
            delete m_window.data();
        }
    }
    EXPECT_TRUE(CUI_AppDelegateObj()->windows().isEmpty());
    EXPECT_TRUE(orderedWindows().isEmpty());
}

TEST_F(WindowDelegate, ContentViewEvents)
{
    auto *const view = qobject_cast<ContentViewSC *>(m_window->contentView());
    view->setResponderFlag(true);
    view->setFocus();
    const QPoint at(20, 30);
    const auto send = [view](QEvent &&event) { QApplication::sendEvent(view, &event); };
    const auto mouse = [&](QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons) {
        send(QMouseEvent(type, at, view->mapToGlobal(at), button, buttons, Qt::NoModifier));
    };
    struct Row
    {
        qint64 code;
        std::function<void()> happening;
    };
    const Row rows[] = {
        {2000, [&] { view->repaint(1, 2, 30, 40); }},
        {2002, [&] { QTest::mousePress(view, Qt::LeftButton, {}, at); }},
        {2002, [&] { QTest::mouseDClick(view, Qt::LeftButton, {}, at); }},
        {2003, [&] { mouse(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton); }},
        {2004, [&] { QTest::mouseRelease(view, Qt::LeftButton, {}, at); }},
        {2005, [&] { mouse(QEvent::MouseMove, Qt::NoButton, Qt::NoButton); }},
        {2006, [&] { send(QEnterEvent(at, at, at)); }},
        {2007, [&] { send(QEvent(QEvent::Leave)); }},
        {2008, [&] { QTest::mousePress(view, Qt::RightButton, {}, at); }},
        {2009, [&] { mouse(QEvent::MouseMove, Qt::NoButton, Qt::RightButton); }},
        {2010, [&] { QTest::mouseRelease(view, Qt::RightButton, {}, at); }},
        {2011, [&] { QTest::keyPress(view, Qt::Key_A); }},
        {2012, [&] { QTest::keyRelease(view, Qt::Key_A); }},
        {2013, [&] { QTest::keyPress(view, Qt::Key_Shift); }},
        {2026, [&] { send(QContextMenuEvent(QContextMenuEvent::Mouse, at, view->mapToGlobal(at))); }},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.code);
        view->setSubclassFlag(false);
        row.happening();
        EXPECT_TRUE(std::none_of(calls.begin(), calls.end(), [](const Call &c) { return c.event < 10000; }));
        calls.clear();
        view->setSubclassFlag(true);
        CUI_OutputWindowSetTag(99);
        CUI_DialogEventObj()->boolVal = true;
        bool preset = true;
        const QEvent *current = nullptr;
        onEvent = [&](qint64 event) {
            if (event == row.code) {
                preset = CUI_DialogEventObj()->boolVal;
                current = CUI_EventEvent();
            }
        };
        row.happening();
        EXPECT_TRUE(calls.contains(Call{row.code, contentViewTag, 7, 0}));
        EXPECT_FALSE(preset);
        EXPECT_NE(current, nullptr);
        EXPECT_EQ(CUI_EventEvent(), nullptr);
        EXPECT_EQ(CUI_OutputWindowTag(), 7);
        QApplication::processEvents();
        calls.clear();
    }
    EXPECT_EQ(CUI_DialogEventObj()->menuObj, nullptr);
    EXPECT_TRUE(view->hasMouseTracking());
}

TEST_F(WindowDelegate, ContentViewLeavesToItsBaseWhatWasNotHandled)
{
    auto *const view = qobject_cast<ContentViewSC *>(m_window->contentView());
    view->setSubclassFlag(true);
    for (const bool handled : {true, false}) {
        onEvent = [handled](qint64) { CUI_DialogEventObj()->boolVal = handled; };
        const QPointF at(20, 30);
        QMouseEvent press(QEvent::MouseButtonPress, at, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        press.setAccepted(true);
        static_cast<QObject *>(view)->event(&press);
        EXPECT_EQ(press.isAccepted(), handled) << "a plain view does not accept a mouse-down";
    }
    onEvent = [](qint64 event) {
        if (event == viewEventDraw) {
            EXPECT_EQ(CUI_DialogEventObj()->rectVal, QRectF(1, 2, 30, 40));
        }
    };
    view->repaint(1, 2, 30, 40);
    onEvent = [this](qint64) { delete m_window.data(); };
    QTest::keyPress(view, Qt::Key_A);
    EXPECT_FALSE(m_window);
}

} // namespace

} // namespace tetrad
