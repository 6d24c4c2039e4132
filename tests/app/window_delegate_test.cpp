#include "runtime/app/windows/window_translator.h"
#include "runtime/controls/events/current_event.h"
#include "tests/support/windows.h"

using namespace tetrad;

namespace {

using Happening = std::function<void()>;

class WindowDelegate : public WindowTest
{
protected:
    void SetUp() override { openWindow(); }

    void openWindow()
    {
        m_window = open(7);
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window));
        QApplication::processEvents();
        CUI_OutputWindowSetTag(0);
        CUI_SetOnDialogFunction(recordCall);
        dialogCalls.clear();
    }

    // The calls since the last time, without the repaints and the tags of the one window.
    static QString takeCalls()
    {
        // What the window system does is judged a moment later.
        QTest::qWait(2 * WindowTranslator::judgePause_ms);
        QStringList calls = std::exchange(dialogCalls, {});
        calls.removeIf([](const QString &call) { return call.startsWith(u"10037 "_s); });
        return calls.join(u' ').remove(u" 7 7"_s);
    }

    // What the window system does when the user drags an edge or the title bar.
    void userResizes(int by) { m_window->windowHandle()->resize(m_window->size() + QSize(by, by)); }
    void userMoves(int by)
    {
        m_window->windowHandle()->setPosition(m_window->windowHandle()->position() + QPoint(by, by));
    }

    QPointer<Window> m_window;
};

// Each code that makes the window the output window before the event is sent has a star. Dots stand for how the window
// system goes on.
TEST_F(WindowDelegate, RealEventsAreReportedInOrder)
{
    valuesOf = [](qint64) {
        const bool isOutput = CUI_OutputWindowTag() == 7;
        CUI_OutputWindowSetTag(0);
        return isOutput ? u"*"_s : QString();
    };
    const QRectF rect = m_window->contentRect();
    const auto waitForTheEnd = [] {
        EXPECT_TRUE(QTest::qWaitFor([] { return dialogCalls.contains(u"10006 7 7 *"_s); }));
    };
    // Later the user moves it by 15, too: the echo of so old a request is not awaited any more.
    const auto programMoves = [&] {
        WindowCenter(7);
        EXPECT_EQ(dialogCalls, QStringList{u"10027 7 7 *"_s});
        for (const int by : {15, 20, 21, 22, 23, 24, 10}) {
            dialogCalls.clear();
            m_window->setContentRect(rect.translated(by, by));
        }
        EXPECT_EQ(dialogCalls, QStringList{u"10027 7 7 *"_s}) << "reported at once";
    };
    const Table<Happening, QString> rows = {
        {"another screen", [&] { Q_EMIT m_window->windowHandle()->screenChanged(m_window->screen()); }, u"10028 *"_s},
        {"program moves", [&] { programMoves(); }, u"10027 *"_s},
        {"program resizes", [&] { m_window->setContentRect(rect.adjusted(10, 10, 30, 40)); }, u"10004"_s},
        {"nothing changes", [&] { m_window->setContentRect(m_window->contentRect()); }, {}},
        {"user moves", [&] { userMoves(5); }, u"10026 * 10027 *"_s},
        {"user resizes", [&] { userResizes(5); }, u"10005 10003 * 10004"_s},
        {"and goes on", [&] { userResizes(5); }, u"10003 * 10004"_s},
        {"and stops", waitForTheEnd, u"10006 *"_s},
        {"user resizes again", [&] { userResizes(5); }, u"10005 10003 * 10004"_s},
        {"minimise", [&] { m_window->showMinimized(); }, u"10007 10008..."_s},
        {"bring back", [&] { m_window->showNormal(); }, u"10009 *..."_s},
        {"full screen", [&] { m_window->showFullScreen(); }, u"10014 10015 *..."_s},
        {"and back", [&] { m_window->showNormal(); }, u"10016 10017 *..."_s},
        {"zoom", [&] { m_window->showMaximized(); }, u"10010 10011..."_s},
        {"program closes, queried", [&] { m_window->close(); }, u"10031 10032 10034 10036"_s},
    };
    for (const auto &[name, happening, expected] : rows) {
        happening();
        const qsizetype compared = expected.endsWith(u"..."_s) ? expected.size() - 3 : -1;
        EXPECT_EQ(takeCalls().left(compared), expected.left(compared)) << name;
    }
}

TEST_F(WindowDelegate, ActivationAndUpdatesAreReportedInAModalRunToo)
{
    QTimer::singleShot(0, m_window, [] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(open(8)));
        abortModal();
    });
    runModalForWindow(m_window);
    EXPECT_EQ(takeCalls(), u"10033 8 8 10035 8 8 10034 10036"_s);
    EXPECT_EQ(CUI_OutputWindowTag(), 8);
    m_window->update();
    EXPECT_TRUE(QTest::qWaitFor([] { return dialogCalls.contains(u"10037 7 7"_s); }));
}

TEST_F(WindowDelegate, RelayPrefersTheNearestCallback)
{
    static int userData = 0;
    CUI_WindowDelegate *const delegate = CUI_WindowDelegateObj();
    m_window->setCuiWindowCallback([](Tag tag, qint64 event, void *data) {
        dialogCalls << u"own %1 %2 %3"_s.arg(tag).arg(event).arg(data == &userData);
    });
    m_window->setCuiWindowUserData(&userData);
    delegate->allWindowsCallback = [](Tag tag, qint64 event, void *data) {
        dialogCalls << u"all %1 %2 %3"_s.arg(tag).arg(event).arg(data == nullptr);
    };
    delegate->forwardEvent(m_window, 10004, 20, 30);
    m_window->setCuiWindowCallback(nullptr);
    delegate->forwardEvent(m_window, 10004, 20, 30);
    delegate->allWindowsCallback = nullptr;
    delegate->forwardEvent(m_window, 10004, 20, 30);
    EXPECT_EQ(dialogCalls, (QStringList{u"own 7 10004 1"_s, u"all 7 10004 1"_s, u"10004 20 7"_s}));
    EXPECT_EQ(lastObject, 30);
}

TEST_F(WindowDelegate, AnswersReachTheWindow)
{
    const auto refuse = [](auto &it) { it.boolVal = false; };
    atEvent = answers({{windowEventWillResize, [](auto &it) { it.sizeVal = QSizeF(320, 240); }},
                       {windowEventShouldClose, refuse},
                       {windowEventShouldZoom, refuse}});
    userResizes(100);
    EXPECT_EQ(takeCalls(), u"10005 10003 10004"_s);
    EXPECT_EQ(m_window->contentRect().size(), QSizeF(320, 240));
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_window->maximumWidth() == QWIDGETSIZE_MAX; })) << "held too long";
    EXPECT_FALSE(m_window->close());
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_EQ(CUI_AppDelegateObj()->windows, QList<Window *>{m_window});
    m_window->showMaximized();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isMaximized(); })) << "zoom refused";

    const QRectF zoomed = m_window->contentRect().adjusted(0, 0, 60, 70);
    const auto zoom = [&](CUI_DialogEvent &it) {
        EXPECT_TRUE(m_window->screen()->availableGeometry().contains((it.rectVal + m_window->frameMargins()).toRect()));
        it.rectVal = zoomed;
    };
    atEvent = answers({{windowEventWillUseStandardFrame, zoom}});
    m_window->showMaximized();
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_window->contentRect() == zoomed; })) << "zoom to another frame";
    EXPECT_FALSE(m_window->isMaximized());
}

// Each callback closes or deletes the window whose event is reported, or gives it another tag.
TEST_F(WindowDelegate, SurvivesWhatCallbacksDo)
{
    const Happening closes = [this] { m_window->close(); };
    const Happening deletes = [this] { delete m_window.data(); };
    const Happening retags = [this] { m_window->setTag(70); };
    const std::tuple<Happening, QList<qint64>, QList<Happening>> rows[] = {
        {[this] { userResizes(9); }, {10003, 10004, 10005, 10006}, {closes, retags, deletes}},
        {[] { CUI_Window(7, u"New"_s, 0, QRectF(90, 90, 99, 99)); }, {10004, 10027}, {closes, retags, deletes}},
        {[this] { m_window->showMinimized(); }, {10007}, {closes, retags}},
        {[this] { m_window->setWindowState(Qt::WindowMaximized); }, {10010, 10011}, {closes, retags}},
        {[this] { userMoves(9); }, {10026, 10027}, {closes, retags, deletes}},
        {closes, {10031, 10032}, {deletes, retags}},
    };
    for (const auto &[happening, codes, harms] : rows) {
        for (const qint64 dangerous : codes) {
            for (const Happening &harm : harms) {
                openWindow();
                bool isHarmed = false;
                atEvent = answers({{dangerous, [&](auto &) { std::exchange(isHarmed, true) ? void() : harm(); }}});
                happening();
                EXPECT_TRUE(QTest::qWaitFor([&isHarmed] { return isHarmed; })) << dangerous;
                QApplication::processEvents();
                atEvent = nullptr;
                delete m_window.data();
            }
        }
    }
    EXPECT_TRUE(orderedWindows().isEmpty());
}

TEST_F(WindowDelegate, ContentViewReportsWithItsFlagOnly)
{
    auto *const view = qobject_cast<ContentViewSC *>(m_window->contentView());
    atEvent = [](qint64 event) {
        EXPECT_TRUE(event == windowEventDidUpdate || (CUI_EventEvent() && CUI_OutputWindowTag() == 7));
        EXPECT_TRUE(event != viewEventDraw || CUI_DialogEventObj()->rectVal == QRectF(1, 2, 30, 40));
    };
    for (const bool reports : {false, true}) {
        view->setSubclassFlag(reports);
        view->setDragInside(reports);
        CUI_OutputWindowSetTag(99);
        QDragLeaveEvent leave;
        static_cast<QObject *>(view)->event(&leave); // the application sends it only to where something was dragged
        static_cast<QObject *>(view)->event(&leave); // reported once
        view->repaint(1, 2, 30, 40);
        QTest::mousePress(view, Qt::LeftButton, {}, QPoint(20, 30));
        const QString tags = u' ' % QString::number(contentViewTag) % u" 7";
        EXPECT_EQ(takeCalls().remove(tags), reports ? u"2020 2000 2002"_s : QString());
    }
    EXPECT_EQ(CUI_EventEvent(), nullptr);
    atEvent = [this](qint64) { delete m_window.data(); };
    QTest::keyPress(view, Qt::Key_A);
    EXPECT_FALSE(m_window);
}

} // namespace
