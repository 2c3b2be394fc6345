#include "support/CliRun.h"
#include "support/DriveBuilder.h"
#include "support/IsolatedHome.h"
#include "support/MountedVolume.h"
#include "support/NotificationServiceStandIn.h"
#include "support/ProgramRun.h"
#include "support/TmpfsMount.h"

#include <QDir>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace {

// keelhold-cli watch in its own process, its output gathered as it comes.
class Watch {
public:
    explicit Watch(const QStringList &arguments)
    {
        QObject::connect(&process_, &QProcess::readyReadStandardOutput,
                         [this] { out_ += QString::fromUtf8(process_.readAllStandardOutput()); });
        QObject::connect(&process_, &QProcess::readyReadStandardError,
                         [this] { err_ += QString::fromUtf8(process_.readAllStandardError()); });
        process_.start(QStringLiteral(KEELHOLD_CLI_PATH), arguments);
    }
    ~Watch()
    {
        if (process_.state() != QProcess::NotRunning) {
            process_.kill();
            process_.waitForFinished(10000);
        }
    }
    QStringList lines() const { return out_.split(QLatin1Char('\n'), Qt::SkipEmptyParts); }
    const QString &err() const { return err_; }
    QProcess &process() { return process_; }
    // Asked to stop as systemd and Ctrl-C ask.
    int stop()
    {
        ::kill(pid_t(process_.processId()), SIGTERM);
        process_.waitForFinished(60000);
        return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
    }

private:
    QProcess process_;
    QString out_;
    QString err_;
};

} // namespace

// The watch on real drives (exFAT images under /media, root only) and notifications on the test's own session bus.
class TestWatchCommand : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Each drive kept, told in a line and a notification; the same again has nothing new; the watch stops when asked.
    void keepsEachDriveAsItComes()
    {
        NotificationServiceStandIn desktop;
        QVERIFY(desktop.ok());
        MountedVolume drive(QStringLiteral("exfat"), QStringLiteral("KHWATCH"));
        if (!drive.ok())
            QSKIP("could not mount an exFAT image under /media");
        DriveBuilder car(drive.path() + QStringLiteral("/TeslaCam"));
        car.addEvent(QStringLiteral("SentryClips"), QStringLiteral("2026-07-13_10-00-00"), 2, 40000);
        car.addEvent(QStringLiteral("SavedClips"), QStringLiteral("2026-07-13_11-00-00"), 1, 40000);
        drive.pull();
        QTemporaryDir vault;

        // Only this test's drive, whatever else is mounted on the machine.
        Watch watch({"watch", "--vault", vault.path(), "--under", drive.path()});
        QTRY_VERIFY_WITH_TIMEOUT(watch.err().contains(QStringLiteral("Watching for TeslaCam drives")), 20000);

        QVERIFY(drive.plugIn());
        QTRY_COMPARE_WITH_TIMEOUT(watch.lines().size(), 1, 60000);
        QVERIFY2(watch.lines()[0].contains(QStringLiteral("KHWATCH: Kept 2 new events from KHWATCH \u2014 ")),
                 qPrintable(watch.lines()[0]));
        QVERIFY(watch.lines()[0].endsWith(QStringLiteral(", all verified")));
        QVERIFY(QFileInfo::exists(vault.path() + QStringLiteral("/manifest.json")));
        QTRY_COMPARE_WITH_TIMEOUT(desktop.received().size(), size_t(1), 20000);
        QCOMPARE(desktop.received()[0].title, QStringLiteral("Footage kept"));
        QVERIFY(desktop.received()[0].body.startsWith(QStringLiteral("Kept 2 new events from KHWATCH")));

        drive.pull();
        QVERIFY(drive.plugIn());
        QTRY_COMPARE_WITH_TIMEOUT(watch.lines().size(), 2, 60000);
        QVERIFY2(watch.lines()[1].endsWith(QStringLiteral("KHWATCH: Everything on KHWATCH is already in your Vault.")),
                 qPrintable(watch.lines()[1]));
        drive.pull();

        QCOMPARE(watch.stop(), 0);
        // Nothing new, nothing to tell the desktop.
        QCOMPARE(desktop.received().size(), size_t(1));
        QVERIFY(watch.process().state() == QProcess::NotRunning);
    }

    // A Vault without room: the keep's own answer, and the watch goes on.
    void aFullVaultIsOneLineAndTheWatchGoesOn()
    {
        MountedVolume drive(QStringLiteral("exfat"), QStringLiteral("KHFULL"));
        if (!drive.ok())
            QSKIP("could not mount an exFAT image under /media");
        DriveBuilder car(drive.path() + QStringLiteral("/TeslaCam"));
        car.addEvent(QStringLiteral("SentryClips"), QStringLiteral("2026-07-13_10-00-00"), 2, 3'000'000);
        drive.pull();
        QTemporaryDir home;
        TmpfsMount vault(home.path(), QStringLiteral("vault-XXXXXX"), QStringLiteral("size=1m"));
        if (!vault.ok())
            QSKIP("could not mount a small tmpfs");

        Watch watch({"watch", "--vault", vault.path(), "--under", drive.path()});
        QTRY_VERIFY_WITH_TIMEOUT(watch.err().contains(QStringLiteral("Watching")), 20000);
        QVERIFY(drive.plugIn());
        QTRY_COMPARE_WITH_TIMEOUT(watch.lines().size(), 1, 60000);
        QVERIFY2(watch.lines()[0].endsWith(QStringLiteral("There isn't enough space in your Vault folder.")),
                 qPrintable(watch.lines()[0]));
        QCOMPARE(watch.process().state(), QProcess::Running);
        drive.pull();
        QVERIFY(drive.plugIn());
        QTRY_COMPARE_WITH_TIMEOUT(watch.lines().size(), 2, 60000);
        QCOMPARE(watch.stop(), 0);
    }

    // The installed user unit: systemd finds nothing wrong, and its command keeps into the Vault chosen in the app.
    void theUserUnitRunsTheWatch()
    {
        QString unit =
            QString::fromUtf8(DriveBuilder::readQuietly(QStringLiteral(KEELHOLD_BUILD_DIR "/data/keelhold-watch.service")));
        QVERIFY(!unit.isEmpty());
        const QRegularExpression execStart(QStringLiteral("^ExecStart=(\\S+)/keelhold-cli (.*)$"),
                                           QRegularExpression::MultilineOption);
        const QRegularExpressionMatch command = execStart.match(unit);
        QVERIFY(command.hasMatch());
        QCOMPARE(command.captured(2), QStringLiteral("watch"));
        QTemporaryDir dir;
        unit.replace(command.captured(1) + QStringLiteral("/keelhold-cli"), QStringLiteral(KEELHOLD_CLI_PATH));
        const QString copy = dir.filePath(QStringLiteral("keelhold-watch.service"));
        TeslaCamFixture::writeFile(copy, unit.toUtf8());
        QDir(dir.path()).mkdir(QStringLiteral("run"));
        QFile::setPermissions(dir.filePath(QStringLiteral("run")), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), dir.filePath(QStringLiteral("run")));
        const ProgramRun::Result verify =
            ProgramRun::run(QStringLiteral("systemd-analyze"), {"verify", "--user", "--man=no", copy}, env);
        QVERIFY2(verify.exitCode == 0 && verify.err.isEmpty(), qPrintable(verify.err));

        // The command itself, with no Vault chosen yet: a sentence, not a hang.
        const CliRun::Result unchosen = CliRun::run(command.captured(2).split(QLatin1Char(' ')));
        QCOMPARE(unchosen.exitCode, 2);
        QVERIFY(unchosen.err.contains(QStringLiteral("No Vault folder is chosen yet")));

        // With the app's choice in this home's settings.
        QTemporaryDir vault;
        QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold"))
            .setValue(QStringLiteral("com.quennet.keelhold.bookmark.vaultFolder"), vault.path());
        Watch chosen(command.captured(2).split(QLatin1Char(' ')));
        QTRY_VERIFY_WITH_TIMEOUT(chosen.err().contains(QDir::toNativeSeparators(vault.path())), 20000);
        QCOMPARE(chosen.stop(), 0);
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(TestWatchCommand)
#include "tst_watchcommand.moc"
