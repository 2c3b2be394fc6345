#include "engine/LiveEngine.h"
#include "state/AppState.h"
#include "state/DriveFailure.h"
#include "state/SidebarSection.h"
#include "QmlTypes.h"
#include "UiBridge.h"

#include <QQuickWindow>
#include <QTimer>

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickStyle>
#include <QUrl>
#include <QtQml>

Q_IMPORT_QML_PLUGIN(KeelholdPlugin)

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    QGuiApplication::setOrganizationName(QStringLiteral("Keelhold"));
    QGuiApplication::setApplicationName(QStringLiteral("Keelhold"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Keelhold"));
    QQuickStyle::setStyle(QStringLiteral("Fusion"));

    LiveEngine liveEngine;
    AppState appState(liveEngine);
    // --sample: straight into the bundled footage, past the wizard.
    if (QCoreApplication::arguments().contains(QStringLiteral("--sample")))
        appState.loadSampleFootage();

    QmlTypes::registerAll();

    // Declared before the engine so it outlives the QML that reads it.
    UiBridge ui(&appState);
    QQmlApplicationEngine engine;
    engine.rootContext()->setContextProperty(QStringLiteral("appState"), &appState);
    engine.rootContext()->setContextProperty(QStringLiteral("ui"), &ui);
    QObject::connect(&engine, &QQmlApplicationEngine::objectCreationFailed, &app,
                     [] { QCoreApplication::exit(1); }, Qt::QueuedConnection);
    engine.load(QUrl(QStringLiteral("qrc:/Keelhold/qml/Main.qml")));
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
