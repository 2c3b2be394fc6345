#include "support/DriveBuilder.h"
#include "support/IsolatedHome.h"
#include "support/ProgramRun.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// The programs' environment as a desktop session would have it, minus the display.
QProcessEnvironment withoutDisplay()
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "LD_LIBRARY_PATH"})
        env.remove(QString::fromLatin1(name));
    return env;
}

QByteArray gunzip(const QString &path)
{
    return ProgramRun::run(QStringLiteral("gzip"), {QStringLiteral("-dc"), path}).out;
}

} // namespace

// Installs the build into a fresh prefix, as a package or `cmake --install`
// would, and checks that what lands there works on its own.
class InstalledTreeTest : public QObject {
    Q_OBJECT

    QTemporaryDir prefix_;
    QString id_ = QStringLiteral(KEELHOLD_APP_ID);

    QString at(const QString &relative) const { return prefix_.filePath(relative); }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(prefix_.isValid());
        const ProgramRun::Result r = ProgramRun::run(
            QStringLiteral(KEELHOLD_CMAKE), {"--install", KEELHOLD_BUILD_DIR, "--prefix", prefix_.path()}, withoutDisplay(),
            120000);
        QVERIFY2(r.exitCode == 0, qPrintable(r.err));
        // Every file went under the prefix: a package built from it has them all.
        const QByteArray manifest = DriveBuilder::readQuietly(QStringLiteral(KEELHOLD_BUILD_DIR "/install_manifest.txt"));
        const QStringList installed = QString::fromUtf8(manifest).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QVERIFY(!installed.isEmpty());
        for (const QString &file : installed)
            QVERIFY2(file.startsWith(prefix_.path() + QLatin1Char('/')), qPrintable(file));
    }

    void programsAnswerWithoutADisplay()
    {
        for (const QByteArray program : {"keelhold", "keelhold-cli"})
            for (const QString option : {"--version", "-v"}) {
                const ProgramRun::Result r = ProgramRun::run(at("bin/" + program), {option}, withoutDisplay());
                QCOMPARE(r.exitCode, 0);
                QCOMPARE(r.out, QByteArray(program + " " KEELHOLD_VERSION "\n"));
            }
    }

    void desktopEntryIsValidAndPointsAtWhatIsInstalled()
    {
        const QString desktop = at("share/applications/" + id_ + ".desktop");
        const ProgramRun::Result r = ProgramRun::run(QStringLiteral("desktop-file-validate"), {desktop});
        QVERIFY2(r.exitCode == 0 && r.out.isEmpty(), r.out.constData());
        const QByteArray text = DriveBuilder::readQuietly(desktop);
        QVERIFY(text.contains("\nExec=keelhold\n"));
        QVERIFY(QFileInfo(at("bin/keelhold")).isExecutable());
        QVERIFY(text.contains("\nIcon=" + id_.toUtf8() + '\n'));
    }

    void metainfoIsValid()
    {
        const QString metainfo = at("share/metainfo/" + id_ + ".metainfo.xml");
        const ProgramRun::Result r = ProgramRun::run(QStringLiteral("appstreamcli"), {"validate", "--no-net", metainfo});
        QVERIFY2(r.exitCode == 0, r.out.constData());
        const QByteArray text = DriveBuilder::readQuietly(metainfo);
        QVERIFY(text.contains("<release version=\"" KEELHOLD_VERSION "\""));
        QVERIFY(text.contains("<launchable type=\"desktop-id\">" + id_.toUtf8() + ".desktop<"));
        QVERIFY(text.contains("<screenshot type=\"default\">"));
    }

    void iconAtTheUsualSizesAndScalable()
    {
        QVERIFY(QFileInfo::exists(at("share/icons/hicolor/scalable/apps/" + id_ + ".svg")));
        for (int size : {16, 24, 32, 48, 64, 128, 256, 512}) {
            const QImage png(at(QStringLiteral("share/icons/hicolor/%1x%1/apps/%2.png").arg(size).arg(id_)));
            QCOMPARE(png.size(), QSize(size, size));
            // Drawn, not an empty canvas: the middle is opaque.
            QCOMPARE(qAlpha(png.pixel(size / 2, size / 2)), 255);
        }
    }

    void manPagesCarryTheHelp()
    {
        const QByteArray app = gunzip(at("share/man/man1/keelhold.1.gz"));
        QVERIFY(app.contains("\n.TH KEELHOLD \"1\""));
        QVERIFY(app.contains("\\-\\-sample"));
        QVERIFY(app.contains("Exit status"));
        const QByteArray cli = gunzip(at("share/man/man1/keelhold-cli.1.gz"));
        QVERIFY(cli.contains("\n.TH KEELHOLD-CLI \"1\""));
        QVERIFY(cli.contains("Exit status"));
        for (const char *command : {"scan", "health", "export", "keep", "vault"})
            QVERIFY2(cli.contains(QByteArray("\n.SS ") + command + '\n'), command);
    }

    void bashCompletionIsWhereBashLooks()
    {
        QFile installed(at("share/bash-completion/completions/keelhold-cli"));
        QFile source(QStringLiteral(KEELHOLD_SOURCE_DIR "/data/keelhold-cli.bash"));
        QVERIFY(installed.open(QIODevice::ReadOnly) && source.open(QIODevice::ReadOnly));
        QCOMPARE(installed.readAll(), source.readAll());
    }

    void appOpensTheInstalledSampleFootage()
    {
        if (!QFileInfo(QStringLiteral(KEELHOLD_BUILD_DIR "/resources/SampleTeslaCam/TeslaCam")).isDir())
            QSKIP("this build makes no sample footage");
        QVERIFY(QFileInfo(at("share/keelhold/SampleTeslaCam/TeslaCam")).isDir());
        if (qEnvironmentVariableIsEmpty("DISPLAY"))
            QSKIP("needs a display (run the suite under xvfb-run)");
        const QString shot = prefix_.filePath(QStringLiteral("window.png"));
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"QT_QPA_PLATFORM", "LD_LIBRARY_PATH", "KEELHOLD_SAMPLE_FOOTAGE"})
            env.remove(QString::fromLatin1(name));
        env.insert(QStringLiteral("KEELHOLD_SCREENSHOT"), shot);
        env.insert(QStringLiteral("KEELHOLD_SECTION"), QStringLiteral("3"));
        // Qt's own options (-name and the like) are Qt's, not unknown ones.
        const ProgramRun::Result r =
            ProgramRun::run(at("bin/keelhold"), {"-name", "keelhold-test", "--sample"}, env, 120000);
        QVERIFY2(r.exitCode == 0, qPrintable(r.err));
        QVERIFY2(!r.err.contains(QLatin1String("sample footage is not installed")), qPrintable(r.err));
        QVERIFY2(!r.err.contains(QLatin1String("qrc:/")), qPrintable(r.err));
        // The screenshot hook's section reaches the window: the sidebar's
        // chosen row (Drive first, Drive Health fourth) is the blue one.
        const QImage image(shot);
        const auto chosen = [&image](int row) {
            const QColor c = image.pixelColor(145, 70 + 30 * row);
            return c.blue() > 180 && c.red() < 100;
        };
        QVERIFY(!image.isNull() && chosen(3) && !chosen(0));
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(InstalledTreeTest)
#include "tst_installedtree.moc"
