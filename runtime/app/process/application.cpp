#include <tetrad/app/application.h>

#include "runtime/app/process/platform_events.h"
#include "runtime/app/process/termination_signals.h"
#include <tetrad/app/app_delegate.h>
#include <tetrad/app/run_time_stop.h>
#include <tetrad/strings/pascal_strings.h>

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QImageReader>
#include <QLocale>
#include <QPixmap>
#include <QPointer>
#include <QSettings>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

QPointer<CUI_AppDelegate> installedDelegate;

QString requestedPlatform()
{
    QStringList requests;
    for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        if (const QString value = qEnvironmentVariable(name); !value.isEmpty()) {
            requests << QString::fromLatin1(name) + u'=' + value;
        }
    }
    return requests.join(u' ');
}

QtMessageHandler handlerBefore = nullptr;

// The quoted name in Qt's report of a platform plugin that is not installed.
QString missingPlugin;

void findMissingPlugin(const QString &message)
{
    if (message.startsWith(u"Could not find the Qt platform plugin \"")) {
        missingPlugin = message.section(u'"', 1, 1);
    }
}

QString whyThereIsNoDisplay()
{
    const QString requested = requestedPlatform();
    const QString trouble = u"cannot open the display (" + requested + u')';
    if (!requested.isEmpty() && !missingPlugin.isEmpty()) {
        const QString package =
            missingPlugin == u"wayland" ? u"; on Debian the package qt6-wayland has it"_s : QString();
        return trouble + u": Qt's platform plugin \"" + missingPlugin + u"\" is not installed" + package;
    }
    return (requested.isEmpty() ? u"needs a display and there is none"_s : trouble) +
           u"; start it from a desktop session, or set DISPLAY or WAYLAND_DISPLAY to one";
}

[[noreturn]] void endWithoutDisplay()
{
    const QString sentence = QCoreApplication::applicationName() + u' ' + whyThereIsNoDisplay() + u".\n";
    std::fputs(qUtf8Printable(sentence), stderr);
    std::fflush(nullptr);
    // Not exit: the application object is half made.
    std::_Exit(1);
}

// The Wayland plugin reports a missing compositor without a category.
bool isAboutAPlatform(const QMessageLogContext &context, const QString &message)
{
    return qstrncmp(context.category, "qt.qpa.", 7) == 0 || message.startsWith(u"Failed to create wl_display");
}

// Without a usable display the construction aborts with several lines and a core dump; here they become one sentence.
// Lines about a platform that was tried before another one worked are dropped.
void readConstructionMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtFatalMsg) {
        endWithoutDisplay();
    }
    findMissingPlugin(message);
    if (handlerBefore && !isAboutAPlatform(context, message)) {
        handlerBefore(type, context, message);
    }
}

// The next descriptor opened takes the number of a standard stream that is closed. It would be the connection to the
// display, and warnings would be written to it.
void fillStandardStreams()
{
#ifdef Q_OS_UNIX
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (::fcntl(stream, F_GETFD) < 0) {
            [[maybe_unused]] const int opened = ::open("/dev/null", O_RDWR);
        }
    }
#endif
}

const char *executableName()
{
#ifdef __GLIBC__
    return program_invocation_name;
#else
    return "application";
#endif
}

// Only the executable's own name: the command line is the program's, not the application object's.
void makeApplication()
{
    static QByteArray name = executableName();
    static char *arguments[] = {name.data(), nullptr};
    static int count = 1;
    fillStandardStreams();
    handlerBefore = qInstallMessageHandler(&readConstructionMessage);
    // Deliberately never deleted: the process ends from the depth of a modal loop, with windows open.
    new QApplication(count, arguments);
    qInstallMessageHandler(handlerBefore);
    // Qt alone follows only its own translations, which need not be installed.
    QGuiApplication::setLayoutDirection(QLocale().textDirection());
    // Some platform plugins start without a screen.
    if (!QGuiApplication::primaryScreen()) {
        endWithoutDisplay();
    }
}

// An application object that was not named has its executable's name.
bool isNamed()
{
    const QString name = QCoreApplication::applicationName();
    return !name.isEmpty() && (!qApp || name != QFileInfo(QCoreApplication::arguments().value(0)).fileName());
}

void giveName()
{
    QCoreApplication::setApplicationName(QStringLiteral(TETRAD_APP_NAME));
    QCoreApplication::setApplicationVersion(QStringLiteral(TETRAD_APP_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral(TETRAD_APP_ID));
}

// Makes the application object unless there is one, and names it where the program has not.
void ensurePlatformApplication()
{
    // Before the construction: windows get their class from the name.
    if (!isNamed()) {
        giveName();
    }
    if (!qApp) {
        makeApplication();
    }
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

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
                QImageReader reader(file, "png");
                // Otherwise every image plugin is loaded to look at the file.
                reader.setAutoDetectImageFormat(false);
                icon.addPixmap(QPixmap::fromImageReader(&reader));
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

void AppSetName(const QString &name)
{
    QCoreApplication::setApplicationName(name);
}

QVariant PreferenceValue(const QString &key)
{
    return QSettings(applicationName(), applicationName()).value(key);
}

void PreferenceSetValue(const QString &key, const QVariant &value)
{
    QSettings(applicationName(), applicationName()).setValue(key, value);
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
