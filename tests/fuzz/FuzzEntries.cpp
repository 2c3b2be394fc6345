#include "FuzzEntries.h"

#include "drive/ClipCalendar.h"
#include "drive/ClipProber.h"
#include "drive/EventJSONPayload.h"
#include "base/ReadOnlyFs.h"
#include "drive/ReasonMapper.h"
#include "drive/TelemetryReader.h"
#include "drive/ClipNames.h"
#include "drive/TeslaCamParser.h"
#include "base/IOWatchdog.h"
#include "export/ExportError.h"
#include "export/Exporter.h"
#include "media/MediaClip.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/log.h>
}

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <memory>

namespace FuzzEntries {

namespace {

std::unique_ptr<QTemporaryDir> scratch;

// The input as a clip file of its own, as the car would have left it.
QString writeClip(const QByteArray &input)
{
    const QString path = scratch->filePath(QStringLiteral("2024-06-14_21-41-10-front.mp4"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(input) != input.size())
        qFatal("fuzz: can't write the scratch clip %s", qPrintable(path));
    return path;
}

ClipRef clipAt(const QString &path, qint64 size)
{
    ClipRef clip;
    clip.url = path;
    clip.camera = Camera::front;
    clip.startDate = Date::fromUnixSeconds(1718401270);
    clip.fileSize = size;
    return clip;
}

} // namespace

const std::array<Target, 5> &targets()
{
    static const std::array<Target, 5> all{{
        {"eventjson", &eventJson},
        {"names", &names},
        {"probe", &probe},
        {"export", &exportClip},
        {"telemetry", &telemetry},
    }};
    return all;
}

const Target *target(QStringView name)
{
    for (const Target &t : targets())
        if (name == QLatin1String(t.name))
            return &t;
    return nullptr;
}

void prepare()
{
    av_log_set_level(AV_LOG_QUIET);
    qputenv("TZ", "America/Chicago");
    tzset();
    scratch = std::make_unique<QTemporaryDir>();
    if (!scratch->isValid())
        qFatal("fuzz: no scratch folder");
}

QString eventJson(const QByteArray &input)
{
    const auto payload = EventJSONPayload::decode(input);
    if (!payload)
        return {};
    payload->parsedTimestamp();
    ReasonMapper::map(payload->reason);
    // The map and the player place the event by these.
    if (payload->estLat && !(*payload->estLat >= -90.0 && *payload->estLat <= 90.0))
        return QStringLiteral("event.json gave a latitude off the globe: %1").arg(*payload->estLat);
    if (payload->estLon && !(*payload->estLon >= -180.0 && *payload->estLon <= 180.0))
        return QStringLiteral("event.json gave a longitude off the globe: %1").arg(*payload->estLon);
    return {};
}

QString names(const QByteArray &input)
{
    const QString folder = QStringLiteral("/TeslaCam/RecentClips");
    std::vector<ClipRef> clips;
    std::vector<ScanIssue> issues;
    for (const QByteArray &line : input.split('\n')) {
        // A directory entry's name ends at its first NUL. A deep copy: a line
        // may share the input's bytes, which have no NUL after them.
        const QString name = ReadOnlyFs::decodeName(QByteArray(line.constData(), line.size()).constData());
        ClipNames::isIgnoredName(name);
        if (const auto groups = ClipNames::matchFolderName(name)) {
            if (const auto timestamp = ClipNames::parseTimestamp(groups->date, groups->time))
                ClipCalendar::folderNameString(*timestamp);
        }
        ClipNames::matchClipFilename(name);
        if (auto clip = TeslaCamParser::parseClipFilename(folder + QLatin1Char('/') + name, issues, line.size()))
            clips.push_back(std::move(*clip));
    }
    const auto events = TeslaCamParser::groupIntoRecentEvents(clips, folder, 150.0);
    size_t grouped = 0;
    for (const TeslaEvent &event : events)
        grouped += event.clips.size();
    if (grouped != clips.size())
        return QStringLiteral("%1 recent clips were grouped into drives holding %2").arg(clips.size()).arg(grouped);
    return {};
}

QString probe(const QByteArray &input)
{
    // The scanned size decides whether the file is opened at all; claim a
    // believable one, so that every input reaches the movie reader.
    const ClipRef clip = clipAt(writeClip(input), std::max<qint64>(input.size(), ClipProber::minimumBelievableSize));
    const ClipProber::ProbeResult result = ClipProber::probeDetailed(clip);
    if (result.health == ClipHealth::unknown)
        return QStringLiteral("the probe ended without a health");
    if (result.duration && !(std::isfinite(*result.duration) && *result.duration >= 0.0))
        return QStringLiteral("the probe gave a length of %1 seconds").arg(*result.duration);
    return {};
}

QString exportClip(const QByteArray &input)
{
    const QString path = writeClip(input);
    const QString destination = scratch->filePath(QStringLiteral("export.mp4"));
    QFile::remove(destination);
    TeslaEvent event;
    event.folderName = QStringLiteral("2024-06-14_21-42-10");
    // Twice, so that clips are joined; from just after the start, so that
    // the first one is sought into.
    event.clips = {clipAt(path, input.size()), clipAt(path, input.size())};
    event.clips[1].startDate = event.clips[0].startDate.addingTimeInterval(60);
    // The clips' readers end on their own threads once the export has let
    // them go; the leak check after each input must not race them.
    struct ReadersEnded {
        ~ReadersEnded() { IOWatchdog::waitForThreads(std::chrono::seconds(20)); }
    } readersEnded;
    try {
        Exporter::exportFootage(Camera::front, event, std::pair{0.001, std::numeric_limits<double>::infinity()},
                                destination, {});
    } catch (const Exporter::ExportError &e) {
        if (e.message().isEmpty())
            return QStringLiteral("an export failed without a sentence to show (case %1)").arg(int(e.errorCase()));
        return {};
    }
    // What the export wrote must read back as a movie with pictures, whose
    // own header holds for its data: no header value of the clip beyond
    // what the clip held made it into the movie.
    MediaClip::Options options;
    options.streamInfo = MediaClip::StreamInfo::always;
    options.checkHeader = true;
    const auto written = MediaClip::open(destination, std::stop_token(), options);
    if (!written->isOpened())
        return QStringLiteral("an export succeeded but wrote no movie with pictures");
    if (written->video()->nb_frames == 0)
        return QStringLiteral("an export succeeded but its movie holds no pictures");
    if (written->facts().verdict != HeaderCheck::ClipFacts::Verdict::sound)
        return QStringLiteral("an export wrote a movie its own data contradict: %1").arg(written->facts().reason);
    return {};
}

QString telemetry(const QByteArray &input)
{
    const auto track = TelemetryReader::readClip(clipAt(writeClip(input), input.size()));
    if (!track)
        return {};
    if (!std::isfinite(track->duration))
        return QStringLiteral("the clip's length is %1 seconds").arg(track->duration);
    if (!std::is_sorted(track->frameTimes.begin(), track->frameTimes.end())
        || !std::all_of(track->frameTimes.begin(), track->frameTimes.end(), [](double t) { return std::isfinite(t); }))
        return QStringLiteral("the frames' times are out of order or not numbers");
    int previous = -1;
    for (const TelemetryRecord &r : track->records) {
        if (r.frameIndex <= previous || r.frameIndex >= int(track->frameTimes.size()))
            return QStringLiteral("a record belongs to frame %1 of %2").arg(r.frameIndex).arg(track->frameTimes.size());
        if (r.mediaTime != track->frameTimes[size_t(r.frameIndex)])
            return QStringLiteral("a record's time is not its frame's");
        previous = r.frameIndex;
    }
    // Every frame finds its own record, or none, by its time.
    for (size_t i = 0; i < track->frameTimes.size(); ++i) {
        const auto frame = track->frameAt(track->frameTimes[i]);
        if (!frame || track->frameTimes[size_t(*frame)] != track->frameTimes[i])
            return QStringLiteral("frame %1 is not found at its own time").arg(i);
    }
    return {};
}

} // namespace FuzzEntries
