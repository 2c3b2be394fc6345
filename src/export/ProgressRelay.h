#pragma once

// Carries an export's progress from the thread doing the work to the
// caller's callback, until the caller goes quiet. Work left behind on a
// read stuck in the kernel may still report; by then its caller has
// returned, and the relay drops the report instead of calling into it.

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>

template <typename T>
class ProgressRelay {
public:
    using Callback = std::function<void(const T &)>;

    // Shared with the work, which may outlive the caller.
    static std::shared_ptr<ProgressRelay> make(Callback callback)
    {
        return std::shared_ptr<ProgressRelay>(new ProgressRelay(std::move(callback)));
    }

    void report(const T &value)
    {
        reported_ = true;
        std::lock_guard lock(mutex_);
        if (callback_)
            callback_(value);
    }
    // After this returns, no report reaches the callback.
    void silence()
    {
        std::lock_guard lock(mutex_);
        callback_ = nullptr;
    }
    // True once the work reported anything.
    bool hasReported() const { return reported_; }

private:
    explicit ProgressRelay(Callback callback) : callback_(std::move(callback)) {}

    std::mutex mutex_;
    Callback callback_;
    std::atomic<bool> reported_{false};
};
