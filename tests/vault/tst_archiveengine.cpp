#include "drive/TeslaCamParser.h"
#include "support/DriveBuilder.h"
#include "support/FaultyFs.h"
#include "support/TeslaCamFixture.h"
#include "support/TmpfsMount.h"
#include "support/TreeSnapshot.h"
#include "vault/ArchiveEngine.h"
#include "drive/DriveBoundary.h"
#include "vault/VaultIndex.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <thread>

using namespace std::chrono_literals;

namespace {

const QString emptySha256 = QStringLiteral("e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");

namespace Reason = ArchiveEngine::Reason;

// Each failed file as "path | reason", in order of failure.
QStringList failures(const ArchiveReport &report)
{
    QStringList lines;
    for (const auto &failed : report.failedFiles)
        lines << failed.path + QStringLiteral(" | ") + failed.reason;
    return lines;
}

QString failure(const QString &path, QStringView why)
{
    return path + QStringLiteral(" | ") + why.toString();
}

ArchiveReport keep(const std::vector<TeslaEvent> &events, const QString &vault)
{
    return ArchiveEngine::run(ArchiveEngine::plan(events, VaultIndex{}), vault);
}

// A drive in a temporary folder whose tree must come out of every test as it went in.
struct Drive {
    QTemporaryDir dir;
    DriveBuilder builder{dir.filePath(QStringLiteral("TeslaCam"))};
    TreeSnapshot before;

    void freeze() { before = TreeSnapshot::take(builder.root()); }
    // Access times too: the engine opens the drive with O_NOATIME.
    QString changes() const { return before.differences(TreeSnapshot::take(builder.root()), true); }
};


ClipRef clipAt(const QString &path, qint64 size)
{
    ClipRef clip;
    clip.url = path;
    clip.fileSize = size;
    return clip;
}

} // namespace

class TestArchiveEngine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void planSortsNewFromKept()
    {
        Drive drive;
        drive.builder.addEvent("SentryClips", "2026-07-18_09-15-32", 2, 1000);
        drive.builder.addEvent("SavedClips", "2026-07-19_10-00-00", 1, 500);
        const auto events = drive.builder.scan();
        drive.freeze();

        const ArchivePlan empty = ArchiveEngine::plan({}, VaultIndex{});
        QVERIFY(empty.items.empty());
        QCOMPARE(empty.totalNewBytes(), qint64(0));

        ArchivePlan plan = ArchiveEngine::plan(events, VaultIndex{});
        // The total counts clips only, as the scan recorded them.
        QCOMPARE(std::tuple(plan.items.size(), plan.newItems().size(), plan.totalNewBytes()),
                 std::tuple(size_t(2), size_t(2), qint64(2500)));

        QTemporaryDir vault;
        const ArchiveReport first = ArchiveEngine::run(plan, vault.path());
        QCOMPARE(first.archivedEvents.size(), size_t(2));

        // The same drive again: recognised from names and sizes, no hashing.
        const VaultIndex index = VaultIndex::load(vault.path());
        plan = ArchiveEngine::plan(events, index);
        QCOMPARE(std::tuple(plan.items.size(), plan.newItems().size()), std::tuple(size_t(2), size_t(0)));
        QVERIFY(plan.items[0].isDuplicate && plan.items[1].isDuplicate);

        // The scan's sizes count for the total, the disk's sizes for the key.
        auto stale = events;
        stale[0].clips[0].fileSize = 1;
        QCOMPARE(ArchiveEngine::plan(stale, index).newItems().size(), size_t(0));

        // A file more, or one kept only in part, makes the event new.
        auto grown = events;
        grown[0].clips.push_back(clipAt(drive.builder.root() + "/SavedClips/none-front.mp4", 0));
        QCOMPARE(ArchiveEngine::plan(grown, index).newItems().size(), size_t(1));
        VaultIndex partial = index;
        partial.events[0].files.pop_back();
        partial.events.erase(partial.events.begin() + 1);
        QCOMPARE(ArchiveEngine::plan(events, partial).newItems().size(), size_t(2));

        // With the drive gone every size reads 0 and nothing matches.
        auto moved = events;
        for (auto &e : moved) {
            for (auto &c : e.clips)
                c.url.replace(drive.builder.root(), "/nonexistent");
            e.folderURL.replace(drive.builder.root(), "/nonexistent");
            e.thumbURL.reset();
        }
        QCOMPARE(ArchiveEngine::plan(moved, index).newItems().size(), size_t(2));
        QCOMPARE(drive.changes(), QString());
    }

    void runCopiesVerifiesAndRecords()
    {
        Drive drive;
        const QString sentry = drive.builder.addEvent("SentryClips", "2026-07-18_09-15-32", 4, 300000);
        drive.builder.addEvent("SavedClips", "2026-07-19_10-00-00", 2, 1 << 20); // exact multiples of a block
        drive.freeze();
        const auto events = drive.builder.scan();
        QTemporaryDir dir;
        const QString vault = dir.filePath("deep/Vault"); // made by the run
        const Date started = Date::now();

        const ArchiveReport report = keep(events, vault);
        QCOMPARE(std::tuple(report.cancelled, report.failedFiles.size(), report.skippedDuplicates, report.archivedEvents.size()),
                 std::tuple(false, size_t(0), 0, size_t(2)));
        QCOMPARE(report.bytesCopied, qint64(4 * 300000 + 2 * (1 << 20)) + 2 * DriveBuilder::readQuietly(sentry + "/event.json").size()
                                         + 2 * DriveBuilder::readQuietly(sentry + "/thumb.png").size());

        // Plan order (the scan's: newest first).
        const ArchivedEvent &saved = report.archivedEvents[0];
        QCOMPARE(std::tuple(saved.eventID, saved.relativePath, saved.timestamp),
                 std::tuple(QStringLiteral("saved|2026-07-19_10-00-00"), QStringLiteral("2026/saved/2026-07-19_10-00-00"),
                            events[0].timestamp));
        QVERIFY(!saved.sourceVolume.isEmpty());
        QVERIFY(saved.archivedAt >= started && saved.archivedAt <= Date::now());
        QVERIFY(report.archivedEvents[1].archivedAt >= saved.archivedAt);

        for (size_t e = 0; e < events.size(); ++e) {
            const auto sources = ArchiveEngine::sourceFiles(events[e]);
            const ArchivedEvent &record = report.archivedEvents[e];
            QCOMPARE(record.files.size(), sources.size());
            for (size_t i = 0; i < sources.size(); ++i) {
                const QString kept = vault + "/" + record.relativePath + "/" + record.files[i].name;
                QCOMPARE(record.files[i].name, QFileInfo(sources[i]).fileName());
                QCOMPARE(record.files[i].size, QFileInfo(sources[i]).size());
                QCOMPARE(record.files[i].sha256, DriveBuilder::sha256Hex(sources[i]));
                QCOMPARE(DriveBuilder::sha256Hex(kept), record.files[i].sha256);
            }
        }
        QCOMPARE(VaultIndex::load(vault).events, report.archivedEvents);
        QVERIFY(DriveBuilder::temporaryFiles(vault).isEmpty());
        QCOMPARE(drive.changes(), QString());
    }

    void emptyAndReplacedFiles()
    {
        Drive drive;
        const QString folder = drive.builder.addEvent("SentryClips", "2026-07-18_09-15-32", 1, 0);
        auto event = drive.builder.scan().at(0);
        QTemporaryDir vault;
        // A re-import finds an old copy in place: it is replaced, not renamed.
        const QString kept = vault.filePath("2026/sentry/2026-07-18_09-15-32");
        QDir().mkpath(kept);
        TeslaCamFixture::writeFile(kept + "/event.json", "old and much longer than the new one");
        // A manifest that can't be read is replaced by this run's records.
        TeslaCamFixture::writeFile(vault.filePath("manifest.json"), R"({"events":[{"eventID":1}]})");
        drive.freeze();

        const ArchiveReport report = keep({event}, vault.path());
        QCOMPARE(report.archivedEvents.size(), size_t(1));
        QCOMPARE(VaultIndex::load(vault.path()).events, report.archivedEvents);
        const auto &files = report.archivedEvents[0].files;
        QCOMPARE(std::pair(files[0].size, files[0].sha256), std::pair(qint64(0), emptySha256));
        QCOMPARE(DriveBuilder::readQuietly(kept + "/event.json"), DriveBuilder::readQuietly(folder + "/event.json"));
        QCOMPARE(QDir(kept).entryList(QDir::Files | QDir::Hidden).size(), 3);
        QCOMPARE(drive.changes(), QString());
    }

    void filesThatFailAreReportedAndTheRunGoesOn()
    {
        Drive drive;
        drive.builder.addEvent("SentryClips", "2026-07-18_09-15-32", 2, 100);
        drive.builder.addEvent("SentryClips", "2026-07-17_09-15-32", 1, 100);
        auto events = drive.builder.scan();
        // Newest event: one clip is gone from the drive.
        const QString gone = events[0].folderURL + "/2026-07-18_09-10-00-back.mp4";
        events[0].clips.push_back(clipAt(gone, 100));
        // An event.json the scan found missing is left out, even if it is there now.
        events[0].missingEventJSON = true;
        // Every file gone: a folder, no record, no end-of-event progress; gone extras left out, only its clip fails.
        TeslaEvent ghost = events[1];
        ghost.folderName = QStringLiteral("2026-07-16_09-15-32");
        ghost.folderURL = drive.dir.filePath("elsewhere");
        ghost.clips = {clipAt(drive.dir.filePath("elsewhere/x-front.mp4"), 100)};
        ghost.thumbURL = ghost.folderURL + "/thumb.png";
        // An event with nothing to copy at all.
        TeslaEvent bare = ghost;
        bare.folderName = QStringLiteral("2026-07-15_09-15-32");
        bare.clips.clear();
        events.insert(events.begin() + 1, ghost);
        events.push_back(bare);
        drive.freeze();

        QTemporaryDir vault;
        std::vector<ArchiveProgress> emitted;
        const ArchiveReport report = ArchiveEngine::run(ArchiveEngine::plan(events, VaultIndex{}), vault.path(),
                                                        [&](const ArchiveProgress &p) { emitted.push_back(p); });
        QCOMPARE(failures(report),
                 (QStringList{failure(gone, Reason::unreadable), failure(ghost.clips[0].url, Reason::unreadable)}));
        QCOMPARE(report.archivedEvents.size(), size_t(2));
        QCOMPARE(report.archivedEvents[0].files.size(), size_t(3)); // 2 clips and the thumbnail
        QVERIFY(QFileInfo(vault.filePath("2026/sentry/2026-07-16_09-15-32")).isDir());
        QVERIFY(QFileInfo(vault.filePath("2026/sentry/2026-07-15_09-15-32")).isDir());
        QVERIFY(DriveBuilder::temporaryFiles(vault.path()).isEmpty());

        std::vector<int> ends;
        for (const auto &p : emitted)
            if (!p.currentFileName)
                ends.push_back(p.eventsCompleted);
        QCOMPARE(ends, (std::vector<int>{1, 3})); // jumps past the ghost; nothing for the bare one
        QCOMPARE(drive.changes(), QString());
    }

    void vaultFolderThatCannotBeMadeFailsEachEvent()
    {
        Drive drive;
        drive.builder.addEvent("SentryClips", "2026-07-18_09-15-32", 1, 100);
        drive.builder.addEvent("SentryClips", "2026-07-17_09-15-32", 1, 100);
        QTemporaryDir dir;
        TeslaCamFixture::writeFile(dir.filePath("file"), "x");
        const QString vault = dir.filePath("file/Vault");
        const ArchiveReport report = keep(drive.builder.scan(), vault);
        // The Vault's side, said as such: never the car's drive blamed.
        QCOMPARE(failures(report),
                 (QStringList{failure(vault + "/2026/sentry/2026-07-18_09-15-32", Reason::vaultUnavailable),
                              failure(vault + "/2026/sentry/2026-07-17_09-15-32", Reason::vaultUnavailable)}));
        QVERIFY(report.archivedEvents.empty());
    }

    // Without the screen's or command line's check, the engine itself still never makes a Vault on the car's drive.
    void vaultOnTheCarsDriveIsRefusedByTheEngine()
    {
        Drive drive;
        drive.builder.addEvent("SentryClips", "2026-07-18_09-15-32", 1, 100);
        drive.freeze();
        const QString vault = drive.builder.root() + QStringLiteral("/Vault");
        const ArchiveReport report = keep(drive.builder.scan(), vault);
        QCOMPARE(failures(report), QStringList{failure(vault, DriveBoundary::vaultRefusal)});
        QVERIFY(report.archivedEvents.empty());
        QCOMPARE(drive.changes(), QString());
    }

    void progressIsThrottledButTheLastFileAlwaysEmits()
    {
        Drive drive;
        for (int day = 10; day < 13; ++day)
            drive.builder.addEvent("SentryClips", QStringLiteral("2026-07-%1_09-15-32").arg(day), 4, 2000);
        const auto events = drive.builder.scan();
        const ArchivePlan plan = ArchiveEngine::plan(events, VaultIndex{});
        QTemporaryDir vault;
        struct Emit {
            ArchiveProgress progress;
            double at;
        };
        std::vector<Emit> emitted;
        const ArchiveReport report = ArchiveEngine::run(plan, vault.path(), [&](const ArchiveProgress &p) {
            emitted.push_back({p, std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count()});
        });
        for (const auto &e : emitted) {
            QCOMPARE(e.progress.totalBytes, plan.totalNewBytes());
            QCOMPARE(e.progress.totalEvents, 3);
        }
        // The first file of the run emits before its copy, with nothing done yet.
        QVERIFY(emitted.size() >= 6);
        QCOMPARE(emitted.front().progress.bytesCopied, qint64(0));
        QCOMPARE(emitted.front().progress.currentFileName, std::optional<QString>(QFileInfo(events[0].clips[0].url).fileName()));
        // The last file emits before and after, then the event's end.
        const QString lastName = QStringLiteral("thumb.png");
        const auto n = emitted.size();
        QCOMPARE(std::tuple(emitted[n - 3].progress.currentFileName, emitted[n - 2].progress.currentFileName,
                            emitted[n - 2].progress.bytesCopied, emitted[n - 1].progress.eventsCompleted,
                            emitted[n - 1].progress.currentFileName.has_value()),
                 std::tuple(std::optional(lastName), std::optional(lastName), report.bytesCopied, 3, false));
        QVERIFY(emitted[n - 3].progress.bytesCopied < report.bytesCopied);
        // Per-file emits, apart from the last file's, are 0.1 s apart at least.
        std::optional<double> previous;
        int perFile = 0;
        for (size_t i = 0; i + 3 < n; ++i) {
            if (!emitted[i].progress.currentFileName)
                continue;
            ++perFile;
            if (previous)
                QVERIFY(emitted[i].at - *previous >= 0.099);
            previous = emitted[i].at;
        }
        QVERIFY(perFile < 3 * 6 * 2);
    }

    // Crafted stick: clip-named links out (to a private file, an endless device) and a FIFO: each fails alone, unread.
    void onlyRegularFilesAreCopied()
    {
        Drive drive;
        drive.builder.addEvent("SentryClips", "2026-07-18_09-15-32", 1, 1000);
        auto event = drive.builder.scan().at(0);
        QTemporaryDir outside;
        TeslaCamFixture::writeFile(outside.filePath("secret"), "not the car's");
        const QString toSecret = event.folderURL + "/2026-07-18_09-10-32-front.mp4";
        const QString toZero = event.folderURL + "/2026-07-18_09-11-32-front.mp4";
        const QString fifo = event.folderURL + "/2026-07-18_09-12-32-front.mp4";
        QVERIFY(QFile::link(outside.filePath("secret"), toSecret));
        QVERIFY(QFile::link("/dev/zero", toZero));
        QCOMPARE(::mkfifo(QFile::encodeName(fifo).constData(), 0644), 0);
        for (const QString &path : {toSecret, toZero, fifo})
            event.clips.insert(event.clips.begin(), clipAt(path, 1000));
        drive.freeze();

        QTemporaryDir vault;
        QElapsedTimer timer;
        timer.start();
        const ArchiveReport report = keep({event}, vault.path());
        QVERIFY(timer.elapsed() < 5000); // nothing waited on the FIFO or read the device
        QCOMPARE(failures(report), (QStringList{failure(fifo, Reason::notRegularFile),
                                                failure(toZero, Reason::notRegularFile),
                                                failure(toSecret, Reason::notRegularFile)}));
        QCOMPARE(report.archivedEvents.size(), size_t(1));
        QDirIterator it(vault.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString kept = it.next();
            QVERIFY2(QFileInfo(kept).size() < 64 * 1024, qPrintable(kept));
            QFile f(kept);
            QVERIFY(f.open(QIODevice::ReadOnly));
            QVERIFY2(!f.readAll().contains("not the car's"), qPrintable(kept));
        }
    }

    void sourceThatGrowsDuringTheCopyFailsWithoutLeftovers()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        const QString name = QStringLiteral("2026-07-18_09-15-32");
        const QString clip = "TeslaCam/SentryClips/" + name + "/" + DriveBuilder::clipNames(name, 1)[0];
        fs.addFile(clip, DriveBuilder::randomBytes(3 << 20, 7));
        // Held after its first block: the copy has taken the size and begun.
        fs.hangReadsFrom(clip, 1 << 20);
        const auto events = TeslaCamParser::scan(mountPoint.filePath("TeslaCam")).events;
        QCOMPARE(events.size(), size_t(1));

        QTemporaryDir vault;
        ArchiveReport report;
        std::thread run([&] { report = keep(events, vault.path()); });
        const auto finish = qScopeGuard([&] {
            fs.release();
            if (run.joinable())
                run.join();
        });
        QVERIFY(fs.waitUntilHeld());
        QCOMPARE(DriveBuilder::temporaryFiles(vault.path()).size(), 1);
        // The car was still writing: the file grows while the copy waits.
        fs.appendToFile(clip, QByteArray(4096, 'x'));
        fs.release();
        run.join();

        QCOMPARE(failures(report), QStringList{failure(mountPoint.filePath(clip), Reason::sizeMismatch)});
        QVERIFY(report.archivedEvents.empty());
        QCOMPARE(DriveBuilder::temporaryFiles(vault.path()), QStringList());
        QVERIFY(!QFileInfo::exists(vault.filePath("2026/sentry/" + name + "/" + DriveBuilder::clipNames(name, 1)[0])));
    }

    // A full Vault disk mid-copy is the CLI's test (file-size limit) and the watch's (small tmpfs).
    void vaultThatCannotTakeAnotherFileSaysSo()
    {
        QTemporaryDir dir;
        // Room for the folders only: no inode is left for the temporary file.
        const TmpfsMount disk(dir.path(), QStringLiteral("vault-XXXXXX"), QStringLiteral("size=4m,nr_inodes=5"));
        if (!disk.ok())
            QSKIP("needs root to mount a small tmpfs");
        const QString vault = disk.path() + "/Vault";
        if (!QDir().mkpath(vault + "/2026/sentry/2026-07-18_09-15-32"))
            QSKIP("this tmpfs counts inodes differently");
        Drive drive;
        drive.builder.addEvent("SentryClips", "2026-07-18_09-15-32", 1, 100);
        const ArchiveReport report = keep(drive.builder.scan(), vault);
        QCOMPARE(report.failedFiles.at(0).reason, QString::fromUtf16(Reason::vaultFull));
        QVERIFY(report.archivedEvents.empty());
    }

    // Pulled mid-keep: what arrived is recorded; the run stops and says why (same drive back: the app state's test).
    void drivePulledMidCopyStopsTheRunAndRecordsThePart()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        const qint64 clipSize = 3 << 20;
        QHash<QString, QByteArray> contents;
        quint32 seed = 100;
        for (const QString name : {"2026-07-18_09-15-32", "2026-07-17_09-15-32", "2026-07-16_09-15-32"})
            for (const QString &clip : DriveBuilder::clipNames(name, 2)) {
                const QByteArray bytes = DriveBuilder::randomBytes(clipSize, seed++);
                contents.insert(clip, bytes);
                fs.addFile("TeslaCam/SentryClips/" + name + "/" + clip, bytes);
            }
        const auto events = TeslaCamParser::scan(mountPoint.filePath("TeslaCam")).events;
        QCOMPARE(events.size(), size_t(3));
        // Pulled halfway through the second event's second clip.
        fs.vanishAfterBytes(fs.bytesServed() + 3 * clipSize + clipSize / 2);
        QTemporaryDir vault;
        const ArchiveReport report = keep(events, vault.path());
        QCOMPARE(std::tuple(report.cancelled, report.stoppedBecause, report.plannedEvents),
                 std::tuple(false, std::optional(ArchiveReport::StopReason::driveDisconnected), 3));
        // Only the file in copy failed; the third event was never tried.
        QCOMPARE(failures(report), QStringList{failure(events[1].clips[1].url, Reason::unreadable)});
        QCOMPARE(std::tuple(report.archivedEvents.size(), report.completeEvents()), std::tuple(size_t(2), 1));
        const ArchivedEvent &whole = report.archivedEvents[0];
        const ArchivedEvent &part = report.archivedEvents[1];
        QCOMPARE(std::tuple(whole.expectedFileCount, whole.isIncomplete()), std::tuple(std::optional(2), false));
        QCOMPARE(std::tuple(part.eventID, part.files.size(), part.expectedFileCount, part.isIncomplete()),
                 std::tuple(events[1].id(), size_t(1), std::optional(2), true));
        // Taken while the drive was there, not after it went.
        QVERIFY(part.sourceVolume != ArchivedEvent::unknownDrive);
        for (const ArchivedEvent &kept : report.archivedEvents)
            for (const auto &file : kept.files) {
                QCOMPARE(file.sha256, DriveBuilder::sha256Hex(contents.value(file.name)));
                QCOMPARE(DriveBuilder::sha256Hex(vault.filePath(kept.relativePath + "/" + file.name)), file.sha256);
            }
        QCOMPARE(VaultIndex::load(vault.path()).events, report.archivedEvents);
    }

    void readErrorsOnTheDriveCostOneFile()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        const QString name = QStringLiteral("2026-07-18_09-15-32");
        const QStringList clips = DriveBuilder::clipNames(name, 3);
        for (int i = 0; i < 3; ++i)
            fs.addFile("TeslaCam/SavedClips/" + name + "/" + clips[i], DriveBuilder::randomBytes(2 << 20, quint32(i)));
        fs.failReadsFrom("TeslaCam/SavedClips/" + name + "/" + clips[1], 1 << 20);
        const auto events = TeslaCamParser::scan(mountPoint.filePath("TeslaCam")).events;
        QCOMPARE(events.size(), size_t(1));

        QTemporaryDir vault;
        const ArchiveReport report = keep(events, vault.path());
        const QString failing = mountPoint.filePath("TeslaCam/SavedClips/" + name + "/" + clips[1]);
        QCOMPARE(failures(report), QStringList{failure(failing, Reason::unreadable)});
        QCOMPARE(std::pair(report.archivedEvents.size(), report.archivedEvents.at(0).files.size()),
                 std::pair(size_t(1), size_t(2)));
        QCOMPARE(report.archivedEvents[0].files[1].name, clips[2]);
    }

    // Never answers again: the stuck read is left behind, the file fails, the event goes on (Ctrl-C: the CLI's test).
    void driveThatStopsAnsweringMidFileTimesOut()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        const QString name = QStringLiteral("2026-07-18_09-15-32");
        const QStringList clips = DriveBuilder::clipNames(name, 2);
        for (int i = 0; i < 2; ++i)
            fs.addFile("TeslaCam/SentryClips/" + name + "/" + clips[i], DriveBuilder::randomBytes(3 << 20, quint32(i)));
        fs.hangReadsFrom("TeslaCam/SentryClips/" + name + "/" + clips[0], 1 << 20);
        const auto events = TeslaCamParser::scan(mountPoint.filePath("TeslaCam")).events;
        QCOMPARE(events.size(), size_t(1));

        QTemporaryDir vault;
        const ArchiveReport report =
            ArchiveEngine::run(ArchiveEngine::plan(events, VaultIndex{}), vault.path(), {}, 300ms);
        // What arrived stays behind under the hidden name: the block before the drive stopped.
        const QStringList leftovers = DriveBuilder::temporaryFiles(vault.filePath("2026/sentry/" + name));
        QCOMPARE(leftovers.size(), 1);
        QVERIFY(leftovers[0].endsWith("-" + clips[0]));
        QCOMPARE(QFileInfo(leftovers[0]).size(), qint64(1 << 20));
        QVERIFY(!QFileInfo::exists(vault.filePath("2026/sentry/" + name + "/" + clips[0])));
        QCOMPARE(std::pair(report.cancelled, failures(report)),
                 std::pair(false, QStringList{failure(events[0].clips[0].url, Reason::timedOut)}));
        QCOMPARE(std::pair(report.archivedEvents.size(), report.archivedEvents.at(0).files.size()),
                 std::pair(size_t(1), size_t(1)));
        QCOMPARE(report.archivedEvents[0].files[0].name, clips[1]);
    }

    void destinationThatCannotBeReplacedFailsTheFile()
    {
        Drive drive;
        drive.builder.addEvent("SentryClips", "2026-07-18_09-15-32", 2, 5000);
        const auto events = drive.builder.scan();
        drive.freeze();
        QTemporaryDir vault;
        const QString folder = vault.filePath("2026/sentry/2026-07-18_09-15-32");
        const QString clip = QFileInfo(events[0].clips[0].url).fileName();
        // A folder where the clip should go can't be replaced by a file.
        QDir().mkpath(folder + "/" + clip + "/inside");
        const ArchiveReport report = keep(events, vault.path());
        QCOMPARE(failures(report), QStringList{failure(events[0].clips[0].url, Reason::cannotCreateFile)});
        // The Vault's side failed: no temporary file is left, and what stood there stays.
        QVERIFY(DriveBuilder::temporaryFiles(folder).isEmpty());
        QVERIFY(QFileInfo(folder + "/" + clip + "/inside").isDir());
        QCOMPARE(report.archivedEvents.at(0).files.size(), size_t(3));
        QCOMPARE(drive.changes(), QString());
    }

};

QTEST_GUILESS_MAIN(TestArchiveEngine)
#include "tst_archiveengine.moc"
