#pragma once

#include <QObject>

class AppState;
class InboxViewModel;
class MapViewModel;
class QQmlEngine;
class VaultViewModel;

// The view models of the Drive, Vault and Map screens, and what QML needs
// to reach them: context properties, the thumbnail provider, the map item.
class ScreenModels : public QObject {
    Q_OBJECT
public:
    explicit ScreenModels(AppState *state, QObject *parent = nullptr);

    // Before the root QML is loaded.
    void install(QQmlEngine &engine);

    InboxViewModel *inbox() const { return inbox_; }
    VaultViewModel *vault() const { return vault_; }
    MapViewModel *map() const { return map_; }

private:
    InboxViewModel *inbox_;
    VaultViewModel *vault_;
    MapViewModel *map_;
};
