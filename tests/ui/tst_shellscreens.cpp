#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// The real app on a temporary home: the wizard, a failure screen and the help
// window come up without a QML error and draw something.
class ShellScreensTest : public QObject {
    Q_OBJECT

    QByteArray runGrab(const QTemporaryDir &home, const QString &png, const QList<QPair<QString, QString>> &vars)
    {
        QProcess app;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("HOME", home.path());
        env.insert("XDG_CONFIG_HOME", home.path() + "/.config");
        env.insert("XDG_DATA_HOME", home.path() + "/.local/share");
        env.insert("XDG_RUNTIME_DIR", home.path());
        env.insert("QT_QPA_PLATFORM", "xcb");
        env.insert("KEELHOLD_SCREENSHOT", png);
        env.insert("KEELHOLD_SCREENSHOT_MS", "800");
        for (const auto &v : vars)
            env.insert(v.first, v.second);
        app.setProcessEnvironment(env);
        app.start(QStringLiteral(KEELHOLD_APP_PATH), {});
        if (!app.waitForFinished(20000))
            app.kill();
        return app.readAllStandardError();
    }

private Q_SLOTS:
    void init()
    {
        if (qEnvironmentVariableIsEmpty("DISPLAY"))
            QSKIP("needs a display (run the suite under xvfb-run)");
    }

    void screensComeUpCleanly_data()
    {
        QTest::addColumn<QString>("scan");
        QTest::addColumn<QString>("help");
        QTest::newRow("wizard") << QString() << QString();
        QTest::newRow("no TeslaCam folder") << QStringLiteral("NOTACAR/TeslaCam") << QString();
        QTest::newRow("help window") << QString() << QStringLiteral("6");
    }

    void screensComeUpCleanly()
    {
        QFETCH(QString, scan);
        QFETCH(QString, help);
        QTemporaryDir home;
        QDir(home.path()).mkpath("NOTACAR");
        QList<QPair<QString, QString>> vars;
        if (!scan.isEmpty())
            vars.append({"KEELHOLD_SCAN", home.filePath(scan)});
        if (!help.isEmpty())
            vars.append({"KEELHOLD_HELP", help});
        const QString png = home.filePath("shot.png");
        const QByteArray err = runGrab(home, png, vars);
        QVERIFY2(!err.contains("qrc:/"), err.constData());
        QImage img(png);
        QVERIFY2(!img.isNull(), err.constData());
        if (!help.isEmpty())
            QCOMPARE(img.size(), QSize(700, 480)); // the help window, not the main one
        else
            QVERIFY(img.width() >= 900 && img.height() >= 600);
    }
};

QTEST_GUILESS_MAIN(ShellScreensTest)
#include "tst_shellscreens.moc"
