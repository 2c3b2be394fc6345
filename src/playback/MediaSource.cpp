#include "playback/MediaSource.h"

#include "media/MediaClip.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/hwcontext.h>
}

#include <atomic>
#include <cmath>

namespace {
std::atomic<bool> hardwareWanted{true};
std::atomic<int> hardwareType{AV_HWDEVICE_TYPE_VAAPI};
} // namespace

void MediaSource::setHardwareDecoding(bool enabled)
{
    hardwareWanted = enabled;
}

bool MediaSource::hardwareDecodingEnabled()
{
    return hardwareWanted;
}

void MediaSource::setHardwareDeviceType(int type)
{
    hardwareType = type;
}

MediaSource::MediaSource(const QString &path, std::stop_token stop, int decoderThreads) : path_(path)
{
    // Not refused up front when it isn't a regular file: a hanging open is
    // the caller's watchdog's to bound.
    MediaClip::Options options;
    options.mp4Only = false;
    options.streamInfo = MediaClip::StreamInfo::always;
    clip_ = MediaClip::open(path, stop, options);
    if (clip_->outcome() == MediaClip::Outcome::notAMovie)
        throw Error("The clip is not a readable movie.");
    if (!clip_->isOpened())
        throw Error("The clip's video format is not supported.");
    format_ = clip_->context();
    streamIndex_ = clip_->videoStream();
    const AVStream *stream = clip_->video();
    timeBase_ = av_q2d(stream->time_base);
    startPts_ = stream->start_time != AV_NOPTS_VALUE ? stream->start_time : 0;
    if (stream->duration > 0)
        duration_ = double(stream->duration) * timeBase_;
    else if (format_->duration > 0)
        duration_ = double(format_->duration) / AV_TIME_BASE;
    if (stream->avg_frame_rate.num > 0 && stream->avg_frame_rate.den > 0)
        frameRate_ = av_q2d(stream->avg_frame_rate);
    clip_->demuxer()->keepOnly(streamIndex_);
    // Auto: a second thread only for the large front camera of newer cars;
    // with one decoder per camera, single-threaded decoding wastes least.
    if (decoderThreads <= 0)
        decoderThreads = stream->codecpar->width * stream->codecpar->height > 2500000 ? 2 : 1;
    if (!clip_->openDecoder({decoderThreads, hardwareWanted.load(), hardwareType.load()}))
        throw Error("The clip's video format is not supported.");
}

MediaSource::~MediaSource() = default;

bool MediaSource::decodesOnHardware() const
{
    return clip_->decoder()->onHardware();
}

// The device gave up on this stream: this camera goes on in software from
// the key frame before the last frame given, and frames already given are
// not given twice.
bool MediaSource::fallBackToSoftware()
{
    if (!clip_->decoder()->fallBackToSoftware())
        return false;
    const auto given = lastTime_;
    seekKeyframe(given ? *given : 0.0);
    skipUntil_ = given;
    return true;
}

bool MediaSource::seekKeyframe(double seconds)
{
    const int64_t ts = startPts_ + int64_t(std::floor(std::max(0.0, seconds) / timeBase_));
    const int r = av_seek_frame(format_, streamIndex_, ts, AVSEEK_FLAG_BACKWARD);
    clip_->decoder()->flush();
    skipUntil_.reset();
    if (r < 0) {
        // Before the first keyframe: start from the top.
        return av_seek_frame(format_, streamIndex_, startPts_, AVSEEK_FLAG_BACKWARD | AVSEEK_FLAG_ANY) >= 0;
    }
    return true;
}

std::optional<double> MediaSource::keyframeAtOrBefore(double seconds) const
{
    AVStream *stream = format_->streams[streamIndex_];
    const int64_t ts = startPts_ + int64_t(std::floor(std::max(0.0, seconds) / timeBase_));
    const int i = av_index_search_timestamp(stream, ts, AVSEEK_FLAG_BACKWARD);
    if (i < 0)
        return std::nullopt;
    const AVIndexEntry *entry = avformat_index_get_entry(stream, i);
    if (!entry)
        return std::nullopt;
    return double(entry->timestamp - startPts_) * timeBase_;
}

const AVFrame *MediaSource::nextFrame(double *time)
{
    VideoDecoder *decoder = clip_->decoder();
    const auto feed = [this](AVPacket *into) {
        while (av_read_frame(format_, into) >= 0) {
            if (into->stream_index == streamIndex_)
                return true;
            av_packet_unref(into);
        }
        return false;
    };
    for (;;) {
        const AVFrame *frame = decoder->next(feed);
        if (!frame) {
            if (decoder->hardwareFailed() && fallBackToSoftware())
                continue;
            return nullptr;
        }
        int64_t pts = VideoDecoder::timestampOf(frame);
        if (pts == AV_NOPTS_VALUE)
            pts = startPts_;
        const double t = double(pts - startPts_) * timeBase_;
        if (skipUntil_ && t <= *skipUntil_ + 1e-6)
            continue;
        skipUntil_.reset();
        lastTime_ = t;
        *time = t;
        return frame;
    }
}
