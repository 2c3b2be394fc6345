#include "export/ExportComposition.h"

#include "media/AvHandles.h"
#include "media/MediaClip.h"
#include "base/CancellationError.h"
#include "base/IOWatchdog.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include <cmath>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <utility>
#include <optional>

namespace {

// Where the clip's media starts and ends, in seconds. A clip whose edit
// list begins with empty time (a non-zero start) counts from its first
// picture, so that joined clips close up.
std::optional<std::pair<double, double>> mediaExtent(const AVFormatContext *format, std::initializer_list<int> streams)
{
    double first = std::numeric_limits<double>::infinity();
    double last = -std::numeric_limits<double>::infinity();
    for (const int index : streams) {
        if (index < 0)
            continue;
        const AVStream *stream = format->streams[index];
        if (stream->start_time == AV_NOPTS_VALUE || stream->duration == AV_NOPTS_VALUE || stream->duration <= 0)
            continue;
        const double start = double(stream->start_time) * av_q2d(stream->time_base);
        first = std::min(first, start);
        last = std::max(last, start + double(stream->duration) * av_q2d(stream->time_base));
    }
    if (std::isfinite(first) && std::isfinite(last))
        return std::make_pair(first, last);
    // Streams without their own times: the container's.
    if (format->duration == AV_NOPTS_VALUE)
        return std::nullopt;
    const double start = format->start_time == AV_NOPTS_VALUE ? 0.0 : double(format->start_time) / AV_TIME_BASE;
    return std::make_pair(start, start + double(format->duration) / AV_TIME_BASE);
}

// The clip as one camera's export uses it: a movie with video that decodes,
// whose header holds for its data, as long as its pictures (and sound) really go.
std::optional<ExportSegment> judge(const QString &path, std::stop_token stop)
{
    MediaClip::Options options;
    options.mp4Only = false;
    // MP4 headers already describe their streams; probing packets is only
    // needed for containers that don't.
    options.streamInfo = MediaClip::StreamInfo::whenIncomplete;
    options.checkHeader = true;
    options.decode = VideoDecoder::Options{};
    const auto clip = MediaClip::open(path, stop, options);
    if (!clip->isOpened() || !clip->facts().usable())
        return std::nullopt;
    const AVFormatContext *format = clip->context();
    const int video = clip->videoStream();
    const AVStream *videoStream = clip->video();
    int audio = clip->demuxer()->bestStream(AVMEDIA_TYPE_AUDIO);
    if (audio >= 0 && format->streams[audio]->codecpar->codec_id == AV_CODEC_ID_NONE)
        audio = -1;
    const std::optional<std::pair<double, double>> extent = mediaExtent(format, {video, audio});
    if (!extent)
        return std::nullopt;
    double seconds = extent->second - extent->first;
    // Never longer than the pictures the file really holds.
    if (clip->facts().verdict == HeaderCheck::ClipFacts::Verdict::shortened)
        seconds = std::min(seconds, clip->facts().lengthSeconds);
    if (!std::isfinite(seconds) || seconds <= 0.0)
        return std::nullopt;

    ExportSegment segment;
    segment.path = path;
    segment.origin = extent->first;
    segment.duration = seconds;
    segment.video = Av::copyParameters(videoStream->codecpar);
    segment.videoTimeBase = videoStream->time_base;
    segment.frameRate = videoStream->avg_frame_rate.num > 0 ? videoStream->avg_frame_rate : videoStream->r_frame_rate;
    if (!segment.video)
        return std::nullopt;
    if (audio >= 0) {
        segment.audio = Av::copyParameters(format->streams[audio]->codecpar);
        segment.audioTimeBase = format->streams[audio]->time_base;
    }
    return segment;
}

} // namespace

ExportComposition ExportComposition::build(const std::vector<ClipRef> &clips, std::stop_token stop,
                                             std::chrono::milliseconds clipLimit)
{
    ExportComposition composition;
    for (const ClipRef &clip : clips) {
        if (stop.stop_requested())
            throw CancellationError();
        // A clip the drive doesn't answer for is skipped like a damaged one;
        // the caller's stop still ends the whole preparation.
        std::optional<ExportSegment> segment;
        try {
            segment = IOWatchdog::run(
                clipLimit, [path = clip.url](std::stop_token clipStop) { return judge(path, clipStop); }, stop);
        } catch (const IOWatchdog::TimedOut &) {
            continue;
        }
        if (!segment)
            continue;
        segment->start = composition.duration;
        composition.duration += segment->duration;
        composition.segments.push_back(std::move(*segment));
    }
    // A stop that cut the last clip short still counts as before the copy.
    if (stop.stop_requested())
        throw CancellationError();
    return composition;
}

bool ExportComposition::sameStreamFormat(const AVCodecParameters &a, const AVCodecParameters &b)
{
    if (a.codec_type != b.codec_type || a.codec_id != b.codec_id)
        return false;
    if (a.codec_type == AVMEDIA_TYPE_VIDEO && (a.width != b.width || a.height != b.height))
        return false;
    if (a.codec_type == AVMEDIA_TYPE_AUDIO
        && (a.sample_rate != b.sample_rate || a.ch_layout.nb_channels != b.ch_layout.nb_channels))
        return false;
    if (a.extradata_size != b.extradata_size)
        return false;
    return a.extradata_size == 0 || std::memcmp(a.extradata, b.extradata, size_t(a.extradata_size)) == 0;
}

bool ExportComposition::videoJoinsByCopy() const
{
    for (const ExportSegment &segment : segments)
        if (!sameStreamFormat(*segments.front().video, *segment.video))
            return false;
    return true;
}

const ExportSegment *ExportComposition::firstWithAudio() const
{
    for (const ExportSegment &segment : segments)
        if (segment.audio)
            return &segment;
    return nullptr;
}

bool ExportComposition::audioMatches(const ExportSegment &seg) const
{
    const ExportSegment *first = firstWithAudio();
    return first && seg.audio && sameStreamFormat(*first->audio, *seg.audio);
}

const ExportSegment &ExportComposition::largestPicture() const
{
    const ExportSegment *best = &segments.front();
    for (const ExportSegment &segment : segments)
        if (qint64(segment.video->width) * segment.video->height > qint64(best->video->width) * best->video->height)
            best = &segment;
    return *best;
}
