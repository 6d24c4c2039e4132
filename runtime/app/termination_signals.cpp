#include "runtime/app/termination.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tetrad {

namespace {

std::array<int, 2> signalPipe = {-1, -1};

// Runs inside the signal: only what is safe there.
void onSignal(int number)
{
    const int saved = errno;
    std::signal(number, SIG_DFL);
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
    errno = saved;
}

void listenFor(int number)
{
    struct sigaction before = {};
    if (sigaction(number, nullptr, &before) != 0 || before.sa_handler != SIG_DFL) {
        return;
    }
    struct sigaction action = {};
    action.sa_handler = &onSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(number, &action, nullptr);
}

} // namespace

void terminateOnSignals()
{
    if (::pipe(signalPipe.data()) != 0) {
        return;
    }
    for (const int end : signalPipe) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    auto *notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [] { terminateWithoutAsking(); });
    listenFor(SIGTERM);
    listenFor(SIGHUP);
}

} // namespace tetrad

#else

namespace tetrad {

void terminateOnSignals() {}

} // namespace tetrad

#endif
