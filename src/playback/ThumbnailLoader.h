#pragma once

#include <QFuture>
#include <QImage>
#include <QString>
#include <optional>

// The small picture of an event for the inbox rows: the image the car
// stores with the event, scaled to at most 200 px on its longer side. A
// shared cache of 1000 entries keeps successes only, so a picture that
// failed to read is tried again next time.
namespace ThumbnailLoader {

constexpr int maxPixelSize = 200;
constexpr int cacheLimit = 1000;

// Cached picture for path, without touching the file.
std::optional<QImage> cached(const QString &path);
// Reads, scales and caches; blocking, for a worker thread.
std::optional<QImage> loadNow(const QString &path);
// loadNow on the general pool, or a finished future on a cache hit.
QFuture<std::optional<QImage>> load(const QString &path);
// Number of cached pictures (for tests and diagnostics).
int cachedCount();
void clearCache();

} // namespace ThumbnailLoader
