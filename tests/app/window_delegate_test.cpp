#include "runtime/app/window_delegate.h"

#include "runtime/app/app_delegate.h"
#include "runtime/app/application.h"
#include "runtime/app/content_view.h"
#include "runtime/app/current_event.h"
#include "runtime/controls/view_events.h"
#include "tests/windows.h"

#include <QMenu>
#include <QScreen>
#include <QWindow>

#include <map>

using namespace tetrad;

namespace {

using Codes = QList<qint64>;

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

class WindowDelegate : public WindowTest
{
protected:
    void SetUp() override { openWindow(); }

    void TearDown() override
    {
        onEvent = nullptr;
        CUI_WindowDelegateObj()->allWindowsCallback = nullptr;
        WindowTest::TearDown();
    }

    void openWindow()
    {
        m_window = open(7);
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window));
        QApplication::processEvents();
        CUI_SetOnDialogFunction(record);
        calls.clear();
    }

    // What the window system does when the user drags an edge or the title bar.
    void userResizes(int by) { m_window->windowHandle()->resize(m_window->size() + QSize(by, by)); }
    void userMoves(int by)
    {
        m_window->windowHandle()->setPosition(m_window->windowHandle()->position() + QPoint(by, by));
    }

    QPointer<Window> m_window;
};

TEST_F(WindowDelegate, NotificationsAndTheOutputWindow)
{
    using D = CUI_WindowDelegate;
    using Notifications = std::map<qint64, void (D::*)(Window *)>;
    const Notifications setIt = {{10001, &D::windowWillBeginSheet},     {10002, &D::windowDidEndSheet},
                                 {10006, &D::windowDidEndLiveResize},   {10009, &D::windowDidDeminiaturize},
                                 {10015, &D::windowDidEnterFullScreen}, {10017, &D::windowDidExitFullScreen},
                                 {10026, &D::windowWillMove},           {10027, &D::windowDidMove},
                                 {10028, &D::windowDidChangeScreen},    {10033, &D::windowDidBecomeKey},
                                 {10035, &D::windowDidBecomeMain}};
    const Notifications leaveIt = {{10004, &D::windowDidResize},
                                   {10005, &D::windowWillStartLiveResize},
                                   {10007, &D::windowWillMiniaturize},
                                   {10008, &D::windowDidMiniaturize},
                                   {10014, &D::windowWillEnterFullScreen},
                                   {10016, &D::windowWillExitFullScreen},
                                   {10022, &D::windowDidFailToEnterFullScreen},
                                   {10025, &D::windowDidFailToExitFullScreen},
                                   {10032, &D::windowWillClose},
                                   {10034, &D::windowDidResignKey},
                                   {10036, &D::windowDidResignMain},
                                   {10037, &D::windowDidUpdate}};
    for (const auto &[notifications, outputWindow] : {std::pair(setIt, Tag(7)), std::pair(leaveIt, Tag(99))}) {
        for (const auto &[code, notification] : notifications) {
            SCOPED_TRACE(code);
            CUI_OutputWindowSetTag(99);
            Tag outputDuringCall = 0;
            onEvent = [&](qint64) { outputDuringCall = CUI_OutputWindowTag(); };
            calls.clear();
            (CUI_WindowDelegateObj()->*notification)(m_window);
            EXPECT_EQ(calls, QList<Call>({{code, 7, 7, 0}}));
            EXPECT_EQ(outputDuringCall, outputWindow);
        }
    }
}

// The field of the dialog event that a question of the sample's type is answered in.
QVariant answerField(const QVariant &sample)
{
    const CUI_DialogEvent *const event = CUI_DialogEventObj();
    switch (sample.typeId()) {
    case QMetaType::QRectF:
        return event->rectVal;
    case QMetaType::QSizeF:
        return event->sizeVal;
    case QMetaType::Bool:
        return event->boolVal;
    default:
        return event->longVal;
    }
}

TEST_F(WindowDelegate, QuestionsAndAnswers)
{
    CUI_WindowDelegate *const d = CUI_WindowDelegateObj();
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
        QVariant proposed;
        QVariant answered;
        const QObject *obj = nullptr;
        bool setsOutput = false;
    };
    const Row rows[] = {
        {10000, [&] { return d->windowWillPositionSheet(m_window, &sheet, rect); }, rect, otherRect, &sheet},
        {10003, [&] { return d->windowWillResize(m_window, size); }, size, otherSize, nullptr, true},
        {10010, [&] { return d->windowWillUseStandardFrame(m_window, rect); }, rect, otherRect},
        {10011, [&] { return d->windowShouldZoom(m_window, rect); }, true, false},
        {10012, [&] { return d->windowWillUseFullScreenContentSize(m_window, size); }, size, otherSize},
        {10013, [&] { return d->windowWillUseFullScreenPresentationOptions(m_window, 3); }, qint64(3), qint64(12)},
        {10031, [&] { return d->windowShouldClose(m_window); }, true, false},
        {10038, [&] { return d->windowShouldPopUpDocumentPathMenu(m_window, &menu); }, true, false, &menu},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.code);
        CUI_OutputWindowSetTag(99);
        calls.clear();
        CUI_DialogEventObj()->boolVal = false;
        QVariant proposed;
        onEvent = [&](qint64 code) {
            proposed = answerField(row.proposed);
            EXPECT_TRUE(code != 10011 || CUI_DialogEventObj()->rectVal == rect);
            CUI_DialogEventObj()->boolVal = false;
            CUI_DialogEventObj()->longVal = 12;
            CUI_DialogEventObj()->rectVal = otherRect;
            CUI_DialogEventObj()->sizeVal = otherSize;
        };
        EXPECT_EQ(row.ask(), row.answered);
        EXPECT_EQ(proposed, row.proposed);
        EXPECT_EQ(calls, QList<Call>({{row.code, 7, 7, tagFromObject(row.obj)}}));
        EXPECT_EQ(CUI_OutputWindowTag(), row.setsOutput ? 7 : 99);
    }
}

TEST_F(WindowDelegate, RelayPrefersTheNearestCallback)
{
    static QStringList got;
    static int userData = 0;
    CUI_WindowDelegate *const delegate = CUI_WindowDelegateObj();
    m_window->setCuiWindowCallback([](Tag tag, qint64 event, void *data) {
        got << u"own %1 %2 %3"_qs.arg(tag).arg(event).arg(data == &userData);
    });
    m_window->setCuiWindowUserData(&userData);
    delegate->allWindowsCallback = [](Tag tag, qint64 event, void *data) {
        got << u"all %1 %2 %3"_qs.arg(tag).arg(event).arg(data == nullptr);
    };
    delegate->forwardEvent(m_window, 10004, 20, 30);
    m_window->setCuiWindowCallback(nullptr);
    delegate->forwardEvent(m_window, 10004, 20, 30);
    EXPECT_EQ(got, QStringList({u"own 7 10004 1"_qs, u"all 7 10004 1"_qs}));
    EXPECT_TRUE(calls.isEmpty());
    delegate->allWindowsCallback = nullptr;
    delegate->forwardEvent(m_window, 10004, 20, 30);
    EXPECT_EQ(calls, QList<Call>({{10004, 20, 7, 30}}));
}

TEST_F(WindowDelegate, RealEvents)
{
    const QRectF place = m_window->contentRect();
    const Table<std::function<void()>, Codes> rows = {
        {"program moves", [&] { m_window->setContentRect(place.translated(10, 10)); }, {10027}},
        {"program resizes", [&] { m_window->setContentRect(place.adjusted(10, 10, 30, 40)); }, {10004}},
        {"nothing changes", [&] { m_window->setContentRect(m_window->contentRect()); }, {}},
        {"user moves", [this] { userMoves(5); }, {10026, 10027}},
        {"user resizes", [this] { userResizes(5); }, {10005, 10003, 10004}},
        {"and goes on", [this] { userResizes(5); }, {10003, 10004}},
        {"minimise", [this] { m_window->showMinimized(); }, {10007, 10008}},
        {"bring back", [this] { m_window->showNormal(); }, {10009}},
        {"program closes, asked", [this] { m_window->close(); }, {10031, 10032, 10034, 10036}},
    };
    for (const auto &[name, happening, expected] : rows) {
        SCOPED_TRACE(name);
        happening();
        Codes codes = takeCodes();
        if (!expected.contains(10034)) {
            codes.removeIf([](qint64 code) { return code >= 10033 && code <= 10036; });
        }
        EXPECT_EQ(codes, expected);
    }
}

TEST_F(WindowDelegate, SpreadingOut)
{
    onEvent = [&](qint64 event) {
        if (event == windowEventWillUseStandardFrame) {
            EXPECT_EQ(CUI_DialogEventObj()->rectVal.width(), m_window->screen()->availableGeometry().width());
        }
    };
    const std::pair<void (QWidget::*)(), Codes> rows[] = {{&QWidget::showFullScreen, {10014, 10015}},
                                                          {&QWidget::showNormal, {10016, 10017}},
                                                          {&QWidget::showMaximized, {10010, 10011}}};
    for (const auto &[spread, expected] : rows) {
        (m_window->*spread)();
        const Codes codes = takeCodes();
        EXPECT_EQ(codes.mid(codes.indexOf(expected[0]), 2), expected);
    }
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
    userResizes(100);
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

TEST_F(WindowDelegate, LiveResizeEndsWhenItStopsAndUpdatesAreTold)
{
    for (int resizes = 0; resizes < 2; ++resizes) {
        userResizes(5);
        EXPECT_TRUE(QTest::qWaitFor([] { return calls.contains(Call{10006, 7, 7, 0}); }));
        EXPECT_EQ(takeCodes(), Codes({10005, 10003, 10004, 10006})) << "the next one is a new one";
    }
    m_window->update();
    EXPECT_TRUE(QTest::qWaitFor([] { return calls.contains(Call{10037, 7, 7, 0}); }));
}

TEST_F(WindowDelegate, ActivationPassesFromWindowToWindow)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(open(8)));
    QList<Call> changes = std::exchange(calls, {});
    changes.removeIf([](const Call &call) { return call.event < 10033 || call.event > 10036; });
    const QList<Call> wanted = {{10033, 8, 8, 0}, {10035, 8, 8, 0}, {10034, 7, 7, 0}, {10036, 7, 7, 0}};
    EXPECT_EQ(changes, wanted);
    EXPECT_EQ(CUI_OutputWindowTag(), 8);
}

TEST_F(WindowDelegate, CloseOrder)
{
    bool stillKnown = false;
    onEvent = [&](qint64 event) {
        if (event == windowEventWillClose) {
            stillKnown = CUI_AppDelegateObj()->windows().contains(m_window) && CUI_WindowWithTag(7);
            m_window->close(); // already closing
        }
    };
    EXPECT_TRUE(m_window->close());
    EXPECT_TRUE(stillKnown);
    EXPECT_TRUE(CUI_AppDelegateObj()->windows().isEmpty());
    m_window->close();
    EXPECT_EQ(takeCodes().count(10032), 1);
}

// Each callback closes or deletes the window whose event it is told, or gives it another tag. Only where
// no event of the window system is being delivered may it be deleted at once.
TEST_F(WindowDelegate, SurvivesWhatCallbacksDo)
{
    const auto resizes = [this] { userResizes(9); };
    const auto moves = [this] { userMoves(9); };
    const auto zooms = [this] { m_window->setWindowState(Qt::WindowMaximized); };
    const auto activates = [this] {
        QEvent activate(QEvent::WindowActivate);
        QApplication::sendEvent(m_window, &activate);
    };
    const struct
    {
        qint64 code;
        std::function<void()> happening;
        bool mayDelete = false;
    } rows[] = {
        {10003, resizes},
        {10004, resizes},
        {10005, resizes},
        {10006, resizes},
        {10007, [this] { m_window->showMinimized(); }},
        {10010, zooms},
        {10011, zooms},
        {10026, moves},
        {10027, moves},
        {10031, [this] { m_window->close(); }, true},
        {10032, [this] { m_window->close(); }, true},
        {10032, [this] { CUI_WindowDelegateObj()->windowWillClose(m_window); }, true},
        {10033, activates},
        {10037, [this] { m_window->update(); }},
    };
    for (const bool isDestroyed : {true, false}) {
        for (const auto &row : rows) {
            SCOPED_TRACE(testing::Message() << row.code << (isDestroyed ? " destroys" : " gives another tag"));
            openWindow();
            bool happened = false;
            onEvent = [&](qint64 event) {
                if (event != row.code || std::exchange(happened, true)) {
                    return;
                }
                if (!isDestroyed) {
                    m_window->setTag(70);
                } else if (row.mayDelete) {
                    delete m_window.data();
                } else {
                    m_window->close();
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

TEST_F(WindowDelegate, ContentViewReportsWithItsFlagOnly)
{
    auto *const view = qobject_cast<ContentViewSC *>(m_window->contentView());
    view->repaint(1, 2, 30, 40);
    QTest::mousePress(view, Qt::LeftButton, {}, QPoint(20, 30));
    EXPECT_TRUE(takeCodes().isEmpty());
    view->setSubclassFlag(true);
    CUI_OutputWindowSetTag(99);
    CUI_DialogEventObj()->boolVal = true;
    onEvent = [](qint64 event) {
        if (event == windowEventDidUpdate) {
            return;
        }
        EXPECT_EQ(calls.constLast().tag, contentViewTag);
        EXPECT_EQ(calls.constLast().wndTag, 7);
        EXPECT_TRUE(event != viewEventDraw || CUI_DialogEventObj()->rectVal == QRectF(1, 2, 30, 40));
        EXPECT_FALSE(CUI_DialogEventObj()->boolVal) << "preset to unhandled";
        EXPECT_NE(CUI_EventEvent(), nullptr);
        EXPECT_EQ(CUI_OutputWindowTag(), 7);
    };
    view->repaint(1, 2, 30, 40);
    QTest::mousePress(view, Qt::LeftButton, {}, QPoint(20, 30));
    EXPECT_EQ(takeCodes(), Codes({viewEventDraw, viewEventMouseDown}));
    EXPECT_EQ(CUI_EventEvent(), nullptr);
    onEvent = [this](qint64) { delete m_window.data(); };
    QTest::keyPress(view, Qt::Key_A);
    EXPECT_FALSE(m_window);
}

} // namespace
