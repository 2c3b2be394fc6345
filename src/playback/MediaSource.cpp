#include "playback/MediaSource.h"

#include "drive/MediaInput.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/log.h>
#include <libavutil/mem.h>
}

#include <cerrno>
#include <mutex>
#include <cmath>
#include <sys/stat.h>
#include <unistd.h>

MediaSource::MediaSource(const QString &path, std::function<bool()> shouldStop, bool decode, int decoderThreads)
    : path_(path)
{
    // Damaged clips are expected here and end as placeholders; FFmpeg's own
    // messages about them would only be noise on the terminal.
    static std::once_flag quiet;
    std::call_once(quiet, [] { av_log_set_level(AV_LOG_FATAL); });
    try {
        // Not refused up front when it isn't a regular file: a hanging open is
        // the caller's watchdog's to bound.
        input_ = MediaInput::open(path, std::move(shouldStop), {.mp4Only = false});
        if (!input_)
            throw Error("The clip is not a readable movie.");
        format_ = input_->context();
        if (avformat_find_stream_info(format_, nullptr) < 0)
            throw Error("The clip is not a readable movie.");
        const AVCodec *codec = nullptr;
        streamIndex_ = av_find_best_stream(format_, AVMEDIA_TYPE_VIDEO, -1, -1, &codec, 0);
        if (streamIndex_ < 0) {
            streamIndex_ = -1;
            return;
        }
        const AVStream *stream = format_->streams[streamIndex_];
        timeBase_ = av_q2d(stream->time_base);
        startPts_ = stream->start_time != AV_NOPTS_VALUE ? stream->start_time : 0;
        if (stream->duration > 0)
            duration_ = double(stream->duration) * timeBase_;
        else if (format_->duration > 0)
            duration_ = double(format_->duration) / AV_TIME_BASE;
        if (stream->avg_frame_rate.num > 0 && stream->avg_frame_rate.den > 0)
            frameRate_ = av_q2d(stream->avg_frame_rate);
        for (unsigned i = 0; i < format_->nb_streams; ++i)
            format_->streams[i]->discard = int(i) == streamIndex_ ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
        if (!decode)
            return;
        if (!codec)
            throw Error("The clip's video format is not supported.");
        codec_ = avcodec_alloc_context3(codec);
        if (!codec_ || avcodec_parameters_to_context(codec_, stream->codecpar) < 0)
            throw Error("The clip's video format is not supported.");
        // Auto: a second thread only for the large front camera of newer cars;
        // with one decoder per camera, single-threaded decoding wastes least.
        if (decoderThreads <= 0)
            decoderThreads = stream->codecpar->width * stream->codecpar->height > 2500000 ? 2 : 1;
        codec_->thread_count = decoderThreads;
        codec_->pkt_timebase = stream->time_base;
        if (avcodec_open2(codec_, codec, nullptr) < 0)
            throw Error("The clip's video format is not supported.");
        packet_ = av_packet_alloc();
        frame_ = av_frame_alloc();
        if (!packet_ || !frame_)
            throw Error("Out of memory.");
    } catch (...) {
        close();
        throw;
    }
}

MediaSource::~MediaSource()
{
    close();
}

void MediaSource::close()
{
    av_frame_free(&frame_);
    av_packet_free(&packet_);
    avcodec_free_context(&codec_);
    format_ = nullptr;
    input_.reset();
}

bool MediaSource::seekKeyframe(double seconds)
{
    if (!codec_)
        return false;
    const int64_t ts = startPts_ + int64_t(std::floor(std::max(0.0, seconds) / timeBase_));
    const int r = av_seek_frame(format_, streamIndex_, ts, AVSEEK_FLAG_BACKWARD);
    avcodec_flush_buffers(codec_);
    demuxEnded_ = false;
    if (r < 0) {
        // Before the first keyframe: start from the top.
        return av_seek_frame(format_, streamIndex_, startPts_, AVSEEK_FLAG_BACKWARD | AVSEEK_FLAG_ANY) >= 0;
    }
    return true;
}

std::optional<double> MediaSource::keyframeAtOrBefore(double seconds) const
{
    if (streamIndex_ < 0)
        return std::nullopt;
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
    if (!codec_)
        return nullptr;
    for (;;) {
        const int r = avcodec_receive_frame(codec_, frame_);
        if (r == 0) {
            int64_t pts = frame_->best_effort_timestamp;
            if (pts == AV_NOPTS_VALUE)
                pts = frame_->pts;
            if (pts == AV_NOPTS_VALUE)
                pts = startPts_;
            *time = double(pts - startPts_) * timeBase_;
            return frame_;
        }
        if (r == AVERROR_EOF)
            return nullptr;
        if (r != AVERROR(EAGAIN))
            return nullptr;
        if (demuxEnded_)
            return nullptr;
        // Feed the decoder the next video packet.
        for (;;) {
            const int rr = av_read_frame(format_, packet_);
            if (rr < 0) {
                demuxEnded_ = true;
                avcodec_send_packet(codec_, nullptr);
                break;
            }
            if (packet_->stream_index != streamIndex_) {
                av_packet_unref(packet_);
                continue;
            }
            const int s = avcodec_send_packet(codec_, packet_);
            av_packet_unref(packet_);
            if (s < 0 && s != AVERROR(EAGAIN) && s != AVERROR_INVALIDDATA)
                return nullptr;
            break;
        }
    }
}
