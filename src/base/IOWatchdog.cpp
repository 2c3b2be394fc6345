#include "base/IOWatchdog.h"

#include <atomic>
#include <thread>

namespace IOWatchdog {

namespace {
std::atomic<int> abandonedCount{0};
}

int abandonedThreads() { return abandonedCount.load(); }

namespace detail {

void startThread(std::function<void()> body)
{
    // Not a pool's thread: a read stuck in the kernel may keep it for good,
    // and nobody joins it.
    std::thread(std::move(body)).detach();
}

void abandon(RaceState &race)
{
    race.abandoned = true;
    ++abandonedCount;
}

void finished(RaceState &race)
{
    race.done = true;
    if (race.abandoned)
        --abandonedCount;
    race.changed.notify_all();
}

} // namespace detail
} // namespace IOWatchdog
