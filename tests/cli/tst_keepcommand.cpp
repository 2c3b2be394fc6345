#include "model/ArchiveReport.h"
#include "support/CliRun.h"
#include "support/DriveBuilder.h"
#include "support/FaultyFs.h"
#include "support/TmpfsMount.h"
#include "support/TreeSnapshot.h"
#include "vault/VaultIndex.h"
#include "vault/VerificationLog.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <unistd.h>

namespace {

using CliRun::finish;
using Result = CliRun::Result;

// Standard output up to the whole report, read while the program runs.
QByteArray reportFrom(QProcess &process)
{
    QByteArray out;
    while (QJsonDocument::fromJson(out).isNull() && process.waitForReadyRead(60000))
        out += process.readAllStandardOutput();
    return out;
}

ArchiveReport parseReport(const QByteArray &out)
{
    return ArchiveReport::fromJson(QJsonDocument::fromJson(out).object());
}

} // namespace

class TestKeepCommand : public QObject {
    Q_OBJECT

    QTemporaryDir driveDir_;
    DriveBuilder drive_{driveDir_.filePath(QStringLiteral("TeslaCam"))};
    TreeSnapshot before_;

private Q_SLOTS:
    void initTestCase()
    {
        drive_.addEvent("SentryClips", "2026-07-18_09-15-32", 3, 200000);
        drive_.addEvent("SavedClips", "2026-07-19_10-00-00", 2, 150000);
        drive_.addEvent("SentryClips", "2026-07-17_08-00-00", 1, 100000);
        before_ = TreeSnapshot::take(drive_.root());
    }

    void cleanupTestCase()
    {
        // Every command of this suite left the drive exactly as it was.
        QCOMPARE(before_.differences(TreeSnapshot::take(drive_.root()), true), QString());
    }

    void keepsEveryEventAndPrintsTheReport()
    {
        QTemporaryDir vault;
        const Result r = CliRun::run({"keep", drive_.root(), "--vault", vault.path()});
        QCOMPARE(r.exitCode, 0);
        const ArchiveReport report = parseReport(r.out);
        QCOMPARE(std::tuple(report.archivedEvents.size(), report.cancelled, report.failedFiles.size(), report.plannedEvents),
                 std::tuple(size_t(3), false, size_t(0), 3));
        QCOMPARE(VaultIndex::load(vault.path()).events, report.archivedEvents);
        // Not a terminal: no progress line.
        QVERIFY2(r.err.isEmpty(), qPrintable(r.err));

        const Result again = CliRun::run({"keep", drive_.root(), "--vault", vault.path(), "--pretty"});
        QCOMPARE(again.exitCode, 0);
        QVERIFY(again.out.contains("\n    "));
        const ArchiveReport second = parseReport(again.out);
        QCOMPARE(std::tuple(second.skippedDuplicates, second.archivedEvents.size()), std::tuple(3, size_t(0)));
    }

    void showsALiveProgressLineOnATerminal()
    {
        if (QStandardPaths::findExecutable("script").isEmpty())
            QSKIP("needs util-linux script for a terminal");
        QTemporaryDir vault;
        const QString command = QStringLiteral("'%1' keep '%2' --vault '%3' >/dev/null")
                                    .arg(KEELHOLD_CLI_PATH, drive_.root(), vault.path());
        QProcess process;
        process.start("script", {"-qefc", command, "/dev/null"});
        const Result r = finish(process);
        QCOMPARE(r.exitCode, 0);
        // stderr is the terminal: events done, megabytes, speed.
        QVERIFY2(r.out.contains("3/3 events \xc2\xb7 ") && r.out.contains(" MB/s"), r.out.constData());
    }

    void badInputGetsOnePlainSentence()
    {
        QTemporaryDir vault;
        Result r = CliRun::run({"keep", drive_.root(), "--vault", vault.path(), "--event", "sentry|1999-01-01_00-00-00"});
        QCOMPARE(r.exitCode, 2);
        QVERIFY(r.err.contains("no event"));
        QVERIFY(r.out.isEmpty());
        QVERIFY(!QFile::exists(vault.filePath("manifest.json")));

        r = CliRun::run({"keep", driveDir_.filePath("nothing-here"), "--vault", vault.path()});
        QCOMPARE(r.exitCode, 2);
        QCOMPARE(r.err.count('\n'), 1);

        // Bad time limits are refused in one sentence before anything is written.
        for (const char *limit : {"soon", "nan", "inf", "-inf", "0", "-1", "1e9", ""}) {
            r = CliRun::run({"keep", drive_.root(), "--vault", vault.filePath("untouched"), "--timeout", limit});
            QVERIFY2(r.exitCode == 2, limit);
            QCOMPARE(r.err.count('\n'), 1);
            QVERIFY(!QFileInfo::exists(vault.filePath("untouched")));
        }
        // A Vault folder that isn't there, for every vault command: one sentence.
        for (const QStringList &command : {QStringList{"vault", "list", vault.filePath("missing")},
                                           QStringList{"vault", "verify", vault.filePath("missing")},
                                           QStringList{"vault", "remove", vault.filePath("missing"), "sentry|x"}}) {
            r = CliRun::run(command);
            QCOMPARE(r.exitCode, 2);
            QCOMPARE(r.err.count('\n'), 1);
            QVERIFY2(r.err.contains("no Vault folder"), qPrintable(r.err));
            QVERIFY(r.out.isEmpty());
        }
        QVERIFY(!QFileInfo::exists(vault.filePath("missing")));
    }

    // Stopped during a held read: what arrived stays, the cut-off event has no record, no later event is begun.
    void ctrlCCancelsCleanlyWithAReport()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        QTemporaryDir dir;
        const QString newer = "TeslaCam/SentryClips/2026-07-18_09-15-32/";
        for (const char *clip : {"2026-07-18_09-14-32-front.mp4", "2026-07-18_09-15-32-front.mp4"})
            fs.addFile(newer + clip, DriveBuilder::randomBytes(1000, 1));
        const QString older = "TeslaCam/SentryClips/2026-07-17_09-15-32/";
        fs.addFile(older + "2026-07-17_09-13-32-front.mp4", DriveBuilder::randomBytes(2000, 2));
        const QString stuck = older + "2026-07-17_09-14-32-front.mp4";
        fs.addFile(stuck, DriveBuilder::randomBytes(1000, 2));
        fs.hangReadsFrom(stuck, 0);
        fs.addFile("TeslaCam/SentryClips/2026-07-16_09-15-32/2026-07-16_09-14-32-front.mp4", QByteArray(1000, 'x'));
        const QString vault = dir.filePath("Vault");

        QProcess process;
        process.start(QStringLiteral(KEELHOLD_CLI_PATH),
                      {"keep", mountPoint.filePath("TeslaCam"), "--vault", vault, "--timeout", "60"});
        QVERIFY(process.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(fs.isHanging(), 20000);
        ::kill(pid_t(process.processId()), SIGINT);
        // The held read is left behind and the run stops; the kernel holds the process until that read ends,
        // so the drive lets go once the report is out.
        const QByteArray printed = reportFrom(process);
        fs.release();
        Result r = finish(process);
        r.out = printed + r.out;
        QVERIFY2(r.err.contains("Stopping"), qPrintable(r.err));
        QCOMPARE(r.exitCode, 130);
        const ArchiveReport report = parseReport(r.out);
        // Cancelling is never a failure.
        QCOMPARE(std::tuple(report.cancelled, report.failedFiles.size(), report.archivedEvents.size()),
                 std::tuple(true, size_t(0), size_t(1)));
        QCOMPARE(VaultIndex::load(vault).events, report.archivedEvents);
        // The clip of the event cut off that arrived stays and counts; the one the drive held stays hidden.
        const QString cutOffFolder = vault + "/2026/sentry/2026-07-17_09-15-32";
        QCOMPARE(QFileInfo(cutOffFolder + "/2026-07-17_09-13-32-front.mp4").size(), qint64(2000));
        QCOMPARE(report.bytesCopied, report.archivedEvents[0].totalBytes() + 2000);
        QCOMPARE(DriveBuilder::temporaryFiles(cutOffFolder).size(), 1);
        QVERIFY(!QFileInfo::exists(vault + "/2026/sentry/2026-07-16_09-15-32"));
    }

    // The run stops there and says why (what it records of the event in copy is the archive engine's test).
    void pulledDriveStopsTheKeepAndSaysSo()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        QTemporaryDir dir;
        for (const QString &name : {QStringLiteral("2026-07-18_09-15-32"), QStringLiteral("2026-07-17_09-15-32")})
            for (const QString &clip : DriveBuilder::clipNames(name, 3))
                fs.addFile("TeslaCam/SentryClips/" + name + "/" + clip, DriveBuilder::randomBytes(1 << 20, 3));
        fs.vanishAfterBytes(fs.bytesServed() + 4 * (1 << 20) + 1000);
        const QString vault = dir.filePath("Vault");
        const Result r = CliRun::run({"keep", mountPoint.filePath("TeslaCam"), "--vault", vault});
        QCOMPARE(r.exitCode, 1);
        QVERIFY2(r.err.contains("1 of 2 events were kept completely"), qPrintable(r.err));
        const ArchiveReport report = parseReport(r.out);
        QCOMPARE(report.stoppedBecause, std::optional(ArchiveReport::StopReason::driveDisconnected));
    }

    // Nothing of ours on the car's drive: not a Vault elsewhere on it, not one through a link, not an exported movie.
    void writesOntoTheDriveAreRefused()
    {
        if (::geteuid() != 0)
            QSKIP("needs root to mount a drive");
        QTemporaryDir dir;
        const TmpfsMount usb(dir.path(), "USB-XXXXXX", "size=64m");
        QVERIFY(usb.ok());
        const QString mount = usb.path();
        DriveBuilder drive(mount + "/TeslaCam");
        drive.addEvent("SentryClips", "2026-07-18_09-15-32", 1, 1000);
        const TreeSnapshot before = TreeSnapshot::take(mount);
        QVERIFY(QFile::link(mount + "/TeslaCam/SentryClips", dir.filePath("link")));

        for (const QString &vault : {mount + "/Vault", dir.filePath("link") + "/Vault", mount + "/TeslaCam/../Vault"}) {
            const Result r = CliRun::run({"keep", drive.root(), "--vault", vault});
            QCOMPARE(r.exitCode, 2);
            QCOMPARE(r.err.trimmed(), QStringLiteral("Keelhold never writes to your Tesla drive, so your Vault has to "
                                                     "be a folder somewhere else."));
        }
        const Result exported = CliRun::run({"export", drive.root(), "--event", "sentry|2026-07-18_09-15-32", "--camera",
                                     "front", "-o", mount + "/movie.mp4"});
        QCOMPARE(exported.exitCode, 2);
        QVERIFY2(exported.err.contains("never writes to your Tesla drive"), qPrintable(exported.err));
        QCOMPARE(before.differences(TreeSnapshot::take(mount), true), QString());

        // A Vault beside the drive is fine.
        const Result kept = CliRun::run({"keep", drive.root(), "--vault", dir.filePath("Vault")});
        QCOMPARE(kept.exitCode, 0);
    }

    void fullDiskWithoutRoot()
    {
        // A file-size limit makes the Vault's disk "full" for any file past 2 MiB.
        QTemporaryDir dir;
        DriveBuilder drive(dir.filePath("TeslaCam"));
        drive.addEvent("SentryClips", "2026-07-18_09-15-32", 2, 1 << 20);
        const QString big = drive.addEvent("SentryClips", "2026-07-17_09-15-32", 1, 4 << 20);
        const QString vault = dir.filePath("Vault");
        const QString script = QStringLiteral("trap '' XFSZ; ulimit -f 2048; exec \"$0\" \"$@\"");
        QProcess process;
        process.start("bash", {"-c", script, KEELHOLD_CLI_PATH, "keep", drive.root(), "--vault", vault});
        const Result r = finish(process);
        QCOMPARE(r.exitCode, 1);
        const ArchiveReport report = parseReport(r.out);
        // The big clip failed; the event is kept with what did arrive.
        QCOMPARE(std::tuple(report.archivedEvents.size(), report.archivedEvents.at(0).eventID,
                            report.archivedEvents.at(0).files.size(), report.archivedEvents.at(1).files.size(),
                            report.failedFiles.size()),
                 std::tuple(size_t(2), QStringLiteral("sentry|2026-07-18_09-15-32"), size_t(4), size_t(2), size_t(1)));
        QVERIFY(report.failedFiles[0].path.startsWith(big));
        // The Vault's trouble, said as such; its half copy doesn't stay to eat the room.
        QCOMPARE(report.failedFiles[0].reason, QStringLiteral("There isn't enough space in your Vault folder."));
        QCOMPARE(VaultIndex::load(vault).events, report.archivedEvents);
        QVERIFY(DriveBuilder::temporaryFiles(vault).isEmpty());
    }

    void vaultListVerifyAndRemove()
    {
        QTemporaryDir vault;
        QCOMPARE(CliRun::run({"keep", drive_.root(), "--vault", vault.path()}).exitCode, 0);

        Result r = CliRun::run({"vault", "list", vault.path()});
        QCOMPARE(r.exitCode, 0);
        const QJsonArray listed = QJsonDocument::fromJson(r.out).array();
        QCOMPARE(listed.size(), 3);
        QCOMPARE(TeslaEvent::fromJson(listed[0]).id(), QStringLiteral("saved|2026-07-19_10-00-00"));

        r = CliRun::run({"vault", "verify", vault.path()});
        QCOMPARE(r.exitCode, 0);
        QCOMPARE(r.out.count('\n'), 3);
        QVERIFY(!r.out.contains("DIFFERS"));
        QVERIFY2(r.out.contains("saved|2026-07-19_10-00-00: 4 verified, 0 changed, 0 missing"), r.out.constData());

        // One byte changed in one file, another file gone.
        const QString sentry = vault.filePath("2026/sentry/2026-07-18_09-15-32");
        const QStringList clips = DriveBuilder::clipNames("2026-07-18_09-15-32", 3);
        QByteArray changed = DriveBuilder::readQuietly(sentry + "/" + clips[0]);
        changed[1000] = char(changed[1000] ^ 1);
        TeslaCamFixture::writeFile(sentry + "/" + clips[0], changed);
        QVERIFY(QFile::remove(sentry + "/" + clips[2]));
        r = CliRun::run({"vault", "verify", vault.path()});
        QCOMPARE(r.exitCode, 1);
        const QList<QByteArray> lines = r.out.trimmed().split('\n');
        QCOMPARE(lines.size(), 3);
        const QByteArray bad = *std::find_if(lines.begin(), lines.end(),
                                             [](const QByteArray &l) { return l.contains("2026-07-18_09-15-32"); });
        QVERIFY(bad.startsWith("DIFFERS"));
        QVERIFY2(bad.contains("3 verified, 1 changed, 1 missing"), bad.constData());
        QVERIFY(bad.contains("changed " + clips[0].toUtf8()));
        QVERIFY(bad.contains("missing " + clips[2].toUtf8()));

        // Kept folders with no manifest to vouch for them don't pass.
        QTemporaryDir bare;
        QVERIFY(QDir().mkpath(bare.filePath("2026/saved")));
        QVERIFY(QProcess::execute("cp", {"-r", vault.filePath("2026/saved/2026-07-19_10-00-00"), bare.filePath("2026/saved/")}) == 0);
        r = CliRun::run({"vault", "verify", bare.path()});
        QCOMPARE(r.exitCode, 2);
        QCOMPARE(r.err.count('\n'), 1);
        QVERIFY(r.err.contains("manifest.json is missing"));
        QTemporaryDir empty;
        QCOMPARE(CliRun::run({"vault", "verify", empty.path()}).exitCode, 0);

        // Removal goes to the Trash of this (throwaway) home.
        QTemporaryDir home;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("HOME", home.path());
        env.insert("XDG_DATA_HOME", home.filePath("data"));
        QDir().mkpath(home.filePath("data"));
        r = CliRun::run({"vault", "remove", vault.path(), "sentry|2026-07-18_09-15-32"}, env);
        QCOMPARE(r.exitCode, 0);
        QVERIFY(QFileInfo::exists(home.filePath("data/Trash/files/2026-07-18_09-15-32")));
        r = CliRun::run({"vault", "remove", vault.path(), "sentry|2026-07-18_09-15-32"}, env);
        QCOMPARE(r.exitCode, 2);
        QVERIFY(r.err.contains("no event"));
        QCOMPARE(QJsonDocument::fromJson(CliRun::run({"vault", "list", vault.path()}).out).array().size(), 2);

        TeslaCamFixture::writeFile(vault.filePath("manifest.json"), "{");
        r = CliRun::run({"vault", "verify", vault.path()});
        QCOMPARE(r.exitCode, 2);
        QVERIFY(r.err.contains("manifest.json"));
    }

    // One of them kept only in part is never a pass (two records checked against the newer: the verifier's test).
    void keepsTheChosenEventsAndVerifyTellsAPartKeep()
    {
        QTemporaryDir vault;
        const Result kept = CliRun::run({"keep", drive_.root(), "--vault", vault.path(), "--event",
                                         "saved|2026-07-19_10-00-00", "--event", "sentry|2026-07-17_08-00-00"});
        QCOMPARE(kept.exitCode, 0);
        const ArchiveReport report = parseReport(kept.out);
        QCOMPARE(std::tuple(report.archivedEvents.size(), report.archivedEvents.at(0).eventID,
                            report.archivedEvents.at(1).eventID),
                 std::tuple(size_t(2), QStringLiteral("saved|2026-07-19_10-00-00"),
                            QStringLiteral("sentry|2026-07-17_08-00-00")));
        // As a pulled drive leaves it: the record lists what arrived of more.
        VaultIndex index = VaultIndex::load(vault.path());
        const ArchivedFile lost = index.events[0].files.back();
        index.events[0].files.pop_back();
        QVERIFY(QFile::remove(vault.filePath(index.events[0].relativePath + "/" + lost.name)));
        index.save(vault.path());

        const Result r = CliRun::run({"vault", "verify", vault.path()});
        QCOMPARE(r.exitCode, 1);
        const QList<QByteArray> lines = r.out.trimmed().split('\n');
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines[0].startsWith("INCOMPLETE"), r.out.constData());
        QVERIFY2(lines[0].contains("saved|2026-07-19_10-00-00: ") && lines[0].contains("incomplete (3 of 4 files kept)"),
                 r.out.constData());
        QVERIFY2(lines[1].startsWith("OK"), r.out.constData());
        QVERIFY(VerificationLog::load(vault.path()).find("saved|2026-07-19_10-00-00"));
    }
};

QTEST_GUILESS_MAIN(TestKeepCommand)
#include "tst_keepcommand.moc"
