// The pass that works out the drive's activity ahead of the user: one
// event at a time, each answer noted as it comes, waiting while a keep runs
// and going on where it was, and a failed event costing only itself.

#include "base/CancellationError.h"
#include "engine/MomentsAccess.h"
#include "state/ActivityPass.h"

#include <QPromise>
#include <QSignalSpy>
#include <QTest>
#include <memory>

namespace {

// Loads that answer only when the test says.
class HeldLoads : public MomentsAccess {
public:
    struct Load {
        TeslaEvent event;
        std::shared_ptr<QPromise<EventActivity>> promise;
    };
    std::vector<Load> loads;

    QFuture<EventActivity> loadActivity(const TeslaEvent &event) override
    {
        auto promise = std::make_shared<QPromise<EventActivity>>();
        promise->start();
        loads.push_back({event, promise});
        return promise->future();
    }

    // Someone crossed the event's left side camera at `at`.
    void answer(size_t i, double at)
    {
        EventActivity a;
        a.bursts.push_back({Camera::leftRepeater, at, at + 3, 0.8f});
        loads.at(i).promise->addResult(a);
        loads.at(i).promise->finish();
    }
    void fail(size_t i)
    {
        loads.at(i).promise->setException(std::make_exception_ptr(std::runtime_error("drive gone")));
        loads.at(i).promise->finish();
    }
};

TeslaEvent sentry(const QString &name)
{
    TeslaEvent e;
    e.folderName = name;
    return e;
}

} // namespace

class TestActivityPass : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void goesThroughEveryEventOnceAndNotesEach()
    {
        HeldLoads engine;
        ActivityPass pass(engine);
        QStringList noted;
        connect(&pass, &ActivityPass::highlightsChanged, this, [&](const QString &id) { noted << id; });
        pass.start({sentry("a"), sentry("b"), sentry("c")});
        QVERIFY(pass.isRunning());
        QTRY_COMPARE(engine.loads.size(), size_t(1));
        engine.answer(0, 10);
        QTRY_COMPARE(engine.loads.size(), size_t(2));
        engine.fail(1); // that event only
        QTRY_COMPARE(engine.loads.size(), size_t(3));
        QSignalSpy finished(&pass, &ActivityPass::finished);
        engine.answer(2, 30);
        QTRY_COMPARE(finished.size(), 1);
        QVERIFY(!pass.isRunning());
        QCOMPARE(noted, (QStringList{"sentry|a", "sentry|c"}));
        QCOMPARE(pass.highlights(QStringLiteral("sentry|a")).front().start, 10.0);
        QVERIFY(!pass.isKnown(QStringLiteral("sentry|b")));
        // Known events are not read again.
        pass.start({sentry("a"), sentry("c")});
        QTRY_COMPARE(finished.size(), 2);
        QCOMPARE(engine.loads.size(), size_t(3));
    }

    void waitsWhileKeepingAndGoesOnWhereItWas()
    {
        HeldLoads engine;
        ActivityPass pass(engine);
        pass.start({sentry("a"), sentry("b")});
        QTRY_COMPARE(engine.loads.size(), size_t(1));
        pass.setPaused(true);
        // The load in flight is asked to stop; its late answer is not taken.
        QTRY_VERIFY(engine.loads[0].promise->isCanceled());
        engine.answer(0, 10);
        QCoreApplication::processEvents();
        QVERIFY(!pass.isKnown(QStringLiteral("sentry|a")));
        QCOMPARE(engine.loads.size(), size_t(1));
        QVERIFY(!pass.isRunning());
        // Resumed, it reads "a" anew, then "b".
        pass.setPaused(false);
        QTRY_COMPARE(engine.loads.size(), size_t(2));
        QCOMPARE(engine.loads[1].event.folderName, QStringLiteral("a"));
        engine.answer(1, 12);
        QTRY_COMPARE(engine.loads.size(), size_t(3));
        QCOMPARE(engine.loads[2].event.folderName, QStringLiteral("b"));
        // What the player read for an event is noted alike.
        EventActivity seen;
        seen.bursts.push_back({Camera::back, 50, 52, 0.9f});
        pass.note(QStringLiteral("sentry|b"), seen);
        QCOMPARE(pass.highlights(QStringLiteral("sentry|b")).front().camera, Camera(Camera::back));
        pass.stop();
        QVERIFY(!pass.isRunning());
    }
};

QTEST_GUILESS_MAIN(TestActivityPass)

#include "tst_activitypass.moc"
