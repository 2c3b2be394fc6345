#include "base/Awaiting.h"
#include "base/AsyncRun.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QThreadPool>
#include <QtTest>

#include <atomic>
#include <memory>

// The one way the window's thread hears of work done elsewhere: every
// answer arrives exactly once, on the owner's thread, and never after the
// owner has gone, however the work's end races with the waiting.
class TestAwaiting : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Futures that end while the wait is being set up, from many threads at
    // once: the pattern that ran a continuation twice.
    void everyAnswerArrivesOnceOnTheOwnersThread()
    {
        QThreadPool pool;
        pool.setMaxThreadCount(8);
        QObject owner;
        constexpr int count = 3000;
        std::vector<int> heard(count, 0);
        int wrongThread = 0;
        for (int i = 0; i < count; ++i) {
            QFuture<int> work = AsyncRun::onPool(pool, [i] { return i; });
            Awaiting::whenFinished(&owner, work, [&, i](QFuture<int> done) {
                if (QThread::currentThread() != owner.thread())
                    ++wrongThread;
                if (Awaiting::take(done) == i)
                    ++heard[size_t(i)];
            });
        }
        QTRY_VERIFY_WITH_TIMEOUT(std::all_of(heard.begin(), heard.end(), [](int n) { return n >= 1; }), 60000);
        pool.waitForDone();
        QCoreApplication::processEvents();
        QVERIFY(std::all_of(heard.begin(), heard.end(), [](int n) { return n == 1; }));
        QCOMPARE(wrongThread, 0);
    }

    // An owner that goes while its work runs is never called back, and a
    // cancelled future still ends the wait, without an answer.
    void goneOwnersAndCancelledWork()
    {
        QThreadPool pool;
        auto release = std::make_shared<std::atomic<bool>>(false);
        auto owner = std::make_unique<QObject>();
        bool called = false;
        QFuture<int> held = AsyncRun::onPool(pool, [release] {
            while (!*release)
                QThread::yieldCurrentThread();
            return 1;
        });
        Awaiting::whenFinished(owner.get(), held, [&](QFuture<int>) { called = true; });
        owner.reset();
        *release = true;
        pool.waitForDone();
        // Whatever the finished future posted is delivered now.
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QVERIFY(!called);

        QObject stays;
        std::optional<std::optional<int>> answer;
        QFuture<int> cancelled = AsyncRun::cancellable(pool, [](std::stop_token token) {
            while (!token.stop_requested())
                QThread::yieldCurrentThread();
            return 2;
        });
        Awaiting::whenFinished(&stays, cancelled, [&](QFuture<int> done) { answer = Awaiting::take(done); });
        cancelled.cancel();
        QTRY_VERIFY(answer.has_value());
        QVERIFY(!answer->has_value());
    }

    // An error thrown by the work comes out of take(), not out of the wait.
    void errorsComeBackWithTheAnswer()
    {
        QThreadPool pool;
        QObject owner;
        std::optional<bool> threw; // set once the answer came
        QFuture<int> failing = AsyncRun::onPool(pool, []() -> int { throw std::runtime_error("drive gone"); });
        Awaiting::whenFinished(&owner, failing, [&](QFuture<int> done) {
            threw = false;
            try {
                Awaiting::take(done);
            } catch (const std::runtime_error &) {
                threw = true;
            }
        });
        QTRY_COMPARE(threw, std::optional(true));
    }

    // g++ 12 destroys the temporaries of an awaited expression twice, so
    // nothing in the program awaits a call's result without naming it first.
    void nothingAwaitsATemporary()
    {
        const QRegularExpression awaitedCall(QStringLiteral(R"(co_await\s+[^;]*\()"));
        QStringList found;
        QDirIterator it(QStringLiteral(KEELHOLD_SOURCE_DIR "/src"), {QStringLiteral("*.cpp"), QStringLiteral("*.h")},
                        QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            QFile file(it.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            int line = 0;
            for (const QByteArray &text : file.readAll().split('\n')) {
                ++line;
                const QString code = QString::fromUtf8(text).section(QStringLiteral("//"), 0, 0);
                if (code.contains(awaitedCall))
                    found << it.fileName() + QLatin1Char(':') + QString::number(line);
            }
        }
        QVERIFY2(found.isEmpty(), qPrintable(found.join(QStringLiteral(", "))));
    }
};

QTEST_GUILESS_MAIN(TestAwaiting)
#include "tst_awaiting.moc"
