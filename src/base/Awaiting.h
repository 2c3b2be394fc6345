#pragma once

// The one way the window's thread waits for work running elsewhere.
//
// Engine work returns a QFuture. Code on the UI thread waits for it in a
// QCoro coroutine: a static or free coroutine that holds its object as a
// QPointer and checks it after every co_await, because the object may have
// gone while the work ran (see AppState's tasks). For a single answer,
// whenFinished() below writes that coroutine for you.
//
// Whatever is awaited is named first (`auto f = engine.x(); co_await f;`):
// g++ 12 destroys a temporary of an awaited expression twice.
//
// Never QFuture::then(context, …): on Qt 6.4 a continuation attached while
// its future finishes on another thread runs twice (once where it was
// attached, once where the future finished); the second run starts a
// promise the first one already moved away, and the process dies.
// A QFutureWatcher hears each future's end once, on the watcher's thread.

#include "base/LogCategories.h"

#include <QFuture>
#include <QFutureWatcher>
#include <QPointer>
#include <qcoro/qcorofuture.h>
#include <qcoro/qcorotask.h>
#include <qcoro/qcorotimer.h>

#include <chrono>
#include <exception>
#include <optional>
#include <type_traits>
#include <utility>

namespace Awaiting {

namespace detail {
// QCoro's own watcher, on a void view of the same future, so that waking
// never asks a cancelled future for a result it may not have. QCoro wakes at
// once for a future cancelled while its work still runs; the work's end is
// then awaited in short steps (a cancelled run winds down quickly).
template <typename T>
QCoro::Task<QFuture<T>> finishedTask(QFuture<T> future)
{
    const QFuture<void> ending(future);
    try {
        co_await ending;
    } catch (...) {
        // The work's error stays in the future for take() to throw.
    }
    while (!future.isFinished()) {
        QCoro::Task<void> pause = QCoro::sleepFor(std::chrono::milliseconds(10));
        co_await pause;
    }
    co_return future;
}

template <typename Owner, typename T, typename Fn>
QCoro::Task<void> whenFinishedTask(QPointer<Owner> owner, QFuture<T> future, Fn onDone)
{
    QCoro::Task<QFuture<T>> ending = finishedTask(future);
    co_await ending;
    if (!owner)
        co_return;
    try {
        onDone(future);
    } catch (const std::exception &e) {
        qCWarning(lcBase) << "an answer's handler failed:" << e.what();
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcBase);
    }
}
} // namespace detail

// co_await Awaiting::finished(f) resumes on the awaiting thread once f has
// finished, with a value, an error or cancelled, and never throws; the
// answer is read from the future it gives back. (QCoro's own co_await on a
// future resumes at once on a cancelled one, still running, and asks it for
// a result it may never have.)
template <typename T>
QCoro::Task<QFuture<T>> finished(QFuture<T> future)
{
    return detail::finishedTask(std::move(future));
}

// The answer of a finished future: its error is thrown again; a future
// cancelled before it answered gives none.
template <typename T>
std::optional<T> take(QFuture<T> &future)
{
    future.waitForFinished(); // throws the work's error
    if (future.isCanceled() || future.resultCount() == 0)
        return std::nullopt;
    // Copied where it can be, so that a second reader still finds it.
    if constexpr (std::is_copy_constructible_v<T>)
        return future.result();
    else
        return future.takeResult();
}

// Calls onDone(future) on owner's thread once future has finished, unless
// owner has been destroyed by then. onDone may capture owner plainly.
template <typename Owner, typename T, typename Fn>
void whenFinished(Owner *owner, QFuture<T> future, Fn &&onDone)
{
    static_assert(std::is_base_of_v<QObject, Owner>);
    detail::whenFinishedTask(QPointer<Owner>(owner), std::move(future), std::forward<Fn>(onDone));
}

} // namespace Awaiting
