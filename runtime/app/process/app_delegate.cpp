#include <tetrad/app/app_delegate.h>

#include <tetrad/app/menus.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QTimer>

#include <utility>

namespace tetrad {

namespace {

AppEventFunction sCUI_OnAppEventFunction = nullptr;

constexpr char timerFunctionKey[] = "userInfo";

QVariant theApplication()
{
    return QVariant::fromValue<QObject *>(qApp);
}

} // namespace

AppEventFunction CUI_SetOnAppEventFunction(AppEventFunction function)
{
    return std::exchange(sCUI_OnAppEventFunction, function);
}

AppEventFunction CUI_OnAppEventFunction()
{
    return sCUI_OnAppEventFunction;
}

QVariant CallUserDefinedOnAppEventFunction(qint64 event, const QVariant &object)
{
    return sCUI_OnAppEventFunction ? sCUI_OnAppEventFunction(event, object) : QVariant();
}

void CUI_AppDelegate::forwardApplicationEvent(qint64 event, const QVariant &object)
{
    if (delegateCallback) {
        delegateCallback(event, delegateUserData);
    } else {
        CallUserDefinedOnAppEventFunction(event, object);
    }
}

bool CUI_AppDelegate::ask(qint64 event, bool preset)
{
    boolVal = preset;
    forwardApplicationEvent(event, theApplication());
    return boolVal;
}

bool CUI_AppDelegate::ask(qint64 event, bool preset, const QString &text)
{
    boolVal = preset;
    stringVal = text;
    forwardApplicationEvent(event, text);
    return boolVal;
}

void CUI_AppDelegate::applicationWillFinishLaunching()
{
    if (!mainMenu()) {
        CUI_BuildMinimalMenu();
    }
    forwardApplicationEvent(appEventWillFinishLaunching);
}

qint64 CUI_AppDelegate::applicationShouldTerminate()
{
    longVal = terminateNow;
    forwardApplicationEvent(appEventShouldTerminate, theApplication());
    return longVal;
}

QMenu *CUI_AppDelegate::applicationDockMenu()
{
    menuObj = nullptr;
    forwardApplicationEvent(appEventDockMenu, theApplication());
    return menuObj;
}

qint64 CUI_AppDelegate::printFiles(const QStringList &files, const QVariantMap &settings, bool showPrintPanels)
{
    longVal = 1;
    arrayVal = QVariant(files).toList();
    dictVal = settings;
    boolVal = showPrintPanels;
    forwardApplicationEvent(appEventPrintFiles, files);
    return longVal;
}

void CUI_AppDelegate::didReceiveRemoteNotification(const QVariantMap &payload)
{
    dictVal = payload;
    forwardApplicationEvent(appEventDidReceiveRemoteNotification, payload);
}

void CUI_AppDelegate::didFailToContinueUserActivityWithType(const QString &type, const ErrorObject & /*error*/)
{
    stringVal = type;
    forwardApplicationEvent(appEventDidFailToContinueUserActivity, type);
}

void CUI_AppDelegate::openFiles(const QStringList &paths)
{
    arrayVal.clear();
    for (const QString &path : paths) {
        arrayVal.append(QUrl::fromLocalFile(path));
    }
    urlVal = arrayVal.value(0).toUrl();
    stringVal = QFileInfo(QDir::cleanPath(paths.value(0))).fileName();
    forwardApplicationEvent(appEventOpenFiles, arrayVal);
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
    CUI_AppDelegateObj()->windows.append(window);
}

void CUI_AppDelegateRemoveWindow(Window *window)
{
    CUI_AppDelegateObj()->windows.removeAll(window);
}

} // namespace tetrad
