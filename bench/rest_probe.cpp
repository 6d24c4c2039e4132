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
    const auto before = program.activity();
    std::this_thread::sleep_for(time);
    // A thread that ended meanwhile is left out.
    Program::Activity sum;
    for (const auto &[thread, after] : program.activity()) {
        const auto earlier = before.find(thread);
        const Program::Activity start = earlier == before.end() ? Program::Activity() : earlier->second;
        if (after.wakeUps < start.wakeUps) {
            continue; // It ended between being listed and being asked.
        }
        sum.cpuMilliseconds += after.cpuMilliseconds - start.cpuMilliseconds;
        sum.wakeUps += after.wakeUps - start.wakeUps;
    }
    std::printf("%.2f %ld\n", sum.cpuMilliseconds, sum.wakeUps);
}
