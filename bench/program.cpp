#include "bench/program.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace tetrad::bench {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void giveUp(const char *why, const char *program)
{
    std::fprintf(stderr, "%s: %s\n", program, why);
    std::exit(1);
}

fs::path folderOf(pid_t pid)
{
    return fs::path("/proc") / std::to_string(pid);
}

// The process and all its descendants.
std::vector<pid_t> familyOf(pid_t pid)
{
    std::vector<pid_t> family{pid};
    for (std::size_t i = 0; i < family.size(); ++i) {
        std::error_code gone;
        for (const auto &task : fs::directory_iterator(folderOf(family[i]) / "task", gone)) {
            std::ifstream children(task.path() / "children");
            for (pid_t child = 0; children >> child;) {
                family.push_back(child);
            }
        }
    }
    return family;
}

// The number after a name at the start of a line; 0 when there is none.
long numberAfter(const fs::path &file, const std::string &name)
{
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
        if (line.compare(0, name.size(), name) == 0) {
            return std::atol(line.c_str() + name.size());
        }
    }
    return 0;
}

} // namespace

Program::Program(char **argv) : m_started(Clock::now())
{
    // What the program says must not get among the probe's figures.
    posix_spawn_file_actions_t silence;
    posix_spawn_file_actions_init(&silence);
    posix_spawn_file_actions_addopen(&silence, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    if (posix_spawnp(&m_pid, argv[0], &silence, nullptr, argv, environ) != 0) {
        giveUp("cannot be started", argv[0]);
    }
    posix_spawn_file_actions_destroy(&silence);
}

Program::~Program()
{
    // The screen must be empty for whoever measures next.
    for (const pid_t pid : familyOf(m_pid)) {
        kill(pid, SIGKILL);
    }
    waitpid(m_pid, nullptr, 0);
}

Clock::time_point Program::waitUntilReady(Screen &screen)
{
    constexpr auto patience = std::chrono::seconds(30);
    constexpr auto step = std::chrono::milliseconds(1);
    while (Clock::now() < m_started + patience) {
        m_window = screen.focusedWindow();
        if (m_window != 0 && isPainted(screen.pixels(m_window))) {
            return Clock::now();
        }
        // The focus changes without a change of pixels too.
        screen.waitForChange(Clock::now() + step);
    }
    for (const pid_t pid : familyOf(m_pid)) {
        kill(pid, SIGKILL);
    }
    giveUp("showed no window with the keyboard within 30 s", folderOf(m_pid).c_str());
}

Program::Memory Program::memory() const
{
    Memory sum;
    for (const pid_t pid : familyOf(m_pid)) {
        sum.proportional += numberAfter(folderOf(pid) / "smaps_rollup", "Pss:");
        sum.privateDirty += numberAfter(folderOf(pid) / "smaps_rollup", "Private_Dirty:");
    }
    return sum;
}

std::map<pid_t, Program::Activity> Program::activity() const
{
    std::map<pid_t, Activity> threads;
    for (const pid_t pid : familyOf(m_pid)) {
        std::error_code gone;
        for (const auto &task : fs::directory_iterator(folderOf(pid) / "task", gone)) {
            long nanoseconds = 0;
            std::ifstream(task.path() / "schedstat") >> nanoseconds;
            threads[std::atoi(task.path().filename().c_str())] = {
                static_cast<double>(nanoseconds) / 1e6,
                numberAfter(task.path() / "status", "voluntary_ctxt_switches:")};
        }
    }
    return threads;
}

} // namespace tetrad::bench
