#include "ReportContent.h"

#include "base/CancellationError.h"
#include "base/IOWatchdog.h"
#include "base/ReadOnlyFs.h"
#include "drive/ClipProber.h"
#include "report/CameraStill.h"
#include "timeline/EventTimeline.h"
#include "timeline/TelemetryTimeline.h"
#include "vault/Sha256.h"
#include "vault/VaultIndex.h"
#include "vault/VerificationLog.h"

#include <QDateTime>
#include <QDir>
#include <algorithm>
#include <cmath>
#include <memory>
#include <unistd.h>

namespace {

// A slow stick reads a few MB a second; a clip gets its read limit plus
// that long before it counts as not answering.
std::chrono::milliseconds hashLimit(qint64 bytes, std::chrono::milliseconds readLimit)
{
    return readLimit + std::chrono::milliseconds(bytes / 2000);
}

std::optional<QString> hashFile(const QString &path, qint64 size, std::chrono::milliseconds readLimit,
                                std::stop_token stop, QString *problem)
{
    try {
        return IOWatchdog::run(
            hashLimit(size, readLimit),
            [path](std::stop_token token) -> std::optional<QString> {
                const int fd = ReadOnlyFs::openRead(path);
                if (fd < 0)
                    return std::nullopt;
                const auto closeFd = qScopeGuard([fd] { ::close(fd); });
                Sha256 hash;
                const size_t blockSize = 1 << 20;
                const std::unique_ptr<char[]> block(new char[blockSize]);
                for (;;) {
                    if (token.stop_requested())
                        throw CancellationError();
                    const ssize_t n = ::read(fd, block.get(), blockSize);
                    if (n < 0 && errno == EINTR)
                        continue;
                    if (n < 0)
                        return std::nullopt;
                    if (n == 0)
                        break;
                    hash.update(block.get(), size_t(n));
                }
                return hash.finishHex();
            },
            stop);
    } catch (const IOWatchdog::TimedOut &) {
        *problem = ReportContent::tr("The drive didn't answer while this file was read.");
        return std::nullopt;
    }
}

// The picture each camera shows at the moment, as the player lays its clips.
ReportContent::Still stillOf(const EventTimeline::CameraTrack &track, double moment,
                             std::chrono::milliseconds readLimit, std::stop_token stop)
{
    ReportContent::Still still{track.camera, std::nullopt, {}};
    if (track.locked) {
        //: Stands in for a camera's picture when its footage is encrypted and no key is held
        still.missingReason = ReportContent::tr("Locked — unlock to include this camera");
        return still;
    }
    if (!track.composition || track.composition->tracks().empty()) {
        still.missingReason = track.placeholderReason.value_or(EventTimeline::noFootageReasonText());
        return still;
    }
    for (const Composition::Segment &segment : track.composition->track(0).segments) {
        const double start = segment.timelineStart.seconds();
        if (moment < start || moment >= segment.timelineEnd().seconds())
            continue;
        try {
            still.picture = CameraStill::grab(segment.file, segment.sourceStart.seconds() + moment - start,
                                              readLimit, stop);
        } catch (const IOWatchdog::TimedOut &) {
        }
        if (!still.picture)
            still.missingReason = ReportContent::tr("This camera's picture at the moment couldn't be read.");
        return still;
    }
    still.missingReason = EventTimeline::noFootageReasonText();
    return still;
}

double timelineLength(const std::vector<EventTimeline::CameraTrack> &tracks)
{
    double length = 0;
    for (const auto &t : tracks)
        length = std::max(length, t.contentEnd);
    return length;
}

bool isInside(const QString &path, const QString &folder)
{
    const QString root = QDir::cleanPath(folder) + QLatin1Char('/');
    return QDir::cleanPath(path).startsWith(root);
}

} // namespace

bool ReportContent::clocksDisagree() const
{
    if (!gpsClock)
        return false;
    // The car's names read as a wall clock in no zone: set against UTC, a
    // right clock is off by its zone's offset, a whole number of quarters.
    const QDateTime wall = carClock.toLocalDateTime();
    const QDateTime asUtc(wall.date(), wall.time(), Qt::UTC);
    const double difference = double(asUtc.toMSecsSinceEpoch()) / 1000.0 - gpsClock->unixSeconds();
    const double quarter = 15 * 60;
    return std::abs(difference - quarter * std::round(difference / quarter)) > 60;
}

QString ReportContent::conditionText(ClipHealth health)
{
    switch (health.value()) {
    //: A clip's condition in the report's list of files: nothing wrong with it
    case ClipHealth::ok: return tr("Plays");
    case ClipHealth::zeroByte: return tr("Empty — the car wrote nothing into it");
    case ClipHealth::truncated: return tr("Cut off — the car didn't finish writing it");
    case ClipHealth::unreadable: return tr("Damaged — it can't be played");
    case ClipHealth::timedOut: return tr("The drive didn't answer when it was read");
    case ClipHealth::encrypted: return tr("Encrypted by your car");
    case ClipHealth::unknown: break;
    }
    //: A clip's condition in the report's list of files: it was not looked at
    return tr("Not checked");
}

ReportContent ReportContent::gather(const TeslaEvent &event, const Options &options)
{
    const auto progress = [&](double fraction) {
        if (options.stop.stop_requested())
            throw CancellationError();
        if (options.progress)
            options.progress(fraction);
    };
    ReportContent content;
    content.event = event;
    content.madeAt = Date::now();
    progress(0);

    const std::vector<EventTimeline::CameraTrack> tracks = EventTimeline::build(event, options.readLimit, options.stop);
    progress(0.1);
    const double length = timelineLength(tracks);
    const std::optional<double> trigger = EventTimeline::momentOffset(event, length);
    content.hasTrigger = trigger.has_value();
    content.momentOffset = trigger.value_or(0);
    const double moment = content.momentOffset;

    // The driving data of the front camera, else of the first that has clips.
    const std::vector<Camera> cameras = event.cameras();
    if (!cameras.empty()) {
        const Camera camera = std::find(cameras.begin(), cameras.end(), Camera::front) != cameras.end()
            ? Camera(Camera::front)
            : cameras.front();
        const EventTelemetry telemetry = TelemetryTimeline::load(event, camera, options.stop, options.readLimit * 2);
        for (const EventTelemetry::Sample &sample : telemetry.frames())
            if (sample.record && sample.time - moment >= content.chartFrom()
                && sample.time - moment <= content.chartFrom() + chartSeconds)
                content.readings.push_back({sample.time - moment, *sample.record});
        if (const TelemetryRecord *record = telemetry.recordAt(moment))
            content.atMoment = *record;
        content.route = telemetry.route();
        const double end = telemetry.pieces.empty() ? 0.0 : telemetry.pieces.back().timelineEnd();
        for (const HardMoment &hard : HardMoments::find(telemetry, event, std::max(end, event.approximateDuration()))) {
            const auto at = telemetry.sampleAt(hard.time);
            content.hardMoments.push_back(
                {hard, at ? at->track->wallClock(at->mediaTime)
                          : event.earliestClipDate().value_or(event.timestamp).addingTimeInterval(hard.time)});
        }
        if (const auto sample = telemetry.sampleAt(moment)) {
            content.carClock = sample->track->wallClock(sample->mediaTime);
            content.gpsClock = sample->track->utcTime(sample->mediaTime);
        }
    }
    if (content.carClock == Date())
        content.carClock = event.earliestClipDate().value_or(event.timestamp).addingTimeInterval(moment);
    progress(0.3);

    content.latitude = event.latitude;
    content.longitude = event.longitude;
    if (!content.route.empty()) {
        const auto nearest = std::min_element(content.route.begin(), content.route.end(), [&](const auto &a, const auto &b) {
            return std::abs(a.time - moment) < std::abs(b.time - moment);
        });
        content.routeMoment = nearest->time;
        if (!content.latitude || !content.longitude) {
            content.latitude = nearest->latitude;
            content.longitude = nearest->longitude;
        }
    }

    if (options.tiles && content.latitude && content.longitude) {
        const auto frame = ReportMap::frame(content.route, *content.latitude, *content.longitude);
        for (const ReportMap::TileKey &tile : ReportMap::tilesFor(frame)) {
            if (options.stop.stop_requested())
                throw CancellationError();
            const auto image = options.tiles(tile.z, tile.x, tile.y);
            if (!image) // all or nothing: the map is drawn plain
                break;
            content.mapTiles.insert(ReportMap::keyOf(tile), *image);
        }
    }

    for (size_t i = 0; i < tracks.size(); ++i) {
        content.stills.push_back(stillOf(tracks[i], moment, options.readLimit, options.stop));
        progress(0.3 + 0.3 * double(i + 1) / double(tracks.size()));
    }

    // What the Vault holds of the event, when it holds it.
    std::optional<ArchivedEvent> record;
    if (options.vaultURL) {
        const VaultIndex index = VaultIndex::loadOrEmpty(*options.vaultURL);
        if (const ArchivedEvent *newest = index.newestRecord(event.id()))
            record = *newest;
        if (record) {
            const VerificationLog log = VerificationLog::load(*options.vaultURL);
            if (const EventCheck *check = log.find(event.id()))
                content.lastVerified = check->checkedAt;
        }
        content.fromVault = !event.clips.empty() && isInside(event.clips.front().url, *options.vaultURL);
    }

    std::vector<ClipRef> clips = event.clips;
    ClipOrder::sort(clips);
    qint64 total = 0;
    for (const ClipRef &clip : clips)
        total += std::max<qint64>(clip.fileSize, 1);
    qint64 done = 0;
    for (const ClipRef &clip : clips) {
        File file;
        file.name = clip.fileName();
        file.camera = clip.camera;
        file.start = clip.startDate;
        file.duration = clip.duration;
        file.size = clip.fileSize;
        file.path = clip.url;
        ClipHealth health = clip.health;
        if (health == ClipHealth::unknown || !file.duration) {
            const ClipProber::ProbeResult probed = ClipProber::probeDetailed(clip, options.readLimit, options.stop);
            if (health == ClipHealth::unknown)
                health = probed.health;
            if (!file.duration)
                file.duration = probed.duration;
        }
        file.condition = conditionText(health);
        file.damaged = health.isDamaged();
        if (options.hashFiles)
            file.sha256 = hashFile(clip.url, clip.fileSize, options.readLimit, options.stop, &file.readProblem);
        if (options.hashFiles && !file.sha256 && file.readProblem.isEmpty())
            file.readProblem = tr("This file couldn't be read.");
        if (record)
            for (const ArchivedFile &kept : record->files)
                if (kept.name == file.name)
                    file.keptSha256 = kept.sha256;
        content.files.push_back(file);
        done += std::max<qint64>(clip.fileSize, 1);
        progress(0.6 + 0.4 * double(done) / double(total));
    }
    return content;
}
