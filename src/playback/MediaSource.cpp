#include "playback/MediaSource.h"

#include "drive/MediaInput.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/hwcontext.h>
#include <libavutil/log.h>
#include <libavutil/mem.h>
#include <libavutil/pixdesc.h>
}

#include <atomic>
#include <cerrno>
#include <map>
#include <mutex>
#include <cmath>
#include <sys/stat.h>
#include <unistd.h>

namespace {
std::atomic<bool> hardwareWanted{true};
std::atomic<int> hardwareType{AV_HWDEVICE_TYPE_VAAPI};

// One device for every decoder of the process, made on first use; null when
// the machine has none that works (then every camera decodes in software).
AVBufferRef *hardwareDevice(AVHWDeviceType type)
{
    static std::mutex mutex;
    static std::map<int, AVBufferRef *> devices;
    std::lock_guard lock(mutex);
    const auto known = devices.find(type);
    if (known != devices.end())
        return known->second;
    AVBufferRef *device = nullptr;
    if (av_hwdevice_ctx_create(&device, type, nullptr, nullptr, 0) < 0)
        device = nullptr;
    devices[type] = device;
    return device;
}

AVPixelFormat pickHardwareFormat(AVCodecContext *codec, const AVPixelFormat *offered)
{
    const auto wanted = AVPixelFormat(reinterpret_cast<intptr_t>(codec->opaque));
    for (const AVPixelFormat *f = offered; *f != AV_PIX_FMT_NONE; ++f)
        if (*f == wanted)
            return *f;
    // The stream can't be decoded by the device: the first software format.
    for (const AVPixelFormat *f = offered; *f != AV_PIX_FMT_NONE; ++f)
        if (!(av_pix_fmt_desc_get(*f)->flags & AV_PIX_FMT_FLAG_HWACCEL))
            return *f;
    return AV_PIX_FMT_NONE;
}
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
        // Auto: a second thread only for the large front camera of newer cars;
        // with one decoder per camera, single-threaded decoding wastes least.
        if (decoderThreads <= 0)
            decoderThreads = stream->codecpar->width * stream->codecpar->height > 2500000 ? 2 : 1;
        decoderThreads_ = decoderThreads;
        if (!(hardwareWanted && openDecoder(true)) && !openDecoder(false))
            throw Error("The clip's video format is not supported.");
        packet_ = av_packet_alloc();
        frame_ = av_frame_alloc();
        softwareFrame_ = av_frame_alloc();
        if (!packet_ || !frame_ || !softwareFrame_)
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

bool MediaSource::openDecoder(bool hardware)
{
    avcodec_free_context(&codec_);
    onHardware_ = false;
    const AVStream *stream = format_->streams[streamIndex_];
    const AVCodec *codec = avcodec_find_decoder(stream->codecpar->codec_id);
    if (!codec)
        return false;
    AVPixelFormat hardwareFormat = AV_PIX_FMT_NONE;
    AVBufferRef *device = nullptr;
    if (hardware) {
        const auto type = AVHWDeviceType(hardwareType.load());
        for (int i = 0; const AVCodecHWConfig *config = avcodec_get_hw_config(codec, i); ++i)
            if ((config->methods & AV_CODEC_HW_CONFIG_METHOD_HW_DEVICE_CTX) && config->device_type == type) {
                hardwareFormat = config->pix_fmt;
                break;
            }
        if (hardwareFormat == AV_PIX_FMT_NONE || !(device = hardwareDevice(type)))
            return false;
    }
    codec_ = avcodec_alloc_context3(codec);
    if (!codec_ || avcodec_parameters_to_context(codec_, stream->codecpar) < 0) {
        avcodec_free_context(&codec_);
        return false;
    }
    codec_->pkt_timebase = stream->time_base;
    if (hardware) {
        codec_->hw_device_ctx = av_buffer_ref(device);
        codec_->opaque = reinterpret_cast<void *>(intptr_t(hardwareFormat));
        codec_->get_format = pickHardwareFormat;
        hardwareFormat_ = hardwareFormat;
    } else {
        codec_->thread_count = decoderThreads_;
    }
    if (avcodec_open2(codec_, codec, nullptr) < 0) {
        avcodec_free_context(&codec_);
        return false;
    }
    onHardware_ = hardware;
    return true;
}

// The device gave up on this stream: this camera goes on in software from
// the key frame before the last frame given, and frames already given are
// not given twice.
bool MediaSource::fallBackToSoftware()
{
    if (!onHardware_ || !openDecoder(false))
        return false;
    const auto given = lastTime_;
    seekKeyframe(given ? *given : 0.0);
    skipUntil_ = given;
    return true;
}

void MediaSource::close()
{
    av_frame_free(&softwareFrame_);
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
    skipUntil_.reset();
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
            const double t = double(pts - startPts_) * timeBase_;
            if (skipUntil_ && t <= *skipUntil_ + 1e-6)
                continue;
            skipUntil_.reset();
            const AVFrame *out = frame_;
            if (frame_->format == hardwareFormat_ && onHardware_) {
                av_frame_unref(softwareFrame_);
                if (av_hwframe_transfer_data(softwareFrame_, frame_, 0) < 0
                    || av_frame_copy_props(softwareFrame_, frame_) < 0) {
                    if (fallBackToSoftware())
                        continue;
                    return nullptr;
                }
                out = softwareFrame_;
            }
            lastTime_ = t;
            *time = t;
            return out;
        }
        if (r == AVERROR_EOF)
            return nullptr;
        if (r != AVERROR(EAGAIN)) {
            if (fallBackToSoftware())
                continue;
            return nullptr;
        }
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
            if (s < 0 && s != AVERROR(EAGAIN) && s != AVERROR_INVALIDDATA) {
                if (fallBackToSoftware())
                    break;
                return nullptr;
            }
            break;
        }
    }
}
