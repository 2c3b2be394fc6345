#include "export/ExportComposition.h"

#include "export/ClipInput.h"
#include "model/CancellationError.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include <cmath>
#include <cstring>
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

std::optional<ExportSegment> judge(const QString &path, std::stop_token stop)
{
    const auto input = ClipInput::open(path, stop);
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
    if (format->duration == AV_NOPTS_VALUE)
        return std::nullopt;
    const double seconds = double(format->duration) / AV_TIME_BASE;
    if (!std::isfinite(seconds) || seconds <= 0.0)
        return std::nullopt;

    ExportSegment segment;
    segment.path = path;
    segment.duration = seconds;
    segment.video = copyParameters(videoStream->codecpar);
    segment.videoTimeBase = videoStream->time_base;
    segment.frameRate = videoStream->avg_frame_rate.num > 0 ? videoStream->avg_frame_rate : videoStream->r_frame_rate;
    if (!segment.video)
        return std::nullopt;
    const int audio = input->bestStream(AVMEDIA_TYPE_AUDIO);
    if (audio >= 0 && format->streams[audio]->codecpar->codec_id != AV_CODEC_ID_NONE) {
        segment.audio = copyParameters(format->streams[audio]->codecpar);
        segment.audioTimeBase = format->streams[audio]->time_base;
    }
    return segment;
}

} // namespace

ExportComposition ExportComposition::build(const std::vector<ClipRef> &clips, std::stop_token stop)
{
    ExportComposition composition;
    for (const ClipRef &clip : clips) {
        if (stop.stop_requested())
            throw CancellationError();
        std::optional<ExportSegment> segment = judge(clip.url, stop);
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
