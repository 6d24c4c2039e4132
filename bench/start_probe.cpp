// start_probe [--field] COMMAND...: starts a program once and prints, separated by blanks,
//   milliseconds until it has a painted window with the keyboard,
//   milliseconds until a key that was pressed at that moment is painted in its field (--field; else 0),
//   kilobytes: proportional set size, private dirty.
#include "bench/program.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace tetrad::bench;

namespace {

constexpr Milliseconds quiet{300};
constexpr auto patience = std::chrono::seconds(5);

// Ends the probe unless the key really stands in the field: then BackSpace changes the picture again.
Clock::time_point keyTaken(Screen &screen, Screen::Window window)
{
    std::string without = screen.pixels(window);
    screen.press("1");
    const Clock::time_point painted = screen.waitUntilSettled(window, std::move(without), quiet);
    const std::string with = screen.pixels(window);
    screen.press("BackSpace");
    const auto differs = [&with](const std::string &now) { return now != with; };
    if (!screen.waitForPicture(window, Clock::now() + patience, differs)) {
        std::fprintf(stderr, "the key did not arrive in the field\n");
        std::exit(1);
    }
    return painted;
}

} // namespace

int main(int argc, char **argv)
{
    const bool field = argc > 1 && std::strcmp(argv[1], "--field") == 0;
    Screen screen;
    Program program(argv + (field ? 2 : 1));
    const Milliseconds ready = program.since(program.waitUntilReady(screen));
    const Milliseconds taken = field ? program.since(keyTaken(screen, program.window())) : Milliseconds(0);
    screen.waitUntilSettled(program.window(), quiet);
    const Program::Memory memory = program.memory();
    std::printf("%.2f %.2f %ld %ld\n", ready.count(), taken.count(), memory.proportional, memory.privateDirty);
}
