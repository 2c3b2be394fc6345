#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// The real application binary starts, loads its QML and keeps running.
class AppStartsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opensItsWindow()
    {
        if (qEnvironmentVariableIsEmpty("DISPLAY"))
            QSKIP("needs a display (run the suite under xvfb-run)");
        QTemporaryDir home;
        QProcess app;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("HOME", home.path());
        env.insert("XDG_CONFIG_HOME", home.path() + "/.config");
        env.insert("XDG_DATA_HOME", home.path() + "/.local/share");
        env.insert("QT_QPA_PLATFORM", "xcb");
        app.setProcessEnvironment(env);
        app.start(QStringLiteral(KEELHOLD_APP_PATH), {});
        QVERIFY(app.waitForStarted(10000));
        // A QML error ends the process at once; a healthy app keeps running.
        QVERIFY2(!app.waitForFinished(3000), qPrintable(QString::fromUtf8(app.readAllStandardError())));
        const QByteArray errors = app.readAllStandardError();
        QVERIFY2(!errors.contains("qrc:/") && !errors.contains("QQmlApplicationEngine failed"), errors.constData());
        app.terminate();
        QVERIFY(app.waitForFinished(10000));
    }
};

QTEST_GUILESS_MAIN(AppStartsTest)
#include "tst_appstarts.moc"
