#include "base/IOWatchdog.h"
#include "base/CancellationError.h"

#include <QElapsedTimer>
#include <QTest>

#include <atomic>
#include <condition_variable>
#include <latch>
#include <mutex>
#include <stdexcept>
#include <thread>

using namespace std::chrono_literals;

namespace {
struct WorkFailed : std::runtime_error {
    WorkFailed() : std::runtime_error("work failed") {}
};

// Slow work: takes `total` unless asked to stop, which ends it at once.
int sleepUnlessStopped(std::stop_token stop, std::chrono::milliseconds total, int value)
{
    std::mutex mutex;
    std::condition_variable_any wake;
    std::unique_lock lock(mutex);
    if (wake.wait_for(lock, stop, total, [] { return false; }) || stop.stop_requested())
        throw CancellationError();
    return value;
}

// Far beyond any of this work, however busy the machine: a call that ends before it did not wait for its limit.
constexpr auto longLimit = 60s;
} // namespace

class TestIOWatchdog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void errorOfTheWorkIsRethrownUnchanged()
    {
        QElapsedTimer timer;
        timer.start();
        QVERIFY_THROWS_EXCEPTION(WorkFailed, IOWatchdog::run(longLimit, [](std::stop_token) -> int { throw WorkFailed(); }));
        QVERIFY(timer.elapsed() < std::chrono::milliseconds(longLimit).count());

        // Even a cancellation error raised by the work itself is the work's own.
        QVERIFY_THROWS_EXCEPTION(CancellationError,
                                 IOWatchdog::run(5s, [](std::stop_token) -> int { throw CancellationError(); }));
    }

    void workThatAnswersStopEndsSoonAfterTheLimit()
    {
        auto sawStop = std::make_shared<std::atomic<bool>>(false);
        QElapsedTimer timer;
        timer.start();
        QVERIFY_THROWS_EXCEPTION(IOWatchdog::TimedOut, IOWatchdog::run(200ms, [sawStop](std::stop_token stop) {
                                     try {
                                         return sleepUnlessStopped(stop, 10s, 1);
                                     } catch (const CancellationError &) {
                                         *sawStop = true;
                                         throw;
                                     }
                                 }));
        QVERIFY(*sawStop);
        QVERIFY2(timer.elapsed() >= 200, "TimedOut before the limit");
        QCOMPARE(IOWatchdog::abandonedThreads(), 0);
    }

    void workStuckPastTheGraceIsLeftBehindWithWhatItHolds()
    {
        // A read stuck in the kernel: deaf to stop, it ends only when the gate opens, long after the caller went on.
        auto gate = std::make_shared<std::latch>(1);
        auto held = std::make_shared<QString>(QStringLiteral("still mine"));
        auto seenByWork = std::make_shared<std::atomic<bool>>(false);
        auto entered = std::make_shared<std::atomic<int>>(0);
        const auto work = [gate, held, seenByWork, entered](std::stop_token) {
            ++*entered;
            entered->notify_all();
            gate->wait();
            *seenByWork = *held == QStringLiteral("still mine");
            return 7;
        };

        QElapsedTimer timer;
        timer.start();
        QVERIFY_THROWS_EXCEPTION(IOWatchdog::TimedOut, IOWatchdog::run(100ms, work));
        QVERIFY2(timer.elapsed() >= 100, "TimedOut before the limit");
        QCOMPARE(IOWatchdog::abandonedThreads(), 1);

        // A caller's stop leaves it behind the same way, as a cancellation.
        std::stop_source caller;
        caller.request_stop();
        QVERIFY_THROWS_EXCEPTION(CancellationError, IOWatchdog::run(10s, work, caller.get_token()));
        std::stop_source later;
        std::jthread canceller([&] {
            for (int seen = entered->load(); seen < 2; seen = entered->load())
                entered->wait(seen);
            later.request_stop();
        });
        QVERIFY_THROWS_EXCEPTION(CancellationError, IOWatchdog::run(10min, work, later.get_token()));
        QCOMPARE(IOWatchdog::abandonedThreads(), 2);

        // The caller's copies go; the work's own stay until it ends.
        held.reset();
        gate->count_down();
        QTRY_COMPARE_WITH_TIMEOUT(IOWatchdog::abandonedThreads(), 0, 30000);
        QVERIFY(*seenByWork);
    }

    // A player's decoding: joined when its owner goes, unless it is stuck.
    void ownedThreadIsJoinedOrLeftBehindOnlyWhenStuck()
    {
        auto ended = std::make_shared<std::atomic<bool>>(false);
        {
            IOWatchdog::OwnedThread owned([ended](std::stop_token stop) {
                std::mutex m;
                std::condition_variable_any cv;
                std::unique_lock lock(m);
                cv.wait(lock, stop, [] { return false; });
                *ended = true;
            });
        }
        QVERIFY2(*ended, "the owner went before its thread ended");
        QCOMPARE(IOWatchdog::abandonedThreads(), 0);

        // Deaf to stop like a kernel read: the owner goes after the grace (at once if told first); counted until done.
        auto gate = std::make_shared<std::latch>(1);
        for (bool askedBefore : {false, true}) {
            QElapsedTimer timer;
            timer.start();
            {
                IOWatchdog::OwnedThread stuck([gate](std::stop_token) { gate->wait(); });
                if (askedBefore)
                    stuck.requestStop();
            }
            QVERIFY(askedBefore ? timer.elapsed() < IOWatchdog::grace.count() : timer.elapsed() >= IOWatchdog::grace.count());
        }
        QCOMPARE(IOWatchdog::abandonedThreads(), 2);
        gate->count_down();
        QTRY_COMPARE_WITH_TIMEOUT(IOWatchdog::abandonedThreads(), 0, 30000);
        QVERIFY(IOWatchdog::waitForThreads(10s));
    }

    void zeroLimitRacesAnExpiredClock()
    {
        // Work that needs any time at all loses.
        QVERIFY_THROWS_EXCEPTION(IOWatchdog::TimedOut, IOWatchdog::run(0ms, [](std::stop_token stop) {
                                     return sleepUnlessStopped(stop, 200ms, 1);
                                 }));
        // Either outcome is allowed for instant work, but never a hang or another error.
        for (int i = 0; i < 50; ++i) {
            try {
                QCOMPARE(IOWatchdog::run(0ms, [](std::stop_token) { return 3; }), 3);
            } catch (const IOWatchdog::TimedOut &) {
            }
        }
    }

    void callerCancellationReachesTheWork()
    {
        std::stop_source caller;
        auto started = std::make_shared<std::latch>(1);
        auto workSawStop = std::make_shared<std::atomic<bool>>(false);
        std::jthread canceller([&] {
            started->wait();
            caller.request_stop();
        });
        const auto work = [started, workSawStop](std::stop_token stop) {
            started->count_down();
            try {
                return sleepUnlessStopped(stop, 10min, 1);
            } catch (const CancellationError &) {
                *workSawStop = true;
                throw;
            }
        };
        QVERIFY_THROWS_EXCEPTION(CancellationError, IOWatchdog::run(10min, work, caller.get_token()));
        QVERIFY2(*workSawStop, "the caller's stop did not reach the work");

        // Already cancelled before the call: still CancellationError, never TimedOut.
        QVERIFY_THROWS_EXCEPTION(CancellationError,
                                 IOWatchdog::run(0ms, [](std::stop_token stop) { return sleepUnlessStopped(stop, 1s, 1); },
                                                 caller.get_token()));
    }

    // A caller that must see every started thread end (a leak check) can.
    void threadsCanBeWaitedFor()
    {
        QVERIFY(IOWatchdog::waitForThreads(10s));
        auto release = std::make_shared<std::atomic<bool>>(false);
        IOWatchdog::detail::startThread([release] {
            while (!*release)
                std::this_thread::yield();
        });
        QVERIFY(!IOWatchdog::waitForThreads(0ms));
        *release = true;
        QVERIFY(IOWatchdog::waitForThreads(10s));
    }

    void nothingOfFinishedWorkOutlivesTheCall()
    {
        // What the work holds (an open file) is released before run returns, which it does at once, not at the limit.
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 200; ++i) {
            auto released = std::make_shared<std::atomic<bool>>(false);
            // A slow release, so that one still under way when run returns is caught.
            auto guard = std::shared_ptr<int>(new int(1), [released](int *p) {
                std::this_thread::sleep_for(std::chrono::microseconds(50));
                delete p;
                *released = true;
            });
            QCOMPARE(IOWatchdog::run(longLimit, [guard = std::move(guard)](std::stop_token) { return *guard; }), 1);
            QVERIFY(*released);
        }
        QVERIFY2(timer.elapsed() < std::chrono::milliseconds(longLimit).count(), "run waited out the clock");
    }
};

QTEST_GUILESS_MAIN(TestIOWatchdog)
#include "tst_iowatchdog.moc"
