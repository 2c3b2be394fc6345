#include "support/IsolatedHome.h"
#include "support/ProgramRun.h"

#include <QtTest>

namespace {

ProgramRun::Result app(const QStringList &arguments, const QProcessEnvironment &env)
{
    return ProgramRun::run(QStringLiteral(KEELHOLD_APP_PATH), arguments, env);
}

QProcessEnvironment noDisplay()
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        env.remove(QString::fromLatin1(name));
    return env;
}

} // namespace

// The keelhold program's own command line, as a shell or the menu runs it.
class AppCommandLineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // The man page is made from the help at build time, where there is no
    // display (the version is asked of the installed program).
    void helpNeedsNoDisplay()
    {
        const ProgramRun::Result help = app({"--help"}, noDisplay());
        QCOMPARE(help.exitCode, 0);
        QVERIFY2(help.out.startsWith("Usage: keelhold "), help.out.constData());
        QVERIFY(help.out.contains("\nExit status:\n") && help.out.contains("\n  64 "));
        QCOMPARE(app({"-h"}, noDisplay()).out, help.out);
        QCOMPARE(app({"--sample", "--help"}, noDisplay()).out, help.out);
    }

    void unknownArgumentsStopWithTheDocumentedCode()
    {
        if (qEnvironmentVariableIsEmpty("DISPLAY"))
            QSKIP("needs a display (run the suite under xvfb-run)");
        for (const QStringList &arguments : {QStringList{"--smaple"}, QStringList{"--sample", "/media/USB"}}) {
            const ProgramRun::Result r = app(arguments, QProcessEnvironment::systemEnvironment());
            QCOMPARE(r.exitCode, 64);
            QVERIFY(r.out.isEmpty());
            QVERIFY2(r.err.contains(QStringLiteral("\u201c%1\u201d").arg(arguments.last())), qPrintable(r.err));
            QVERIFY(r.err.contains(QLatin1String("keelhold --help")));
        }
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(AppCommandLineTest)
#include "tst_appcommandline.moc"
