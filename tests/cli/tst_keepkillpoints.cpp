// keelhold-cli keep killed at every call that changes the Vault: after each
// kill `vault verify` agrees with the manifest, and a second keep completes
// and verifies. The kill comes from a preloaded shim (support/KillShim.c).

#include "support/CliRun.h"
#include "support/DriveBuilder.h"
#include "vault/ArchiveEngine.h"
#include "vault/VaultIndex.h"
#include "vault/VaultVerifier.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString sentryEvent = QStringLiteral("2026-07-18_09-15-32");

// One Sentry event: event.json and a clip past 1 MiB, whose copy takes two writes.
void buildDrive(DriveBuilder &drive)
{
    const QString folder = drive.fixture().addEvent(
        QStringLiteral("SentryClips"), sentryEvent,
        TeslaCamFixture::eventJson(QStringLiteral("2026-07-18T09:15:32"), QStringLiteral("sentry_aware_object_detection")),
        false);
    TeslaCamFixture::writeFile(folder + QLatin1Char('/') + DriveBuilder::clipNames(sentryEvent, 1)[0],
                               DriveBuilder::randomBytes((1 << 20) + 5000, 1));
}

QProcessEnvironment shimEnvironment(const QString &vault, long killAt, const QString &reportFile)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(KEELHOLD_KILLSHIM_PATH));
    env.insert(QStringLiteral("KEELHOLD_KILL_PREFIX"), vault);
    env.insert(QStringLiteral("KEELHOLD_KILL_AT"), QString::number(killAt));
    env.insert(QStringLiteral("KEELHOLD_KILL_REPORT"), reportFile);
    // A sanitizer build wants its runtime first; the shim comes before it.
    const QString asan = env.value(QStringLiteral("ASAN_OPTIONS"));
    env.insert(QStringLiteral("ASAN_OPTIONS"),
               (asan.isEmpty() ? QString() : asan + QLatin1Char(':')) + QStringLiteral("verify_asan_link_order=0"));
    return env;
}

bool copyTree(const QString &from, const QString &to)
{
    QDir().mkpath(to);
    return QProcess::execute(QStringLiteral("cp"), {QStringLiteral("-a"), from + QStringLiteral("/."), to}) == 0;
}

// The file names of each event of a drive, by id.
QMap<QString, QSet<QString>> driveFiles(const DriveBuilder &drive)
{
    QMap<QString, QSet<QString>> files;
    for (const TeslaEvent &event : drive.scan()) {
        const QStringList names = QDir(event.folderURL).entryList(QDir::Files);
        files.insert(event.id(), QSet<QString>(names.begin(), names.end()));
    }
    return files;
}

// Whether the index holds, for every event of the drive, a record of all its files.
QString missingFromIndex(const QString &vault, const QMap<QString, QSet<QString>> &expected)
{
    const VaultIndex index = VaultIndex::load(vault);
    QStringList missing;
    for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
        const bool whole = std::any_of(index.events.begin(), index.events.end(), [&](const ArchivedEvent &e) {
            QSet<QString> names;
            for (const ArchivedFile &f : e.files)
                names.insert(f.name);
            return e.eventID == it.key() && names == it.value();
        });
        if (!whole)
            missing << it.key();
    }
    return missing.join(QStringLiteral(", "));
}

} // namespace

class TestKeepKillPoints : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    // The second drive adds a clip to the Sentry event: keeping it misses the duplicate test and replaces kept copies.
    DriveBuilder first_{dir_.filePath(QStringLiteral("first/TeslaCam"))};
    DriveBuilder grown_{dir_.filePath(QStringLiteral("grown/TeslaCam"))};
    QString keptOnce_;

private Q_SLOTS:
    void initTestCase()
    {
        buildDrive(first_);
        buildDrive(grown_);
        const QString sentryFolder = grown_.root() + QStringLiteral("/SentryClips/") + sentryEvent;
        TeslaCamFixture::writeFile(sentryFolder + QLatin1Char('/') + DriveBuilder::clipNames(sentryEvent, 2)[1],
                                   DriveBuilder::randomBytes(3000, 2));
        keptOnce_ = dir_.filePath(QStringLiteral("kept-once"));
        QCOMPARE(CliRun::run({"keep", first_.root(), "--vault", keptOnce_}).exitCode, 0);
    }

    void everyKillLeavesAVaultThatVerifiesAndKeepsAgain_data()
    {
        QTest::addColumn<bool>("again");
        QTest::newRow("first keep into an empty Vault") << false;
        QTest::newRow("keep again over kept copies") << true;
    }

    void everyKillLeavesAVaultThatVerifiesAndKeepsAgain()
    {
        QFETCH(bool, again);
        const DriveBuilder &drive = again ? grown_ : first_;
        const QMap<QString, QSet<QString>> expected = driveFiles(drive);
        QTemporaryDir work;
        const QString vault = work.filePath(QStringLiteral("Vault"));
        const QString report = work.filePath(QStringLiteral("calls"));
        const auto startOver = [&] {
            QDir(vault).removeRecursively();
            return again ? copyTree(keptOnce_, vault) : QDir().mkpath(vault);
        };
        const QStringList keep{"keep", drive.root(), "--vault", vault};

        // A run to the end counts the calls.
        QVERIFY(startOver());
        const CliRun::Result counted = CliRun::run(keep, shimEnvironment(vault, 0, report));
        QCOMPARE(counted.exitCode, 0);
        const long calls = DriveBuilder::readQuietly(report).trimmed().toLong();
        QVERIFY2(calls >= 30, qPrintable(QString::number(calls)));
        qInfo("%ld kill points", calls);

        bool renamedOverACopy = false;
        static const QRegularExpression renameLine(QStringLiteral("^killed before call \\d+: rename (\\S+)$"));
        for (long n = 1; n <= calls; ++n) {
            QVERIFY(startOver());
            const CliRun::Result killed = CliRun::run(keep, shimEnvironment(vault, n, report));
            const QString where = QStringLiteral("kill point %1 of %2: %3").arg(n).arg(calls).arg(killed.err.trimmed());
            QVERIFY2(killed.killed, qPrintable(where));
            const QRegularExpressionMatch rename = renameLine.match(killed.err.trimmed());
            if (again && rename.hasMatch() && QFileInfo(rename.captured(1)).fileName() != QLatin1String("manifest.json")
                && QFileInfo::exists(keptOnce_ + rename.captured(1).mid(vault.size())))
                renamedOverACopy = true;

            const CliRun::Result verified = CliRun::run({"vault", "verify", vault});
            QVERIFY2(verified.exitCode == 0, qPrintable(where + QLatin1Char('\n') + verified.out + verified.err));

            // The second keep and its check run here, as the tool runs them: a process costs more than either.
            const ArchiveReport second =
                ArchiveEngine::run(ArchiveEngine::plan(drive.scan(), VaultIndex::loadOrEmpty(vault)), vault);
            QVERIFY2(second.failedFiles.empty() && !second.cancelled, qPrintable(where));
            for (const EventCheck &result : VaultVerifier::verify(vault).events)
                QVERIFY2(result.ok(), qPrintable(where + QStringLiteral(": after the second keep ") + result.eventID));
            const QString missing = missingFromIndex(vault, expected);
            QVERIFY2(missing.isEmpty(), qPrintable(where + QStringLiteral(": not all kept: ") + missing));
        }
        // The kept copies were replaced in place, not only added beside.
        QCOMPARE(renamedOverACopy, again);
    }
};

QTEST_GUILESS_MAIN(TestKeepKillPoints)
#include "tst_keepkillpoints.moc"
