#include "support/FrameGrab.h"

#include "media/AvHandles.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

#include <QFile>
#include <cstring>
#include <memory>

namespace {
QImage toImages(const AVFrame *frame, QImage *luma)
{
    *luma = QImage(frame->width, frame->height, QImage::Format_Grayscale8);
    for (int y = 0; y < frame->height; ++y)
        std::memcpy(luma->scanLine(y), frame->data[0] + size_t(y) * size_t(frame->linesize[0]), size_t(frame->width));
    QImage rgb(frame->width, frame->height, QImage::Format_RGB888);
    const Av::Scaler sws(sws_getContext(frame->width, frame->height, AVPixelFormat(frame->format), frame->width,
                                        frame->height, AV_PIX_FMT_RGB24, SWS_POINT, nullptr, nullptr, nullptr));
    if (!sws)
        return QImage();
    uint8_t *data[4] = {rgb.bits(), nullptr, nullptr, nullptr};
    int linesize[4] = {int(rgb.bytesPerLine()), 0, 0, 0};
    sws_scale(sws.get(), frame->data, frame->linesize, 0, frame->height, data, linesize);
    return rgb;
}
} // namespace

std::optional<FrameGrab> FrameGrab::at(const QString &path, double seconds)
{
    AVFormatContext *format = nullptr;
    if (avformat_open_input(&format, QFile::encodeName(path).constData(), nullptr, nullptr) < 0)
        return std::nullopt;
    const Av::InputContext closeFormat(format);
    if (avformat_find_stream_info(format, nullptr) < 0)
        return std::nullopt;
    const AVCodec *codec = nullptr;
    const int stream = av_find_best_stream(format, AVMEDIA_TYPE_VIDEO, -1, -1, &codec, 0);
    if (stream < 0 || !codec)
        return std::nullopt;
    const Av::CodecContext decoding(avcodec_alloc_context3(codec));
    AVCodecContext *decoder = decoding.get();
    if (!decoder)
        return std::nullopt;
    if (avcodec_parameters_to_context(decoder, format->streams[stream]->codecpar) < 0
        || avcodec_open2(decoder, codec, nullptr) < 0)
        return std::nullopt;
    const AVRational base = format->streams[stream]->time_base;
    const Av::Packet packing = Av::makePacket();
    const Av::Frame framing = Av::makeFrame();
    AVPacket *packet = packing.get();
    AVFrame *frame = framing.get();
    std::optional<int64_t> first;
    bool draining = false;
    for (;;) {
        const int received = avcodec_receive_frame(decoder, frame);
        if (received == 0) {
            const int64_t pts = frame->best_effort_timestamp;
            if (!first)
                first = pts;
            const double time = double(pts - *first) * av_q2d(base);
            if (time >= seconds - 1e-3) {
                FrameGrab grab;
                grab.rgb = toImages(frame, &grab.luma);
                grab.time = time;
                return grab;
            }
            continue;
        }
        if (received == AVERROR_EOF || (received != AVERROR(EAGAIN)))
            return std::nullopt;
        if (draining)
            return std::nullopt;
        if (av_read_frame(format, packet) < 0) {
            avcodec_send_packet(decoder, nullptr);
            draining = true;
            continue;
        }
        if (packet->stream_index == stream)
            avcodec_send_packet(decoder, packet);
        av_packet_unref(packet);
    }
}

QColor FrameGrab::meanColour(int x, int y, int size) const
{
    qint64 r = 0, g = 0, b = 0, n = 0;
    for (int row = y - size / 2; row < y + size / 2; ++row)
        for (int column = x - size / 2; column < x + size / 2; ++column) {
            if (!rgb.valid(column, row))
                continue;
            const QRgb pixel = rgb.pixel(column, row);
            r += qRed(pixel);
            g += qGreen(pixel);
            b += qBlue(pixel);
            ++n;
        }
    if (n == 0)
        return QColor();
    return QColor(int(r / n), int(g / n), int(b / n));
}

double FrameGrab::meanLuma(int x, int y, int width, int height) const
{
    qint64 sum = 0, n = 0;
    for (int row = y; row < y + height; ++row)
        for (int column = x; column < x + width; ++column)
            if (luma.valid(column, row)) {
                sum += qGray(luma.pixel(column, row));
                ++n;
            }
    return n ? double(sum) / double(n) : 0.0;
}
