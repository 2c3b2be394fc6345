#include "engine/MockEngine.h"

#include "base/AsyncRun.h"
#include "base/CancellationError.h"
#include "timeline/TelemetryTimeline.h"
#include "model/ArchivedEvent.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QThreadPool>
#include <QTimeZone>
#include <algorithm>

using namespace std::chrono_literals;

namespace {

QThreadPool &generalPool() { return *QThreadPool::globalInstance(); }

// The demo's texts carry no zone; they are read as UTC. A text that can't
// be read stands for the present moment.
// Read straight as UTC wall times, never through the local zone, whose
// daylight-saving gaps could swallow an hour.
Date utc(const QString &date, const QString &time, const QString &timeFormat)
{
    const QDateTime dt(QDate::fromString(date, QStringLiteral("yyyy-MM-dd")), QTime::fromString(time, timeFormat),
                       QTimeZone::utc());
    return dt.isValid() ? Date::fromQDateTime(dt) : Date::now();
}

// "2026-07-21T02:11:05": the demo's texts carry no zone and are read as UTC.
// A text that can't be read stands for the present moment.
Date iso(const QString &text)
{
    return utc(text.section(QLatin1Char('T'), 0, 0), text.section(QLatin1Char('T'), 1), QStringLiteral("HH:mm:ss"));
}

// "2026-07-21_02-10-05", in UTC.
Date clipStamp(const QString &stamp)
{
    return utc(stamp.section(QLatin1Char('_'), 0, 0), stamp.section(QLatin1Char('_'), 1), QStringLiteral("HH-mm-ss"));
}

struct ClipException {
    Camera camera;
    qint64 fileSize;
    ClipHealth health;
};

struct DemoRow {
    EventKind kind;
    const char *folderName;
    const char *timestamp;
    std::optional<QString> city;
    std::optional<std::pair<double, double>> place;
    ReasonCategory category;
    std::optional<QString> reasonRaw;
    std::optional<double> accel;
    std::optional<QString> triggerCamera;
    bool thumb;
    bool missingEventJSON;
    std::vector<const char *> stamps;
    std::vector<Camera> cameras;
    std::optional<ClipException> exception;
};

QString suffix(Camera camera)
{
    switch (camera.value()) {
    case Camera::front:
        return QStringLiteral("front");
    case Camera::back:
        return QStringLiteral("back");
    case Camera::leftRepeater:
        return QStringLiteral("left_repeater");
    case Camera::rightRepeater:
        return QStringLiteral("right_repeater");
    default:
        return camera.rawValue();
    }
}

TeslaEvent build(const DemoRow &row)
{
    const QString base = MockEngine::fixtureURL() + QStringLiteral("/TeslaCam/");
    TeslaEvent e;
    e.kind = row.kind;
    e.folderName = QString::fromLatin1(row.folderName);
    switch (row.kind.value()) {
    case EventKind::sentry:
        e.folderURL = base + QStringLiteral("SentryClips/") + e.folderName;
        break;
    case EventKind::saved:
        e.folderURL = base + QStringLiteral("SavedClips/") + e.folderName;
        break;
    case EventKind::recent:
        e.folderURL = base + QStringLiteral("RecentClips");
        break;
    }
    e.timestamp = iso(QString::fromLatin1(row.timestamp));
    e.city = row.city;
    if (row.place) {
        e.latitude = row.place->first;
        e.longitude = row.place->second;
    }
    e.reasonRaw = row.reasonRaw;
    e.reason = PlainReason{row.category, row.reasonRaw, row.accel};
    e.triggerCameraRaw = row.triggerCamera;
    if (row.thumb)
        e.thumbURL = e.folderURL + QStringLiteral("/thumb.png");
    e.missingEventJSON = row.missingEventJSON;
    for (const char *stamp : row.stamps) {
        for (const Camera camera : row.cameras) {
            ClipRef clip;
            clip.url = e.folderURL + QLatin1Char('/') + QString::fromLatin1(stamp) + QLatin1Char('-') + suffix(camera)
                + QStringLiteral(".mp4");
            clip.camera = camera;
            clip.startDate = clipStamp(QString::fromLatin1(stamp));
            clip.fileSize = 3325;
            clip.duration = 60.0;
            clip.health = ClipHealth::ok;
            if (row.exception && row.exception->camera == camera) {
                clip.fileSize = row.exception->fileSize;
                clip.health = row.exception->health;
            }
            e.clips.push_back(clip);
        }
    }
    return e;
}

} // namespace

MockEngine::MockEngine()
    : state_(std::make_shared<State>()),
      executor_(std::make_shared<SerialExecutor>()),
      driveEventStream_(std::make_shared<DriveEventStream>())
{
}

MockEngine::~MockEngine() = default;

QString MockEngine::fixtureURL() { return QDir::homePath() + QStringLiteral("/TeslaCamFixture"); }

const std::vector<TeslaEvent> &MockEngine::demoEvents()
{
    static const std::vector<TeslaEvent> events = [] {
        const std::vector<Camera> four{Camera::front, Camera::back, Camera::leftRepeater, Camera::rightRepeater};
        const std::vector<Camera> two{Camera::front, Camera::back};
        const QString austin = QStringLiteral("Austin");
        const std::vector<DemoRow> rows{
            {EventKind::sentry, "2026-07-21_02-11-05", "2026-07-21T02:11:05", austin, std::pair(30.2672, -97.7431),
             ReasonCategory::approach, QStringLiteral("sentry_aware_object_detection"), std::nullopt,
             QStringLiteral("5"), true, false, {"2026-07-21_02-10-05"}, four,
             ClipException{Camera::leftRepeater, 0, ClipHealth::zeroByte}},
            {EventKind::sentry, "2026-07-22_13-30-44", "2026-07-22T13:30:44", austin, std::pair(30.271, -97.74),
             ReasonCategory::impact, QStringLiteral("sentry_aware_accel_0.4"), 0.4, QStringLiteral("0"), false, false,
             {"2026-07-22_13-29-44"}, four, ClipException{Camera::back, 900, ClipHealth::truncated}},
            {EventKind::sentry, "2026-07-24_08-14-27", "2026-07-24T08:14:27", std::nullopt, std::nullopt,
             ReasonCategory::unknown, std::nullopt, std::nullopt, std::nullopt, false, true, {"2026-07-24_08-13-27"},
             two, std::nullopt},
            {EventKind::saved, "2026-07-18_09-15-32", "2026-07-18T09:15:32", austin, std::pair(30.26, -97.74),
             ReasonCategory::manualSave, QStringLiteral("user_interaction_dashcam_panel_save"), std::nullopt,
             QStringLiteral("0"), true, false, {"2026-07-18_09-14-32"}, four, std::nullopt},
            {EventKind::saved, "2026-07-19_17-42-10", "2026-07-19T17:42:10", QStringLiteral("Round Rock"),
             std::pair(30.51, -97.68), ReasonCategory::honk, QStringLiteral("user_interaction_honk"), std::nullopt,
             QStringLiteral("0"), false, false, {"2026-07-19_17-41-10"}, two,
             ClipException{Camera::back, 3325, ClipHealth::unreadable}},
            {EventKind::recent, "recent_2026-07-20_14-00-00", "2026-07-20T14:04:00", austin,
             std::pair(30.2672, -97.7431), ReasonCategory::recentDrive, std::nullopt, std::nullopt, std::nullopt,
             false, false, {"2026-07-20_14-00-00", "2026-07-20_14-01-00"}, two, std::nullopt},
        };
        std::vector<TeslaEvent> built;
        for (const DemoRow &row : rows)
            built.push_back(build(row));
        return built;
    }();
    return events;
}

QFuture<DriveScan> MockEngine::scanDrive(const QString &root, ScanProgressCallback progress)
{
    return AsyncRun::cancellable(generalPool(), [root, progress](std::stop_token stop) {
        // The demo's own progress texts, translated as reported.
        static const std::array<const char *, 5> phases{
            QT_TRANSLATE_NOOP("MockEngine", "Reading your drive\u2026"),
            QT_TRANSLATE_NOOP("MockEngine", "Reading Sentry events\u2026"),
            QT_TRANSLATE_NOOP("MockEngine", "Reading saved clips\u2026"),
            QT_TRANSLATE_NOOP("MockEngine", "Reading recent driving\u2026"),
            QT_TRANSLATE_NOOP("MockEngine", "Almost done\u2026"),
        };
        const std::vector<TeslaEvent> &demo = demoEvents();
        // Added to, not rebuilt, so the counts climb through 0, 2, 6, 12, 18.
        std::vector<TeslaEvent> running;
        for (int i = 0; i < int(phases.size()); ++i) {
            if (!AsyncRun::sleepFor(220ms, stop))
                throw CancellationError();
            if (i > 0) {
                const size_t take = std::min(size_t(2 * i), demo.size());
                running.insert(running.end(), demo.begin(), demo.begin() + qsizetype(take));
            }
            int clips = 0;
            for (const TeslaEvent &e : running)
                clips += int(e.clips.size());
            if (progress)
                progress(ScanProgress{QCoreApplication::translate("MockEngine", phases[size_t(i)]), 6 * i + 6,
                                      int(running.size()), clips});
        }
        DriveScan scan;
        scan.teslaCamURL = root;
        scan.volumeName = volumeName;
        scan.format = VolumeFormat::exFAT;
        scan.capacityBytes = capacityBytes;
        scan.freeBytes = freeBytes;
        scan.events = demo;
        scan.encryptedClipsPresent = true;
        scan.issues.push_back(ScanIssue{ScanIssue::Kind::unknownCameraSuffix, QStringLiteral("cabin_camera.mp4")});
        scan.scannedAt = Date::now();
        return scan;
    });
}

QFuture<std::optional<DriveScan>> MockEngine::cachedScan(const QString &key)
{
    return executor_->submit([state = state_, key]() -> std::optional<DriveScan> {
        const auto it = state->scanCacheByKey.constFind(key);
        if (it == state->scanCacheByKey.constEnd())
            return std::nullopt;
        return *it;
    });
}

QFuture<void> MockEngine::storeScanInCache(const DriveScan &scan, const QString &key)
{
    return executor_->submit([state = state_, scan, key] { state->scanCacheByKey.insert(key, scan); });
}

QFuture<std::vector<TeslaEvent>> MockEngine::probeAll(const std::vector<TeslaEvent> &events)
{
    return AsyncRun::cancellable(generalPool(), [events](std::stop_token stop) {
        AsyncRun::sleepFor(150ms, stop); // a cut-short wait counts as done
        return events;
    });
}

// No keys in memory: every encrypted clip is locked.
QFuture<QHash<QString, KeyCoverage>> MockEngine::keyCoverage(const std::vector<TeslaEvent> &events)
{
    QHash<QString, KeyCoverage> coverage;
    for (const TeslaEvent &e : events) {
        if (!e.encrypted)
            continue;
        KeyCoverage c;
        for (const ClipRef &clip : e.clips)
            c.locked += clip.health == ClipHealth::encrypted ? 1 : 0;
        coverage.insert(e.id(), c);
    }
    return QtFuture::makeReadyFuture(coverage);
}

void MockEngine::saveBookmark(const QString &, BookmarkKey) {}

BookmarkResult MockEngine::resolveBookmark(BookmarkKey) { return BookmarkError::makeNotFound(); }

QFuture<QString> MockEngine::scanCacheKey(const QString &)
{
    return QtFuture::makeReadyFuture(volumeName + QLatin1Char('|') + QString::number(capacityBytes));
}

// The made-up drive is nowhere: a keep from it can't wait for it to return.
QFuture<std::optional<DriveIdentity::Mounted>> MockEngine::identifyDrive(const QString &)
{
    return QtFuture::makeReadyFuture(std::optional<DriveIdentity::Mounted>());
}

QFuture<std::optional<bool>> MockEngine::writesIntoDrive(const QString &, const QString &)
{
    return QtFuture::makeReadyFuture(std::optional<bool>(false));
}

std::vector<VolumeCandidate> MockEngine::mountedTeslaCamVolumes()
{
    return {VolumeCandidate{fixtureURL(), volumeName, true, capacityBytes, freeBytes}};
}

std::shared_ptr<DriveEventStream> MockEngine::driveEvents() { return driveEventStream_; }

ArchivePlan MockEngine::planArchive(const std::vector<TeslaEvent> &events, const VaultIndex &)
{
    ArchivePlan plan;
    for (const TeslaEvent &e : events)
        plan.items.push_back(ArchivePlan::Item{e, false, {}, {}});
    return plan;
}

QFuture<ArchiveReport> MockEngine::runArchive(const ArchivePlan &plan, const QString &, ArchiveProgressCallback progress,
                                              std::stop_token)
{
    return AsyncRun::onPool(generalPool(), [plan, progress, state = state_, executor = executor_] {
        // No stop token: a cancelled wait is dropped, so the run always ends.
        const std::vector<ArchivePlan::Item> items = plan.newItems();
        const int n = int(items.size());
        std::vector<ArchivedEvent> records;
        for (int i = 0; i < n; ++i) {
            const TeslaEvent &event = items[size_t(i)].event;
            AsyncRun::sleepFor(180ms, {});
            if (progress)
                progress(ArchiveProgress{(i + 1) * bytesPerArchivedEvent, n * bytesPerArchivedEvent, i + 1, n,
                                         event.folderName});
            ArchivedEvent record;
            record.eventID = event.id();
            record.kind = event.kind;
            record.folderName = event.folderName;
            record.timestamp = event.timestamp;
            record.archivedAt = Date::now();
            record.sourceVolume = volumeName;
            record.relativePath = event.kind.rawValue() + QLatin1Char('/') + event.folderName;
            records.push_back(record);
            executor->submit([state, id = event.id()] { state->triage.insert(id, TriageState::kept); });
        }
        executor
            ->submit([state, records] {
                state->demoVaultIndex.events.insert(state->demoVaultIndex.events.end(), records.begin(), records.end());
            })
            .waitForFinished();
        ArchiveReport report;
        report.archivedEvents = records;
        report.skippedDuplicates = int(plan.items.size()) - n;
        report.bytesCopied = n * bytesPerArchivedEvent;
        report.cancelled = false;
        return report;
    });
}

VaultIndex MockEngine::loadVaultIndex(const QString &)
{
    return executor_->submit([state = state_] { return state->demoVaultIndex; }).result();
}

bool MockEngine::removeFromVault(const QString &, const QString &) { return true; }

// Every kept event of the demo Vault checks out at once.
QFuture<VaultVerifier::Result> MockEngine::verifyVault(const QString &, const QStringList &eventIDs,
                                                       VaultVerifier::ProgressCallback, std::stop_token)
{
    return AsyncRun::onPool(generalPool(), [eventIDs, state = state_, executor = executor_] {
        const VaultIndex index = executor->submit([state] { return state->demoVaultIndex; }).result();
        VaultVerifier::Result result;
        for (const ArchivedEvent &e : index.events)
            if (eventIDs.isEmpty() || eventIDs.contains(e.eventID))
                result.events.push_back(EventCheck{e.eventID, Date::now(), int(e.files.size()), {}, {}, {},
                                                   e.expectedFileCount, int(e.files.size())});
        if (eventIDs.isEmpty())
            result.vaultCheckedAt = Date::now();
        return result;
    });
}

VerificationLog MockEngine::loadVerificationLog(const QString &) { return {}; }

QFuture<std::vector<TeslaEvent>> MockEngine::scanVault(const QString &)
{
    return AsyncRun::cancellable(generalPool(), [state = state_, executor = executor_](std::stop_token stop) {
        if (!AsyncRun::sleepFor(150ms, stop))
            throw CancellationError();
        const VaultIndex index = executor->submit([state] { return state->demoVaultIndex; }).result();
        std::vector<TeslaEvent> kept;
        for (const TeslaEvent &e : demoEvents()) {
            const bool inVault = std::any_of(index.events.begin(), index.events.end(),
                                             [&](const ArchivedEvent &a) { return a.eventID == e.id(); });
            if (inVault)
                kept.push_back(e);
        }
        return kept;
    });
}

TriageState MockEngine::triageState(const QString &eventID)
{
    return executor_->submit([state = state_, eventID] { return state->triage.value(eventID, TriageState::new_); })
        .result();
}

void MockEngine::setTriageState(TriageState triage, const QString &eventID)
{
    executor_->submit([state = state_, triage, eventID] { state->triage.insert(eventID, triage); })
        .waitForFinished();
}

QFuture<EngineFacade::TriageStates> MockEngine::loadAllTriageStates()
{
    return executor_->submit([state = state_] { return state->triage; });
}

QFuture<EventTelemetry> MockEngine::loadTelemetry(const TeslaEvent &event, Camera camera)
{
    return AsyncRun::cancellable(generalPool(), [event, camera](std::stop_token stop) {
        if (!AsyncRun::sleepFor(100ms, stop))
            throw CancellationError();
        // Parked Sentry footage carries no records; driving footage a drive
        // north from the event's place, speeding up for a minute and then
        // slowing down.
        std::vector<TelemetryTrack> tracks;
        const double fps = 10.0;
        const double lat0 = event.latitude.value_or(30.2672);
        const double lon0 = event.longitude.value_or(-97.7431);
        for (const ClipRef &clip : event.clips) {
            if (clip.camera != camera || !clip.health.isPlayable())
                continue;
            std::vector<TelemetryTrack::Frame> frames;
            const double clipStart = event.timelineOffset(clip);
            for (int i = 0; i < int(60 * fps); ++i) {
                TelemetryTrack::Frame frame{i / fps, std::nullopt};
                if (event.kind != EventKind::sentry) {
                    const double t = clipStart + i / fps;
                    TelemetryRecord r;
                    r.version = 1;
                    r.gear = TelemetryRecord::Gear::drive;
                    r.frameSequenceNumber = quint64(t * fps);
                    r.speed = float(t < 60 ? t / 3.0 : std::max(0.0, 20.0 - (t - 60) / 3.0));
                    r.brakeApplied = t >= 60;
                    r.autopilot = t >= 20 && t < 50 ? TelemetryRecord::AutopilotState::autosteer
                                                    : TelemetryRecord::AutopilotState::none;
                    r.latitude = lat0 + t * 0.0001;
                    r.longitude = lon0;
                    frame.record = r;
                }
                frames.push_back(frame);
            }
            tracks.push_back(TelemetryTrack::make(clip, 60.0, std::move(frames)));
        }
        return TelemetryTimeline::place(event, camera, std::move(tracks));
    });
}

QFuture<EventActivity> MockEngine::loadActivity(const TeslaEvent &event)
{
    return AsyncRun::cancellable(generalPool(), [event](std::stop_token stop) {
        if (!AsyncRun::sleepFor(50ms, stop))
            throw CancellationError();
        // A still scene on every camera; on a Sentry event someone passes
        // the left side camera for five seconds of its first minute.
        std::vector<std::pair<ClipRef, ClipActivity>> clips;
        bool passed = false;
        for (const ClipRef &clip : event.clips) {
            if (!clip.health.isPlayable())
                continue;
            ClipActivity activity{60.0, std::vector<float>(60, 2.0f)};
            if (event.kind == EventKind::sentry && clip.camera == Camera::leftRepeater && !passed) {
                std::fill(activity.changePerSecond.begin() + 20, activity.changePerSecond.begin() + 25, 40.0f);
                passed = true;
            }
            clips.emplace_back(clip, std::move(activity));
        }
        return EventActivity::make(event, clips);
    });
}

QFuture<void> MockEngine::exportFootage(Camera, const TeslaEvent &, std::optional<SecondsRange>, const QString &,
                                        FractionCallback progress)
{
    return AsyncRun::cancellable(generalPool(), [progress](std::stop_token stop) {
        for (int step = 1; step <= 10; ++step) {
            if (!AsyncRun::sleepFor(80ms, stop))
                throw CancellationError();
            if (progress)
                progress(step / 10.0);
        }
    });
}

QFuture<void> MockEngine::makeReport(const TeslaEvent &, const IncidentReport::Options &, const QString &,
                                     FractionCallback progress)
{
    return exportFootage(Camera::front, TeslaEvent(), std::nullopt, QString(), std::move(progress));
}

QFuture<void> MockEngine::exportCombined(const TeslaEvent &, const CombinedExportOptions &, const QString &,
                                         CombinedExportProgressCallback progress)
{
    return AsyncRun::cancellable(generalPool(), [progress](std::stop_token stop) {
        CombinedExportProgress state;
        state.framesTotal = 360;
        for (int step = 1; step <= 10; ++step) {
            if (!AsyncRun::sleepFor(80ms, stop))
                throw CancellationError();
            state.framesDone = step * 36;
            state.framesPerSecond = 450.0;
            state.secondsLeft = double(state.framesTotal - state.framesDone) / state.framesPerSecond;
            state.complete = step == 10;
            if (progress)
                progress(state);
        }
    });
}
