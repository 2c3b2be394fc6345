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

    void reportsTheDriveWithoutAVaultAndItsFormat()
    {
        const Result r = runCli({QStringLiteral("health"), root_});
        QCOMPARE(r.exitCode, 0);
        QCOMPARE(r.json.value(QStringLiteral("unarchivedEventCount")).toInt(), 2);
        // Unprobed clips count neither as probed nor as damaged.
        QCOMPARE(r.json.value(QStringLiteral("probedClipCount")).toInt(), 0);
        QCOMPARE(r.json.value(QStringLiteral("corruptClipCount")).toInt(), 0);
        QVERIFY(r.json.contains(QStringLiteral("fullnessFraction")));
        const QJsonArray recommendations = r.json.value(QStringLiteral("recommendations")).toArray();
        QCOMPARE(recommendations.first().toObject().value(QStringLiteral("id")).toString(), QStringLiteral("backup-new"));
        // This suite's drive is a temporary folder on the computer's own disk.
        QVERIFY(r.json.value(QStringLiteral("formatVerdict")).toString().contains(QStringLiteral("nothing to reformat")));

        if (::geteuid() != 0)
            QSKIP("needs root to mount a drive");
        // A plugged-in drive of a format the car can't record to (hidden from the drive lists of parallel tests).
        const TmpfsMount plugged(QStringLiteral("/media"), QStringLiteral(".keelhold-drive-XXXXXX"));
        QVERIFY(plugged.ok());
        TeslaCamFixture drive(plugged.path() + QStringLiteral("/TeslaCam"));
        drive.addRecentClip(QStringLiteral("2024-06-03_08-00-00"), QStringLiteral("front"), 1000);
        const Result card = runCli({QStringLiteral("health"), drive.root()});
        QCOMPARE(card.exitCode, 0);
        QVERIFY(card.json.value(QStringLiteral("formatVerdict")).toString().contains(QStringLiteral("formatted tmpfs")));
    }

    void probeCountsDamagedClips()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("Needs the ffmpeg tool to make a real clip.");
        const Result r = runCli({QStringLiteral("health"), root_, QStringLiteral("--probe")});
        QCOMPARE(r.exitCode, 0);
        QCOMPARE(r.json.value(QStringLiteral("probedClipCount")).toInt(), 2);
        QCOMPARE(r.json.value(QStringLiteral("corruptClipCount")).toInt(), 1);
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
        Result r = runCli({QStringLiteral("health"), root_, QStringLiteral("--vault"), vault});
        QCOMPARE(r.exitCode, 0);
        QCOMPARE(r.json.value(QStringLiteral("unarchivedEventCount")).toInt(), 1);

        // A missing Vault is said plainly (a missing drive folder: the scan command's test, same reader).
        r = runCli({QStringLiteral("health"), root_, QStringLiteral("--vault"), tmp_.filePath(QStringLiteral("nope"))});
        QCOMPARE(r.exitCode, 2);
        QVERIFY(r.err.contains(QStringLiteral("There is no Vault folder at")));
        QVERIFY(r.json.isEmpty());
    }
};

QTEST_GUILESS_MAIN(HealthCommandTest)
#include "tst_healthcommand.moc"
