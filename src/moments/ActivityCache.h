#pragma once

// Each clip's activity, kept in a file of its own between runs, so an event
// opened again (or a drive plugged in again) costs nothing. A clip is known
// by its path, size and modification time: a clip the car rewrote is read
// anew. Losing the file loses time, never anything else, so every failure
// here is quiet. Safe to use from any thread.

#include "moments/ClipActivity.h"

#include <QHash>
#include <QMutex>
#include <QString>
#include <optional>

class ActivityCache {
public:
    struct Key {
        QString path;
        qint64 size = 0;
        qint64 modified = 0; // ms since 1970
        bool operator==(const Key &) const = default;
    };

    // Enough for a few thousand events of six cameras; past it the clips
    // used longest ago go first.
    static constexpr int capacity = 40000;

    // Empty path: nothing is read or written, the cache lives in memory.
    explicit ActivityCache(QString path);
    ActivityCache(const ActivityCache &) = delete;
    ActivityCache &operator=(const ActivityCache &) = delete;

    std::optional<ClipActivity> find(const Key &key);
    void insert(const Key &key, const ClipActivity &activity);
    // Writes what changed since the last save, at once or not at all.
    void save();
    int size();

private:
    struct Entry {
        qint64 size = 0;
        qint64 modified = 0;
        quint64 used = 0;
        ClipActivity activity;
    };
    void loadOnce();

    const QString path_;
    QMutex mutex_;
    bool loaded_ = false;
    bool dirty_ = false;
    quint64 clock_ = 0;
    QHash<QString, Entry> entries_;
};
