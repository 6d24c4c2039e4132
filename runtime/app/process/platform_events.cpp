#include "runtime/app/process/platform_events.h"

#include "runtime/app/process/termination.h"
#include <tetrad/app/app_delegate.h>
#include <tetrad/app/application.h>

#include <QAbstractEventDispatcher>
#include <QFileOpenEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QSessionManager>

#include <utility>

namespace tetrad {

namespace {

// Qt reports these states only after the fact, so "will" and "did" come together.
void reportState(Qt::ApplicationState before, Qt::ApplicationState now)
{
    CUI_AppDelegate *delegate = CUI_AppDelegateObj();
    if (before == Qt::ApplicationActive) {
        delegate->applicationWillResignActive();
        delegate->applicationDidResignActive();
    }
    if (now == Qt::ApplicationHidden) {
        delegate->applicationWillHide();
        delegate->applicationDidHide();
    } else if (before == Qt::ApplicationHidden) {
        delegate->applicationWillUnhide();
        delegate->applicationDidUnhide();
    }
    if (now == Qt::ApplicationActive) {
        delegate->applicationWillBecomeActive();
        delegate->applicationDidBecomeActive();
    }
}

void followState()
{
    static Qt::ApplicationState state = QGuiApplication::applicationState();
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, qApp, [](Qt::ApplicationState now) {
        const Qt::ApplicationState before = std::exchange(state, now);
        if (before != now) {
            reportState(before, now);
        }
    });
}

void reportScreens()
{
    CUI_AppDelegateObj()->applicationDidChangeScreenParameters();
}

void followScreen(const QScreen *screen)
{
    QObject::connect(screen, &QScreen::geometryChanged, qApp, reportScreens);
    QObject::connect(screen, &QScreen::logicalDotsPerInchChanged, qApp, reportScreens);
}

void followScreens()
{
    for (const QScreen *screen : QGuiApplication::screens()) {
        followScreen(screen);
    }
    QObject::connect(qApp, &QGuiApplication::screenAdded, qApp, [](const QScreen *screen) {
        followScreen(screen);
        reportScreens();
    });
    QObject::connect(qApp, &QGuiApplication::screenRemoved, qApp, reportScreens);
}

void followSession()
{
    QObject::connect(
        qApp, &QGuiApplication::commitDataRequest, qApp,
        [](QSessionManager &session) {
            if (CUI_AppDelegateObj()->applicationShouldTerminate() != CUI_AppDelegate::terminateNow) {
                session.cancel();
            }
        },
        Qt::DirectConnection);
}

// Before every wait for events the application counts as updated.
void followUpdates()
{
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, qApp, [] {
        CUI_AppDelegateObj()->applicationWillUpdate();
        CUI_AppDelegateObj()->applicationDidUpdate();
    });
}

class ApplicationFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        if (receiver != qApp) {
            return false;
        }
        if (event->type() == QEvent::FileOpen) {
            CUI_AppDelegateObj()->openFiles({static_cast<QFileOpenEvent *>(event)->file()});
            return true;
        }
        // The application's own reaction would be to leave a main loop that does not exist.
        if (event->type() == QEvent::Quit) {
            quitByUser();
            return true;
        }
        return false;
    }
};

} // namespace

void translatePlatformEvents()
{
    followState();
    followScreens();
    followSession();
    followUpdates();
    qApp->installEventFilter(new ApplicationFilter(qApp));
}

void announceLaunch()
{
    static bool announced = false;
    if (!std::exchange(announced, true)) {
        CUI_AppDelegateObj()->applicationWillFinishLaunching();
        CUI_AppDelegateObj()->applicationDidFinishLaunching();
    }
}

} // namespace tetrad
