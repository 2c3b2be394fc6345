#pragma once

#include <QQuickImageProvider>

// "image://thumbs/<epoch><path>": an event's picture through ThumbnailLoader.
// Loading is forced off the GUI thread; a cached picture is handed over
// without touching the drive.
class ThumbnailImageProvider : public QQuickImageProvider {
public:
    ThumbnailImageProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

    // The file path inside an id; the leading epoch only keys the request.
    static QString pathFromID(const QString &id);
};
