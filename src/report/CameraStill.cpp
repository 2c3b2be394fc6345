#include "report/CameraStill.h"

#include "base/IOWatchdog.h"
#include "media/AvHandles.h"
#include "media/MediaClip.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

#include <cmath>

namespace CameraStill {

namespace {

bool isFullRange(const AVFrame *f)
{
    const auto fmt = AVPixelFormat(f->format);
    return f->color_range == AVCOL_RANGE_JPEG || fmt == AV_PIX_FMT_YUVJ420P || fmt == AV_PIX_FMT_YUVJ422P
        || fmt == AV_PIX_FMT_YUVJ444P;
}

QImage toImage(const AVFrame *f)
{
    // QImage's RGB32 is BGRA in memory on this (little-endian) machine.
    Av::Scaler scaler(sws_getContext(f->width, f->height, AVPixelFormat(f->format), f->width, f->height,
                                     AV_PIX_FMT_BGRA, SWS_BICUBIC, nullptr, nullptr, nullptr));
    if (!scaler)
        return {};
    // The car's cameras don't say their colour space; high definition is BT.709.
    const int space = f->colorspace == AVCOL_SPC_BT470BG || f->colorspace == AVCOL_SPC_SMPTE170M
        ? SWS_CS_ITU601
        : SWS_CS_ITU709;
    const int *coefficients = sws_getCoefficients(space);
    sws_setColorspaceDetails(scaler.get(), coefficients, isFullRange(f) ? 1 : 0, coefficients, 1, 0, 1 << 16,
                             1 << 16);
    // swscale's vector code may write a little past a row's end: a spare
    // row keeps that inside the picture's own memory.
    QImage image(f->width, f->height + 1, QImage::Format_RGB32);
    uint8_t *dst[4] = {image.bits(), nullptr, nullptr, nullptr};
    int dstStride[4] = {int(image.bytesPerLine()), 0, 0, 0};
    sws_scale(scaler.get(), f->data, f->linesize, 0, f->height, dst, dstStride);
    return image.copy(0, 0, f->width, f->height);
}

std::optional<QImage> decodeAt(MediaClip &clip, double seconds)
{
    AVStream *stream = clip.video();
    VideoDecoder *decoder = clip.decoder();
    if (!stream || !decoder)
        return std::nullopt;
    const double unit = av_q2d(stream->time_base);
    const int64_t startTs = stream->start_time == AV_NOPTS_VALUE ? 0 : stream->start_time;
    const int64_t target = startTs + int64_t(std::llround(std::max(0.0, seconds) / unit));
    av_seek_frame(clip.context(), clip.videoStream(), target, AVSEEK_FLAG_BACKWARD);
    decoder->flush();
    clip.demuxer()->keepOnly(clip.videoStream());

    // The frame on screen at the time is the last one starting at or before
    // it; the first frame stands in for a time before the first.
    Av::Frame held(av_frame_alloc());
    bool haveHeld = false;
    const VideoDecoder::Feed feed = [&](AVPacket *into) {
        for (;;) {
            if (av_read_frame(clip.context(), into) < 0)
                return false;
            if (into->stream_index == clip.videoStream())
                return true;
            av_packet_unref(into);
        }
    };
    while (const AVFrame *frame = decoder->next(feed)) {
        const int64_t ts = VideoDecoder::timestampOf(frame);
        if (haveHeld && ts != AV_NOPTS_VALUE && ts > target)
            break;
        av_frame_unref(held.get());
        av_frame_ref(held.get(), frame);
        haveHeld = true;
        if (ts != AV_NOPTS_VALUE && ts >= target)
            break;
    }
    if (!haveHeld)
        return std::nullopt;
    QImage image = toImage(held.get());
    if (image.isNull())
        return std::nullopt;
    return image;
}

} // namespace

std::optional<QImage> grab(const QString &path, double seconds, std::chrono::milliseconds readLimit,
                           std::stop_token stop)
{
    // The whole open and decode under the limit: a stuck read costs this
    // still only, and the abandoned thread owns its clip.
    return IOWatchdog::run(
        readLimit,
        [path, seconds](std::stop_token token) -> std::optional<QImage> {
            MediaClip::Options options;
            options.decode = VideoDecoder::Options{0, false, -1};
            const std::unique_ptr<MediaClip> clip = MediaClip::open(path, token, options);
            if (!clip->isOpened())
                return std::nullopt;
            return decodeAt(*clip, seconds);
        },
        stop);
}

} // namespace CameraStill
