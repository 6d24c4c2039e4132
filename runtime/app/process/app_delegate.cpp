#include <tetrad/app/app_delegate.h>

#include <tetrad/app/application.h>
#include <tetrad/app/menus.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QTimer>

namespace tetrad {

namespace {

constexpr char timerFunctionKey[] = "userInfo";

QVariant theApplication()
{
    return QVariant::fromValue<QObject *>(qApp);
}

} // namespace

CUI_AppDelegate::CUI_AppDelegate(QObject *parent) : QObject(parent) {}

QMenu *CUI_AppDelegate::menuObj() const
{
    return qobject_cast<QMenu *>(m_menuObj.data());
}

void CUI_AppDelegate::setMenuObj(QMenu *menu)
{
    m_menuObj = menu;
}

void CUI_AppDelegate::forwardApplicationEvent(qint64 event, const QVariant &object)
{
    if (m_delegateCallback) {
        m_delegateCallback(event, m_delegateUserData);
    } else {
        CallUserDefinedOnAppEventFunction(event, object);
    }
}

bool CUI_AppDelegate::ask(qint64 event, bool preset, const QVariant &object)
{
    m_boolVal = preset;
    forwardApplicationEvent(event, object);
    return m_boolVal;
}

void CUI_AppDelegate::applicationWillFinishLaunching(const QVariant &notification)
{
    if (!mainMenu()) {
        CUI_BuildMinimalMenu();
    }
    forwardApplicationEvent(appEventWillFinishLaunching, notification);
}

void CUI_AppDelegate::applicationDidFinishLaunching(const QVariant &notification)
{
    forwardApplicationEvent(appEventDidFinishLaunching, notification);
}

qint64 CUI_AppDelegate::applicationShouldTerminate()
{
    m_longVal = terminateNow;
    forwardApplicationEvent(appEventShouldTerminate, theApplication());
    return m_longVal;
}

bool CUI_AppDelegate::applicationShouldTerminateAfterLastWindowClosed()
{
    return ask(appEventShouldTerminateAfterLastWindowClosed, false, theApplication());
}

void CUI_AppDelegate::applicationWillTerminate(const QVariant &notification)
{
    forwardApplicationEvent(appEventWillTerminate, notification);
}

void CUI_AppDelegate::applicationWillBecomeActive(const QVariant &notification)
{
    forwardApplicationEvent(appEventWillBecomeActive, notification);
}

void CUI_AppDelegate::applicationDidBecomeActive(const QVariant &notification)
{
    forwardApplicationEvent(appEventDidBecomeActive, notification);
}

void CUI_AppDelegate::applicationWillResignActive(const QVariant &notification)
{
    forwardApplicationEvent(appEventWillResignActive, notification);
}

void CUI_AppDelegate::applicationDidResignActive(const QVariant &notification)
{
    forwardApplicationEvent(appEventDidResignActive, notification);
}

void CUI_AppDelegate::applicationWillHide(const QVariant &notification)
{
    forwardApplicationEvent(appEventWillHide, notification);
}

void CUI_AppDelegate::applicationDidHide(const QVariant &notification)
{
    forwardApplicationEvent(appEventDidHide, notification);
}

void CUI_AppDelegate::applicationWillUnhide(const QVariant &notification)
{
    forwardApplicationEvent(appEventWillUnhide, notification);
}

void CUI_AppDelegate::applicationDidUnhide(const QVariant &notification)
{
    forwardApplicationEvent(appEventDidUnhide, notification);
}

void CUI_AppDelegate::applicationWillUpdate(const QVariant &notification)
{
    forwardApplicationEvent(appEventWillUpdate, notification);
}

void CUI_AppDelegate::applicationDidUpdate(const QVariant &notification)
{
    forwardApplicationEvent(appEventDidUpdate, notification);
}

bool CUI_AppDelegate::applicationShouldHandleReopen(bool /*hasVisibleWindows*/)
{
    return ask(appEventShouldHandleReopen, true, theApplication());
}

QMenu *CUI_AppDelegate::applicationDockMenu()
{
    m_menuObj = nullptr;
    forwardApplicationEvent(appEventDockMenu, theApplication());
    return menuObj();
}

void CUI_AppDelegate::applicationDidChangeScreenParameters(const QVariant &notification)
{
    forwardApplicationEvent(appEventDidChangeScreenParameters, notification);
}

bool CUI_AppDelegate::openFileWithoutUI(const QString &fileName)
{
    m_stringVal = fileName;
    return ask(appEventOpenFileWithoutUI, false, fileName);
}

bool CUI_AppDelegate::openTempFile(const QString &fileName)
{
    m_stringVal = fileName;
    return ask(appEventOpenTempFile, false, fileName);
}

bool CUI_AppDelegate::applicationOpenUntitledFile()
{
    return ask(appEventOpenUntitledFile, false, theApplication());
}

bool CUI_AppDelegate::applicationShouldOpenUntitledFile()
{
    return ask(appEventShouldOpenUntitledFile, false, theApplication());
}

bool CUI_AppDelegate::printFile(const QString &fileName)
{
    m_stringVal = fileName;
    return ask(appEventPrintFile, true, fileName);
}

qint64 CUI_AppDelegate::printFiles(const QStringList &files, const QVariantMap &settings, bool showPrintPanels)
{
    m_longVal = 1;
    m_arrayVal = QVariant(files).toList();
    m_dictVal = settings;
    m_boolVal = showPrintPanels;
    forwardApplicationEvent(appEventPrintFiles, files);
    return m_longVal;
}

void CUI_AppDelegate::didRegisterForRemoteNotificationsWithDeviceToken(const QByteArray &token)
{
    forwardApplicationEvent(appEventDidRegisterForRemoteNotifications, token);
}

void CUI_AppDelegate::didFailToRegisterForRemoteNotificationsWithError(const ErrorObject &error)
{
    forwardApplicationEvent(appEventDidFailToRegisterForRemoteNotifications, QVariant::fromValue(error));
}

void CUI_AppDelegate::didReceiveRemoteNotification(const QVariantMap &payload)
{
    m_dictVal = payload;
    forwardApplicationEvent(appEventDidReceiveRemoteNotification, payload);
}

void CUI_AppDelegate::didDecodeRestorableState(const QVariant &coder)
{
    forwardApplicationEvent(appEventDidDecodeRestorableState, coder);
}

void CUI_AppDelegate::willEncodeRestorableState(const QVariant &coder)
{
    forwardApplicationEvent(appEventWillEncodeRestorableState, coder);
}

bool CUI_AppDelegate::willContinueUserActivityWithType(const QString &type)
{
    m_stringVal = type;
    return ask(appEventWillContinueUserActivity, false, type);
}

void CUI_AppDelegate::didFailToContinueUserActivityWithType(const QString &type, const ErrorObject & /*error*/)
{
    m_stringVal = type;
    forwardApplicationEvent(appEventDidFailToContinueUserActivity, type);
}

void CUI_AppDelegate::didUpdateUserActivity(const QVariant &activity)
{
    forwardApplicationEvent(appEventDidUpdateUserActivity, activity);
}

void CUI_AppDelegate::applicationDidChangeOcclusionState(const QVariant &notification)
{
    forwardApplicationEvent(appEventDidChangeOcclusionState, notification);
}

void CUI_AppDelegate::openFiles(const QStringList &paths)
{
    m_arrayVal.clear();
    for (const QString &path : paths) {
        m_arrayVal.append(QUrl::fromLocalFile(path));
    }
    m_urlVal = m_arrayVal.value(0).toUrl();
    m_stringVal = QFileInfo(QDir::cleanPath(paths.value(0))).fileName();
    forwardApplicationEvent(appEventOpenFiles, m_arrayVal);
}

ErrorObject CUI_AppDelegate::willPresentError(const ErrorObject &error)
{
    return error;
}

void CUI_AppDelegate::timerFired(QTimer *timer)
{
    const auto function = timer->property(timerFunctionKey).value<TimerFunction>();
    const QPointer<QTimer> guard(timer);
    if (function && function(timer) && guard) {
        timer->stop();
    }
}

void CUI_AppDelegate::setTimerFunction(QTimer *timer, TimerFunction function)
{
    timer->setProperty(timerFunctionKey, QVariant::fromValue(function));
}

void CUI_AppDelegateAddWindow(Window *window)
{
    CUI_AppDelegate *delegate = CUI_AppDelegateObj();
    delegate->setWindows(delegate->windows() << window);
}

void CUI_AppDelegateRemoveWindow(Window *window)
{
    CUI_AppDelegate *delegate = CUI_AppDelegateObj();
    QList<Window *> windows = delegate->windows();
    windows.removeAll(window);
    delegate->setWindows(windows);
}

} // namespace tetrad
