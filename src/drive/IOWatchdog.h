#pragma once

#include "model/CancellationError.h"

#include <QFuture>
#include <QPromise>
#include <QThreadPool>
#include <QtConcurrent/QtConcurrentRun>

#include <chrono>
#include <condition_variable>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>

// A time limit on one piece of drive work. The work gets a stop token; when
// the limit passes, stop is requested and the watchdog waits for the work to
// end before throwing TimedOut, so no abandoned read ever outlives the call.
namespace IOWatchdog {

class TimedOut : public std::exception {
public:
    const char *what() const noexcept override { return "The drive took too long to answer."; }
};

using Clock = std::chrono::steady_clock;

// Watched work gets its own pool: callers block on the general pool while
// they wait, and must not starve the work they are waiting for.
QThreadPool &pool();

namespace detail {
template <typename T>
struct Race {
    std::mutex mutex;
    std::condition_variable changed;
    bool done = false;
    std::optional<T> value;
    std::exception_ptr error;
    std::stop_source stop;
};

// Waits for the work, the deadline or the caller's cancellation, whichever
// comes first. isCancelled is polled only when given.
template <typename T>
T await(const std::shared_ptr<Race<T>> &race, Clock::time_point deadline, const std::function<bool()> &isCancelled)
{
    std::unique_lock lock(race->mutex);
    bool timedOut = false;
    bool cancelled = false;
    while (!race->done) {
        if (isCancelled && isCancelled()) {
            cancelled = true;
            break;
        }
        const auto now = Clock::now();
        if (now >= deadline) {
            timedOut = true;
            break;
        }
        auto until = deadline;
        if (isCancelled)
            until = std::min(deadline, now + std::chrono::milliseconds(20));
        race->changed.wait_until(lock, until);
    }
    if (timedOut || cancelled) {
        race->stop.request_stop();
        race->changed.wait(lock, [&] { return race->done; });
        if (cancelled)
            throw CancellationError();
        throw TimedOut();
    }
    if (race->error)
        std::rethrow_exception(race->error);
    return std::move(*race->value);
}

template <typename T, typename Op>
std::shared_ptr<Race<T>> launch(Op &&operation)
{
    auto race = std::make_shared<Race<T>>();
    pool().start([race, op = std::forward<Op>(operation)]() mutable {
        std::optional<T> value;
        std::exception_ptr error;
        try {
            // The work and everything it captured are gone before the
            // caller is released: nothing of it outlives run().
            auto work = std::move(op);
            value.emplace(work(race->stop.get_token()));
        } catch (...) {
            error = std::current_exception();
        }
        std::lock_guard lock(race->mutex);
        race->value = std::move(value);
        race->error = error;
        race->done = true;
        race->changed.notify_all();
    });
    return race;
}
} // namespace detail

// Runs operation(stopToken) with a limit, blocking the calling thread.
// Returns its value or rethrows its error; throws TimedOut when the limit
// passed first, CancellationError when the caller's token asked to stop.
template <typename Op, typename T = std::invoke_result_t<Op, std::stop_token>>
T run(std::chrono::milliseconds timeout, Op &&operation, std::stop_token caller = {})
{
    const auto deadline = Clock::now() + timeout;
    auto race = detail::launch<T>(std::forward<Op>(operation));
    std::function<bool()> isCancelled;
    if (caller.stop_possible())
        isCancelled = [caller] { return caller.stop_requested(); };
    // Wakes the wait at once when the caller cancels.
    std::stop_callback wake(caller, [race] {
        std::lock_guard lock(race->mutex);
        race->changed.notify_all();
    });
    return detail::await<T>(race, deadline, isCancelled);
}

// The same, without blocking: the future ends when the work has ended.
// Cancelling the future cancels the work (CancellationError).
template <typename Op, typename T = std::invoke_result_t<Op, std::stop_token>>
QFuture<T> start(std::chrono::milliseconds timeout, Op &&operation)
{
    return QtConcurrent::run(&pool(), [timeout, op = std::forward<Op>(operation)](QPromise<T> &promise) mutable {
        const auto deadline = Clock::now() + timeout;
        auto race = detail::launch<T>(std::move(op));
        try {
            promise.addResult(detail::await<T>(race, deadline, [&promise] { return promise.isCanceled(); }));
        } catch (...) {
            promise.setException(std::current_exception());
        }
    });
}

} // namespace IOWatchdog
