#include "tests/support/windows.h"

#include <QDir>
#include <QFileOpenEvent>
#include <QTemporaryDir>

#include <csignal>

using namespace tetrad;

namespace {

QList<qint64> seen;
QVariant eventObject;
std::function<void(qint64)> answer;

// Keeps the codes, without those that every wait for events brings.
QVariant onAppEvent(qint64 event, const QVariant &object)
{
    if (event != appEventWillUpdate && event != appEventDidUpdate) {
        seen << event;
        eventObject = object;
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
    QTemporaryDir theme;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QString folder = theme.path() + u"/hicolor/%1x%1/apps"_s.arg(size);
        EXPECT_TRUE(QDir().mkpath(folder) && QImage(size, size, QImage::Format_RGB32).save(folder + u"/test.id.png"));
    }
    QIcon::setThemeSearchPaths({theme.path()});
    AppSetName(u"Test"_s);
    QGuiApplication::setDesktopFileName(u"test.id"_s);
    CocoaInit();
    EXPECT_EQ(applicationName() % applicationId(), u"Testtest.id"_s);
    EXPECT_EQ(QApplication::windowIcon().availableSizes().size(), 7) << "the largest is left out";
    qputenv("TETRAD_DUMP", "1");
    QWidget window;
    bool isUpdated = false;
    answer = [&isUpdated](qint64 event) { isUpdated = isUpdated || event == appEventDidUpdate; };
    QTimer::singleShot(0, &window, [&window] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        send<QFileOpenEvent>(qApp, u"/x/y.z"_s);
        EXPECT_EQ(eventObject, QVariantList{QUrl::fromLocalFile(u"/x/y.z"_s)});
        EXPECT_EQ(CUI_AppDelegateObj()->stringVal, u"y.z");
        CUI_AppDelegateObj()->openFiles({u"/a/dir/"_s});
        EXPECT_EQ(CUI_AppDelegateObj()->stringVal, u"dir");
        stopModalWithCode(1);
    });
    runModalForWindow(&window);
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationHidden);
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
    Q_EMIT QGuiApplication::primaryScreen()->geometryChanged(QRect());
    Q_EMIT QGuiApplication::primaryScreen()->logicalDotsPerInchChanged(96);
    Q_EMIT qApp->screenAdded(QGuiApplication::primaryScreen());
    Q_EMIT qApp->screenRemoved(QGuiApplication::primaryScreen());
    EXPECT_EQ(seen, (QList<qint64>{1, 2, 6, 7, 36, 36, 8, 9, 10, 11, 12, 13, 6, 7, 19, 19, 19, 19}));
    EXPECT_TRUE(isUpdated);
    EXPECT_NE(mainMenu(), nullptr) << "built at launch when the program built none";
    theme.remove(); // The process ends without destructors.
    std::_Exit(testing::Test::HasFailure() ? 1 : 0);
}

// In a process of its own, since one starts only once.
TEST_F(AppDelegate, RealEventsArrive)
{
    EXPECT_EXIT(startAndMeetEvents(), testing::ExitedWithCode(0), "(^|\n)QWidget [^\n]*640x480");
}

TEST_F(AppDelegate, MayRefuseToTerminate)
{
    CocoaInit();
    for (const qint64 refusal : {0, 2, -1}) {
        seen.clear();
        answer = [refusal](qint64) {
            send<QEvent>(qApp, QEvent::Quit); // the user, while the question is open
            CUI_AppDelegateObj()->longVal = refusal;
        };
        AppTerminate();
        send<QEvent>(qApp, QEvent::Quit);
        EXPECT_EQ(seen, (QList<qint64>{3, 3}));
    }
}

void terminateFromNestedRun()
{
    QGuiApplication::clipboard()->setText(u"kept"_s);
    QWidget inner;
    QTimer::singleShot(0, &inner, AppTerminate);
    runModalForWindow(&inner);
}

void terminateWhileItEnds()
{
    answer = [](qint64 event) {
        if (event == appEventShouldTerminate || event == appEventWillTerminate) {
            AppTerminate();
            std::abort();
        }
    };
    AppTerminate();
}

void closeTheLastWindow()
{
    answer = [](qint64 event) {
        CUI_AppDelegateObj()->boolVal = event == appEventShouldTerminateAfterLastWindowClosed;
    };
    open(1)->close();
}

void refuse(qint64 /*event*/)
{
    CUI_AppDelegateObj()->longVal = 0;
}

// What the offscreen platform itself has to say.
constexpr char nothingOfOurs[] = "^((This plugin does not support|QStandardPaths)[^\n]*\n)*$";

// From wherever it is called: status 0, and nothing on standard error. No static object is destroyed, since the thread
// that reads the display's events uses those of the libraries until the end.
TEST_F(AppDelegate, ProcessEndsFromAnyDepthAndBySignals)
{
    const Table<void (*)(), int> rows = {
        {"nested runs, with an owned clipboard", terminateFromNestedRun, 0},
        {"again in the question and when notified", terminateWhileItEnds, 0},
        {"the program closes its last window, which ends it", closeTheLastWindow, 0},
        // What Qt 6.4 does there: the event is not a spontaneous one.
        {"the close box of the last window on Wayland", [] { open(1)->windowHandle()->close(), std::_Exit(4); }, 0},
        {"the same, refused: the window stays",
         [] {
             answer = refuse;
             const Window *const window = open(1);
             window->windowHandle()->close();
             std::_Exit(window->isVisible() ? 0 : 4);
         },
         0},
        // What Qt 6.11 does when the connection to the display breaks.
        {"the end of all loops", [] { QCoreApplication::exit(0); }, 0},
        {"SIGTERM, although the delegate would refuse", [] { answer = refuse, std::raise(SIGTERM); }, 0},
        {"a second signal at once", [] { std::raise(SIGHUP), std::raise(SIGHUP); }, SIGHUP},
    };
    for (const auto &[name, end, signal] : rows) {
        SCOPED_TRACE(name);
        const auto endInsideARun = [act = end] {
            CocoaInit();
            CUI_SetOnAppEventFunction(onAppEvent);
            std::atexit(std::abort);
            QWidget window;
            QTimer::singleShot(0, &window, act);
            runModalForWindow(&window);
            std::_Exit(3);
        };
        EXPECT_EXIT(endInsideARun(), endedBy(signal), nothingOfOurs);
    }
    const auto hangUpIgnored = [] {
        std::signal(SIGHUP, SIG_IGN);
        CocoaInit();
        std::raise(SIGHUP);
        std::_Exit(0);
    };
    EXPECT_EXIT(hangUpIgnored(), endedBy(0), nothingOfOurs) << "as nohup does it";
    CocoaInit();
    EXPECT_EXIT(std::raise(SIGTERM), endedBy(SIGTERM), nothingOfOurs) << "outside a run";
}

} // namespace
