#pragma once

#include "base/SerialExecutor.h"
#include "model/DriveScan.h"

#include <QFuture>
#include <QHash>
#include <QString>
#include <optional>

// The last scan of each drive, kept on this computer so that a returning
// drive shows its events at once. Decides nothing about freshness.
//
// All state lives on the cache's own serial executor; callers get futures.
// The file is read once, lazily, and rewritten whole after every change.
// Nothing here ever reports a failure: a bad file reads as empty.
class ScanCache {
public:
    static constexpr const char *fileName = "scan-cache.json";

    // No path: "scan-cache.json" in the per-user data folder.
    explicit ScanCache(std::optional<QString> filePath = std::nullopt);
    ~ScanCache();
    ScanCache(const ScanCache &) = delete;
    ScanCache &operator=(const ScanCache &) = delete;

    // The one instance the program uses, on the default file.
    static ScanCache &shared();

    // "<volume name>|<capacity in bytes>", "-1" for an unknown capacity.
    static QString key(const QString &volumeName, std::optional<qint64> capacityBytes);

    const QString &filePath() const { return filePath_; }

    QFuture<std::optional<DriveScan>> cached(const QString &key);
    QFuture<void> store(const DriveScan &scan, const QString &key);
    QFuture<void> invalidate(const QString &key);

private:
    // Executor-only.
    void loadOnce();
    void write() const;

    const QString filePath_;
    QHash<QString, DriveScan> entriesByKey_;
    bool loaded_ = false;
    SerialExecutor executor_; // last: drained before the state above goes
};
