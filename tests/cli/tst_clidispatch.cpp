#include "support/CliRun.h"
#include "support/IsolatedHome.h"

#include <QRegularExpression>
#include <QSet>
#include <QtTest>

namespace {

// The indented "  name  text" lines of one "Heading:" paragraph of a help text.
QStringList firstWords(const QString &help, const QString &heading)
{
    QStringList words;
    const QStringList lines = help.split(QLatin1Char('\n'));
    qsizetype i = lines.indexOf(heading);
    if (i < 0)
        return words;
    for (++i; i < lines.size() && lines[i].startsWith(QLatin1String("  ")); ++i)
        words << lines[i].trimmed().section(QLatin1Char(' '), 0, 0);
    return words;
}

} // namespace

class CliDispatchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void helpListsEveryCommandAndEachAnswersForItself()
    {
        const CliRun::Result help = CliRun::run({"--help"});
        QCOMPARE(help.exitCode, 0);
        QVERIFY2(help.err.isEmpty(), qPrintable(help.err));
        const QString text = QString::fromUtf8(help.out);
        QVERIFY(text.startsWith(QLatin1String("Usage: keelhold-cli ")));
        QStringList listed = firstWords(text, QStringLiteral("Commands:"));
        listed.sort();
        QCOMPARE(listed, QStringList({"decrypt", "export", "health", "help", "keep", "moments", "report", "scan", "telemetry", "unlock", "vault", "watch"}));
        QCOMPARE(CliRun::run({"-h"}).out, help.out);
        QCOMPARE(CliRun::run({"help"}).out, help.out);

        for (const QString &name : std::as_const(listed)) {
            if (name == QLatin1String("help"))
                continue;
            const CliRun::Result viaHelp = CliRun::run({"help", name});
            QCOMPARE(viaHelp.exitCode, 0);
            QVERIFY2(viaHelp.out.startsWith("Usage: keelhold-cli " + name.toUtf8() + ' '), viaHelp.out.constData());
            const CliRun::Result direct = CliRun::run({name, "--help"});
            QCOMPARE(direct.exitCode, 0);
            QCOMPARE(direct.out, viaHelp.out);
        }
    }

    void wrongCommandLinesSayWhatToDo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("said");
        QTest::newRow("nothing") << QStringList() << QStringLiteral("Usage: keelhold-cli");
        QTest::newRow("unknown command") << QStringList{"scna", "x"} << QStringLiteral("\u201cscna\u201d");
        QTest::newRow("unknown option first") << QStringList{"--pretty"} << QStringLiteral("\u201c--pretty\u201d");
        QTest::newRow("help of an unknown command") << QStringList{"help", "sacn"} << QStringLiteral("\u201csacn\u201d");
        QTest::newRow("help of two commands") << QStringList{"help", "scan", "keep"} << QStringLiteral("one command");
        QTest::newRow("unknown option of a command") << QStringList{"scan", "--prety", "x"} << QStringLiteral("prety");
        // A command missing what it needs shows its own usage, before any folder is looked at.
        QTest::newRow("scan without a folder") << QStringList{"scan"} << QStringLiteral("Usage: keelhold-cli scan ");
        QTest::newRow("export without an event") << QStringList{"export", "/x", "--camera", "front"}
                                                 << QStringLiteral("Usage: keelhold-cli export ");
        QTest::newRow("keep without a Vault") << QStringList{"keep", "/x"} << QStringLiteral("Usage: keelhold-cli keep ");
        QTest::newRow("vault list without a folder") << QStringList{"vault", "list"}
                                                     << QStringLiteral("Usage: keelhold-cli vault list ");
        QTest::newRow("moments without an event") << QStringList{"moments", "/x"}
                                                  << QStringLiteral("Usage: keelhold-cli moments ");
        QTest::newRow("moments in a format it lacks") << QStringList{"moments", "/x", "--event", "e", "--format", "gpx"}
                                                      << QStringLiteral("json or csv");
        QTest::newRow("telemetry without an event") << QStringList{"telemetry", "/x"}
                                                    << QStringLiteral("Usage: keelhold-cli telemetry ");
        QTest::newRow("unlock without a token") << QStringList{"unlock"} << QStringLiteral("Usage: keelhold-cli unlock ");
    }

    void wrongCommandLinesSayWhatToDo()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, said);
        const CliRun::Result r = CliRun::run(arguments);
        QCOMPARE(r.exitCode, 64);
        QVERIFY(r.out.isEmpty());
        QVERIFY2(r.err.contains(said), qPrintable(r.err));
    }

    // Each code the commands end with (their suites prove when) is one the help explains.
    void everyOutcomeHasADocumentedExitCode()
    {
        QSet<int> documented;
        for (const QString &word : firstWords(QString::fromUtf8(CliRun::run({"--help"}).out), QStringLiteral("Exit status:")))
            documented.insert(word.toInt());
        for (int code : {0, 1, 2, 64, 130})
            QVERIFY2(documented.contains(code), qPrintable(QString::number(code)));
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(CliDispatchTest)
#include "tst_clidispatch.moc"
