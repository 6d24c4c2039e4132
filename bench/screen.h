#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

struct _XDisplay;

namespace tetrad::bench {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// The X display seen from outside the measured program: which window has the keyboard, what its pixels are, when
/// they change, and real key presses through the server. Failures of the display end the probe.
class Screen
{
public:
    using Window = unsigned long;

    Screen();
    ~Screen();
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;

    /// The program's window that has the keyboard, found by walking up from the focus to what the window manager
    /// manages; 0 when nothing has it.
    Window focusedWindow() const;

    /// The pixels of a window as the server holds them; empty when the window is not there (any more).
    std::string pixels(Window window) const;

    /// Waits for a change of any pixel on the screen.
    bool waitForChange(Clock::time_point until);

    /// When the change came after which a picture of the window first satisfied the condition. Nothing is fetched
    /// before a change, since the server would be busy with that instead of the program's requests.
    std::optional<Clock::time_point> waitForPicture(Window window, Clock::time_point until,
                                                    const std::function<bool(const std::string &)> &condition);

    /// When the window's pixels last changed from a picture taken earlier before they stayed the same for a while; now
    /// if they never did.
    Clock::time_point waitUntilSettled(Window window, std::string picture, Milliseconds quiet);
    Clock::time_point waitUntilSettled(Window window, Milliseconds quiet)
    {
        return waitUntilSettled(window, pixels(window), quiet);
    }

    /// Forgets the changes so far. A press and release of the key that has this X name in the unshifted state, as "1",
    /// "Return".
    void press(const char *key);

private:
    _XDisplay *m_display = nullptr;
    int m_damageEvent = 0;
    unsigned long m_damage = 0;
};

/// Whether a picture shows anything but one colour.
bool isPainted(const std::string &pixels);

} // namespace tetrad::bench
