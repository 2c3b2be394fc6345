#pragma once

#include "report/TileFetch.h"

#include <QCache>
#include <QHash>
#include <QImage>
#include <QNetworkAccessManager>
#include <QObject>
#include <QSet>
#include <QString>
#include <optional>

class QNetworkReply;

// Raster map tiles over HTTP: a disk cache under the user's cache folder, a
// small memory cache of decoded tiles, one request per tile at a time, and a
// User-Agent that names the application as tile servers ask. The URL
// template comes from the settings so another provider (or a test server)
// can stand in.
class TileSource : public QObject {
    Q_OBJECT
public:
    static inline const QString templateKey = TileFetch::templateKey;
    static constexpr qint64 retryAfterMs = 30000;

    explicit TileSource(QObject *parent = nullptr);
    // The one instance of the process; lives on the main thread.
    static TileSource *shared();

    static QString userAgent();
    QString urlTemplate() const;

    // The tile when it is at hand; otherwise a request starts (once) and
    // tileArrived follows when it lands.
    std::optional<QImage> tile(int z, int x, int y);

    int requestsStarted() const { return requestsStarted_; }
    int tilesArrived() const { return tilesArrived_; }
    // The last answer was a failure (offline, refused, not a picture); the
    // next tile that lands clears it.
    bool isUnavailable() const { return unavailable_; }

Q_SIGNALS:
    void tileArrived();
    void availabilityChanged();

private:
    void finished(QNetworkReply *reply, const QString &key);

    QNetworkAccessManager network_;
    QCache<QString, QImage> images_{256};
    QSet<QString> pending_;
    // When each tile last failed; it is asked for again after a pause, so the
    // map fills in once the network is back.
    QHash<QString, qint64> failedAt_;
    int requestsStarted_ = 0;
    int tilesArrived_ = 0;
    bool unavailable_ = false;
};
