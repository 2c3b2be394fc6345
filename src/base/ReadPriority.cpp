#include "base/ReadPriority.h"

#include <condition_variable>
#include <mutex>

namespace ReadPriority {

namespace {
std::mutex mutex;
std::condition_variable changed;
int held = 0;
int yielding = 0;
} // namespace

Urgent::Urgent()
{
    std::lock_guard lock(mutex);
    ++held;
}

Urgent::~Urgent()
{
    std::lock_guard lock(mutex);
    if (--held == 0)
        changed.notify_all();
}

void yieldToUrgent(std::stop_token stop, std::chrono::milliseconds limit)
{
    // Made before the lock is taken: a stop already requested runs it here.
    std::stop_callback onStop(stop, [] {
        std::lock_guard lock(mutex);
        changed.notify_all();
    });
    std::unique_lock lock(mutex);
    if (held == 0 || stop.stop_requested())
        return;
    ++yielding;
    changed.wait_for(lock, limit, [&] { return held == 0 || stop.stop_requested(); });
    --yielding;
}

int yieldingCount()
{
    std::lock_guard lock(mutex);
    return yielding;
}

bool isUrgent()
{
    std::lock_guard lock(mutex);
    return held > 0;
}

} // namespace ReadPriority
