#include "drive/IOWatchdog.h"
#include "model/CancellationError.h"

#include <QElapsedTimer>
#include <QFutureWatcher>
#include <QTest>

#include <atomic>
#include <stdexcept>
#include <thread>

using namespace std::chrono_literals;

namespace {
struct WorkFailed : std::runtime_error {
    WorkFailed() : std::runtime_error("work failed") {}
};

// Sleeps in small steps and ends early when asked to stop.
int sleepUnlessStopped(std::stop_token stop, std::chrono::milliseconds total, int value)
{
    const auto end = std::chrono::steady_clock::now() + total;
    while (std::chrono::steady_clock::now() < end) {
        if (stop.stop_requested())
            throw CancellationError();
        std::this_thread::sleep_for(2ms);
    }
    return value;
}
} // namespace

class TestIOWatchdog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void workThatFinishesEarlyReturnsAtOnce()
    {
        QElapsedTimer timer;
        timer.start();
        const int value = IOWatchdog::run(5s, [](std::stop_token) { return 42; });
        QCOMPARE(value, 42);
        QVERIFY2(timer.elapsed() < 1000, "run waited out the clock");

        // A value type that only moves comes back intact.
        auto text = IOWatchdog::run(1s, [](std::stop_token) { return std::make_unique<QString>("kept"); });
        QCOMPARE(*text, QStringLiteral("kept"));
    }

    void errorOfTheWorkIsRethrownUnchanged()
    {
        QElapsedTimer timer;
        timer.start();
        QVERIFY_THROWS_EXCEPTION(WorkFailed, IOWatchdog::run(5s, [](std::stop_token) -> int { throw WorkFailed(); }));
        QVERIFY(timer.elapsed() < 1000);

        // Even a cancellation error raised by the work itself is the work's own.
        QVERIFY_THROWS_EXCEPTION(CancellationError,
                                 IOWatchdog::run(5s, [](std::stop_token) -> int { throw CancellationError(); }));
    }

    void workThatAnswersStopEndsSoonAfterTheLimit()
    {
        std::atomic<bool> sawStop{false};
        QElapsedTimer timer;
        timer.start();
        QVERIFY_THROWS_EXCEPTION(IOWatchdog::TimedOut, IOWatchdog::run(200ms, [&](std::stop_token stop) {
                                     try {
                                         return sleepUnlessStopped(stop, 10s, 1);
                                     } catch (const CancellationError &) {
                                         sawStop = true;
                                         throw;
                                     }
                                 }));
        QVERIFY(sawStop);
        QVERIFY2(timer.elapsed() >= 200, "TimedOut before the limit");
        QVERIFY2(timer.elapsed() < 2000, "the stop request did not end the work");
    }

    void workThatIgnoresStopHoldsRunUntilItEnds()
    {
        // The watchdog never abandons work: it waits for it, then reports
        // TimedOut even though the work produced a value.
        std::atomic<bool> finished{false};
        QElapsedTimer timer;
        timer.start();
        QVERIFY_THROWS_EXCEPTION(IOWatchdog::TimedOut, IOWatchdog::run(300ms, [&](std::stop_token) {
                                     std::this_thread::sleep_for(600ms);
                                     finished = true;
                                     return 7;
                                 }));
        QVERIFY2(finished, "run returned while the work was still running");
        QVERIFY2(timer.elapsed() >= 590, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(timer.elapsed() < 3000);
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

    void callerCancellationIsNotTimedOut()
    {
        std::stop_source caller;
        std::thread canceller([&] {
            std::this_thread::sleep_for(150ms);
            caller.request_stop();
        });
        std::atomic<bool> workSawStop{false};
        QElapsedTimer timer;
        timer.start();
        QVERIFY_THROWS_EXCEPTION(CancellationError, IOWatchdog::run(
                                                        10s,
                                                        [&](std::stop_token stop) {
                                                            try {
                                                                return sleepUnlessStopped(stop, 10s, 1);
                                                            } catch (const CancellationError &) {
                                                                workSawStop = true;
                                                                throw;
                                                            }
                                                        },
                                                        caller.get_token()));
        canceller.join();
        QVERIFY2(workSawStop, "the caller's stop did not reach the work");
        QVERIFY(timer.elapsed() < 2000);

        // Already cancelled before the call: still CancellationError, never TimedOut.
        QVERIFY_THROWS_EXCEPTION(CancellationError,
                                 IOWatchdog::run(0ms, [](std::stop_token stop) { return sleepUnlessStopped(stop, 1s, 1); },
                                                 caller.get_token()));
    }

    void nothingOfTheWorkOutlivesTheCall()
    {
        // What the work holds (an open file, say) is released before run returns.
        for (int i = 0; i < 200; ++i) {
            std::atomic<bool> released{false};
            auto guard = std::shared_ptr<int>(new int(1), [&released](int *p) {
                std::this_thread::sleep_for(std::chrono::microseconds(50));
                delete p;
                released = true;
            });
            IOWatchdog::run(5s, [guard = std::move(guard)](std::stop_token) { return *guard; });
            QVERIFY(released);
        }
    }

    void futureFormCarriesTheSameOutcomes()
    {
        auto ok = IOWatchdog::start(5s, [](std::stop_token) { return 5; });
        ok.waitForFinished();
        QCOMPARE(ok.result(), 5);

        auto late = IOWatchdog::start(100ms, [](std::stop_token stop) { return sleepUnlessStopped(stop, 5s, 1); });
        QVERIFY_THROWS_EXCEPTION(IOWatchdog::TimedOut, late.waitForFinished());

        auto failing = IOWatchdog::start(5s, [](std::stop_token) -> int { throw WorkFailed(); });
        QVERIFY_THROWS_EXCEPTION(WorkFailed, failing.waitForFinished());

        std::atomic<bool> workSawStop{false};
        auto cancelled = IOWatchdog::start(10s, [&](std::stop_token stop) {
            try {
                return sleepUnlessStopped(stop, 10s, 1);
            } catch (const CancellationError &) {
                workSawStop = true;
                throw;
            }
        });
        std::this_thread::sleep_for(50ms);
        cancelled.cancel();
        QTRY_VERIFY_WITH_TIMEOUT(workSawStop.load(), 2000);
    }

    void manyWatchedReadsAtOnceAllFinish()
    {
        // Callers that block on the general pool must not starve the work.
        std::vector<QFuture<int>> futures;
        for (int i = 0; i < 16; ++i)
            futures.push_back(IOWatchdog::start(5s, [i](std::stop_token stop) { return sleepUnlessStopped(stop, 50ms, i); }));
        for (int i = 0; i < 16; ++i)
            QCOMPARE(futures[size_t(i)].result(), i);
    }
};

QTEST_GUILESS_MAIN(TestIOWatchdog)
#include "tst_iowatchdog.moc"
