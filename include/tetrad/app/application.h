#pragma once

#include <QString>
#include <QVariant>

namespace tetrad {

class CUI_AppDelegate;

/// Makes the process a window system application driven from the program's own straight-line main:
/// creates the application object, gives it the icon that is named like its id unless it has one (in the theme
/// "hicolor" where the desktop keeps its themes, or in share/icons beside the program or the program's folder), and
/// installs the runtime's delegate unless one is installed. A second call changes nothing.
/// Without a display the process ends here with one sentence on standard error and status 1.
void CocoaInit();

/// The application's current delegate; if none is installed, one that is remembered but not installed.
CUI_AppDelegate *CUI_AppDelegateObj();

/// Installs a delegate in place of the current one, also before CocoaInit; null takes it out. Not owned.
void setAppDelegate(CUI_AppDelegate *delegate);

/// Ends the process with status 0 from any depth of nested modal loops, without unwinding main: asks
/// the delegate, hands the clipboard over, notifies the delegate, flushes the C streams. Nothing that is registered
/// for exit runs, destructors of static objects included: save what must be saved in event 5. Returns only when the
/// delegate refuses. Called while the delegate is being asked or notified, it ends the process then and there.
void AppTerminate();

/// The application's name as the menu titles show it, its version, and its reverse-domain id. All
/// come from the one definition in the build; a program of its own sets its names with
/// QCoreApplication before CocoaInit.
QString applicationName();
QString applicationVersion();
QString applicationId();

/// Shows name, version and licence in a panel, modally until it is closed.
void orderFrontStandardAboutPanel();

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
