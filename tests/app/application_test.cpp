#include <tetrad/app/application.h>

#include <tetrad/app/app_delegate.h>
#include <tetrad/app/menus.h>
#include <tetrad/app/modal.h>
#include <tetrad/app/window.h>
#include <tetrad/app/windows.h>
#include <tetrad/strings/not_given.h>

#include <QApplication>
#include <QClipboard>
#include <QFileOpenEvent>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <csignal>
#include <functional>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

QList<qint64> seen;
QVariant lastObject;
std::function<void(qint64)> answer;

// Keeps the codes, without those that every wait for events brings.
QVariant onAppEvent(qint64 event, const QVariant &object)
{
    if (event != appEventWillUpdate && event != appEventDidUpdate) {
        seen << event;
        lastObject = object;
    }
    if (answer) {
        answer(event);
    }
    return {};
}

class AppDelegate : public testing::Test
{
protected:
    void SetUp() override { CUI_SetOnAppEventFunction(onAppEvent); }
    void TearDown() override
    {
        CUI_SetOnAppEventFunction(nullptr);
        seen.clear();
        answer = nullptr;
    }
};

using Terminate = AppDelegate;

TEST(Application, DelegateThatIsInstalledStays)
{
    CUI_AppDelegate own;
    setAppDelegate(&own);
    CocoaInit();
    EXPECT_EQ(CUI_AppDelegateObj(), &own);
    // It is served like the runtime's own.
    static int asked = 0;
    own.delegateCallback = [](qint64 event, qintptr) {
        asked += event == appEventShouldTerminate;
        CUI_AppDelegateObj()->longVal = 0;
    };
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_EQ(asked, 1);
}

TEST_F(AppDelegate, TimerFunctionStopsOrDeletesItsTimer)
{
    CUI_AppDelegate delegate;
    const auto fire = [&delegate](CUI_AppDelegate::TimerFunction function) {
        const QPointer<QTimer> timer = new QTimer(&delegate);
        CUI_AppDelegate::setTimerFunction(timer, function);
        timer->start(1000000);
        delegate.timerFired(timer);
        return timer && timer->isActive();
    };
    EXPECT_TRUE(fire([](QTimer *) { return false; }));
    EXPECT_FALSE(fire([](QTimer *) { return true; }));
    EXPECT_FALSE(fire([](QTimer *timer) { return delete timer, true; }));
}

void startAndMeetEvents()
{
    CocoaInit();
    QWidget window;
    bool isUpdated = false;
    answer = [&isUpdated](qint64 event) { isUpdated = isUpdated || event == appEventDidUpdate; };
    QTimer::singleShot(0, &window, [&window] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QFileOpenEvent open(u"/x/y.z"_s);
        QCoreApplication::sendEvent(qApp, &open);
        EXPECT_EQ(lastObject, QVariantList{QUrl::fromLocalFile(u"/x/y.z"_s)});
        EXPECT_EQ(CUI_AppDelegateObj()->stringVal, u"y.z");
        CUI_AppDelegateObj()->openFiles({u"/a/dir/"_s});
        EXPECT_EQ(CUI_AppDelegateObj()->stringVal, u"dir");
        stopModalWithCode(1);
    });
    runModalForWindow(&window);
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationHidden);
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
    Q_EMIT QGuiApplication::primaryScreen()->geometryChanged(QRect());
    EXPECT_EQ(seen, (QList<qint64>{1, 2, 6, 7, 36, 36, 8, 9, 10, 11, 12, 13, 6, 7, 19}));
    EXPECT_TRUE(isUpdated);
    EXPECT_NE(mainMenu(), nullptr) << "built at launch when the program built none";
    std::_Exit(testing::Test::HasFailure() ? 1 : 0);
}

// In a process of its own, since one starts only once.
TEST_F(AppDelegate, RealEventsArrive)
{
    EXPECT_EXIT(startAndMeetEvents(), testing::ExitedWithCode(0), "");
}

TEST_F(Terminate, AsksTellsAndRefuses)
{
    CocoaInit();
    for (const qint64 refusal : {0, 2, -1}) {
        seen.clear();
        QEvent quit(QEvent::Quit);
        answer = [&quit, refusal](qint64) {
            QCoreApplication::sendEvent(qApp, &quit); // the user, while the question is open
            CUI_AppDelegateObj()->longVal = refusal;
        };
        AppTerminate();
        QCoreApplication::sendEvent(qApp, &quit);
        EXPECT_EQ(seen, (QList<qint64>{3, 3}));
    }
}

void terminateFromNestedRun()
{
    QWidget inner;
    QTimer::singleShot(0, &inner, AppTerminate);
    runModalForWindow(&inner);
}

void terminateWithAnOwnedClipboard()
{
    QGuiApplication::clipboard()->setText(u"kept"_s);
    AppTerminate();
}

template <AppEvent event>
void terminateAgainIn()
{
    CUI_SetOnAppEventFunction(onAppEvent);
    answer = [](qint64 code) {
        if (code == event) {
            AppTerminate();
            std::abort();
        }
    };
    AppTerminate();
}

void closeTheLastWindow()
{
    CUI_SetOnAppEventFunction(onAppEvent);
    answer = [](qint64 event) {
        CUI_AppDelegateObj()->boolVal = event == appEventShouldTerminateAfterLastWindowClosed;
    };
    CUI_Window(1, QString(), notGiven, QRectF());
    CUI_WindowWithTag(1)->close();
}

// What Qt 6.4 does for a close box on Wayland: the event is not a spontaneous one.
void closeBoxOnWayland()
{
    CUI_Window(1, QString(), notGiven, QRectF());
    CUI_WindowWithTag(1)->windowHandle()->close();
    std::_Exit(4);
}

void signalThoughTheDelegateWouldRefuse()
{
    CUI_SetOnAppEventFunction(onAppEvent);
    answer = [](qint64) { CUI_AppDelegateObj()->longVal = 0; };
    std::raise(SIGTERM);
}

// What the offscreen platform itself has to say.
constexpr char nothingOfOurs[] = "^((This plugin does not support|QStandardPaths)[^\n]*\n)*$";

// From wherever it is called: status 0, and nothing on standard error. No static object is destroyed, since the thread
// that reads the display's events uses those of the libraries until the end.
TEST_F(Terminate, EndsFromAnyDepth)
{
    const std::pair<const char *, void (*)()> rows[] = {
        {"nested runs", terminateFromNestedRun},
        {"with an owned clipboard", terminateWithAnOwnedClipboard},
        {"again in the question", terminateAgainIn<appEventShouldTerminate>},
        {"again while it is notified", terminateAgainIn<appEventWillTerminate>},
        {"the program closes its last window, which ends it", closeTheLastWindow},
        {"the close box of the last window on Wayland", closeBoxOnWayland},
        {"SIGTERM, although the delegate would refuse", signalThoughTheDelegateWouldRefuse},
    };
    for (const auto &[name, end] : rows) {
        SCOPED_TRACE(name);
        const auto endInsideARun = [act = end] {
            CocoaInit();
            std::atexit(std::abort);
            QWidget window;
            QTimer::singleShot(0, &window, act);
            runModalForWindow(&window);
            std::_Exit(3);
        };
        EXPECT_EXIT(endInsideARun(), testing::ExitedWithCode(0), nothingOfOurs);
    }
}

TEST_F(Terminate, ASignalEndsAtOnceWhileNoRunIsServedAndTheSecondTime)
{
    const auto outsideARun = [] {
        CocoaInit();
        std::raise(SIGTERM);
        std::_Exit(3);
    };
    EXPECT_EXIT(outsideARun(), testing::KilledBySignal(SIGTERM), nothingOfOurs);
    const auto twice = [] {
        CocoaInit();
        QWidget window;
        QTimer::singleShot(0, &window, [] {
            std::raise(SIGHUP);
            std::raise(SIGHUP);
        });
        runModalForWindow(&window);
        std::_Exit(3);
    };
    EXPECT_EXIT(twice(), testing::KilledBySignal(SIGHUP), nothingOfOurs);
}

} // namespace
