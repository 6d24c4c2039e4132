#pragma once

// Implemented in runtime/app/process/app_delegate.cpp

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

class Window;

/// The application's delegate: answers the window system's questions about the application and reports
/// what happens to it, each callback as one numbered event (AppEvent). A callback stores its
/// arguments and its default answer in the fields below, forwards the event, and returns the answer
/// as it stands afterwards; the program's event function changes it there:
///
///     QVariant onAppEvent(qint64 event, const QVariant &)
///     {
///         if (event == appEventShouldTerminate) {
///             CUI_AppDelegateObj()->setLongVal(0);
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

    explicit CUI_AppDelegate(QObject *parent = nullptr);

    bool boolVal() const { return m_boolVal; }
    void setBoolVal(bool value) { m_boolVal = value; }

    /// If set, it gets every event in place of the registered application-event function.
    DelegateCallback delegateCallback() const { return m_delegateCallback; }
    void setDelegateCallback(DelegateCallback callback) { m_delegateCallback = callback; }
    qintptr delegateUserData() const { return m_delegateUserData; }
    void setDelegateUserData(qintptr userData) { m_delegateUserData = userData; }

    /// Every window made by WindowInit and not closed yet, in the order of their making.
    QList<Window *> windows() const { return m_windows; }
    void setWindows(const QList<Window *> &windows) { m_windows = windows; }

    qint64 longVal() const { return m_longVal; }
    void setLongVal(qint64 value) { m_longVal = value; }

    /// A file's name or an activity's type.
    QString stringVal() const { return m_stringVal; }
    void setStringVal(const QString &value) { m_stringVal = value; }

    /// Files or URLs.
    QVariantList arrayVal() const { return m_arrayVal; }
    void setArrayVal(const QVariantList &value) { m_arrayVal = value; }

    /// Print settings or a notification's payload.
    QVariantMap dictVal() const { return m_dictVal; }
    void setDictVal(const QVariantMap &value) { m_dictVal = value; }

    /// The first of the opened files.
    QUrl urlVal() const { return m_urlVal; }
    void setUrlVal(const QUrl &value) { m_urlVal = value; }

    /// The answer to applicationDockMenu. Not owned.
    QMenu *menuObj() const;
    void setMenuObj(QMenu *menu);

    /// The open key-input and line-input panels and the answers of the last ones that were confirmed.
    QWidget *inkeyWnd() const { return m_inkeyWnd; }
    void setInkeyWnd(QWidget *panel) { m_inkeyWnd = panel; }
    QString inkeyResponseString() const { return m_inkeyResponseString; }
    void setInkeyResponseString(const QString &response) { m_inkeyResponseString = response; }
    QWidget *inputWnd() const { return m_inputWnd; }
    void setInputWnd(QWidget *panel) { m_inputWnd = panel; }
    QString inputResponseString() const { return m_inputResponseString; }
    void setInputResponseString(const QString &response) { m_inputResponseString = response; }

    /// The runtime calls these with an invalid notification: no event of this platform belongs to one of them.
    virtual void applicationWillFinishLaunching(const QVariant &notification);
    virtual void applicationDidFinishLaunching(const QVariant &notification);
    virtual qint64 applicationShouldTerminate();
    virtual bool applicationShouldTerminateAfterLastWindowClosed();
    virtual void applicationWillTerminate(const QVariant &notification);
    virtual void applicationWillBecomeActive(const QVariant &notification);
    virtual void applicationDidBecomeActive(const QVariant &notification);
    virtual void applicationWillResignActive(const QVariant &notification);
    virtual void applicationDidResignActive(const QVariant &notification);
    virtual void applicationWillHide(const QVariant &notification);
    virtual void applicationDidHide(const QVariant &notification);
    virtual void applicationWillUnhide(const QVariant &notification);
    virtual void applicationDidUnhide(const QVariant &notification);
    virtual void applicationWillUpdate(const QVariant &notification);
    virtual void applicationDidUpdate(const QVariant &notification);
    virtual bool applicationShouldHandleReopen(bool hasVisibleWindows);
    virtual QMenu *applicationDockMenu();
    virtual void applicationDidChangeScreenParameters(const QVariant &notification);
    virtual bool openFileWithoutUI(const QString &fileName);
    virtual bool openTempFile(const QString &fileName);
    virtual bool applicationOpenUntitledFile();
    virtual bool applicationShouldOpenUntitledFile();
    virtual bool printFile(const QString &fileName);
    virtual qint64 printFiles(const QStringList &files, const QVariantMap &settings, bool showPrintPanels);
    virtual void didRegisterForRemoteNotificationsWithDeviceToken(const QByteArray &token);
    virtual void didFailToRegisterForRemoteNotificationsWithError(const ErrorObject &error);
    virtual void didReceiveRemoteNotification(const QVariantMap &payload);
    virtual void didDecodeRestorableState(const QVariant &coder);
    virtual void willEncodeRestorableState(const QVariant &coder);
    virtual bool willContinueUserActivityWithType(const QString &type);
    virtual void didFailToContinueUserActivityWithType(const QString &type, const ErrorObject &error);
    virtual void didUpdateUserActivity(const QVariant &activity);
    virtual void applicationDidChangeOcclusionState(const QVariant &notification);
    virtual void openFiles(const QStringList &paths);

    /// Forwards nothing and returns the error as it is.
    virtual ErrorObject willPresentError(const ErrorObject &error);

    /// Calls the function that a timer carries and stops the timer when the function returns true. The
    /// function may delete the timer. A timer without a function is left alone.
    void timerFired(QTimer *timer);
    static void setTimerFunction(QTimer *timer, TimerFunction function);

    /// Where every event goes: to delegateCallback, else to the registered application-event function.
    void forwardApplicationEvent(qint64 event, const QVariant &object);

private:
    bool ask(qint64 event, bool preset, const QVariant &object);

    bool m_boolVal = false;
    DelegateCallback m_delegateCallback = nullptr;
    qintptr m_delegateUserData = 0;
    QList<Window *> m_windows;
    qint64 m_longVal = 0;
    QString m_stringVal;
    QVariantList m_arrayVal;
    QVariantMap m_dictVal;
    QUrl m_urlVal;
    QPointer<QObject> m_menuObj;
    QPointer<QWidget> m_inkeyWnd;
    QString m_inkeyResponseString;
    QPointer<QWidget> m_inputWnd;
    QString m_inputResponseString;
};

/// Keep the current delegate's list of windows.
void CUI_AppDelegateAddWindow(Window *window);
void CUI_AppDelegateRemoveWindow(Window *window);

} // namespace tetrad
