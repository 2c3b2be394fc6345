#include "report/EvidencePackage.h"

#include "base/IOWatchdog.h"
#include "report/ReportError.h"
#include "support/DriveBuilder.h"
#include "support/FaultyFs.h"
#include "support/ProgramRun.h"
#include "support/TestClips.h"
#include "support/TmpfsMount.h"
#include "support/TreeSnapshot.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

using namespace std::chrono_literals;
using EvidencePackage::Item;

namespace {

const QString clipName = QStringLiteral("2026-07-21_02-11-05/2026-07-21_02-10-05-front.mp4");

// Files to put in a package, made in a temporary folder of their own.
struct Sources {
    QTemporaryDir dir;
    std::vector<Item> items;

    QString add(const QString &name, const QByteArray &bytes, bool withDigest = true)
    {
        const QString path =
            dir.filePath(QString::number(items.size()) + QLatin1Char('-') + QFileInfo(name).fileName());
        TeslaCamFixture::writeFile(path, bytes);
        items.push_back({path, name, withDigest ? std::optional(DriveBuilder::sha256Hex(bytes)) : std::nullopt});
        return path;
    }
};

// The message of the ReportError that write threw; empty when it didn't fail.
QString failureOf(const std::vector<Item> &items, const QString &destination,
                  const EvidencePackage::Options &options = {})
{
    try {
        EvidencePackage::write(items, destination, options);
    } catch (const ReportError &e) {
        return e.message().isEmpty() ? QStringLiteral("(empty message)") : e.message();
    }
    return {};
}

// Every name in a folder, hidden ones too.
QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

// What a tool run in folder said, out and errors; its exit code, -1 for a crash.
// Info-ZIP's unzip spells non-ASCII names as "#U00fc" outside a UTF-8 locale.
std::pair<int, QString> runIn(const QString &folder, const QString &program, const QStringList &arguments)
{
    const QStringList inFolder{QStringLiteral("--chdir=") + folder, QStringLiteral("LC_ALL=C.UTF-8"), program};
    const ProgramRun::Result run =
        ProgramRun::run(QStringLiteral("env"), inFolder + arguments, QProcessEnvironment::systemEnvironment(), 120000);
    return {run.exitCode, QString::fromUtf8(run.out) + run.err};
}

constexpr auto contentOf = &DriveBuilder::readQuietly;

} // namespace

class TestEvidencePackage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // unzip and sha256sum, not our code, read it back: stored entries, nested, non-ASCII, edge-sized and empty files.
    void packageUnpacksAndItsSumsCheckWithTheUsualTools()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("unzip")).isEmpty())
            QSKIP("needs unzip");
        Sources sources;
        sources.add(QStringLiteral("report.pdf"), DriveBuilder::randomBytes(200 * 1024 + 3, 1));
        sources.add(clipName, DriveBuilder::randomBytes(5 * 1024 * 1024 + 17, 2));
        sources.add(QStringLiteral("2026-07-21_02-11-05/2026-07-21_02-10-05-back.mp4"),
                    DriveBuilder::randomBytes(3 << 20, 3), false);
        sources.add(QStringLiteral("2026-07-21_02-11-05/event.json"), QByteArray(), false);
        sources.add(QStringLiteral("Notizen für die Versicherung.txt"), "Überholt auf der A9.\n");
        if (TestClips::ffmpegAvailable())
            sources.add(QStringLiteral("2026-07-21_02-11-05/2026-07-21_02-11-05-left_repeater.mp4"),
                        contentOf(TestClips::clip()));

        QTemporaryDir out;
        const QString destination = out.filePath(QStringLiteral("Evidence 2026-07-21.zip"));
        TeslaCamFixture::writeFile(destination, "an earlier package");
        std::vector<double> progress;
        EvidencePackage::Options options;
        options.progress = [&](double fraction) { progress.push_back(fraction); };
        EvidencePackage::write(sources.items, destination, options);

        // Only the package in its folder: the hidden file became it.
        QCOMPARE(namesIn(out.path()), QStringList{QStringLiteral("Evidence 2026-07-21.zip")});
        QVERIFY(progress.size() >= 2);
        QVERIFY(std::is_sorted(progress.begin(), progress.end()));
        QVERIFY(progress.front() > 0.0 && progress.front() < 1.0);
        QCOMPARE(progress.back(), 1.0);

        const auto [listed, listing] = runIn(out.path(), QStringLiteral("unzip"), {QStringLiteral("-v"), destination});
        QCOMPARE(listed, 0);
        QCOMPARE(listing.count(QStringLiteral(" Stored ")), int(sources.items.size()) + 1);
        QVERIFY2(!listing.contains(QStringLiteral("Defl")), qPrintable(listing));

        const QString unpacked = out.filePath(QStringLiteral("unpacked"));
        const auto [unzipped, unzipSaid] =
            runIn(out.path(), QStringLiteral("unzip"), {QStringLiteral("-q"), destination, QStringLiteral("-d"), unpacked});
        QVERIFY2(unzipped == 0, qPrintable(unzipSaid));
        const auto [checked, check] = runIn(unpacked, QStringLiteral("sha256sum"),
                                            {QStringLiteral("--strict"), QStringLiteral("-c"), QStringLiteral("SHA256SUMS")});
        QVERIFY2(checked == 0, qPrintable(check));
        QCOMPARE(check.count(QStringLiteral(": OK\n")), int(sources.items.size()));

        // The sums list the items in order, and each file came out byte for byte as it went in.
        const QList<QByteArray> lines = contentOf(unpacked + QStringLiteral("/SHA256SUMS")).split('\n');
        QCOMPARE(lines.size(), qsizetype(sources.items.size()) + 1);
        for (size_t i = 0; i < sources.items.size(); ++i) {
            const Item &item = sources.items[i];
            QVERIFY2(lines[qsizetype(i)].endsWith("  " + item.name.toUtf8()), lines[qsizetype(i)].constData());
            QCOMPARE(contentOf(unpacked + QLatin1Char('/') + item.name), contentOf(item.source));
        }
    }

    // A file unlike what the report printed, or gone, fails it all: nothing is left; a file at the destination stays.
    void fileThatChangedFailsThePackageAndLeavesNothing()
    {
        Sources sources;
        sources.add(clipName, DriveBuilder::randomBytes(3 << 20, 4));
        const QString changed = sources.add(QStringLiteral("2026-07-21_02-11-05/2026-07-21_02-10-05-back.mp4"),
                                            DriveBuilder::randomBytes(2 << 20, 5));
        sources.items.back().sha256 = DriveBuilder::sha256Hex(DriveBuilder::randomBytes(2 << 20, 6));

        QTemporaryDir out;
        const QString fresh = out.filePath(QStringLiteral("fresh.zip"));
        QString message = failureOf(sources.items, fresh);
        QVERIFY2(message.contains(QFileInfo(changed).fileName()), qPrintable(message));
        QVERIFY(message.contains(QStringLiteral("changed")));
        QCOMPARE(namesIn(out.path()), QStringList());

        const QString earlier = out.filePath(QStringLiteral("earlier.zip"));
        TeslaCamFixture::writeFile(earlier, "an earlier package");
        QVERIFY(!failureOf(sources.items, earlier).isEmpty());
        QCOMPARE(contentOf(earlier), QByteArray("an earlier package"));
        QCOMPARE(namesIn(out.path()), QStringList{QStringLiteral("earlier.zip")});

        // Gone since the report: said before anything is written.
        sources.items.back().sha256.reset();
        QVERIFY(QFile::remove(changed));
        message = failureOf(sources.items, earlier);
        QVERIFY2(message.contains(QFileInfo(changed).fileName()), qPrintable(message));
        QCOMPARE(contentOf(earlier), QByteArray("an earlier package"));
        QCOMPARE(namesIn(out.path()), QStringList{QStringLiteral("earlier.zip")});

        // Names a reader would put outside its folder, or that clash in SHA256SUMS, are refused too.
        sources.items.pop_back();
        for (const QString &bad : {QStringLiteral("../escape.mp4"), QStringLiteral("/etc/escape"),
                                   QStringLiteral("SHA256SUMS"), QStringLiteral("two\nlines"), clipName}) {
            std::vector<Item> items = sources.items;
            items.push_back({items[0].source, bad, std::nullopt});
            QVERIFY2(!failureOf(items, fresh).isEmpty(), qPrintable(bad));
            QCOMPARE(namesIn(out.path()), QStringList{QStringLiteral("earlier.zip")});
        }
    }

    // A read never answering fails it within the read limit and grace, as do an erring read and a growing file.
    void failingDriveFailsThePackageInTimeNamingTheFile()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        const QString hung = QStringLiteral("2026-07-21_02-10-05-front.mp4");
        const QString failing = QStringLiteral("2026-07-21_02-10-05-back.mp4");
        fs.addFile(hung, DriveBuilder::randomBytes(3 << 20, 9));
        fs.addFile(failing, DriveBuilder::randomBytes(3 << 20, 10));
        fs.hangReadsFrom(hung, 1 << 20);
        fs.failReadsFrom(failing, 2 << 20);
        const auto release = qScopeGuard([&] { fs.release(); });
        Sources local;
        local.add(QStringLiteral("report.pdf"), DriveBuilder::randomBytes(1 << 20, 11));
        QTemporaryDir out;
        const QString destination = out.filePath(QStringLiteral("package.zip"));

        EvidencePackage::Options options;
        options.readLimit = 300ms;
        std::vector<Item> items = local.items;
        items.push_back({mountPoint.filePath(hung), clipName, std::nullopt});
        QElapsedTimer timer;
        timer.start();
        QString message = failureOf(items, destination, options);
        const qint64 tookMs = timer.elapsed();
        QVERIFY2(message.contains(hung), qPrintable(message));
        QVERIFY(fs.heldRequests() >= 1); // still stuck: the package didn't wait for it
        QVERIFY2(tookMs < 300 + 2500, qPrintable(QString::number(tookMs)));
        QCOMPARE(namesIn(out.path()), QStringList());
        fs.release();
        QVERIFY(IOWatchdog::waitForThreads(20s));

        items.back() = {mountPoint.filePath(failing), clipName, std::nullopt};
        message = failureOf(items, destination, options);
        QVERIFY2(message.contains(failing), qPrintable(message));
        QCOMPARE(namesIn(out.path()), QStringList());

        // The car still writing: the file grows while its read is held.
        const QString growing = QStringLiteral("2026-07-21_02-11-05-front.mp4");
        fs.addFile(growing, DriveBuilder::randomBytes(2 << 20, 12));
        fs.hangReadsFrom(growing, 1 << 20);
        items.back() = {mountPoint.filePath(growing), clipName, std::nullopt};
        options.readLimit = 60s;
        std::thread writer([&] { message = failureOf(items, destination, options); });
        const auto join = qScopeGuard([&] {
            fs.release();
            if (writer.joinable())
                writer.join();
        });
        QVERIFY(fs.waitUntilHeld());
        fs.appendToFile(growing, QByteArray(4096, 'x'));
        fs.release();
        writer.join();
        QVERIFY2(message.contains(growing), qPrintable(message));
        QCOMPARE(namesIn(out.path()), QStringList());
    }

    void destinationThatCannotBeWrittenSaysSoAndLeavesNothing()
    {
        Sources sources;
        sources.add(clipName, DriveBuilder::randomBytes(3 << 20, 13));
        QTemporaryDir out;
        QVERIFY(!failureOf(sources.items, out.filePath(QStringLiteral("no-such-folder/package.zip"))).isEmpty());
        QCOMPARE(namesIn(out.path()), QStringList());

        const TmpfsMount readOnly(out.path(), QStringLiteral("ro-XXXXXX"), QStringLiteral("size=1m,ro"));
        const TmpfsMount small(out.path(), QStringLiteral("small-XXXXXX"), QStringLiteral("size=1m"));
        if (!readOnly.ok() || !small.ok())
            QSKIP("needs root to mount a small tmpfs");
        QVERIFY(!failureOf(sources.items, readOnly.path() + QStringLiteral("/package.zip")).isEmpty());
        // Full half-way through the clip: the hidden file goes, and with it the room it took.
        const QString message = failureOf(sources.items, small.path() + QStringLiteral("/package.zip"));
        QVERIFY2(message.contains(QStringLiteral("full")), qPrintable(message));
        QCOMPARE(namesIn(small.path()), QStringList());
    }

    // Even without its caller's check it never lands on the events' drive: inside TeslaCam, or beside it.
    void neverWrittenOntoTheCarsDrive()
    {
        QTemporaryDir home;
        DriveBuilder onDisk(home.filePath(QStringLiteral("TeslaCam")));
        onDisk.addEvent(QStringLiteral("SentryClips"), QStringLiteral("2026-07-21_02-11-05"), 1, 1 << 20);
        EvidencePackage::Options options;
        options.events = onDisk.scan();
        QCOMPARE(options.events.size(), size_t(1));
        const std::vector<Item> items{{options.events[0].clips[0].url, clipName, std::nullopt}};
        const TreeSnapshot before = TreeSnapshot::take(onDisk.root());
        QVERIFY(!failureOf(items, onDisk.root() + QStringLiteral("/package.zip"), options).isEmpty());
        QCOMPARE(before.differences(TreeSnapshot::take(onDisk.root())), QString());
        // Beside that folder on the computer's own disk is fine.
        QCOMPARE(failureOf(items, home.filePath(QStringLiteral("package.zip")), options), QString());

        const TmpfsMount stick(home.path(), QStringLiteral("stick-XXXXXX"), QStringLiteral("size=8m"));
        if (!stick.ok())
            QSKIP("needs root to mount a drive");
        DriveBuilder car(stick.path() + QStringLiteral("/TeslaCam"));
        car.addEvent(QStringLiteral("SentryClips"), QStringLiteral("2026-07-21_02-11-05"), 1, 1 << 20);
        options.events = car.scan();
        const QStringList rootBefore = namesIn(stick.path());
        QVERIFY(!failureOf({{options.events[0].clips[0].url, clipName, std::nullopt}},
                           stick.path() + QStringLiteral("/package.zip"), options).isEmpty());
        QCOMPARE(namesIn(stick.path()), rootBefore);
    }
};

QTEST_GUILESS_MAIN(TestEvidencePackage)
#include "tst_evidencepackage.moc"
