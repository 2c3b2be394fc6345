#include "ThumbnailImageProvider.h"

#include "playback/ThumbnailLoader.h"

ThumbnailImageProvider::ThumbnailImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Image, QQmlImageProviderBase::ForceAsynchronousImageLoading)
{
}

QString ThumbnailImageProvider::pathFromID(const QString &id)
{
    const qsizetype slash = id.indexOf(QLatin1Char('/'));
    return slash < 0 ? QString() : id.mid(slash);
}

QImage ThumbnailImageProvider::requestImage(const QString &id, QSize *size, const QSize &)
{
    const QString path = pathFromID(id);
    QImage image;
    if (!path.isEmpty())
        if (auto loaded = ThumbnailLoader::loadNow(path))
            image = *loaded;
    if (size)
        *size = image.size();
    return image;
}
