#include "base/IOWatchdog.h"

#include "base/LogCategories.h"

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

namespace {
// Not a pool's thread: a read stuck in the kernel may keep it for good.
std::thread counted(std::function<void()> body)
{
    Running &r = running();
    {
        std::lock_guard lock(r.mutex);
        ++r.count;
    }
    try {
        return std::thread([&r, body = std::move(body)] {
            body();
            std::lock_guard lock(r.mutex);
            --r.count;
            r.ended.notify_all();
        });
    } catch (...) {
        std::lock_guard lock(r.mutex);
        --r.count;
        throw;
    }
}
} // namespace

void startThread(std::function<void()> body)
{
    counted(std::move(body)).detach();
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
OwnedThread::OwnedThread(std::function<void(std::stop_token)> body) : race_(std::make_shared<detail::RaceState>())
{
    thread_ = detail::counted([race = race_, body = std::move(body)]() mutable {
        try {
            auto work = std::move(body);
            work(race->stop.get_token());
        } catch (...) {
            KEELHOLD_LOG_CAUGHT(lcBase);
        }
        std::lock_guard lock(race->mutex);
        detail::finished(*race);
    });
}

void OwnedThread::requestStop()
{
    stopAsked_ = true;
    race_->stop.request_stop();
}

OwnedThread::~OwnedThread()
{
    race_->stop.request_stop();
    std::unique_lock lock(race_->mutex);
    const bool ended = stopAsked_ ? race_->done
                                  : race_->changed.wait_for(lock, grace, [this] { return race_->done; });
    if (!ended) {
        detail::abandon(*race_);
        thread_.detach();
        return;
    }
    lock.unlock();
    thread_.join();
}

} // namespace IOWatchdog
