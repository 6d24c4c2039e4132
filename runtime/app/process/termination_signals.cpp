#include "runtime/app/process/termination.h"

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

// How long the event loop may take to notice a signal, as when it waits for another program's clipboard. After
// that the system ends the process.
constexpr unsigned noticeTime_s = 10;

// Runs inside the signal: only what is safe there.
void onSignal(int number)
{
    const int saved = errno;
    std::signal(number, SIG_DFL);
    ::alarm(noticeTime_s);
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
    errno = saved;
}

// Writing where nobody reads any more is an error of that write and not the end of the program.
void survive(int number)
{
    struct sigaction before = {};
    if (sigaction(number, nullptr, &before) == 0 && before.sa_handler == SIG_DFL) {
        std::signal(number, SIG_IGN);
    }
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
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [] {
        ::alarm(0);
        terminateWithoutAsking();
    });
    listenFor(SIGTERM);
    listenFor(SIGHUP);
    survive(SIGPIPE);
}

} // namespace tetrad

#else

namespace tetrad {

void terminateOnSignals() {}

} // namespace tetrad

#endif
