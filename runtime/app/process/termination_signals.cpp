#include "runtime/app/process/termination_signals.h"

#include "runtime/app/process/termination.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tetrad {

namespace {

std::array<int, 2> signalPipe = {-1, -1};

std::atomic<bool> isServing = false;
static_assert(std::atomic<bool>::is_always_lock_free);

// Runs inside the signal: only what is safe there.
void onSignal(int number)
{
    const int saved = errno;
    std::signal(number, SIG_DFL);
    const char byte = 0;
    if (!isServing || ::write(signalPipe[1], &byte, 1) != 1) {
        std::raise(number);
    }
    errno = saved;
}

// A signal that already has another action than its default keeps it.
void setAction(int number, void (*function)(int))
{
    struct sigaction before = {};
    if (sigaction(number, nullptr, &before) != 0 || before.sa_handler != SIG_DFL) {
        return;
    }
    struct sigaction action = {};
    action.sa_handler = function;
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
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, &terminateWithoutAsking);
    setAction(SIGTERM, &onSignal);
    setAction(SIGHUP, &onSignal);
    // A write to a closed pipe then fails instead of ending the program.
    setAction(SIGPIPE, SIG_IGN);
}

void setServingEvents(bool serving)
{
    isServing = serving;
}

} // namespace tetrad

#else

namespace tetrad {

void terminateOnSignals() {}

void setServingEvents(bool) {}

} // namespace tetrad

#endif
