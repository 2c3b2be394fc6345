#include "engine/BookmarkStore.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace BookmarkStore {

namespace {
// Each call opens its own settings object: QSettings is reentrant, and the
// store is used from whichever thread calls it.
QSettings settings()
{
    return QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold"));
}

bool isFolder(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && info.isDir();
}
} // namespace

QString settingsKey(BookmarkKey key)
{
    return QStringLiteral("com.quennet.keelhold.bookmark.") + key.rawValue();
}

void save(const QString &folder, BookmarkKey key)
{
    const QString path = QDir::cleanPath(folder);
    if (!QDir::isAbsolutePath(path) || !isFolder(path))
        throw StoreError(QStringLiteral("The folder \u201c%1\u201d can't be remembered because it can't be found.")
                             .arg(folder));
    QSettings s = settings();
    s.setValue(settingsKey(key), path);
    s.sync();
}

BookmarkResult resolve(BookmarkKey key)
{
    const QVariant value = settings().value(settingsKey(key));
    if (!value.isValid())
        return BookmarkError::makeNotFound();
    // Anything that isn't an absolute path can't lead anywhere.
    if (value.typeId() != QMetaType::QString)
        return BookmarkError::makeStale();
    const QString path = value.toString();
    if (!QDir::isAbsolutePath(path) || !isFolder(path))
        return BookmarkError::makeStale();
    return QDir::cleanPath(path);
}

void clear(BookmarkKey key)
{
    QSettings s = settings();
    s.remove(settingsKey(key));
    s.sync();
}

} // namespace BookmarkStore
