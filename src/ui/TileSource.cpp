#include "TileSource.h"

#include "report/TileFetch.h"

#include <QDateTime>
#include <QNetworkDiskCache>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSettings>
#include <QStandardPaths>
#include <utility>

#ifndef KEELHOLD_VERSION
#define KEELHOLD_VERSION "0"
#endif

TileSource::TileSource(QObject *parent) : QObject(parent)
{
    auto *disk = new QNetworkDiskCache(&network_);
    disk->setCacheDirectory(TileFetch::cacheFolder());
    disk->setMaximumCacheSize(qint64(100) * 1024 * 1024);
    network_.setCache(disk);
    network_.setTransferTimeout(15000);
}

TileSource *TileSource::shared()
{
    static TileSource *instance = new TileSource;
    return instance;
}

QString TileSource::userAgent()
{
    return TileFetch::userAgent(QStringLiteral(KEELHOLD_VERSION));
}

QString TileSource::urlTemplate() const
{
    const QString stored = QSettings().value(templateKey).toString();
    return stored.isEmpty() ? QString::fromLatin1(TileFetch::defaultTemplate) : stored;
}

std::optional<QImage> TileSource::tile(int z, int x, int y)
{
    const QString url = TileFetch::url(urlTemplate(), z, x, y);
    if (const QImage *image = images_.object(url))
        return *image;
    if (pending_.contains(url))
        return std::nullopt;
    if (const auto failed = failedAt_.constFind(url); failed != failedAt_.cend()) {
        if (QDateTime::currentMSecsSinceEpoch() - failed.value() < retryAfterMs)
            return std::nullopt;
        failedAt_.erase(failed);
    }
    QNetworkRequest request{QUrl(url)};
    request.setHeader(QNetworkRequest::UserAgentHeader, userAgent());
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::PreferCache);
    pending_.insert(url);
    ++requestsStarted_;
    QNetworkReply *reply = network_.get(request);
    connect(reply, &QNetworkReply::finished, this, [this, reply, url] { finished(reply, url); });
    return std::nullopt;
}

void TileSource::finished(QNetworkReply *reply, const QString &key)
{
    reply->deleteLater();
    pending_.remove(key);
    QImage image;
    if (reply->error() == QNetworkReply::NoError)
        image.loadFromData(reply->readAll());
    if (image.isNull()) {
        // Offline or refused: the map stays plain; no retry storm while it is drawn.
        failedAt_.insert(key, QDateTime::currentMSecsSinceEpoch());
        if (!std::exchange(unavailable_, true))
            Q_EMIT availabilityChanged();
        return;
    }
    images_.insert(key, new QImage(std::move(image)));
    ++tilesArrived_;
    if (std::exchange(unavailable_, false))
        Q_EMIT availabilityChanged();
    Q_EMIT tileArrived();
}
