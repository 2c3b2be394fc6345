#include "export/ExportComposition.h"

#include "drive/IOWatchdog.h"
#include "drive/MediaInput.h"
#include "model/CancellationError.h"

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

std::shared_ptr<const AVCodecParameters> copyParameters(const AVCodecParameters *source)
{
    AVCodecParameters *copy = avcodec_parameters_alloc();
    if (!copy)
        return nullptr;
    if (avcodec_parameters_copy(copy, source) < 0) {
        avcodec_parameters_free(&copy);
        return nullptr;
    }
    return std::shared_ptr<const AVCodecParameters>(copy, [](const AVCodecParameters *p) {
        auto *mutableP = const_cast<AVCodecParameters *>(p);
        avcodec_parameters_free(&mutableP);
    });
}

// The clip is playable when a decoder for its video exists and accepts
// the stream's configuration.
bool decoderOpens(const AVCodecParameters *params)
{
    const AVCodec *codec = avcodec_find_decoder(params->codec_id);
    if (!codec)
        return false;
    AVCodecContext *context = avcodec_alloc_context3(codec);
    if (!context)
        return false;
    bool ok = avcodec_parameters_to_context(context, params) >= 0;
    context->thread_count = 1;
    ok = ok && avcodec_open2(context, codec, nullptr) >= 0;
    avcodec_free_context(&context);
    return ok;
}

bool incomplete(const AVCodecParameters *params)
{
    return params->codec_id == AV_CODEC_ID_NONE || params->width <= 0 || params->height <= 0;
}

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

// How long the clip's own pictures last, from the container's index of its
// samples (nothing more is read). A damaged header can claim far more.
std::optional<double> indexedLength(AVStream *stream)
{
    const int count = avformat_index_get_entries_count(stream);
    if (count < 2)
        return std::nullopt;
    const AVIndexEntry *first = avformat_index_get_entry(stream, 0);
    const AVIndexEntry *last = avformat_index_get_entry(stream, count - 1);
    if (!first || !last || last->timestamp <= first->timestamp)
        return std::nullopt;
    const double span = double(last->timestamp - first->timestamp) * av_q2d(stream->time_base);
    return span + span / (count - 1); // the last picture lasts one frame too
}

std::optional<ExportSegment> judge(const QString &path, std::stop_token stop)
{
    const auto input = MediaInput::open(path, stop);
    if (!input)
        return std::nullopt;
    AVFormatContext *format = input->context();
    int video = input->bestStream(AVMEDIA_TYPE_VIDEO);
    // MP4 headers already describe their streams; probing packets is only
    // needed for containers that don't.
    if (video < 0 || incomplete(format->streams[video]->codecpar) || format->duration == AV_NOPTS_VALUE) {
        if (avformat_find_stream_info(format, nullptr) < 0)
            return std::nullopt;
        video = input->bestStream(AVMEDIA_TYPE_VIDEO);
    }
    if (video < 0 || incomplete(format->streams[video]->codecpar))
        return std::nullopt;
    const AVStream *videoStream = format->streams[video];
    if (!decoderOpens(videoStream->codecpar))
        return std::nullopt;
    int audio = input->bestStream(AVMEDIA_TYPE_AUDIO);
    if (audio >= 0 && format->streams[audio]->codecpar->codec_id == AV_CODEC_ID_NONE)
        audio = -1;
    const std::optional<std::pair<double, double>> extent = mediaExtent(format, {video, audio});
    if (!extent)
        return std::nullopt;
    double seconds = extent->second - extent->first;
    if (!std::isfinite(seconds) || seconds <= 0.0)
        return std::nullopt;
    if (audio < 0) {
        // Trusted only as far as the pictures go.
        AVStream *stream = format->streams[video];
        const auto indexed = indexedLength(stream);
        if (indexed && seconds - *indexed > *indexed / avformat_index_get_entries_count(stream))
            seconds = *indexed;
    }

    ExportSegment segment;
    segment.path = path;
    segment.origin = extent->first;
    segment.duration = seconds;
    segment.video = copyParameters(videoStream->codecpar);
    segment.videoTimeBase = videoStream->time_base;
    segment.frameRate = videoStream->avg_frame_rate.num > 0 ? videoStream->avg_frame_rate : videoStream->r_frame_rate;
    if (!segment.video)
        return std::nullopt;
    if (audio >= 0) {
        segment.audio = copyParameters(format->streams[audio]->codecpar);
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
