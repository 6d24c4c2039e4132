// rest_probe SECONDS COMMAND...: lets a started program alone and prints the CPU milliseconds and the wake-ups of that
// time.
#include "bench/program.h"

#include <cstdio>
#include <cstdlib>
#include <thread>

using namespace tetrad::bench;

int main(int, char **argv)
{
    constexpr auto startUpWork = std::chrono::seconds(3);
    const std::chrono::seconds time(std::atoi(argv[1]));
    Screen screen;
    Program program(argv + 2);
    program.waitUntilReady(screen);
    std::this_thread::sleep_for(startUpWork);
    const Program::Activity before = program.activity();
    std::this_thread::sleep_for(time);
    const Program::Activity after = program.activity();
    std::printf("%.2f %ld\n", after.cpuMilliseconds - before.cpuMilliseconds, after.wakeUps - before.wakeUps);
}
