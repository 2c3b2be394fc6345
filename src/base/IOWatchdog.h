#pragma once

#include "base/CancellationError.h"

#include <chrono>
#include <condition_variable>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>

// A time limit on one piece of drive work. The work runs on a thread of its
// own with a stop token. When the limit passes (or the caller cancels), stop
// is requested and the work gets a short grace to end; work still stuck in
// the kernel after that is abandoned on its thread and the caller moves on.
// The thread owns the work and everything it captured, so an abandoned read
// touches nothing the caller frees: capture by value, never by reference.
namespace IOWatchdog {

class TimedOut : public std::exception {
public:
    const char *what() const noexcept override { return "The drive took too long to answer."; }
};

using Clock = std::chrono::steady_clock;

// How long work that was asked to stop may take to end before it is left behind.
inline constexpr std::chrono::milliseconds grace{500};

// Threads whose work was left behind (timed-out reads and owned threads alike) and has not ended yet: a dead drive
// costs one each until the kernel gives up on the read.
int abandonedThreads();
// Waits until every thread the watchdog started has ended, up to limit;
// answers whether they all did. For callers that must see work finished
// before they go on, such as a test checking for leaks.
bool waitForThreads(std::chrono::milliseconds limit);

namespace detail {
struct RaceState {
    std::mutex mutex;
    std::condition_variable changed;
    bool done = false;
    bool abandoned = false;
    std::exception_ptr error;
    std::stop_source stop;
};

template <typename T>
struct Race : RaceState {
    std::optional<T> value;
};

// Runs body on a new detached thread; throws std::system_error when none can be had.
void startThread(std::function<void()> body);
// Marks the race as left behind by its caller (the mutex is held). The one
// way any thread is left behind: a timed-out read's, or an owned thread
// whose owner went while its work was stuck.
void abandon(RaceState &race);
// Called by the work's thread when it ends (the mutex is held).
void finished(RaceState &race);

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
        // Short steps while a caller's cancellation has to be looked for.
        const auto step = isCancelled ? Clock::duration(std::chrono::milliseconds(20)) : Clock::duration(std::chrono::hours(1));
        race->changed.wait_until(lock, deadline - now < step ? deadline : now + step);
    }
    if (timedOut || cancelled) {
        race->stop.request_stop();
        if (!race->changed.wait_for(lock, grace, [&] { return race->done; }))
            abandon(*race);
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
    startThread([race, op = std::forward<Op>(operation)]() mutable {
        std::optional<T> value;
        std::exception_ptr error;
        try {
            // The work and everything it captured are gone before the
            // caller hears the outcome.
            auto work = std::move(op);
            value.emplace(work(race->stop.get_token()));
        } catch (...) {
            error = std::current_exception();
        }
        std::lock_guard lock(race->mutex);
        race->value = std::move(value);
        race->error = error;
        finished(*race);
    });
    return race;
}
} // namespace detail

// Runs operation(stopToken) with a limit, blocking the calling thread.
// Returns its value or rethrows its error; throws TimedOut when the limit
// passed first, CancellationError when the caller's token asked to stop.
// Either way the call returns within the grace of the limit or the stop.
template <typename Op, typename T = std::invoke_result_t<Op, std::stop_token>>
T run(std::chrono::milliseconds timeout, Op &&operation, std::stop_token caller = {})
{
    if (caller.stop_requested())
        throw CancellationError();
    const auto now = Clock::now();
    const auto deadline = timeout >= std::chrono::duration_cast<std::chrono::milliseconds>(Clock::time_point::max() - now)
        ? Clock::time_point::max()
        : now + timeout;
    auto race = detail::launch<T>(std::forward<Op>(operation));
    std::function<bool()> isCancelled;
    if (caller.stop_possible())
        isCancelled = [caller] { return caller.stop_requested(); };
    // The caller's stop reaches the work at once, and wakes the wait.
    std::stop_callback wake(caller, [race] {
        race->stop.request_stop();
        std::lock_guard lock(race->mutex);
        race->changed.notify_all();
    });
    return detail::await<T>(race, deadline, isCancelled);
}

// The same with no time limit: only the caller's stop ends the wait, and
// work that doesn't end within the grace of it is left behind.
template <typename Op, typename T = std::invoke_result_t<Op, std::stop_token>>
T runUntilStopped(Op &&operation, std::stop_token caller)
{
    return run(std::chrono::milliseconds::max(), std::forward<Op>(operation), caller);
}

// A thread with one owner, for drive work that lasts as long as the owner
// does (a player's decoding). Going, the owner stops it and joins it; work
// that doesn't end within the grace (a read stuck in the kernel) is left
// behind through the same abandon as a timed-out read, and ends by itself.
class OwnedThread {
public:
    explicit OwnedThread(std::function<void(std::stop_token)> body);
    ~OwnedThread();
    OwnedThread(const OwnedThread &) = delete;
    OwnedThread &operator=(const OwnedThread &) = delete;

    // Asks the work to end now. The owner going later doesn't wait again:
    // the work had its moment, and the window's thread mustn't stall.
    void requestStop();

private:
    std::shared_ptr<detail::RaceState> race_;
    std::thread thread_;
    bool stopAsked_ = false;
};

} // namespace IOWatchdog
