#include "KeelholdApp.h"

#include <QQuickWindow>
#include <QTimer>

#include <QApplication>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickStyle>
#include <QUrl>
#include <QtQml>

int main(int argc, char *argv[])
{
    // A widgets application: the file dialogs fall back to Qt's own widgets.
    QApplication app(argc, argv);
    QGuiApplication::setOrganizationName(QStringLiteral("Keelhold"));
    QGuiApplication::setApplicationName(QStringLiteral("Keelhold"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Keelhold"));

    KeelholdApp keelhold;
    AppState &appState = keelhold.appState();
    [[maybe_unused]] UiBridge &ui = keelhold.ui();
    // --sample: straight into the bundled footage, past the wizard.
    if (QCoreApplication::arguments().contains(QStringLiteral("--sample")))
        appState.loadSampleFootage();

    QQmlApplicationEngine &engine = keelhold.qmlEngine();
    QObject::connect(&engine, &QQmlApplicationEngine::objectCreationFailed, &app,
                     [] { QCoreApplication::exit(1); }, Qt::QueuedConnection);
    keelhold.load();
    // Test hook: KEELHOLD_SCREENSHOT=<png> grabs the window after a short wait
    // (KEELHOLD_SCREENSHOT_MS) and quits; KEELHOLD_SECTION picks a section first.
    const QString shot = qEnvironmentVariable("KEELHOLD_SCREENSHOT");
    if (!shot.isEmpty()) {
        if (qEnvironmentVariableIsSet("KEELHOLD_SECTION"))
            appState.setProperty("selectedSection", qEnvironmentVariableIntValue("KEELHOLD_SECTION"));
        if (qEnvironmentVariableIsSet("KEELHOLD_SCAN")) {
            appState.setShowOnboarding(false);
            appState.beginScan(qEnvironmentVariable("KEELHOLD_SCAN"));
        }
        if (qEnvironmentVariableIsSet("KEELHOLD_HELP") && !engine.rootObjects().isEmpty())
            QMetaObject::invokeMethod(engine.rootObjects().first(), "showHelp",
                                      Q_ARG(QVariant, qEnvironmentVariableIntValue("KEELHOLD_HELP")));
        const int ms = qEnvironmentVariableIsSet("KEELHOLD_SCREENSHOT_MS") ? qEnvironmentVariableIntValue("KEELHOLD_SCREENSHOT_MS") : 1500;
        QTimer::singleShot(ms, &app, [&engine, shot] {
            QQuickWindow *target = nullptr;
            for (QWindow *w : QGuiApplication::topLevelWindows())
                if (auto *q = qobject_cast<QQuickWindow *>(w); q && q->isVisible()
                    && (!target || q->objectName() == QLatin1String("helpWindow")))
                    target = q;
            if (target)
                target->grabWindow().save(shot);
            QCoreApplication::exit(target ? 0 : 3);
        });
    }
    return app.exec();
}
