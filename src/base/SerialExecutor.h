#pragma once

#include "base/AsyncRun.h"

#include <QFuture>
#include <QThreadPool>

#include <type_traits>
#include <utility>

// One thread that runs submitted work strictly one piece at a time, in the
// order submitted. State touched only from inside its work needs no lock.
class SerialExecutor {
public:
    SerialExecutor()
    {
        pool_.setMaxThreadCount(1);
        pool_.setExpiryTimeout(-1);
    }
    // Waits for what was already submitted, so no write is cut off at exit.
    ~SerialExecutor() { pool_.waitForDone(); }

    SerialExecutor(const SerialExecutor &) = delete;
    SerialExecutor &operator=(const SerialExecutor &) = delete;

    template <typename Work, typename T = std::invoke_result_t<Work>>
    QFuture<T> submit(Work &&work)
    {
        return AsyncRun::onPool(pool_, std::forward<Work>(work));
    }

    void waitForDone() { pool_.waitForDone(); }

private:
    QThreadPool pool_;
};
