#include "KeelholdApp.h"

#include <QGuiApplication>

#include "crypt/DecryptingClipReader.h"

#include "ColorScheme.h"
#include "QmlTypes.h"
#include "state/DriveFailure.h"
#include "state/SidebarSection.h"

#include <QLoggingCategory>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQuickStyle>
#include <QQuickWindow>


KeelholdApp::KeelholdApp(QObject *parent)
    : QObject(parent), state_(engine_), face_(state_), ui_(&state_), picker_(&state_, &licence_),
      help_([this](HelpArticleSelection *selection) -> QWindow * {
          QQmlComponent component(&qml_, QUrl(helpWindowUrl));
          QObject *made = component.createWithInitialProperties({{QStringLiteral("selection"), QVariant::fromValue<QObject *>(selection)}});
          auto *w = qobject_cast<QWindow *>(made);
          if (!w) {
              qWarning("%s", qPrintable(component.errorString()));
              delete made;
          }
          return w;
      }),
      screens_(&state_), unlock_(&state_), notifier_(QGuiApplication::desktopFileName()),
      notices_(state_, notifier_)
{
    static bool styled = false;
    if (!styled) {
        // Our own decoder fills every tile; Qt's FFmpeg media backend only
        // draws the frames. The GStreamer one builds a GL context per tile
        // and, tearing it down as the player leaves the window, has held the
        // window's thread for seconds.
        if (!qEnvironmentVariableIsSet("QT_MEDIA_BACKEND"))
            qputenv("QT_MEDIA_BACKEND", "ffmpeg");
        // That backend says hello on the terminal in the default category,
        // which our own code doesn't use (QT_LOGGING_RULES still wins).
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
        QQuickStyle::setStyle(QStringLiteral("Fusion"));
        ColorScheme::apply();
        QmlTypes::registerAll();
        // Unlocked footage plays, shows its pictures and exports like clear footage.
        DecryptingClipReader::install();
        styled = true;
    }
    QQmlContext *ctx = qml_.rootContext();
    ctx->setContextProperty(QStringLiteral("appState"), &face_);
    ctx->setContextProperty(QStringLiteral("ui"), &ui_);
    ctx->setContextProperty(QStringLiteral("drivePicker"), &picker_);
    ctx->setContextProperty(QStringLiteral("help"), &help_);
    ctx->setContextProperty(QStringLiteral("unlock"), &unlock_);
    screens_.install(qml_);
}

KeelholdApp::~KeelholdApp()
{
    // The help window is QML of this engine: let it go before the engine.
    delete help_.window();
}

bool KeelholdApp::load()
{
    qml_.load(QUrl(rootViewUrl));
    notices_.setWindow(mainWindow());
    return mainWindow() != nullptr;
}

QQuickWindow *KeelholdApp::mainWindow() const
{
    const QList<QObject *> roots = qml_.rootObjects();
    return roots.isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(roots.first());
}
