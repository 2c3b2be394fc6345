#include "base/SecondLane.h"

namespace {

enum State : int { idle, posted, running, done, stopping };

// A few microseconds of polling before sleeping. Beside six players'
// decoders, longer polls (500 rounds and up) kept lanes taking parts, and a
// lane the scheduler puts off in the middle of one holds its caller: unlocked
// playback fell to 0.6 of clear. Polling briefly, a lane that isn't awake
// when work comes leaves it to the caller.
constexpr int spinRounds = 100;

inline void relax()
{
#if defined(__x86_64__) || defined(__i386__)
    __builtin_ia32_pause();
#endif
}

// Polls a while for the state to leave `from`, then sleeps on it.
int awaitChange(std::atomic<int> &state, int from)
{
    for (int i = 0; i < spinRounds; ++i) {
        const int now = state.load(std::memory_order_acquire);
        if (now != from)
            return now;
        relax();
    }
    int now = state.load(std::memory_order_acquire);
    while (now == from) {
        state.wait(from, std::memory_order_acquire);
        now = state.load(std::memory_order_acquire);
    }
    return now;
}

} // namespace

bool SecondLane::worthIt()
{
    return std::thread::hardware_concurrency() > 1;
}

SecondLane::SecondLane() : state_(idle)
{
    if (worthIt())
        thread_ = std::thread([this] { loop(); });
}

SecondLane::~SecondLane()
{
    if (started_)
        finish();
    if (!thread_.joinable())
        return;
    state_.store(stopping, std::memory_order_release);
    state_.notify_one();
    thread_.join();
}

void SecondLane::takeParts(int side)
{
    for (;;) {
        const int part = next_.fetch_add(1, std::memory_order_relaxed);
        if (part >= parts_ || failed_.load(std::memory_order_relaxed))
            return;
        if (!call_(work_, side, part))
            failed_.store(true, std::memory_order_relaxed);
    }
}

void SecondLane::share(int parts, void *work, Call call)
{
    if (started_)
        finish();
    started_ = true;
    parts_ = parts;
    work_ = work;
    call_ = call;
    next_.store(0, std::memory_order_relaxed);
    failed_.store(false, std::memory_order_relaxed);
    if (thread_.joinable() && parts > 0) {
        state_.store(posted, std::memory_order_release);
        state_.notify_one();
    }
}

bool SecondLane::finish()
{
    if (!started_)
        return true;
    started_ = false;
    takeParts(0);
    // A lane that hasn't picked the work up by now never will; one that has
    // is finishing its last part.
    int expected = posted;
    if (!state_.compare_exchange_strong(expected, idle, std::memory_order_acq_rel) && expected != idle) {
        if (expected == running)
            awaitChange(state_, running);
        state_.store(idle, std::memory_order_relaxed);
    }
    return !failed_.load(std::memory_order_relaxed);
}

void SecondLane::loop()
{
    int seen = idle;
    for (;;) {
        seen = awaitChange(state_, seen);
        if (seen == stopping)
            return;
        if (seen != posted)
            continue;
        if (!state_.compare_exchange_strong(seen, running, std::memory_order_acq_rel))
            continue; // taken back by the caller: seen holds what it is now
        takeParts(1);
        state_.store(done, std::memory_order_release);
        state_.notify_one();
        seen = done;
    }
}
