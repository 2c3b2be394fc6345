#pragma once

#include <atomic>
#include <thread>
#include <type_traits>

// Shares a piece of work cut into parts between the caller and a thread this
// object owns. Made for parts of some tens of microseconds, where waking a
// pool thread would take as long as the work: the lane spins a little before
// it sleeps, and each side takes the next part as it finishes one, so a lane
// that wakes late (or not at all, on a busy or one-core machine) only leaves
// more parts to the caller, which never waits for a part nobody has begun.
//
// One caller at a time. The destructor joins the lane; a part stuck in the
// kernel on a dead drive holds its caller too, so that never outlives it.
class SecondLane {
public:
    SecondLane();
    ~SecondLane();
    SecondLane(const SecondLane &) = delete;
    SecondLane &operator=(const SecondLane &) = delete;

    // Whether a second lane can run beside the caller at all.
    static bool worthIt();

    // Runs work(side, part) for every part in [0, parts): side 0 is the
    // caller, side 1 the lane, so each side can keep its own tools. False
    // once a part returns false; the parts not begun by then are skipped.
    template <typename Work> bool runShared(int parts, Work &&work)
    {
        start(parts, work);
        return finish();
    }

    // The same in two steps: the lane begins on the parts at once, and the
    // caller joins in when it calls finish(), which returns as runShared
    // does. work must live until then. A started run is finished before a
    // new one starts and before the lane is destroyed.
    template <typename Work> void start(int parts, Work &work)
    {
        share(parts, &work, [](void *w, int side, int part) { return (*static_cast<Work *>(w))(side, part); });
    }
    bool finish();
    bool isStarted() const { return started_; }

private:
    using Call = bool (*)(void *, int, int);
    void share(int parts, void *work, Call call);
    void takeParts(int side);
    void loop();

    std::atomic<int> state_;
    std::atomic<int> next_{0};
    std::atomic<bool> failed_{false};
    int parts_ = 0;
    void *work_ = nullptr;
    Call call_ = nullptr;
    bool started_ = false;
    std::thread thread_;
};
