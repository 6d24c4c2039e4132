#include "runtime/app/platform_application.h"

#include <QApplication>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace tetrad {

namespace {

[[noreturn]] void endWithoutDisplay(const QString &trouble)
{
    const QString sentence = QCoreApplication::applicationName() + u' ' + trouble +
                             u"; start it from a desktop session, or set DISPLAY or WAYLAND_DISPLAY to one.\n";
    std::fputs(qUtf8Printable(sentence), stderr);
    std::fflush(nullptr);
    // Not exit: the application object is half made.
    std::_Exit(1);
}

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

void requireDisplaySetting()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    if (requestedPlatform().isEmpty()) {
        endWithoutDisplay(QStringLiteral("needs a display and there is none"));
    }
#endif
}

QtMessageHandler handlerBefore = nullptr;

// Without a usable display the construction aborts with several lines and a core dump. Its lines are
// one sentence here; those about a platform that was tried in vain before another one worked are
// of no use to anybody.
void readConstructionMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtFatalMsg) {
        endWithoutDisplay(u"cannot open the display (" + requestedPlatform() + u')');
    }
    if (handlerBefore != nullptr && qstrncmp(context.category, "qt.qpa.", 7) != 0) {
        handlerBefore(type, context, message);
    }
}

const char *executableName()
{
#ifdef __GLIBC__
    return program_invocation_name;
#else
    return "application";
#endif
}

// Only the executable's own name: what the command line says is not for the application object.
void makeApplication()
{
    static QByteArray name = executableName();
    static char *arguments[] = {name.data(), nullptr};
    static int count = 1;
    requireDisplaySetting();
    handlerBefore = qInstallMessageHandler(&readConstructionMessage);
    // Deliberately never deleted: the process ends from the depth of a modal loop, with windows open.
    new QApplication(count, arguments);
    qInstallMessageHandler(handlerBefore);
}

// An application object named by nobody has its executable's name.
bool isNamed()
{
    const QString name = QCoreApplication::applicationName();
    return !name.isEmpty() && (qApp == nullptr || name != QFileInfo(QCoreApplication::arguments().value(0)).fileName());
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
    if (qApp == nullptr) {
        makeApplication();
    }
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

} // namespace tetrad
