#include "engine/ScanCache.h"

#include "engine/StoreFile.h"
#include "model/JsonCoding.h"

ScanCache::ScanCache(std::optional<QString> filePath)
    : filePath_(filePath ? *filePath : StoreFile::defaultPath(QLatin1String(fileName)))
{
}

ScanCache::~ScanCache() { executor_.waitForDone(); }

ScanCache &ScanCache::shared()
{
    static ScanCache instance;
    return instance;
}

QString ScanCache::key(const QString &volumeName, std::optional<qint64> capacityBytes)
{
    return volumeName + QLatin1Char('|') + QString::number(capacityBytes.value_or(-1));
}

QFuture<std::optional<DriveScan>> ScanCache::cached(const QString &key)
{
    return executor_.submit([this, key]() -> std::optional<DriveScan> {
        loadOnce();
        const auto it = entriesByKey_.constFind(key);
        if (it == entriesByKey_.constEnd())
            return std::nullopt;
        return *it;
    });
}

QFuture<void> ScanCache::store(const DriveScan &scan, const QString &key)
{
    return executor_.submit([this, scan, key] {
        loadOnce();
        entriesByKey_.insert(key, scan);
        write();
    });
}

QFuture<void> ScanCache::invalidate(const QString &key)
{
    return executor_.submit([this, key] {
        loadOnce();
        entriesByKey_.remove(key);
        write();
    });
}

void ScanCache::loadOnce()
{
    if (loaded_)
        return;
    loaded_ = true;
    const std::optional<QByteArray> data = StoreFile::read(filePath_);
    if (!data)
        return;
    try {
        const QJsonObject root = JsonCoding::parseObject(*data);
        QHash<QString, DriveScan> entries;
        for (auto it = root.constBegin(); it != root.constEnd(); ++it)
            entries.insert(it.key(), DriveScan::fromJson(it.value()));
        entriesByKey_ = std::move(entries);
    } catch (const std::exception &) {
        // A damaged cache is an empty one; the next store replaces it.
    }
}

void ScanCache::write() const
{
    QJsonObject root;
    for (auto it = entriesByKey_.constBegin(); it != entriesByKey_.constEnd(); ++it)
        root.insert(it.key(), it.value().toJson());
    StoreFile::writeAtomically(filePath_, JsonCoding::toCompactJson(root));
}
