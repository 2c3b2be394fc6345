#include "support/IsolatedHome.h"
#include "support/ProgramRun.h"

#include <QImage>
#include <QTemporaryDir>
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
    // The man page is made from these at build time, where there is no display.
    void helpAndVersionNeedNoDisplay()
    {
        const ProgramRun::Result help = app({"--help"}, noDisplay());
        QCOMPARE(help.exitCode, 0);
        QVERIFY2(help.out.startsWith("Usage: keelhold "), help.out.constData());
        QVERIFY(help.out.contains("\nExit status:\n"));
        QCOMPARE(app({"-h"}, noDisplay()).out, help.out);
        QCOMPARE(app({"--sample", "--help"}, noDisplay()).out, help.out);

        // The long form is asked of the installed program.
        const ProgramRun::Result version = app({"-v"}, noDisplay());
        QCOMPARE(version.exitCode, 0);
        QCOMPARE(version.out, QByteArray("keelhold " KEELHOLD_VERSION "\n"));
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
        QVERIFY(app({"--help"}, noDisplay()).out.contains("\n  64 "));
    }

    // Qt's own options (-platform, -name and the like) are Qt's, not unknown
    // ones; and the screenshot hook's section choice reaches the window: the
    // sidebar's chosen row (Drive first, Drive Health fourth) is the blue one.
    void qtOptionsReachQt()
    {
        if (qEnvironmentVariableIsEmpty("DISPLAY"))
            QSKIP("needs a display (run the suite under xvfb-run)");
        QTemporaryDir dir;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("KEELHOLD_SCREENSHOT"), dir.filePath(QStringLiteral("window.png")));
        env.insert(QStringLiteral("KEELHOLD_SCREENSHOT_MS"), QStringLiteral("500"));
        env.insert(QStringLiteral("KEELHOLD_SECTION"), QStringLiteral("3"));
        const ProgramRun::Result r = app({"-name", "keelhold-test", "--sample"}, env);
        QVERIFY2(r.exitCode == 0, qPrintable(r.err));
        const QImage shot(dir.filePath(QStringLiteral("window.png")));
        const auto chosen = [&shot](int row) {
            const QColor c = shot.pixelColor(145, 70 + 30 * row);
            return c.blue() > 180 && c.red() < 100;
        };
        QVERIFY(chosen(3) && !chosen(0));
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(AppCommandLineTest)
#include "tst_appcommandline.moc"
