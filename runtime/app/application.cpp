#include "runtime/app/application.h"

#include "runtime/app/app_delegate.h"
#include "runtime/app/platform_application.h"
#include "runtime/app/platform_events.h"
#include "runtime/app/run_time_stop.h"
#include "runtime/app/termination.h"
#include "runtime/strings/string_stack.h"

#include <QApplication>
#include <QIcon>
#include <QPointer>

namespace tetrad {

namespace {

QPointer<CUI_AppDelegate> installedDelegate;

// Also a program installed where the desktop does not look, in a prefix of its own, finds its icon.
void giveIcon()
{
    const QString besideProgram = QCoreApplication::applicationDirPath() + u"/../share/icons"_qs;
    QIcon::setThemeSearchPaths(QIcon::themeSearchPaths() << besideProgram);
    if (QApplication::windowIcon().isNull()) {
        QApplication::setWindowIcon(QIcon::fromTheme(applicationId()));
    }
}

} // namespace

void CocoaInit()
{
    ensurePlatformApplication();
    if (installedDelegate != nullptr) {
        return;
    }
    giveIcon();
    setAppDelegate(new CUI_AppDelegate(qApp));
    setStringStackStop(&ZRFullStop);
    translatePlatformEvents();
    terminateOnSignals();
}

CUI_AppDelegate *CUI_AppDelegateObj()
{
    if (installedDelegate != nullptr) {
        return installedDelegate;
    }
    static auto *const remembered = new CUI_AppDelegate;
    return remembered;
}

void setAppDelegate(CUI_AppDelegate *delegate)
{
    installedDelegate = delegate;
}

QString applicationName()
{
    return QCoreApplication::applicationName();
}

QString applicationVersion()
{
    return QCoreApplication::applicationVersion();
}

QString applicationId()
{
    return QGuiApplication::desktopFileName();
}

} // namespace tetrad
