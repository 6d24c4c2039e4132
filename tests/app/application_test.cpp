#include "runtime/app/application.h"

#include "runtime/app/app_delegate.h"
#include "runtime/app/app_events.h"
#include "runtime/app/menus.h"
#include "runtime/app/modal.h"

#include <QApplication>
#include <QClipboard>
#include <QFileOpenEvent>
#include <QMenu>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>
#include <functional>

using namespace tetrad;

namespace {

struct Seen
{
    qint64 event;
    QVariant object;

    friend bool operator==(const Seen &, const Seen &) = default;
};

QList<Seen> seen;
std::function<void(qint64)> answer;

QVariant onAppEvent(qint64 event, const QVariant &object)
{
    seen.append({event, object});
    if (answer) {
        answer(event);
    }
    return u"answered"_qs;
}

QList<qint64> codes()
{
    QList<qint64> list;
    for (const Seen &each : seen) {
        if (each.event != appEventWillUpdate && each.event != appEventDidUpdate) {
            list << each.event;
        }
    }
    return list;
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
    CUI_AppDelegate *const remembered = CUI_AppDelegateObj();
    EXPECT_EQ(CUI_AppDelegateObj(), remembered);
    CUI_AppDelegate own;
    setAppDelegate(&own);
    CocoaInit();
    EXPECT_EQ(CUI_AppDelegateObj(), &own);
    // It is served like the runtime's own.
    static int asked = 0;
    own.setDelegateCallback([](qint64 event, qintptr) {
        asked += event == appEventShouldTerminate;
        CUI_AppDelegateObj()->setLongVal(0);
    });
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_EQ(asked, 1);
}

TEST(Application, NameOfTheProgramsOwnStays)
{
    QCoreApplication::setApplicationName(u"Sketch"_qs);
    CocoaInit();
    EXPECT_EQ(applicationName(), u"Sketch");
}

TEST_F(AppDelegate, QuestionsAreAnsweredAsPresetUnlessTheFunctionAnswers)
{
    CUI_AppDelegate d;
    QMenu dock;
    const QString file = u"/a/b.txt"_qs;
    const QList<qint64> preset = {1, 0, 1, 0, 0, 0, 0, 0, 1, 1, 0};
    const auto ask = [&](bool isAnswered) {
        answer = [&, isAnswered, asked = 0](qint64) mutable {
            const bool opposite = preset[asked++] == 0;
            if (isAnswered) {
                d.setBoolVal(opposite);
                d.setLongVal(opposite);
                d.setMenuObj(&dock);
            }
        };
        return QList<qint64>{d.applicationShouldTerminate(),
                             d.applicationShouldTerminateAfterLastWindowClosed(),
                             d.applicationShouldHandleReopen(false),
                             d.applicationDockMenu() != nullptr,
                             d.openFileWithoutUI(file),
                             d.openTempFile(file),
                             d.applicationOpenUntitledFile(),
                             d.applicationShouldOpenUntitledFile(),
                             d.printFile(file),
                             d.printFiles({file}, {{u"copies"_qs, 2}}, true),
                             d.willContinueUserActivityWithType(u"type"_qs)};
    };
    EXPECT_EQ(ask(false), preset);
    EXPECT_EQ(codes(), (QList<qint64>{3, 4, 16, 17, 20, 21, 22, 23, 24, 25, 31}));
    EXPECT_EQ(seen.at(4).object, file);
    EXPECT_EQ(ask(true), (QList<qint64>{0, 1, 0, 1, 1, 1, 1, 1, 0, 0, 1}));
    EXPECT_EQ(d.dictVal(), (QVariantMap{{u"copies"_qs, 2}}));
}

TEST_F(AppDelegate, NewsCarryTheirObject)
{
    CUI_AppDelegate d;
    const ErrorObject error = {u"domain"_qs, 3, u"bad"_qs};
    const QVariantMap payload = {{u"key"_qs, 1}};
    const QVariantList urls = {QUrl::fromLocalFile(u"/a/b.txt"_qs), QUrl::fromLocalFile(u"/c"_qs)};
    d.didRegisterForRemoteNotificationsWithDeviceToken("token");
    d.didFailToRegisterForRemoteNotificationsWithError(error);
    d.didReceiveRemoteNotification(payload);
    d.didFailToContinueUserActivityWithType(u"type"_qs, error);
    d.openFiles({u"/a/b.txt"_qs, u"/c"_qs});
    const QList<Seen> wanted = {
        {26, QByteArray("token")}, {27, QVariant::fromValue(error)}, {28, payload}, {33, u"type"_qs}, {36, urls}};
    EXPECT_EQ(seen, wanted);
    EXPECT_EQ(d.willPresentError(error), error);
    EXPECT_EQ(d.stringVal(), u"b.txt");
    EXPECT_EQ(d.urlVal(), urls.first().toUrl());
    d.openFiles({});
    EXPECT_TRUE(d.urlVal().isEmpty() && d.arrayVal().isEmpty());
}

TEST_F(AppDelegate, OwnCallbackGoesBeforeTheRegisteredFunction)
{
    static qint64 got = 0;
    EXPECT_EQ(CallUserDefinedOnAppEventFunction(7, {}), u"answered"_qs);
    seen.clear();
    CUI_AppDelegate delegate;
    delegate.setDelegateUserData(42);
    delegate.setDelegateCallback([](qint64 event, qintptr data) { got = event * 100 + data; });
    delegate.applicationDidHide({});
    EXPECT_EQ(got, 1142);
    EXPECT_TRUE(seen.isEmpty());
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

TEST_F(AppDelegate, RealEventsArrive)
{
    CocoaInit();
    QWidget window;
    QTimer::singleShot(0, &window, [&window] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QFileOpenEvent open(u"/x/y.z"_qs);
        QCoreApplication::sendEvent(qApp, &open);
        stopModalWithCode(1);
    });
    runModalForWindow(&window);
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationHidden);
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
    Q_EMIT QGuiApplication::primaryScreen()->geometryChanged(QRect());
    EXPECT_EQ(codes(), (QList<qint64>{1, 2, 6, 7, 36, 8, 9, 10, 11, 12, 13, 6, 7, 19}));
    EXPECT_NE(mainMenu(), nullptr) << "built at launch when the program built none";
    const auto updated = [](const Seen &each) { return each.event == appEventDidUpdate; };
    EXPECT_TRUE(std::any_of(seen.begin(), seen.end(), updated));
}

TEST_F(Terminate, AsksTellsAndRefuses)
{
    CocoaInit();
    for (const qint64 refusal : {0, 2, -1}) {
        seen.clear();
        answer = [refusal](qint64) {
            AppTerminate(); // asking inside the question
            CUI_AppDelegateObj()->setLongVal(refusal);
        };
        AppTerminate();
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &quit);
        EXPECT_EQ(codes(), (QList<qint64>{3, 3}));
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
    QGuiApplication::clipboard()->setText(u"kept"_qs);
    AppTerminate();
}

void terminateAgainWhileItTells()
{
    CUI_SetOnAppEventFunction(onAppEvent);
    answer = [](qint64 event) { event == appEventWillTerminate ? AppTerminate() : void(); };
    AppTerminate();
}

void signalThoughTheDelegateWouldRefuse()
{
    CUI_SetOnAppEventFunction(onAppEvent);
    answer = [](qint64) { CUI_AppDelegateObj()->setLongVal(0); };
    std::raise(SIGTERM);
}

// What the offscreen platform itself has to say.
constexpr char nothingOfOurs[] = "^((This plugin does not support|QStandardPaths)[^\n]*\n)*$";

// From wherever it is called: status 0, and nothing on standard error.
TEST_F(Terminate, EndsFromAnyDepth)
{
    const std::pair<const char *, void (*)()> rows[] = {
        {"nested runs", terminateFromNestedRun},
        {"with an owned clipboard", terminateWithAnOwnedClipboard},
        {"again while it tells", terminateAgainWhileItTells},
        {"SIGTERM, although the delegate would refuse", signalThoughTheDelegateWouldRefuse},
    };
    for (const auto &[name, end] : rows) {
        SCOPED_TRACE(name);
        const auto endInsideARun = [act = end] {
            CocoaInit();
            QWidget window;
            QTimer::singleShot(0, &window, act);
            runModalForWindow(&window);
            std::_Exit(3);
        };
        EXPECT_EXIT(endInsideARun(), testing::ExitedWithCode(0), nothingOfOurs);
    }
}

} // namespace
