#pragma once

// Implemented in runtime/app/process/: application.cpp, termination.cpp, about_panel.cpp and app_events.cpp

#include <QString>
#include <QVariant>

namespace tetrad {

class CUI_AppDelegate;

/// Makes the process an application of the window system that is driven from the program's own straight-line main. A
/// second call changes nothing. What it does to the process:
/// - It creates the application object unless there is one, and installs the runtime's delegate unless one is
/// installed.
///   Without a display the process ends with one sentence on standard error and status 1.
/// - A program that has not named itself gets the runtime's name, version and id.
/// - The application gets the icon named like its id unless it has one: from the theme "hicolor" of the desktop, or
/// from
///   share/icons next to the program or to the program's folder.
/// - The locale becomes the environment's, and the layout direction that locale's.
/// - Standard streams that are closed are opened on /dev/null.
/// - SIGPIPE is ignored. The first SIGTERM or SIGHUP restores the signal's default action and ends the program through
///   the modal run that is being served, as AppTerminate does but without the question. While no run is served, or at a
///   second signal, the process ends at once. Signals with another action than the default keep it.
void CocoaInit();

/// The application's current delegate; if none is installed, one that is remembered but not installed.
CUI_AppDelegate *CUI_AppDelegateObj();

/// Installs a delegate in place of the current one, also before CocoaInit; null takes it out. Not owned.
void setAppDelegate(CUI_AppDelegate *delegate);

/// Ends the process with status 0 from any depth of nested modal loops, without unwinding main: queries
/// the delegate, hands the clipboard over, notifies the delegate, flushes the C streams. Nothing that is registered
/// for exit runs, destructors of static objects included: save what must be saved in event 5. Returns only when the
/// delegate refuses. Called while the delegate is being queried or notified, it ends the process at once.
void AppTerminate();

/// The application's name as the menu titles show it, its version, and its reverse-domain id. All
/// come from the one definition in the build; a program of its own sets its names with
/// QCoreApplication before CocoaInit.
QString applicationName();
QString applicationVersion();
QString applicationId();

/// Shows the application's name, and its version if it has one, modally until the panel is closed.
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
