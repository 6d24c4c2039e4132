#pragma once

#include "bench/screen.h"

#include <map>
#include <sys/types.h>

namespace tetrad::bench {

/// A program under measurement, started by its constructor and ended by its destructor.
class Program
{
public:
    /// argv as for exec, ended by a null pointer.
    explicit Program(char **argv);
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    Clock::time_point started() const { return m_started; }
    Milliseconds since(Clock::time_point moment) const { return moment - m_started; }

    /// Waits until a window of the program is mapped, painted and has the keyboard, and says when. Ends the probe with
    /// a message if that takes more than 30 seconds. Nothing else may be on the screen.
    Clock::time_point waitUntilReady(Screen &screen);
    Screen::Window window() const { return m_window; }

    /// Kilobytes, with all descendants: shared pages in proportion, and pages only this program has written to.
    struct Memory
    {
        long proportional = 0;
        long privateDirty = 0;
    };
    Memory memory() const;

    struct Activity
    {
        double cpuMilliseconds = 0;
        long wakeUps = 0;
    };
    /// What each thread that lives now has done so far, with those of all descendants.
    std::map<pid_t, Activity> activity() const;

private:
    pid_t m_pid = 0;
    Clock::time_point m_started;
    Screen::Window m_window = 0;
};

} // namespace tetrad::bench
