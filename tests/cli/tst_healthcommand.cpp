// keelhold-cli health, run as a separate process over real folders.

#include "support/CliRun.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"
#include "support/TmpfsMount.h"
#include "model/ArchivedEvent.h"
#include "vault/VaultIndex.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>
#include <unistd.h>

namespace {
struct Result {
    int exitCode = -1;
    QJsonObject json;
    QString err;
};

Result runCli(const QStringList &args)
{
    const CliRun::Result r = CliRun::run(args);
    return {r.exitCode, QJsonDocument::fromJson(r.out).object(), r.err};
}

QStringList recommendationIDs(const QJsonObject &report)
{
    QStringList ids;
    for (const auto &r : report.value(QStringLiteral("recommendations")).toArray())
        ids << r.toObject().value(QStringLiteral("id")).toString();
    return ids;
}
} // namespace

class HealthCommandTest : public QObject {
    Q_OBJECT

    QTemporaryDir tmp_;
    QString root_;

private Q_SLOTS:
    void initTestCase()
    {
        TeslaCamFixture fx(tmp_.filePath(QStringLiteral("drive/TeslaCam")));
        const QString sentry = fx.addEvent("SentryClips", "2024-06-01_15-05-00",
                                           TeslaCamFixture::eventJson("2024-06-01T15:05:00", "sentry_aware_accel_0.52"));
        const QString clip = TestClips::ffmpegAvailable() ? TestClips::clip() : QString();
        fx.addClip(sentry, "2024-06-01_15-04-00", "front", 0, clip);
        fx.addClip(sentry, "2024-06-01_15-04-00", "back", 0);
        fx.addEvent("SavedClips", "2024-06-02_09-00-00", TeslaCamFixture::eventJson("2024-06-02T09:00:00", "user_interaction_honk"));
        root_ = fx.root();
    }

    void reportsTheDriveWithoutAVault()
    {
        const Result r = runCli({QStringLiteral("health"), root_});
        QCOMPARE(r.exitCode, 0);
        QCOMPARE(r.json.value(QStringLiteral("unarchivedEventCount")).toInt(), 2);
        // Unprobed clips count neither as probed nor as damaged.
        QCOMPARE(r.json.value(QStringLiteral("probedClipCount")).toInt(), 0);
        QCOMPARE(r.json.value(QStringLiteral("corruptClipCount")).toInt(), 0);
        QVERIFY(r.json.contains(QStringLiteral("fullnessFraction")));
        QCOMPARE(recommendationIDs(r.json).value(0), QStringLiteral("backup-new"));
        // This suite's drive is a temporary folder on the computer's own disk.
        QVERIFY(r.json.value(QStringLiteral("formatVerdict")).toString().contains(QStringLiteral("nothing to reformat")));
    }

    void formatCardOfADrive()
    {
        if (::geteuid() != 0)
            QSKIP("needs root to mount a drive");
        // A drive plugged in, of a format the car can't record to (hidden from
        // the drive lists of tests running beside this one).
        const TmpfsMount plugged(QStringLiteral("/media"), QStringLiteral(".keelhold-drive-XXXXXX"));
        QVERIFY(plugged.ok());
        TeslaCamFixture drive(plugged.path() + QStringLiteral("/TeslaCam"));
        drive.addRecentClip(QStringLiteral("2024-06-03_08-00-00"), QStringLiteral("front"), 1000);
        const Result r = runCli({QStringLiteral("health"), drive.root()});
        QCOMPARE(r.exitCode, 0);
        QVERIFY(r.json.value(QStringLiteral("formatVerdict")).toString().contains(QStringLiteral("formatted tmpfs")));
    }

    void probeCountsDamagedClips()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("Needs the ffmpeg tool to make a real clip.");
        const Result r = runCli({QStringLiteral("health"), root_, QStringLiteral("--probe")});
        QCOMPARE(r.exitCode, 0);
        QCOMPARE(r.json.value(QStringLiteral("probedClipCount")).toInt(), 2);
        QCOMPARE(r.json.value(QStringLiteral("corruptClipCount")).toInt(), 1);
        QVERIFY(recommendationIDs(r.json).contains(QStringLiteral("some-corrupt")));
    }

    void vaultIndexTakesPart()
    {
        const QString vault = tmp_.filePath(QStringLiteral("vault"));
        VaultIndex index;
        ArchivedEvent record;
        record.eventID = QStringLiteral("saved|2024-06-02_09-00-00");
        record.kind = EventKind::saved;
        record.folderName = QStringLiteral("2024-06-02_09-00-00");
        record.relativePath = QStringLiteral("2024/saved/2024-06-02_09-00-00");
        index.events.push_back(record);
        index.save(vault);
        const Result r = runCli({QStringLiteral("health"), root_, QStringLiteral("--vault"), vault});
        QCOMPARE(r.exitCode, 0);
        QCOMPARE(r.json.value(QStringLiteral("unarchivedEventCount")).toInt(), 1);
    }

    void plainSentencesOnFailure()
    {
        Result r = runCli({QStringLiteral("health"), tmp_.filePath(QStringLiteral("missing/TeslaCam"))});
        QCOMPARE(r.exitCode, 2);
        QVERIFY(r.err.contains(QStringLiteral("There is no folder at")));
        r = runCli({QStringLiteral("health"), root_, QStringLiteral("--vault"), tmp_.filePath(QStringLiteral("nope"))});
        QCOMPARE(r.exitCode, 2);
        QVERIFY(r.err.contains(QStringLiteral("There is no Vault folder at")));
        QVERIFY(r.json.isEmpty());
    }
};

QTEST_GUILESS_MAIN(HealthCommandTest)
#include "tst_healthcommand.moc"
