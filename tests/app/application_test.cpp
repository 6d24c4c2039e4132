#include "runtime/app/application.h"

#include "runtime/app/app_delegate.h"
#include "runtime/app/app_events.h"
#include "runtime/app/menus.h"
#include "runtime/app/modal.h"

#include <QApplication>
#include <QClipboard>
#include <QFileOpenEvent>
#include <QMenu>
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

QVariant application()
{
    return QVariant::fromValue<QObject *>(qApp);
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

TEST(AppDelegate, NotificationsAreForwarded)
{
    using D = CUI_AppDelegate;
    const std::pair<qint64, void (D::*)(const QVariant &)> rows[] = {
        {1, &D::applicationWillFinishLaunching},
        {2, &D::applicationDidFinishLaunching},
        {5, &D::applicationWillTerminate},
        {6, &D::applicationWillBecomeActive},
        {7, &D::applicationDidBecomeActive},
        {8, &D::applicationWillResignActive},
        {9, &D::applicationDidResignActive},
        {10, &D::applicationWillHide},
        {11, &D::applicationDidHide},
        {12, &D::applicationWillUnhide},
        {13, &D::applicationDidUnhide},
        {14, &D::applicationWillUpdate},
        {15, &D::applicationDidUpdate},
        {19, &D::applicationDidChangeScreenParameters},
        {29, &D::didDecodeRestorableState},
        {30, &D::willEncodeRestorableState},
        {34, &D::didUpdateUserActivity},
        {35, &D::applicationDidChangeOcclusionState},
    };
    CUI_SetOnAppEventFunction(onAppEvent);
    CUI_AppDelegate delegate;
    for (const auto &[code, notification] : rows) {
        (delegate.*notification)(u"note"_qs);
        EXPECT_EQ(seen.takeLast(), (Seen{code, u"note"_qs})) << code;
        EXPECT_TRUE(seen.isEmpty());
    }
}

TEST(AppDelegate, QuestionsAreAnsweredAsPresetUnlessTheFunctionAnswers)
{
    CUI_AppDelegate d;
    const QString file = u"/a/b.txt"_qs;
    const struct
    {
        qint64 code;
        std::function<qint64()> ask;
        QVariant object;
        qint64 preset;
    } rows[] = {
        {3, [&] { return d.applicationShouldTerminate(); }, application(), 1},
        {4, [&] { return d.applicationShouldTerminateAfterLastWindowClosed(); }, application(), false},
        {16, [&] { return d.applicationShouldHandleReopen(false); }, application(), true},
        {17, [&] { return d.applicationDockMenu() != nullptr; }, application(), false},
        {20, [&] { return d.openFileWithoutUI(file); }, file, false},
        {21, [&] { return d.openTempFile(file); }, file, false},
        {22, [&] { return d.applicationOpenUntitledFile(); }, application(), false},
        {23, [&] { return d.applicationShouldOpenUntitledFile(); }, application(), false},
        {24, [&] { return d.printFile(file); }, file, true},
        {25,
         [&] {
             return d.printFiles({file}, {{u"copies"_qs, 2}}, true);
         },
         QStringList{file}, 1},
        {31, [&] { return d.willContinueUserActivityWithType(u"type"_qs); }, u"type"_qs, false},
    };
    CUI_SetOnAppEventFunction(onAppEvent);
    QMenu dock;
    for (const auto &row : rows) {
        SCOPED_TRACE(row.code);
        EXPECT_EQ(row.ask(), row.preset);
        EXPECT_EQ(seen.takeLast(), (Seen{row.code, row.object}));
        answer = [&](qint64) {
            d.setBoolVal(row.preset == 0);
            d.setLongVal(row.preset == 0);
            d.setMenuObj(&dock);
        };
        EXPECT_EQ(row.ask(), row.preset == 0);
        seen.clear();
        answer = nullptr;
    }
    EXPECT_EQ(d.dictVal(), (QVariantMap{{u"copies"_qs, 2}}));
}

TEST(AppDelegate, NewsCarryTheirObject)
{
    CUI_AppDelegate d;
    const ErrorObject error = {u"domain"_qs, 3, u"bad"_qs};
    const QVariantMap payload = {{u"key"_qs, 1}};
    const QVariantList urls = {QUrl::fromLocalFile(u"/a/b.txt"_qs), QUrl::fromLocalFile(u"/c"_qs)};
    CUI_SetOnAppEventFunction(onAppEvent);
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

TEST(AppDelegate, OwnCallbackGoesBeforeTheRegisteredFunction)
{
    static qint64 got = 0;
    CUI_SetOnAppEventFunction(onAppEvent);
    EXPECT_EQ(CallUserDefinedOnAppEventFunction(7, {}), u"answered"_qs);
    seen.clear();
    CUI_AppDelegate delegate;
    delegate.setDelegateUserData(42);
    delegate.setDelegateCallback([](qint64 event, qintptr data) { got = event * 100 + data; });
    delegate.applicationDidHide({});
    EXPECT_EQ(got, 1142);
    EXPECT_TRUE(seen.isEmpty());
}

TEST(AppDelegate, TimerFunctionStopsOrDeletesItsTimer)
{
    CUI_AppDelegate delegate;
    const auto fire = [&delegate](CUI_AppDelegate::TimerFunction function) {
        const QPointer<QTimer> timer = new QTimer(&delegate);
        CUI_AppDelegate::setTimerFunction(timer, function);
        timer->start(1000000);
        delegate.timerFired(timer);
        return timer;
    };
    EXPECT_TRUE(fire([](QTimer *) { return false; })->isActive());
    EXPECT_FALSE(fire([](QTimer *) { return true; })->isActive());
    EXPECT_TRUE(fire(nullptr)->isActive());
    EXPECT_EQ(fire([](QTimer *timer) { return delete timer, true; }), nullptr);
}

TEST(AppDelegate, RealEventsArrive)
{
    CocoaInit();
    CUI_SetOnAppEventFunction(onAppEvent);
    QWidget window;
    QTimer::singleShot(0, &window, [&window] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QFileOpenEvent open(u"/x/y.z"_qs);
        QCoreApplication::sendEvent(qApp, &open);
        stopModalWithCode(1);
    });
    runModalForWindow(&window);
    EXPECT_EQ(codes(), (QList<qint64>{1, 2, 6, 7, 36}));
    EXPECT_NE(mainMenu(), nullptr) << "built at launch when the program built none";
    const auto updated = [](const Seen &each) { return each.event == appEventDidUpdate; };
    EXPECT_TRUE(std::any_of(seen.begin(), seen.end(), updated));
}

TEST(Terminate, AsksTellsAndRefuses)
{
    CocoaInit();
    CUI_SetOnAppEventFunction(onAppEvent);
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
TEST(Terminate, EndsFromAnyDepth)
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
