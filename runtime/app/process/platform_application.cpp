#include "runtime/app/process/platform_application.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>

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

} // namespace

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

} // namespace tetrad
