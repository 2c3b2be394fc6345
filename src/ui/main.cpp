#include "engine/LiveEngine.h"
#include "state/AppState.h"
#include "state/DriveFailure.h"
#include "state/SidebarSection.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickStyle>
#include <QUrl>
#include <QtQml>

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

    qmlRegisterUncreatableMetaObject(SidebarSection::staticMetaObject, "Keelhold", 1, 0, "SidebarSection",
                                     QStringLiteral("an enumeration"));
    qmlRegisterUncreatableMetaObject(DriveFailure::staticMetaObject, "Keelhold", 1, 0, "DriveFailure",
                                     QStringLiteral("an enumeration"));

    QQmlApplicationEngine engine;
    engine.rootContext()->setContextProperty(QStringLiteral("appState"), &appState);
    QObject::connect(&engine, &QQmlApplicationEngine::objectCreationFailed, &app,
                     [] { QCoreApplication::exit(1); }, Qt::QueuedConnection);
    engine.load(QUrl(QStringLiteral("qrc:/Keelhold/qml/Main.qml")));
    return app.exec();
}
