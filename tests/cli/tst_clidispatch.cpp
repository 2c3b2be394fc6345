#include "support/IsolatedHome.h"
#include "support/ProgramRun.h"

#include <QRegularExpression>
#include <QSet>
#include <QtTest>

namespace {

ProgramRun::Result cli(const QStringList &arguments)
{
    return ProgramRun::run(QStringLiteral(KEELHOLD_CLI_PATH), arguments);
}

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
        const ProgramRun::Result help = cli({"--help"});
        QCOMPARE(help.exitCode, 0);
        QVERIFY2(help.err.isEmpty(), qPrintable(help.err));
        const QString text = QString::fromUtf8(help.out);
        QVERIFY(text.startsWith(QLatin1String("Usage: keelhold-cli ")));
        QStringList listed = firstWords(text, QStringLiteral("Commands:"));
        listed.sort();
        QCOMPARE(listed, QStringList({"decrypt", "export", "health", "help", "keep", "moments", "report", "scan", "telemetry", "unlock", "vault", "watch"}));
        QCOMPARE(cli({"-h"}).out, help.out);
        QCOMPARE(cli({"help"}).out, help.out);

        for (const QString &name : std::as_const(listed)) {
            if (name == QLatin1String("help"))
                continue;
            const ProgramRun::Result viaHelp = cli({"help", name});
            QCOMPARE(viaHelp.exitCode, 0);
            QVERIFY2(viaHelp.out.startsWith("Usage: keelhold-cli " + name.toUtf8() + ' '), viaHelp.out.constData());
            const ProgramRun::Result direct = cli({name, "--help"});
            QCOMPARE(direct.exitCode, 0);
            QCOMPARE(direct.out, viaHelp.out);
        }
    }

    void versionIsTheProjectVersion()
    {
        for (const char *option : {"--version", "-v"}) {
            const ProgramRun::Result r = cli({option});
            QCOMPARE(r.exitCode, 0);
            QCOMPARE(r.out, QByteArray("keelhold-cli " KEELHOLD_VERSION "\n"));
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
    }

    void wrongCommandLinesSayWhatToDo()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, said);
        const ProgramRun::Result r = cli(arguments);
        QCOMPARE(r.exitCode, 64);
        QVERIFY(r.out.isEmpty());
        QVERIFY2(r.err.contains(said), qPrintable(r.err));
    }

    // Each code the commands end with (their suites prove when) is one the help explains.
    void everyOutcomeHasADocumentedExitCode()
    {
        QSet<int> documented;
        for (const QString &word : firstWords(QString::fromUtf8(cli({"--help"}).out), QStringLiteral("Exit status:")))
            documented.insert(word.toInt());
        for (int code : {0, 1, 2, 64, 130})
            QVERIFY2(documented.contains(code), qPrintable(QString::number(code)));
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(CliDispatchTest)
#include "tst_clidispatch.moc"
