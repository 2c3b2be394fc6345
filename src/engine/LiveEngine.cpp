#include "engine/LiveEngine.h"

#include "drive/ClipProber.h"
#include "drive/TeslaCamParser.h"
#include "base/AsyncRun.h"
#include "base/IOWatchdog.h"
#include "base/LogCategories.h"
#include "drive/DriveBoundary.h"
#include "engine/BookmarkStore.h"
#include "engine/DriveWatcher.h"
#include "base/EnginePools.h"
#include "export/CombinedExport.h"
#include "export/Exporter.h"
#include "engine/StoreFile.h"
#include "moments/ActivityReader.h"
#include "timeline/TelemetryTimeline.h"
#include "vault/ArchiveEngine.h"
#include "vault/VaultBrowser.h"

#include <QFileInfo>
#include <QSettings>
#include <QStorageInfo>

// Building the watcher starts no observation; that waits for driveEvents().
LiveEngine::LiveEngine(ScanCache &scanCache, TriageStore &triage)
    : scanCache_(scanCache), triage_(triage), driveWatcher_(std::make_unique<DriveWatcher>()),
      activityCache_(std::make_shared<ActivityCache>(StoreFile::defaultPath(QStringLiteral("activity-cache.bin"))))
{
}

LiveEngine::~LiveEngine() = default;

QFuture<DriveScan> LiveEngine::scanDrive(const QString &root, ScanProgressCallback progress)
{
    return AsyncRun::onPool(EnginePools::driveRuns(), [root, progress] { return TeslaCamParser::scan(root, progress); });
}

QFuture<std::optional<DriveScan>> LiveEngine::cachedScan(const QString &key)
{
    return scanCache_.cached(key);
}

QFuture<void> LiveEngine::storeScanInCache(const DriveScan &scan, const QString &key)
{
    return scanCache_.store(scan, key);
}

QFuture<std::vector<TeslaEvent>> LiveEngine::probeAll(const std::vector<TeslaEvent> &events)
{
    return AsyncRun::cancellable(EnginePools::driveRuns(), [events](std::stop_token stop) {
        return ClipProber::probeAll(events, probeTimeoutPerClip, probeConcurrencyCap, {}, stop);
    });
}

QFuture<QHash<QString, KeyCoverage>> LiveEngine::keyCoverage(const std::vector<TeslaEvent> &events)
{
    return AsyncRun::cancellable(EnginePools::media(),
                                 [events](std::stop_token stop) { return KeyCoverage::of(events, stop); });
}

void LiveEngine::saveBookmark(const QString &url, BookmarkKey key) { BookmarkStore::save(url, key); }

BookmarkResult LiveEngine::resolveBookmark(BookmarkKey key) { return BookmarkStore::resolve(key); }

QFuture<QString> LiveEngine::scanCacheKey(const QString &root)
{
    return AsyncRun::onPool(EnginePools::driveRuns(), [root] {
        QStorageInfo info(root);
        QString volume = info.isValid() ? info.rootPath() : root;
        if (volume.isEmpty())
            volume = root;
        QString name = info.isValid() ? info.name() : QString();
        if (name.isEmpty()) {
            while (volume.size() > 1 && volume.endsWith(QLatin1Char('/')))
                volume.chop(1);
            name = QFileInfo(volume).fileName();
        }
        const qint64 capacity = info.isValid() && info.bytesTotal() > 0 ? info.bytesTotal() : -1;
        return name + QLatin1Char('|') + QString::number(capacity);
    });
}

QFuture<std::optional<DriveIdentity::Mounted>> LiveEngine::identifyDrive(const QString &folder)
{
    return AsyncRun::onPool(EnginePools::quick(), [folder]() -> std::optional<DriveIdentity::Mounted> {
        try {
            // A drive just plugged in, or one failing, may be slow to answer.
            return IOWatchdog::run(std::chrono::seconds(3), [folder](std::stop_token) {
                return QFileInfo(folder).isDir() ? DriveIdentity::of(folder) : std::nullopt;
            });
        } catch (...) {
            KEELHOLD_LOG_CAUGHT(lcEngine);
            return std::nullopt;
        }
    });
}

QFuture<std::optional<bool>> LiveEngine::writesIntoDrive(const QString &driveRoot, const QString &destination)
{
    return AsyncRun::onPool(EnginePools::quick(),
                            [driveRoot, destination] { return DriveBoundary::writesInto(driveRoot, destination); });
}

std::vector<VolumeCandidate> LiveEngine::mountedTeslaCamVolumes() { return DriveWatcher::mountedTeslaCamVolumes(); }

std::shared_ptr<DriveEventStream> LiveEngine::driveEvents() { return driveWatcher_->events(); }

ArchivePlan LiveEngine::planArchive(const std::vector<TeslaEvent> &events, const VaultIndex &vault)
{
    return ArchiveEngine::plan(events, vault);
}

QFuture<ArchiveReport> LiveEngine::runArchive(const ArchivePlan &plan, const QString &vaultURL,
                                              ArchiveProgressCallback progress, std::stop_token stop)
{
    return AsyncRun::cancellable(
        EnginePools::driveRuns(),
        [plan, vaultURL, progress](std::stop_token token) {
            return ArchiveEngine::run(plan, vaultURL, progress, ArchiveEngine::defaultTimeoutPerFile, token);
        },
        stop);
}

VaultIndex LiveEngine::loadVaultIndex(const QString &vaultURL) { return VaultIndex::loadOrEmpty(vaultURL); }

bool LiveEngine::removeFromVault(const QString &eventID, const QString &vaultURL)
{
    return VaultIndex::removeEvent(eventID, vaultURL);
}

QFuture<std::vector<TeslaEvent>> LiveEngine::scanVault(const QString &url)
{
    return AsyncRun::onPool(EnginePools::quick(), [url] { return VaultBrowser::scanVault(url); });
}

QFuture<VaultVerifier::Result> LiveEngine::verifyVault(const QString &vaultURL, const QStringList &eventIDs,
                                                       VaultVerifier::ProgressCallback progress, std::stop_token stop)
{
    return AsyncRun::cancellable(
        EnginePools::quick(),
        [vaultURL, eventIDs, progress](std::stop_token token) {
            return VaultVerifier::verify(vaultURL, eventIDs, progress, token);
        },
        stop);
}

VerificationLog LiveEngine::loadVerificationLog(const QString &vaultURL) { return VerificationLog::load(vaultURL); }

TriageState LiveEngine::triageState(const QString &) { return TriageState::new_; }

void LiveEngine::setTriageState(TriageState state, const QString &eventID)
{
    triage_.set(state, eventID);
}

QFuture<EngineFacade::TriageStates> LiveEngine::loadAllTriageStates() { return triage_.allStates(); }

QFuture<EventTelemetry> LiveEngine::loadTelemetry(const TeslaEvent &event, Camera camera)
{
    return AsyncRun::cancellable(EnginePools::driveRuns(), [event, camera](std::stop_token stop) {
        return TelemetryTimeline::load(event, camera, stop);
    });
}

QFuture<EventActivity> LiveEngine::loadActivity(const TeslaEvent &event)
{
    return AsyncRun::cancellable(EnginePools::driveRuns(), [event, cache = activityCache_](std::stop_token stop) {
        ActivityReader::Options options;
        options.cache = cache.get();
        // Even for the event on screen: its first pictures come first.
        options.background = true;
        return ActivityReader::load(event, options, stop);
    });
}

QFuture<void> LiveEngine::exportFootage(Camera camera, const TeslaEvent &event, std::optional<SecondsRange> range,
                                        const QString &to, FractionCallback progress)
{
    return AsyncRun::cancellable(EnginePools::driveRuns(), [camera, event, range, to, progress](std::stop_token stop) {
        Exporter::exportFootage(camera, event, range, to, progress, stop);
    });
}

QFuture<void> LiveEngine::exportCombined(const TeslaEvent &event, const CombinedExportOptions &options,
                                         const QString &to, CombinedExportProgressCallback progress)
{
    return AsyncRun::cancellable(EnginePools::driveRuns(), [event, options, to, progress](std::stop_token stop) {
        CombinedExport::exportMovie(event, options, to, progress, stop);
    });
}

QFuture<void> LiveEngine::makeReport(const TeslaEvent &event, const IncidentReport::Options &options,
                                     const QString &to, FractionCallback progress)
{
    return AsyncRun::cancellable(EnginePools::driveRuns(), [event, options, to, progress](std::stop_token stop) {
        IncidentReport::Options running = options;
        running.stop = stop;
        running.progress = progress;
        IncidentReport::make(event, to, running);
    });
}

bool LiveEngine::flag(const QString &key, bool fallback)
{
    return QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold")).value(key, fallback).toBool();
}

void LiveEngine::setFlag(const QString &key, bool value)
{
    QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold")).setValue(key, value);
}

QStringList LiveEngine::list(const QString &key)
{
    return QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold")).value(key).toStringList();
}

void LiveEngine::setList(const QString &key, const QStringList &value)
{
    QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold")).setValue(key, value);
}
