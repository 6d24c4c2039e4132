#include "runtime/app/application.h"

#include "runtime/app/app_delegate.h"
#include "runtime/app/app_events.h"
#include "runtime/app/menus.h"
#include "runtime/app/modal.h"
#include "runtime/app/window.h"

#include <QApplication>
#include <QClipboard>
#include <QFileOpenEvent>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>
#include <functional>

namespace {

using namespace tetrad;

struct Seen
{
    qint64 event;
    QVariant object;
};

QList<Seen> seen;
std::function<void(qint64)> answer;

QVariant onAppEvent(qint64 event, const QVariant &object)
{
    seen.append({event, object});
    if (answer) {
        answer(event);
    }
    return QStringLiteral("answered");
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
    CUI_AppDelegate *remembered = CUI_AppDelegateObj();
    EXPECT_EQ(CUI_AppDelegateObj(), remembered);
    CUI_AppDelegate own;
    setAppDelegate(&own);
    CocoaInit();
    EXPECT_EQ(CUI_AppDelegateObj(), &own);
    setAppDelegate(nullptr);
    CocoaInit();
    CUI_AppDelegate *made = CUI_AppDelegateObj();
    EXPECT_NE(made, remembered);
    CocoaInit();
    EXPECT_EQ(CUI_AppDelegateObj(), made);
}

TEST(Application, Names)
{
    CocoaInit();
    EXPECT_EQ(applicationName(), u"Tetrad Game");
    EXPECT_EQ(applicationId(), u"io.github.tetrad_game.Tetrad");
    EXPECT_FALSE(applicationVersion().isEmpty());
}

TEST(Application, NameOfTheProgramsOwnStays)
{
    QCoreApplication::setApplicationName(QStringLiteral("Sketch"));
    CocoaInit();
    EXPECT_EQ(applicationName(), u"Sketch");
}

TEST(AppDelegate, CallbacksStoreForwardAndAnswer)
{
    CUI_AppDelegate d;
    const QVariant application = QVariant::fromValue<QObject *>(qApp);
    const QVariant note = QStringLiteral("note");
    const QString file = QStringLiteral("/a/b.txt");
    const QVariantMap map = {{QStringLiteral("k"), 1}};
    const ErrorObject error = {QStringLiteral("d"), 3, QStringLiteral("bad")};
    const QVariantList urls = {QUrl::fromLocalFile(file), QUrl::fromLocalFile(QStringLiteral("/c"))};
    const auto flag = [](bool value) { return QVariant(value); };
    // What is called, and what is seen and answered then; a null answer stands for a callback without one.
    const struct
    {
        std::function<QVariant()> call;
        qint64 code;
        QVariant object;
        QVariant reply;
    } rows[] = {
        {[&] { return d.applicationWillFinishLaunching(note), QVariant(); }, 1, note, {}},
        {[&] { return d.applicationDidFinishLaunching(note), QVariant(); }, 2, note, {}},
        {[&] { return QVariant(d.applicationShouldTerminate()); }, 3, application, qint64(1)},
        {[&] { return flag(d.applicationShouldTerminateAfterLastWindowClosed()); }, 4, application, false},
        {[&] { return d.applicationWillTerminate(note), QVariant(); }, 5, note, {}},
        {[&] { return d.applicationWillBecomeActive(note), QVariant(); }, 6, note, {}},
        {[&] { return d.applicationDidBecomeActive(note), QVariant(); }, 7, note, {}},
        {[&] { return d.applicationWillResignActive(note), QVariant(); }, 8, note, {}},
        {[&] { return d.applicationDidResignActive(note), QVariant(); }, 9, note, {}},
        {[&] { return d.applicationWillHide(note), QVariant(); }, 10, note, {}},
        {[&] { return d.applicationDidHide(note), QVariant(); }, 11, note, {}},
        {[&] { return d.applicationWillUnhide(note), QVariant(); }, 12, note, {}},
        {[&] { return d.applicationDidUnhide(note), QVariant(); }, 13, note, {}},
        {[&] { return d.applicationWillUpdate(note), QVariant(); }, 14, note, {}},
        {[&] { return d.applicationDidUpdate(note), QVariant(); }, 15, note, {}},
        {[&] { return flag(d.applicationShouldHandleReopen(false)); }, 16, application, true},
        {[&] { return flag(d.applicationDockMenu() != nullptr); }, 17, application, false},
        {[&] { return d.applicationDidChangeScreenParameters(note), QVariant(); }, 19, note, {}},
        {[&] { return flag(d.openFileWithoutUI(file)); }, 20, file, false},
        {[&] { return flag(d.openTempFile(file)); }, 21, file, false},
        {[&] { return flag(d.applicationOpenUntitledFile()); }, 22, application, false},
        {[&] { return flag(d.applicationShouldOpenUntitledFile()); }, 23, application, false},
        {[&] { return flag(d.printFile(file)); }, 24, file, true},
        {[&] { return QVariant(d.printFiles({file}, map, true)); }, 25, QStringList{file}, qint64(1)},
        {[&] { return d.didRegisterForRemoteNotificationsWithDeviceToken("t"), QVariant(); }, 26, QByteArray("t"), {}},
        {[&] { return d.didFailToRegisterForRemoteNotificationsWithError(error), QVariant(); },
         27,
         QVariant::fromValue(error),
         {}},
        {[&] { return d.didReceiveRemoteNotification(map), QVariant(); }, 28, map, {}},
        {[&] { return d.didDecodeRestorableState(note), QVariant(); }, 29, note, {}},
        {[&] { return d.willEncodeRestorableState(note), QVariant(); }, 30, note, {}},
        {[&] { return flag(d.willContinueUserActivityWithType(QStringLiteral("t"))); }, 31, QStringLiteral("t"), false},
        {[&] { return d.didFailToContinueUserActivityWithType(QStringLiteral("u"), error), QVariant(); },
         33,
         QStringLiteral("u"),
         {}},
        {[&] { return d.didUpdateUserActivity(note), QVariant(); }, 34, note, {}},
        {[&] { return d.applicationDidChangeOcclusionState(note), QVariant(); }, 35, note, {}},
        {[&] {
             return d.openFiles({file, QStringLiteral("/c")}), QVariant();
         },
         36,
         urls,
         {}},
    };
    CUI_SetOnAppEventFunction(onAppEvent);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.code);
        seen.clear();
        answer = nullptr;
        EXPECT_EQ(row.call(), row.reply);
        ASSERT_EQ(seen.size(), 1);
        EXPECT_EQ(seen[0].event, row.code);
        EXPECT_EQ(seen[0].object, row.object);
        if (row.reply.isValid()) {
            QMenu dock;
            answer = [&](qint64) {
                d.setBoolVal(!row.reply.toBool());
                d.setLongVal(9);
                d.setMenuObj(&dock);
            };
            EXPECT_EQ(row.call(), row.reply.typeId() == QMetaType::Bool ? QVariant(!row.reply.toBool()) : qint64(9));
        }
    }
    EXPECT_EQ(d.willPresentError(error), error);
    EXPECT_EQ(d.stringVal(), u"b.txt");
    EXPECT_EQ(d.urlVal(), urls.first().toUrl());
    EXPECT_EQ(d.dictVal(), map);
    d.openFiles({});
    EXPECT_TRUE(d.urlVal().isEmpty() && d.arrayVal().isEmpty());
}

TEST(AppDelegate, OwnCallbackGoesBeforeTheRegisteredFunction)
{
    static qint64 got = 0;
    EXPECT_FALSE(CallUserDefinedOnAppEventFunction(7, {}).isValid());
    EXPECT_EQ(CUI_SetOnAppEventFunction(onAppEvent), nullptr);
    EXPECT_EQ(CUI_OnAppEventFunction(), &onAppEvent);
    EXPECT_EQ(CallUserDefinedOnAppEventFunction(7, {}), QStringLiteral("answered"));
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
    QTimer goesOn;
    QTimer stops;
    QTimer plain;
    QPointer<QTimer> goes = new QTimer;
    CUI_AppDelegate::setTimerFunction(&goesOn, [](QTimer *) { return false; });
    CUI_AppDelegate::setTimerFunction(&stops, [](QTimer *) { return true; });
    CUI_AppDelegate::setTimerFunction(goes, [](QTimer *timer) { return delete timer, true; });
    for (QTimer *timer : {&goesOn, &stops, &plain, goes.data()}) {
        timer->start(1000000);
        delegate.timerFired(timer);
    }
    EXPECT_TRUE(goesOn.isActive() && plain.isActive());
    EXPECT_FALSE(stops.isActive());
    EXPECT_EQ(goes, nullptr);
}

TEST(AppDelegate, RealEventsArrive)
{
    CocoaInit();
    CUI_SetOnAppEventFunction(onAppEvent);
    QWidget window;
    QTimer::singleShot(0, &window, [&window] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QFileOpenEvent open(QStringLiteral("/x/y.z"));
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

void endFrom(QWidget &window, const std::function<void()> &act)
{
    QTimer::singleShot(0, &window, act);
    runModalForWindow(&window);
    std::_Exit(3);
}

class ClosingWindow : public QWidget
{
protected:
    void closeEvent(QCloseEvent *) override { AppTerminate(); }
};

// What the offscreen platform itself has to say.
constexpr char nothingOfOurs[] = "^((This plugin does not support|QStandardPaths)[^\n]*\n)*$";

// From wherever it is called: status 0, and nothing on standard error.
TEST(Terminate, EndsFromAnyDepth)
{
    const std::pair<const char *, std::function<void(QWidget &)>> rows[] = {
        {"timer", [](QWidget &window) { endFrom(window, AppTerminate); }},
        {"nested runs",
         [](QWidget &window) {
             endFrom(window, [&] {
                 auto *inner = new QWidget(&window, Qt::Window);
                 endFrom(*inner, AppTerminate);
             });
         }},
        {"close event",
         [](QWidget &window) {
             endFrom(window, [] {
                 ClosingWindow closing;
                 closing.show();
                 closing.close();
             });
         }},
        {"open menu",
         [](QWidget &window) {
             endFrom(window, [&] {
                 CUI_EditMenu(2);
                 QTimer::singleShot(0, &window, [] { mainMenu()->menus[0]->actions().last()->trigger(); });
                 mainMenu()->menus[0]->exec();
             });
         }},
        {"with an owned clipboard",
         [](QWidget &window) {
             endFrom(window, [] {
                 QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
                 AppTerminate();
             });
         }},
        {"again while it tells",
         [](QWidget &window) {
             CUI_SetOnAppEventFunction(onAppEvent);
             answer = [](qint64 event) {
                 if (event == appEventWillTerminate) {
                     AppTerminate();
                 }
             };
             endFrom(window, AppTerminate);
         }},
        {"SIGTERM, although the delegate would refuse",
         [](QWidget &window) {
             CUI_SetOnAppEventFunction(onAppEvent);
             answer = [](qint64) { CUI_AppDelegateObj()->setLongVal(0); };
             endFrom(window, [] { std::raise(SIGTERM); });
         }},
        {"SIGHUP", [](QWidget &window) { endFrom(window, [] { std::raise(SIGHUP); }); }},
    };
    for (const auto &[name, end] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EXIT(
            {
                CocoaInit();
                QWidget window;
                end(window);
            },
            testing::ExitedWithCode(0), nothingOfOurs);
    }
}

} // namespace
