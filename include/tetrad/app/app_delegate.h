#pragma once

// Implemented in runtime/app/process/app_delegate.cpp and application.cpp

#include <tetrad/fwd.h>
#include <tetrad/strings/error_object.h>

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QUrl>
#include <QVariant>
#include <QWidget>

class QMenu;
class QTimer;

namespace tetrad {

/// Codes of the application events, in the order of CUI_AppDelegate's callbacks. 18 and 32 are not used.
enum AppEvent : qint64 {
    appEventWillFinishLaunching = 1,
    appEventDidFinishLaunching = 2,
    appEventShouldTerminate = 3,
    appEventShouldTerminateAfterLastWindowClosed = 4,
    appEventWillTerminate = 5,
    appEventWillBecomeActive = 6,
    appEventDidBecomeActive = 7,
    appEventWillResignActive = 8,
    appEventDidResignActive = 9,
    appEventWillHide = 10,
    appEventDidHide = 11,
    appEventWillUnhide = 12,
    appEventDidUnhide = 13,
    appEventWillUpdate = 14,
    appEventDidUpdate = 15,
    appEventShouldHandleReopen = 16,
    appEventDockMenu = 17,
    appEventDidChangeScreenParameters = 19,
    appEventOpenFileWithoutUI = 20,
    appEventOpenTempFile = 21,
    appEventOpenUntitledFile = 22,
    appEventShouldOpenUntitledFile = 23,
    appEventPrintFile = 24,
    appEventPrintFiles = 25,
    appEventDidRegisterForRemoteNotifications = 26,
    appEventDidFailToRegisterForRemoteNotifications = 27,
    appEventDidReceiveRemoteNotification = 28,
    appEventDidDecodeRestorableState = 29,
    appEventWillEncodeRestorableState = 30,
    appEventWillContinueUserActivity = 31,
    appEventDidFailToContinueUserActivity = 33,
    appEventDidUpdateUserActivity = 34,
    appEventDidChangeOcclusionState = 35,
    appEventOpenFiles = 36,
};

/// The application's delegate: answers the window system's questions about the application and reports
/// what happens to it, each callback as one numbered event (AppEvent). A callback stores its
/// arguments and its default answer in the fields below, forwards the event, and returns the answer
/// as it stands afterwards; the program's event function changes it there:
///
///     QVariant onAppEvent(qint64 event, const QVariant &)
///     {
///         if (event == appEventShouldTerminate) {
///             CUI_AppDelegateObj()->longVal = 0;
///         }
///         return {};
///     }
///
/// Callbacks for which this platform has no event are there to be called.
class CUI_AppDelegate : public QObject
{
    Q_OBJECT

public:
    using DelegateCallback = void (*)(qint64 event, qintptr userData);

    /// Called with the timer; true stops it.
    using TimerFunction = bool (*)(QTimer *timer);

    /// The answer to applicationShouldTerminate that lets the process end; every other one refuses.
    static constexpr qint64 terminateNow = 1;

    using QObject::QObject;

    bool boolVal = false;
    DelegateCallback delegateCallback = nullptr;
    qintptr delegateUserData = 0;
    /// Every window made by WindowInit and not closed yet, in the order of their making.
    QList<Window *> windows;
    qint64 longVal = 0;
    /// A file's name or an activity's type.
    QString stringVal;
    /// Files or URLs.
    QVariantList arrayVal;
    /// Print settings or a notification's payload.
    QVariantMap dictVal;
    /// The first of the opened files.
    QUrl urlVal;
    /// The answer to applicationDockMenu. Not owned.
    QPointer<QMenu> menuObj;
    /// The open key-input and line-input panels and the answers of the last ones that were confirmed.
    QPointer<QWidget> inkeyWnd;
    QString inkeyResponseString;
    QPointer<QWidget> inputWnd;
    QString inputResponseString;

    /// Notifications of the window system have no object.
    virtual void applicationWillFinishLaunching();
    virtual void applicationDidFinishLaunching() { forwardApplicationEvent(appEventDidFinishLaunching); }
    virtual qint64 applicationShouldTerminate();
    virtual bool applicationShouldTerminateAfterLastWindowClosed()
    {
        return ask(appEventShouldTerminateAfterLastWindowClosed, false);
    }
    virtual void applicationWillTerminate() { forwardApplicationEvent(appEventWillTerminate); }
    virtual void applicationWillBecomeActive() { forwardApplicationEvent(appEventWillBecomeActive); }
    virtual void applicationDidBecomeActive() { forwardApplicationEvent(appEventDidBecomeActive); }
    virtual void applicationWillResignActive() { forwardApplicationEvent(appEventWillResignActive); }
    virtual void applicationDidResignActive() { forwardApplicationEvent(appEventDidResignActive); }
    virtual void applicationWillHide() { forwardApplicationEvent(appEventWillHide); }
    virtual void applicationDidHide() { forwardApplicationEvent(appEventDidHide); }
    virtual void applicationWillUnhide() { forwardApplicationEvent(appEventWillUnhide); }
    virtual void applicationDidUnhide() { forwardApplicationEvent(appEventDidUnhide); }
    virtual void applicationWillUpdate() { forwardApplicationEvent(appEventWillUpdate); }
    virtual void applicationDidUpdate() { forwardApplicationEvent(appEventDidUpdate); }
    virtual bool applicationShouldHandleReopen(bool /*hasVisibleWindows*/)
    {
        return ask(appEventShouldHandleReopen, true);
    }
    virtual QMenu *applicationDockMenu();
    virtual void applicationDidChangeScreenParameters() { forwardApplicationEvent(appEventDidChangeScreenParameters); }
    virtual bool openFileWithoutUI(const QString &fileName) { return ask(appEventOpenFileWithoutUI, false, fileName); }
    virtual bool openTempFile(const QString &fileName) { return ask(appEventOpenTempFile, false, fileName); }
    virtual bool applicationOpenUntitledFile() { return ask(appEventOpenUntitledFile, false); }
    virtual bool applicationShouldOpenUntitledFile() { return ask(appEventShouldOpenUntitledFile, false); }
    virtual bool printFile(const QString &fileName) { return ask(appEventPrintFile, true, fileName); }
    virtual qint64 printFiles(const QStringList &files, const QVariantMap &settings, bool showPrintPanels);
    virtual void didRegisterForRemoteNotificationsWithDeviceToken(const QByteArray &token)
    {
        forwardApplicationEvent(appEventDidRegisterForRemoteNotifications, token);
    }
    virtual void didFailToRegisterForRemoteNotificationsWithError(const ErrorObject &error)
    {
        forwardApplicationEvent(appEventDidFailToRegisterForRemoteNotifications, QVariant::fromValue(error));
    }
    virtual void didReceiveRemoteNotification(const QVariantMap &payload);
    virtual void didDecodeRestorableState(const QVariant &coder)
    {
        forwardApplicationEvent(appEventDidDecodeRestorableState, coder);
    }
    virtual void willEncodeRestorableState(const QVariant &coder)
    {
        forwardApplicationEvent(appEventWillEncodeRestorableState, coder);
    }
    virtual bool willContinueUserActivityWithType(const QString &type)
    {
        return ask(appEventWillContinueUserActivity, false, type);
    }
    virtual void didFailToContinueUserActivityWithType(const QString &type, const ErrorObject &error);
    virtual void didUpdateUserActivity(const QVariant &activity)
    {
        forwardApplicationEvent(appEventDidUpdateUserActivity, activity);
    }
    virtual void applicationDidChangeOcclusionState() { forwardApplicationEvent(appEventDidChangeOcclusionState); }
    virtual void openFiles(const QStringList &paths);

    /// Forwards nothing and returns the error as it is.
    virtual ErrorObject willPresentError(const ErrorObject &error) { return error; }

    /// Calls the function that a timer carries and stops the timer when the function returns true. The
    /// function may delete the timer. A timer without a function is left alone.
    void timerFired(QTimer *timer);
    static void setTimerFunction(QTimer *timer, TimerFunction function);

    /// Where every event goes: to delegateCallback, else to the registered application-event function.
    void forwardApplicationEvent(qint64 event, const QVariant &object = {});

private:
    bool ask(qint64 event, bool preset);
    bool ask(qint64 event, bool preset, const QString &text);
};

/// The application's current delegate; if none is installed, one that is remembered but not installed.
CUI_AppDelegate *CUI_AppDelegateObj();

/// Installs a delegate in place of the current one, also before CocoaInit; null takes it out. Not owned.
void setAppDelegate(CUI_AppDelegate *delegate);

/// Keep the current delegate's list of windows.
void CUI_AppDelegateAddWindow(Window *window);
void CUI_AppDelegateRemoveWindow(Window *window);

/// The program's one function for application events: event code and the object concerned. Answers are
/// written into the delegate's fields.
using AppEventFunction = QVariant (*)(qint64 event, const QVariant &object);

/// Registers the function; null takes it out again. Returns the one registered before.
AppEventFunction CUI_SetOnAppEventFunction(AppEventFunction function);

/// The registered function, or null.
AppEventFunction CUI_OnAppEventFunction();

/// Calls the registered function and returns its result; without one, null and no call.
QVariant CallUserDefinedOnAppEventFunction(qint64 event, const QVariant &object);

} // namespace tetrad
