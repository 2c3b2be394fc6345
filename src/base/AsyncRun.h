#pragma once

#include <QFuture>
#include <QPromise>
#include <QThreadPool>

#include <chrono>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>
#include <type_traits>
#include <utility>

// Starts work on a thread pool and hands back its future. Errors travel in
// the future with their own type.
//
// Not QtConcurrent::run: a QtConcurrent future that is waited on while its
// task is still queued takes the task out of the pool and runs it on the
// waiting thread. That would put engine work on the caller's thread and let
// a store's later call overtake an earlier one.
namespace AsyncRun {

namespace detail {
template <typename T, typename Work, typename... Args>
void fulfil(QPromise<T> &promise, Work &work, Args &&...args)
{
    try {
        if constexpr (std::is_void_v<T>)
            work(std::forward<Args>(args)...);
        else
            promise.addResult(work(std::forward<Args>(args)...));
    } catch (...) {
        promise.setException(std::current_exception());
    }
}
} // namespace detail

// Runs work() on pool.
template <typename Work, typename T = std::invoke_result_t<Work>>
QFuture<T> onPool(QThreadPool &pool, Work &&work)
{
    auto promise = std::make_shared<QPromise<T>>();
    auto job = std::make_shared<std::decay_t<Work>>(std::forward<Work>(work));
    QFuture<T> future = promise->future();
    promise->start();
    pool.start([promise, job] {
        detail::fulfil(*promise, *job);
        promise->finish();
    });
    return future;
}

// Runs work(stopToken) on pool; cancelling the future, or a stop asked on
// the given token, requests stop on the work's token. The work decides how
// it ends when stopped.
template <typename Work, typename T = std::invoke_result_t<Work, std::stop_token>>
QFuture<T> cancellable(QThreadPool &pool, Work &&work, std::stop_token callerStop = {})
{
    auto promise = std::make_shared<QPromise<T>>();
    auto job = std::make_shared<std::decay_t<Work>>(std::forward<Work>(work));
    QFuture<T> future = promise->future();
    promise->start();
    pool.start([promise, job, callerStop] {
        std::stop_source stop;
        std::stop_callback forward(callerStop, [&stop] { stop.request_stop(); });
        // A future has no cancel callback: a small watcher looks for it.
        std::mutex mutex;
        std::condition_variable_any wake;
        std::jthread watcher([&](std::stop_token done) {
            std::unique_lock lock(mutex);
            while (!done.stop_requested()) {
                if (promise->isCanceled()) {
                    stop.request_stop();
                    return;
                }
                wake.wait_for(lock, done, std::chrono::milliseconds(20), [] { return false; });
            }
        });
        detail::fulfil(*promise, *job, stop.get_token());
        watcher.request_stop();
        watcher.join();
        promise->finish();
    });
    return future;
}

// Waits for the given time unless stop is requested first. Answers whether
// the whole time passed.
inline bool sleepFor(std::chrono::milliseconds duration, std::stop_token stop)
{
    std::mutex mutex;
    std::condition_variable_any wake;
    std::unique_lock lock(mutex);
    return !wake.wait_for(lock, stop, duration, [] { return false; }) && !stop.stop_requested();
}

} // namespace AsyncRun
