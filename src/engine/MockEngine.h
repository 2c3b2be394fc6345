#pragma once

#include "engine/EngineFacade.h"
#include "base/SerialExecutor.h"

#include <QHash>
#include <memory>

// An engine that touches no drive and no file: six made-up events, simulated
// delays, a Vault and triage marks in memory. With it the whole interface
// can be driven with nothing attached. The application itself never builds
// it; its sample mode runs the live engine over real files.
//
// The in-memory state is reached only through the engine's own serial
// executor, so a run on the pool and a caller on the main thread never touch
// it at once.
class MockEngine final : public EngineFacade {
public:
    static inline const QString volumeName = QStringLiteral("UNTITLED");
    static constexpr qint64 capacityBytes = 128000000000;
    static constexpr qint64 freeBytes = 21000000000;
    static constexpr qint64 bytesPerArchivedEvent = 4000000;

    MockEngine();
    ~MockEngine() override;

    // The six demo events, built once.
    static const std::vector<TeslaEvent> &demoEvents();
    // The made-up drive the demo events lie on: "TeslaCamFixture" in the
    // home folder. Nothing here reads it.
    static QString fixtureURL();

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
    TriageState triageState(const QString &eventID) override;
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

    bool flag(const QString &key, bool fallback) override { return flags_.value(key, fallback); }
    void setFlag(const QString &key, bool value) override { flags_.insert(key, value); }
    QStringList list(const QString &key) override { return lists_.value(key); }
    void setList(const QString &key, const QStringList &value) override { lists_.insert(key, value); }

private:
    struct State {
        TriageStates triage;
        VaultIndex demoVaultIndex;
        QHash<QString, DriveScan> scanCacheByKey;
    };
    // Shared with work still running on the pool after the engine is gone.
    std::shared_ptr<State> state_;
    std::shared_ptr<SerialExecutor> executor_;
    // Nothing is ever sent on it.
    std::shared_ptr<DriveEventStream> driveEventStream_;
    QHash<QString, bool> flags_; // main thread only
    QHash<QString, QStringList> lists_;
};
