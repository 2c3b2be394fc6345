#pragma once

#include "export/CombinedLayout.h"

#include <QObject>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>

// The measures and texts of the player screen that are rules rather than
// looks: grid columns, where the moment mark stands, speed labels, tooltips.
class PlayerLayout : public QObject {
    Q_OBJECT
    Q_PROPERTY(int stripHeight READ stripHeight CONSTANT)

public:
    explicit PlayerLayout(QObject *parent = nullptr) : QObject(parent) {}

    static int stripHeight() { return 84; }
    // The combined movie's grid follows the same rule.
    Q_INVOKABLE static int gridColumns(int tileCount) { return CombinedLayout::gridColumns(tileCount); }
    // Centre of the red mark over a slider of the given width, or a negative
    // number when no mark is shown.
    Q_INVOKABLE static double momentMarkX(const QVariant &triggerOffset, double duration, double width);
    Q_INVOKABLE static QString momentMarkTooltip(double triggerOffset);
    Q_INVOKABLE static QString speedLabel(double rate);
    // What the speed control says when the event plays slower than chosen.
    Q_INVOKABLE static QString speedShortfall(double chosen, double playing);
    Q_INVOKABLE static QString stripTooltip(const QString &cameraName, bool focused);
    Q_INVOKABLE static QString gridTileTooltip(const QString &cameraName);
    // "Location unknown" unless both coordinates are known.
    Q_INVOKABLE static QString coordinatesText(const QVariant &latitude, const QVariant &longitude);
    // What the camera area shows, in this order: "focused" when the focused
    // camera has a tile, "loading" while tiles load, "empty" with no tiles,
    // else "grid". tiles are the controller's tile maps (key "camera").
    Q_INVOKABLE static QString gridMode(const QString &focusedCamera, const QVariantList &tiles, bool isLoading);
    // The detail column's message when no event is shown: symbol, title,
    // message, and the sample-footage action before any drive was read.
    Q_INVOKABLE static QVariantMap detailEmptyState(bool vault, bool hasDriveScan);
};
