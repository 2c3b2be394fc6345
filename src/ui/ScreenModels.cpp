#include "ScreenModels.h"

#include "InboxViewModel.h"
#include "MapViewModel.h"
#include "ThumbnailImageProvider.h"
#include "TileMap.h"
#include "VaultViewModel.h"

#include <QQmlContext>
#include <QQmlEngine>

ScreenModels::ScreenModels(AppState *state, QObject *parent)
    : QObject(parent), inbox_(new InboxViewModel(state, this)), vault_(new VaultViewModel(state, this)),
      map_(new MapViewModel(state, this))
{
}

void ScreenModels::install(QQmlEngine &engine)
{
    static const bool registered = [] {
        qmlRegisterType<TileMap>("Keelhold", 1, 0, "TileMap");
        qmlRegisterUncreatableType<EventListModel>("Keelhold", 1, 0, "EventListModel", QStringLiteral("made in C++"));
        return true;
    }();
    Q_UNUSED(registered);
    engine.rootContext()->setContextProperty(QStringLiteral("inbox"), inbox_);
    engine.rootContext()->setContextProperty(QStringLiteral("vault"), vault_);
    engine.rootContext()->setContextProperty(QStringLiteral("eventMap"), map_);
    engine.addImageProvider(QStringLiteral("thumbs"), new ThumbnailImageProvider);
}
