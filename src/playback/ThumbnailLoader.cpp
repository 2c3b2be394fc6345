#include "playback/ThumbnailLoader.h"

#include "base/AsyncRun.h"
#include "base/EnginePools.h"
#include "media/ClipReaderDevice.h"

#include <QCache>
#include <QImageReader>
#include <QThreadPool>

#include <algorithm>
#include <cmath>
#include <mutex>

namespace ThumbnailLoader {

namespace {
struct Cache {
    std::mutex mutex;
    QCache<QString, QImage> images{cacheLimit};
};

Cache &cache()
{
    static Cache c;
    return c;
}
} // namespace

std::optional<QImage> cached(const QString &path)
{
    auto &c = cache();
    std::lock_guard lock(c.mutex);
    if (const QImage *image = c.images.object(path))
        return *image;
    return std::nullopt;
}

std::optional<QImage> loadNow(const QString &path)
{
    if (auto hit = cached(path))
        return hit;
    // Through the same reader as the event's clips.
    auto bytes = ClipReaders::open({}, path, {});
    if (!bytes)
        return std::nullopt;
    ClipReaderDevice file(std::move(bytes));
    QImageReader reader(&file);
    reader.setAutoTransform(true);
    QImage image = reader.read();
    if (image.isNull())
        return std::nullopt;
    const int longer = std::max(image.width(), image.height());
    if (longer > maxPixelSize) {
        const double scale = double(maxPixelSize) / longer;
        const QSize size(std::max(1, int(std::lround(image.width() * scale))),
                         std::max(1, int(std::lround(image.height() * scale))));
        image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    auto &c = cache();
    std::lock_guard lock(c.mutex);
    c.images.insert(path, new QImage(image));
    return image;
}

QFuture<std::optional<QImage>> load(const QString &path)
{
    if (auto hit = cached(path)) {
        QPromise<std::optional<QImage>> promise;
        promise.start();
        promise.addResult(*hit);
        promise.finish();
        return promise.future();
    }
    return AsyncRun::onPool(EnginePools::media(), [path] { return loadNow(path); });
}

int cachedCount()
{
    auto &c = cache();
    std::lock_guard lock(c.mutex);
    return int(c.images.count());
}

void clearCache()
{
    auto &c = cache();
    std::lock_guard lock(c.mutex);
    c.images.clear();
}

} // namespace ThumbnailLoader
