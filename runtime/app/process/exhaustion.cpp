#include "runtime/app/process/exhaustion.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

namespace tetrad {

namespace {

QtMessageHandler messageHandlerBefore = nullptr;
std::terminate_handler terminateHandlerBefore = nullptr;

// Prepared while there was memory.
QByteArray &sentence()
{
    static QByteArray theSentence;
    return theSentence;
}

// Not exit: what would run then needs memory, too.
[[noreturn]] void endExhausted()
{
    std::fputs(sentence().constData(), stderr);
    std::fflush(stderr);
    std::_Exit(1);
}

// Containers of the library throw this without asking the handler of new.
void endIfOutOfMemory()
{
    if (const std::exception_ptr failure = std::current_exception()) {
        try {
            std::rethrow_exception(failure);
        } catch (const std::bad_alloc &) {
            endExhausted();
        } catch (...) {
        }
    }
    terminateHandlerBefore();
}

// The library reports a thread that could not be started as a warning and then waits for it.
void readMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.startsWith(QLatin1String("QThread::start: Thread creation error"))) {
        endExhausted();
    }
    messageHandlerBefore(type, context, message);
}

// Below this the window system's libraries crash on allocations that fail while they start, before there is
// anything to say. With a display and a session bus they need about 130 MB of addresses.
constexpr quint64 leastAddressSpace_bytes = 160 << 20;

bool hasTooLittleToStart()
{
#ifdef Q_OS_UNIX
    struct rlimit limit = {};
    return getrlimit(RLIMIT_AS, &limit) == 0 && limit.rlim_cur < leastAddressSpace_bytes;
#else
    return false;
#endif
}

} // namespace

void endOnExhaustion()
{
    sentence() =
        QCoreApplication::applicationName().toUtf8() +
        " has reached the limit of memory or of threads; let it have more (see ulimit -a) and start it again.\n";
    if (hasTooLittleToStart()) {
        endExhausted();
    }
    std::set_new_handler(&endExhausted);
    terminateHandlerBefore = std::set_terminate(&endIfOutOfMemory);
    messageHandlerBefore = qInstallMessageHandler(&readMessage);
}

} // namespace tetrad
