#include "moments/ActivityCache.h"

#include "model/AtomicFile.h"

#include <QDataStream>
#include <QFile>
#include <algorithm>

namespace {
// Changed whenever what is measured changes, so old figures are dropped.
constexpr quint32 magic = 0x4b484163; // "KHAc"
constexpr quint32 version = 2;
} // namespace

ActivityCache::ActivityCache(QString path) : path_(std::move(path)) {}

void ActivityCache::loadOnce()
{
    if (loaded_)
        return;
    loaded_ = true;
    if (path_.isEmpty())
        return;
    QFile file(path_);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QDataStream in(&file);
    in.setVersion(QDataStream::Qt_6_4);
    in.setFloatingPointPrecision(QDataStream::SinglePrecision);
    quint32 m = 0, v = 0;
    qint32 count = 0;
    in >> m >> v >> count;
    if (m != magic || v != version || count < 0 || count > capacity)
        return;
    QHash<QString, Entry> read;
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        QString path;
        Entry entry;
        qint32 seconds = 0;
        in >> path >> entry.size >> entry.modified >> entry.used >> entry.activity.duration >> seconds;
        if (seconds < 0 || seconds > 24 * 3600)
            return;
        entry.activity.changePerSecond.resize(size_t(seconds));
        for (float &b : entry.activity.changePerSecond)
            in >> b;
        clock_ = std::max(clock_, entry.used);
        read.insert(path, std::move(entry));
    }
    // A torn or foreign file counts as none.
    if (in.status() == QDataStream::Ok)
        entries_ = std::move(read);
}

std::optional<ClipActivity> ActivityCache::find(const Key &key)
{
    QMutexLocker lock(&mutex_);
    loadOnce();
    auto it = entries_.find(key.path);
    if (it == entries_.end() || it->size != key.size || it->modified != key.modified)
        return std::nullopt;
    it->used = ++clock_;
    return it->activity;
}

void ActivityCache::insert(const Key &key, const ClipActivity &activity)
{
    QMutexLocker lock(&mutex_);
    loadOnce();
    entries_.insert(key.path, Entry{key.size, key.modified, ++clock_, activity});
    dirty_ = true;
    if (entries_.size() <= capacity)
        return;
    // Drop the tenth used longest ago, so this runs seldom.
    std::vector<quint64> uses;
    uses.reserve(size_t(entries_.size()));
    for (const Entry &e : std::as_const(entries_))
        uses.push_back(e.used);
    const auto cut = uses.begin() + capacity / 10;
    std::nth_element(uses.begin(), cut, uses.end());
    const quint64 oldest = *cut;
    entries_.removeIf([oldest](const auto &entry) { return entry.value().used <= oldest; });
}

void ActivityCache::save()
{
    QMutexLocker lock(&mutex_);
    if (!dirty_ || path_.isEmpty())
        return;
    QByteArray data;
    QDataStream out(&data, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_6_4);
    out.setFloatingPointPrecision(QDataStream::SinglePrecision);
    out << magic << version << qint32(entries_.size());
    for (auto it = entries_.cbegin(); it != entries_.cend(); ++it) {
        const Entry &e = it.value();
        out << it.key() << e.size << e.modified << e.used << e.activity.duration
            << qint32(e.activity.changePerSecond.size());
        for (float b : e.activity.changePerSecond)
            out << b;
    }
    if (AtomicFile::write(path_, data))
        dirty_ = false;
}

int ActivityCache::size()
{
    QMutexLocker lock(&mutex_);
    loadOnce();
    return int(entries_.size());
}
