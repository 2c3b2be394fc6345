#include "base/SecondLane.h"

#include <QtTest>

#include <atomic>
#include <vector>

// Work shared with the second thread: every part runs exactly once, however
// the lane's waking races with the caller, and nothing runs after the call
// (or the lane) is over.
class TestSecondLane : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyPartRunsOnceAndIsDoneOnReturn()
    {
        SecondLane lane;
        std::vector<std::atomic<int>> runs(64);
        std::atomic<int> lateRuns{0};
        bool over = false;
        for (int round = 0; round < 3000; ++round) {
            const int parts = 1 + round % 64;
            for (auto &r : runs)
                r.store(0);
            over = false;
            const bool ok = lane.runShared(parts, [&](int side, int part) {
                if (side != 0 && side != 1)
                    return false;
                if (over)
                    ++lateRuns;
                ++runs[size_t(part)];
                return true;
            });
            over = true;
            QVERIFY(ok);
            for (int p = 0; p < 64; ++p)
                QCOMPARE(runs[size_t(p)].load(), p < parts ? 1 : 0);
        }
        QCOMPARE(lateRuns.load(), 0);
    }

    // A part that fails fails the run and stops the parts not yet begun; the
    // next run starts clean.
    void aFailedPartFailsOnlyItsRun()
    {
        SecondLane lane;
        std::atomic<int> ran{0};
        QVERIFY(!lane.runShared(1000, [&](int, int part) {
            ++ran;
            return part != 3;
        }));
        QVERIFY(ran.load() < 1000);
        QVERIFY(lane.runShared(10, [](int, int) { return true; }));
    }

    // Work started and never finished by hand is finished before a new run
    // and before the lane goes, so the buffers it writes may go right after.
    void startedWorkIsFinishedBeforeAnythingElse()
    {
        std::atomic<int> first{0}, second{0};
        auto one = [&](int, int) { return ++first, true; };
        auto two = [&](int, int) { return ++second, true; };
        {
            SecondLane lane;
            lane.start(40, one);
            QVERIFY(lane.isStarted());
            lane.start(7, two);
            QCOMPARE(first.load(), 40);
            QVERIFY(lane.finish());
            QVERIFY(!lane.isStarted());
            QCOMPARE(second.load(), 7);
            lane.start(25, one);
        }
        QCOMPARE(first.load(), 65);
        SecondLane idle; // destroyed at once, never used
    }
};

QTEST_GUILESS_MAIN(TestSecondLane)
#include "tst_secondlane.moc"
