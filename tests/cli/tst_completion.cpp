#include "support/CliRun.h"
#include "support/DriveBuilder.h"
#include "support/IsolatedHome.h"
#include "support/ProgramRun.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// Completes `line` the way bash does at the end of it, with the completion
// the package installs, and answers the offered words.
struct Completion {
    QStringList words;
    QString err;
};

Completion complete(const QString &line)
{
    static const QString script = QStringLiteral(R"(
source /usr/share/bash-completion/bash_completion
source "$1"
line=$2
COMP_LINE=$line
COMP_POINT=${#line}
read -ra COMP_WORDS <<<"$line"
[[ $line == *' ' ]] && COMP_WORDS+=('')
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
_keelhold_cli
printf '%s\n' "${COMPREPLY[@]}"
)");
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("PATH"), QFileInfo(QStringLiteral(KEELHOLD_CLI_PATH)).absolutePath()
                                           + QLatin1Char(':') + env.value(QStringLiteral("PATH")));
    const ProgramRun::Result r = ProgramRun::run(
        QStringLiteral("bash"),
        {QStringLiteral("-c"), script, QStringLiteral("bash"), QStringLiteral(KEELHOLD_SOURCE_DIR "/data/keelhold-cli.bash"), line},
        env, 30000);
    if (r.exitCode != 0)
        return {{}, QStringLiteral("bash ended with %1: %2").arg(r.exitCode).arg(r.err)};
    QStringList words = QString::fromUtf8(r.out).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    words.sort();
    return {words, r.err};
}

} // namespace

class CompletionTest : public QObject {
    Q_OBJECT

    QTemporaryDir tmp_;
    DriveBuilder drive_{tmp_.filePath(QStringLiteral("TeslaCam"))};
    QString vault_ = tmp_.filePath(QStringLiteral("Vault"));

private Q_SLOTS:
    void initTestCase()
    {
        if (!QFileInfo::exists(QStringLiteral("/usr/share/bash-completion/bash_completion")))
            QSKIP("bash-completion is not installed (scripts/setup installs it)");
        drive_.addEvent("SentryClips", "2026-07-18_09-15-32", 1, 4096);
        drive_.addEvent("SavedClips", "2026-07-19_10-00-00", 1, 4096);
        const CliRun::Result kept = CliRun::run({"keep", drive_.root(), "--vault", vault_, "--event", "saved|2026-07-19_10-00-00"});
        QVERIFY2(kept.exitCode == 0, qPrintable(kept.err));
    }

    void offersWhatFitsTheLine_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("offered");
        QTest::newRow("commands") << "keelhold-cli " << QStringList{"decrypt", "export", "health", "help", "keep", "moments", "report", "scan", "telemetry", "unlock", "vault", "watch"};
        QTest::newRow("a command begun") << "keelhold-cli he" << QStringList{"health", "help"};
        QTest::newRow("top-level options") << "keelhold-cli --" << QStringList{"--help", "--version"};
        QTest::newRow("help of a command") << "keelhold-cli help ke" << QStringList{"keep"};
        QTest::newRow("a command's options") << "keelhold-cli scan /x --p" << QStringList{"--pretty", "--probe"};
        QTest::newRow("options after a valued one")
            << "keelhold-cli export /x --camera front --f" << QStringList{"--from"};
        QTest::newRow("cameras") << "keelhold-cli export /x --camera left" << QStringList{"left_pillar", "left_repeater"};
        QTest::newRow("no guess for a number") << "keelhold-cli export /x --from " << QStringList{};
        QTest::newRow("formats") << "keelhold-cli telemetry /x --format " << QStringList{"csv", "gpx", "json"};
        QTest::newRow("layouts") << "keelhold-cli export /x --layout " << QStringList{"front-sides", "grid", "single"};
        QTest::newRow("sizes") << "keelhold-cli export /x --size 1" << QStringList{"1080"};
        QTest::newRow("overlay parts after a comma")
            << "keelhold-cli export /x --overlay time,n" << QStringList{"time,names", "time,none"};
        QTest::newRow("vault actions") << "keelhold-cli vault " << QStringList{"list", "remove", "verify"};
        // Event ids of the drive on the line, or of the Vault; a "|" must be escaped or quoted.
        const QString drive = drive_.root(), saved = QStringLiteral("saved\\|2026-07-19_10-00-00");
        QTest::newRow("events") << QStringLiteral("keelhold-cli export %1 --event ").arg(drive)
                                << QStringList{saved, "sentry\\|2026-07-18_09-15-32"};
        QTest::newRow("events begun") << QStringLiteral("keelhold-cli keep %1 --vault %2 --event se").arg(drive, vault_)
                                      << QStringList{"sentry\\|2026-07-18_09-15-32"};
        QTest::newRow("events quoted") << QStringLiteral("keelhold-cli keep --vault %2 %1 --event 'sa").arg(drive, vault_)
                                       << QStringList{"saved|2026-07-19_10-00-00"};
        QTest::newRow("events after =")
            << QStringLiteral("keelhold-cli keep --event=sen --vault=%2 %1 --event=sa").arg(drive, vault_) << QStringList{saved};
        QTest::newRow("events of the Vault") << QStringLiteral("keelhold-cli vault remove %1 ").arg(vault_) << QStringList{saved};
        QTest::newRow("telemetry reads a Vault too") << QStringLiteral("keelhold-cli telemetry %1 --event ").arg(vault_)
                                                     << QStringList{saved};
        // Nothing, and no noise, where there is no drive.
        const QString nowhere = tmp_.filePath(QStringLiteral("nowhere"));
        QTest::newRow("no drive") << QStringLiteral("keelhold-cli export %1 --event ").arg(nowhere) << QStringList();
        QTest::newRow("no Vault") << QStringLiteral("keelhold-cli vault remove %1 ").arg(nowhere) << QStringList();
        QTest::newRow("no folder") << "keelhold-cli export --event " << QStringList();
        QTest::newRow("no command") << "keelhold-cli nosuch --" << QStringList();
    }

    void offersWhatFitsTheLine()
    {
        QFETCH(QString, line);
        QFETCH(QStringList, offered);
        const Completion c = complete(line);
        QVERIFY2(c.err.isEmpty(), qPrintable(c.err));
        QCOMPARE(c.words, offered);
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(CompletionTest)
#include "tst_completion.moc"
