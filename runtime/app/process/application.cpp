#include <tetrad/app/application.h>

#include "runtime/app/process/platform_application.h"
#include "runtime/app/process/platform_events.h"
#include "runtime/app/process/termination_signals.h"
#include <tetrad/app/app_delegate.h>
#include <tetrad/app/run_time_stop.h>
#include <tetrad/strings/pascal_strings.h>

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QPointer>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

QPointer<CUI_AppDelegate> installedDelegate;

// Looks at the files that applications install their icons as. QIcon::fromTheme would first read the whole index of
// the theme, which takes a fifth of all the work of starting a program.
QIcon installedIcon(const QString &name)
{
    // A program that the desktop does not know, in a prefix of its own or not installed, has its icon in share, next to
    // the program or to its folder.
    const QString programFolder = QCoreApplication::applicationDirPath();
    QIcon::setThemeSearchPaths(QIcon::themeSearchPaths()
                               << programFolder + u"/../share/icons"_s << programFolder + u"/share/icons"_s);
    for (const QString &folder : QIcon::themeSearchPaths()) {
        QIcon icon;
        // Each window hands all of them to the window system when it is made; a larger one would cost a tenth of the
        // time to the first prompt, and no title bar or task switcher shows it.
        for (const int size : {16, 22, 24, 32, 48, 64, 128}) {
            const QString file = folder + QString::asprintf("/hicolor/%dx%d/apps/", size, size) + name + u".png"_s;
            if (QFile::exists(file)) {
                icon.addFile(file, QSize(size, size));
            }
        }
        const QString drawing = folder + u"/hicolor/scalable/apps/"_s + name + u".svg"_s;
        if (icon.isNull() && QFile::exists(drawing)) {
            icon.addFile(drawing);
        }
        if (!icon.isNull()) {
            return icon;
        }
    }
    return {};
}

void giveIcon()
{
    if (QApplication::windowIcon().isNull()) {
        QApplication::setWindowIcon(installedIcon(applicationId()));
    }
}

// Once for each application object, whichever delegate is installed.
void serveApplication()
{
    static QPointer<QCoreApplication> served;
    if (served == qApp) {
        return;
    }
    served = qApp;
    giveIcon();
    setStringStackStop(&ZRFullStop);
    translatePlatformEvents();
    terminateOnSignals();
}

} // namespace

void CocoaInit()
{
    ensurePlatformApplication();
    if (!installedDelegate) {
        setAppDelegate(new CUI_AppDelegate(qApp));
    }
    serveApplication();
}

CUI_AppDelegate *CUI_AppDelegateObj()
{
    if (installedDelegate) {
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
