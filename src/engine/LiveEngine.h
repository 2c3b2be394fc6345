#pragma once

#include "engine/EngineFacade.h"
#include "engine/ScanCache.h"
#include "engine/TriageStore.h"
#include "moments/ActivityCache.h"

#include <memory>

class DriveWatcher;

// The engine over real files and volumes: every operation is one step to
// the scanner, prober, archive engine, Vault browser, stores, drive watcher
// and exporter. It decides nothing beyond the fixed arguments it supplies.
// Not final: a test may put a drive of its own making in front of the rest.
class LiveEngine : public EngineFacade {
public:
    static constexpr std::chrono::milliseconds probeTimeoutPerClip{10000};
    static constexpr int probeConcurrencyCap = 4;

    // The stores must outlive the engine; the program's own by default.
    explicit LiveEngine(ScanCache &scanCache = ScanCache::shared(), TriageStore &triage = TriageStore::shared());
    ~LiveEngine() override;

    QFuture<DriveScan> scanDrive(const QString &root, ScanProgressCallback progress) override;
    QFuture<std::optional<DriveScan>> cachedScan(const QString &key) override;
    QFuture<void> storeScanInCache(const DriveScan &scan, const QString &key) override;
    QFuture<std::vector<TeslaEvent>> probeAll(const std::vector<TeslaEvent> &events) override;
    QFuture<QHash<QString, KeyCoverage>> keyCoverage(const std::vector<TeslaEvent> &events) override;
    void saveBookmark(const QString &url, BookmarkKey key) override;
    BookmarkResult resolveBookmark(BookmarkKey key) override;
    QFuture<QString> scanCacheKey(const QString &root) override;
    QFuture<std::optional<DriveIdentity::Mounted>> identifyDrive(const QString &folder) override;
    QFuture<std::optional<bool>> writesIntoDrive(const QString &driveRoot, const QString &destination) override;
    std::vector<VolumeCandidate> mountedTeslaCamVolumes() override;
    std::shared_ptr<DriveEventStream> driveEvents() override;
    ArchivePlan planArchive(const std::vector<TeslaEvent> &events, const VaultIndex &vault) override;
    QFuture<ArchiveReport> runArchive(const ArchivePlan &plan, const QString &vaultURL,
                                      ArchiveProgressCallback progress, std::stop_token stop = {}) override;
    VaultIndex loadVaultIndex(const QString &vaultURL) override;
    bool removeFromVault(const QString &eventID, const QString &vaultURL) override;
    QFuture<std::vector<TeslaEvent>> scanVault(const QString &url) override;
    QFuture<VaultVerifier::Result> verifyVault(const QString &vaultURL, const QStringList &eventIDs,
                                               VaultVerifier::ProgressCallback progress,
                                               std::stop_token stop = {}) override;
    VerificationLog loadVerificationLog(const QString &vaultURL) override;
    // Always `new`: the true marks come from loadAllTriageStates(), and
    // callers keep them in memory.
    TriageState triageState(const QString &eventID) override;
    // Fire and forget: the mark reaches the store and the disk after the
    // call returns, and a failure to keep it is never reported.
    void setTriageState(TriageState state, const QString &eventID) override;
    QFuture<TriageStates> loadAllTriageStates() override;
    QFuture<EventTelemetry> loadTelemetry(const TeslaEvent &event, Camera camera) override;
    QFuture<EventActivity> loadActivity(const TeslaEvent &event) override;
    QFuture<void> exportFootage(Camera camera, const TeslaEvent &event, std::optional<SecondsRange> range,
                                const QString &to, FractionCallback progress) override;
    QFuture<void> makeReport(const TeslaEvent &event, const IncidentReport::Options &options, const QString &to,
                             FractionCallback progress) override;
    QFuture<void> exportCombined(const TeslaEvent &event, const CombinedExportOptions &options, const QString &to,
                                 CombinedExportProgressCallback progress) override;

    bool flag(const QString &key, bool fallback) override;
    QStringList list(const QString &key) override;
    void setList(const QString &key, const QStringList &value) override;
    void setFlag(const QString &key, bool value) override;

private:
    ScanCache &scanCache_;
    TriageStore &triage_;
    std::unique_ptr<DriveWatcher> driveWatcher_;
    // Shared by every load, so its file is read once.
    std::shared_ptr<ActivityCache> activityCache_;
};
