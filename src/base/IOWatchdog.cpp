#include "base/IOWatchdog.h"

#include <atomic>
#include <thread>

namespace IOWatchdog {

namespace {
std::atomic<int> abandonedCount{0};

struct Running {
    std::mutex mutex;
    std::condition_variable ended;
    int count = 0;
};

Running &running()
{
    static Running *r = new Running; // never destroyed: a thread left behind may end after main
    return *r;
}
} // namespace

int abandonedThreads() { return abandonedCount.load(); }

bool waitForThreads(std::chrono::milliseconds limit)
{
    Running &r = running();
    std::unique_lock lock(r.mutex);
    return r.ended.wait_for(lock, limit, [&] { return r.count == 0; });
}

namespace detail {

void startThread(std::function<void()> body)
{
    // Not a pool's thread: a read stuck in the kernel may keep it for good,
    // and nobody joins it.
    Running &r = running();
    {
        std::lock_guard lock(r.mutex);
        ++r.count;
    }
    try {
        std::thread([&r, body = std::move(body)] {
            body();
            std::lock_guard lock(r.mutex);
            --r.count;
            r.ended.notify_all();
        }).detach();
    } catch (...) {
        std::lock_guard lock(r.mutex);
        --r.count;
        throw;
    }
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
