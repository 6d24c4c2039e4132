// key_probe KEYS COMMAND...: types into the program's field and prints one time in milliseconds a line: "key" until a
// digit is painted, "return" until the prompt after a Return is complete and empty again.
#include "bench/program.h"

#include <array>
#include <cstdio>
#include <cstdlib>

using namespace tetrad::bench;

namespace {

constexpr auto patience = std::chrono::seconds(5);
constexpr int digitsOfOneAnswer = 4;
// Shorter than half a period of the caret, which starts anew with each key.
constexpr Milliseconds quiet{60};

// From press to the first picture that differs from the one before.
void measureKey(Screen &screen, Screen::Window window, const char *key)
{
    const std::string before = screen.pixels(window);
    const Clock::time_point pressed = Clock::now();
    screen.press(key);
    const auto differs = [&before](const std::string &now) { return now != before; };
    const auto painted = screen.waitForPicture(window, pressed + patience, differs);
    if (!painted) {
        std::fprintf(stderr, "key %s was not painted\n", key);
        std::exit(1);
    }
    std::printf("key %.3f\n", Milliseconds(*painted - pressed).count());
}

void measureReturn(Screen &screen, Screen::Window window)
{
    std::string before = screen.pixels(window);
    const Clock::time_point pressed = Clock::now();
    screen.press("Return");
    const Clock::time_point complete = screen.waitUntilSettled(window, std::move(before), quiet);
    std::printf("return %.3f\n", Milliseconds(complete - pressed).count());
}

} // namespace

int main(int, char **argv)
{
    const int keys = std::atoi(argv[1]);
    Screen screen;
    Program program(argv + 2);
    program.waitUntilReady(screen);
    screen.waitUntilSettled(program.window(), Milliseconds(300));
    constexpr std::array digits{"1", "2", "3", "4", "5", "6", "7", "8", "9"};
    for (int i = 0; i < keys; ++i) {
        measureKey(screen, program.window(), digits[static_cast<std::size_t>(i) % digits.size()]);
        // The program finishes what it does after painting before the next key comes.
        screen.waitUntilSettled(program.window(), Milliseconds(20));
        if ((i + 1) % digitsOfOneAnswer == 0) {
            measureReturn(screen, program.window());
        }
    }
}
