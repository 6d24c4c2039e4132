#pragma once

#include <QVariant>

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
