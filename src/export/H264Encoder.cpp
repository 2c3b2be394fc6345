#include "export/H264Encoder.h"

#include "export/ExportError.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/dict.h>
#include <libavutil/error.h>
#include <libavutil/hwcontext.h>
}

#include <QCoreApplication>
#include <QFile>

using Exporter::ExportError;

namespace {
QString errorText(int averror)
{
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(averror, text, sizeof text);
    return QString::fromLocal8Bit(text);
}

void setCommon(AVCodecContext *context, int width, int height, int framesPerSecond)
{
    context->width = width;
    context->height = height;
    context->time_base = AVRational{1, framesPerSecond};
    context->framerate = AVRational{framesPerSecond, 1};
    context->sample_aspect_ratio = AVRational{1, 1};
    context->color_range = AVCOL_RANGE_MPEG;
    // A key frame every two seconds, so a player can seek anywhere quickly.
    context->gop_size = 2 * framesPerSecond;
    // MP4 keeps the decoder configuration in its header.
    context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
}
} // namespace

std::unique_ptr<H264Encoder> H264Encoder::software(int width, int height, int framesPerSecond)
{
    const AVCodec *codec = avcodec_find_encoder_by_name("libx264");
    if (!codec)
        codec = avcodec_find_encoder(AV_CODEC_ID_H264);
    if (!codec)
        throw ExportError(ExportError::exportSessionUnavailable);
    std::unique_ptr<H264Encoder> self(new H264Encoder);
    self->context_.reset(avcodec_alloc_context3(codec));
    self->packet_.reset(av_packet_alloc());
    if (!self->context_ || !self->packet_)
        throw ExportError::failed(
            QCoreApplication::translate("H264Encoder", "There wasn't enough memory to export the footage."));
    setCommon(self->context_.get(), width, height, framesPerSecond);
    self->context_->pix_fmt = AV_PIX_FMT_YUV420P;
    self->context_->thread_count = 0;
    Av::Dictionary options;
    options.set("preset", x264Preset);
    options.set("crf", (long long)x264Quality);
    const int opened = avcodec_open2(self->context_.get(), codec, options.out());
    if (opened < 0)
        throw ExportError::failed(
            //: %1 is the video library's reason
            QCoreApplication::translate("H264Encoder", "The movie's video encoder couldn't be started: %1.")
                .arg(errorText(opened)));
    return self;
}

AVBufferRef *H264Encoder::openHardwareDevice(const QString &path)
{
    if (!path.isEmpty() && !QFile::exists(path))
        return nullptr;
    AVBufferRef *device = nullptr;
    const QByteArray node = QFile::encodeName(path);
    if (av_hwdevice_ctx_create(&device, AV_HWDEVICE_TYPE_VAAPI, path.isEmpty() ? nullptr : node.constData(), nullptr,
                               0)
        < 0)
        return nullptr;
    return device;
}

std::unique_ptr<H264Encoder> H264Encoder::hardware(AVBufferRef *framesContext, int width, int height,
                                                   int framesPerSecond)
{
    const AVCodec *codec = avcodec_find_encoder_by_name("h264_vaapi");
    if (!codec || !framesContext)
        return nullptr;
    std::unique_ptr<H264Encoder> self(new H264Encoder);
    self->hardware_ = true;
    self->context_.reset(avcodec_alloc_context3(codec));
    self->packet_.reset(av_packet_alloc());
    if (!self->context_ || !self->packet_)
        return nullptr;
    setCommon(self->context_.get(), width, height, framesPerSecond);
    self->context_->pix_fmt = AV_PIX_FMT_VAAPI;
    self->context_->hw_frames_ctx = av_buffer_ref(framesContext);
    Av::Dictionary options;
    options.set("rc_mode", "CQP");
    options.set("qp", (long long)hardwareQuality);
    const int opened = avcodec_open2(self->context_.get(), codec, options.out());
    if (opened < 0)
        return nullptr;
    return self;
}

H264Encoder::~H264Encoder() = default;

AVRational H264Encoder::timeBase() const
{
    return context_->time_base;
}

void H264Encoder::parametersInto(AVCodecParameters *parameters) const
{
    avcodec_parameters_from_context(parameters, context_.get());
}

void H264Encoder::encode(const AVFrame *frame, const PacketSink &sink)
{
    const int sent = avcodec_send_frame(context_.get(), frame);
    if (sent < 0 && sent != AVERROR_EOF) {
        if (hardware_)
            throw HardwareFailed();
        //: %1 is the video library's reason
        throw ExportError::failed(
            QCoreApplication::translate("H264Encoder", "The footage couldn't be encoded: %1.").arg(errorText(sent)));
    }
    for (;;) {
        const int received = avcodec_receive_packet(context_.get(), packet_.get());
        if (received == AVERROR(EAGAIN) || received == AVERROR_EOF)
            return;
        if (received < 0) {
            if (hardware_)
                throw HardwareFailed();
            throw ExportError::failed(
                QCoreApplication::translate("H264Encoder", "The footage couldn't be encoded: %1.")
                    .arg(errorText(received)));
        }
        if (packet_->duration <= 0)
            packet_->duration = 1; // one frame in the time base
        sink(packet_.get());
        av_packet_unref(packet_.get());
    }
}
