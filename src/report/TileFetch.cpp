#include "report/TileFetch.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkDiskCache>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QStandardPaths>
#include <atomic>
#include <memory>

namespace TileFetch {

QString url(const QString &urlTemplate, int z, int x, int y)
{
    QString url = urlTemplate;
    url.replace(QLatin1String("{z}"), QString::number(z));
    url.replace(QLatin1String("{x}"), QString::number(x));
    url.replace(QLatin1String("{y}"), QString::number(y));
    return url;
}

QString userAgent(const QString &version)
{
    return QStringLiteral("Keelhold/%1 (+https://keelhold.app; desktop footage viewer)").arg(version);
}

QString cacheFolder()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation))
        .filePath(QStringLiteral("Keelhold/Keelhold/tiles"));
}

ReportMap::Tiles fetcher(const Source &source)
{
    struct State {
        QDeadlineTimer deadline;
        std::atomic<bool> failed{false};
    };
    auto state = std::make_shared<State>();
    state->deadline = QDeadlineTimer(source.budget);
    return [source, state](int z, int x, int y) -> std::optional<QImage> {
        if (state->failed || state->deadline.hasExpired())
            return std::nullopt;
        // Made in the asking thread for this one request: the network's
        // objects belong to the thread that makes them.
        QNetworkAccessManager network;
        auto *disk = new QNetworkDiskCache(&network);
        disk->setCacheDirectory(cacheFolder());
        disk->setMaximumCacheSize(qint64(100) * 1024 * 1024);
        network.setCache(disk);
        network.setTransferTimeout(int(std::max<qint64>(1, state->deadline.remainingTime())));
        QNetworkRequest request{QUrl(url(source.urlTemplate, z, x, y))};
        request.setHeader(QNetworkRequest::UserAgentHeader, source.userAgent);
        request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::PreferCache);
        QNetworkReply *reply = network.get(request);
        QEventLoop loop;
        QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        if (!reply->isFinished())
            loop.exec();
        QImage image;
        if (reply->error() == QNetworkReply::NoError)
            image.loadFromData(reply->readAll());
        delete reply;
        if (image.isNull()) {
            state->failed = true;
            return std::nullopt;
        }
        return image;
    };
}

} // namespace TileFetch
