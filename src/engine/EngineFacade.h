#pragma once

#include "engine/DriveEventStream.h"
#include "crypt/KeyCoverage.h"
#include "export/CombinedExportOptions.h"
#include "export/CombinedExportProgress.h"
#include "model/ArchiveProgress.h"
#include "model/ArchiveReport.h"
#include "model/BookmarkError.h"
#include "model/BookmarkKey.h"
#include "model/Camera.h"
#include "model/DriveScan.h"
#include "model/EventTelemetry.h"
#include "model/ScanProgress.h"
#include "model/TeslaEvent.h"
#include "model/TriageState.h"
#include "model/VolumeCandidate.h"
#include "vault/ArchivePlan.h"
#include "vault/VaultIndex.h"
#include "vault/VaultVerifier.h"
#include "vault/VerificationLog.h"

#include <QFuture>
#include <QHash>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <utility>
#include <vector>

// The one interface between the application state and everything that
// touches a disk, a volume or the settings. Callers never learn which
// implementation they hold.
//
// An operation that returns a QFuture works off the caller's thread; its
// errors travel in the future as exceptions of their own type, and
// cancelling the future asks the work to stop. Every other operation runs
// on the caller's thread. Progress callbacks come from the thread the work
// runs on: the receiver moves to its own thread itself. Paths are absolute.
class EngineFacade {
public:
    using TriageStates = QHash<QString, TriageState>;
    using SecondsRange = std::pair<double, double>; // closed, in seconds
    using FractionCallback = std::function<void(double)>;

    virtual ~EngineFacade() = default;

    // root: the TeslaCam folder itself. Raises the scanner's errors.
    virtual QFuture<DriveScan> scanDrive(const QString &root, ScanProgressCallback progress) = 0;
    virtual QFuture<std::optional<DriveScan>> cachedScan(const QString &key) = 0;
    virtual QFuture<void> storeScanInCache(const DriveScan &scan, const QString &key) = 0;
    // The events with clip health (and durations) filled in.
    virtual QFuture<std::vector<TeslaEvent>> probeAll(const std::vector<TeslaEvent> &events) = 0;
    // For the encrypted events among these, by id: which clips can be
    // watched here with the keys held now.
    virtual QFuture<QHash<QString, KeyCoverage>> keyCoverage(const std::vector<TeslaEvent> &events) = 0;

    // Raises when the folder can't be remembered.
    virtual void saveBookmark(const QString &url, BookmarkKey key) = 0;
    virtual BookmarkResult resolveBookmark(BookmarkKey key) = 0;

    virtual std::vector<VolumeCandidate> mountedTeslaCamVolumes() = 0;
    // Every call gives the same stream; read it on the main thread.
    virtual std::shared_ptr<DriveEventStream> driveEvents() = 0;

    virtual ArchivePlan planArchive(const std::vector<TeslaEvent> &events, const VaultIndex &vault) = 0;
    // Never fails as a whole: every failure is inside the report. Cancelling
    // the future stops the run but drops its report; a stop asked through
    // `stop` ends the run just the same and still delivers the report, with
    // `cancelled` set.
    virtual QFuture<ArchiveReport> runArchive(const ArchivePlan &plan, const QString &vaultURL,
                                              ArchiveProgressCallback progress, std::stop_token stop = {}) = 0;
    // Forgiving: anything unreadable is an empty index.
    virtual VaultIndex loadVaultIndex(const QString &vaultURL) = 0;
    // Whether an event was removed. Raises when the index or the folder
    // can't be changed.
    virtual bool removeFromVault(const QString &eventID, const QString &vaultURL) = 0;
    // Raises when the Vault folder can't be read.
    virtual QFuture<std::vector<TeslaEvent>> scanVault(const QString &url) = 0;
    // Re-reads the kept files of the events named (every kept event when
    // none are) against their records, and notes what it found in the
    // Vault's verification log. A stop ends it early with what was done.
    // Raises when the index can't be read.
    virtual QFuture<VaultVerifier::Result> verifyVault(const QString &vaultURL, const QStringList &eventIDs,
                                                       VaultVerifier::ProgressCallback progress,
                                                       std::stop_token stop = {}) = 0;
    // Forgiving: anything unreadable is an empty log.
    virtual VerificationLog loadVerificationLog(const QString &vaultURL) = 0;

    virtual TriageState triageState(const QString &eventID) = 0;
    virtual void setTriageState(TriageState state, const QString &eventID) = 0;
    virtual QFuture<TriageStates> loadAllTriageStates() = 0;

    // The driving data one camera's clips of an event carry, on the event's
    // time axis; without records when the clips have none. For drive and
    // Vault events alike; a clip that can't be read is left out.
    virtual QFuture<EventTelemetry> loadTelemetry(const TeslaEvent &event, Camera camera) = 0;

    // One camera of one event as one movie file at `to`; progress from 0 to 1.
    virtual QFuture<void> exportFootage(Camera camera, const TeslaEvent &event, std::optional<SecondsRange> range,
                                        const QString &to, FractionCallback progress) = 0;
    // The event's cameras put together into one new movie at `to`, with
    // what the options draw over them. Errors: CancellationError, or
    // Exporter::ExportError; a stopped or failed one leaves no file.
    virtual QFuture<void> exportCombined(const TeslaEvent &event, const CombinedExportOptions &options,
                                         const QString &to, CombinedExportProgressCallback progress) = 0;
};
