#include "export/VideoReencoder.h"

#include "export/ExportError.h"
#include "media/VideoDecoder.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/dict.h>
#include <libavutil/error.h>
#include <libavutil/frame.h>
#include <libavutil/pixdesc.h>
#include <libswscale/swscale.h>
}

#include <QCoreApplication>

using Exporter::ExportError;

namespace {

// H.264 level 5.2's largest picture (4096x2304 and the like). The cars'
// cameras stay far within it; a clip whose header claims more is damaged,
// and encoding pictures of that size would take the machine's memory.
constexpr int64_t largestMacroblocks = 36864;
constexpr int largestSide = 8192;

// Best first: x264 at a visually lossless quality, any other H.264
// encoder, MPEG-4 Part 2 at its finest quantiser as the last resort.
const AVCodec *bestEncoder()
{
    if (const AVCodec *codec = avcodec_find_encoder_by_name("libx264"))
        return codec;
    if (const AVCodec *codec = avcodec_find_encoder(AV_CODEC_ID_H264))
        return codec;
    return avcodec_find_encoder(AV_CODEC_ID_MPEG4);
}

AVPixelFormat choosePixelFormat(const AVCodec *codec)
{
    if (!codec->pix_fmts)
        return AV_PIX_FMT_YUV420P;
    for (const AVPixelFormat *f = codec->pix_fmts; *f != AV_PIX_FMT_NONE; ++f)
        if (*f == AV_PIX_FMT_YUV420P)
            return *f;
    return codec->pix_fmts[0];
}

bool isFullRange(const AVFrame *frame)
{
    switch (frame->format) {
    case AV_PIX_FMT_YUVJ420P:
    case AV_PIX_FMT_YUVJ422P:
    case AV_PIX_FMT_YUVJ444P:
        return true;
    default:
        return frame->color_range == AVCOL_RANGE_JPEG;
    }
}

} // namespace

std::unique_ptr<VideoReencoder> VideoReencoder::create(int width, int height, AVRational frameRate, bool globalHeader)
{
    const AVCodec *codec = bestEncoder();
    if (!codec || width < 2 || height < 2 || width > largestSide || height > largestSide
        || int64_t((width + 15) / 16) * ((height + 15) / 16) > largestMacroblocks)
        return nullptr;
    std::unique_ptr<VideoReencoder> self(new VideoReencoder);
    self->encoder_.reset(avcodec_alloc_context3(codec));
    if (!self->encoder_)
        return nullptr;
    self->encoded_.reset(av_packet_alloc());
    if (!self->encoded_)
        return nullptr;
    AVCodecContext *enc = self->encoder_.get();
    enc->width = width & ~1; // 4:2:0 needs even sizes
    enc->height = height & ~1;
    enc->pix_fmt = choosePixelFormat(codec);
    enc->color_range = AVCOL_RANGE_MPEG;
    enc->sample_aspect_ratio = AVRational{1, 1};
    // Car footage has no constant frame rate: a fine clock keeps each
    // frame's own time.
    enc->time_base = AVRational{1, 90000};
    if (frameRate.num > 0 && frameRate.den > 0)
        enc->framerate = frameRate;
    enc->thread_count = 0;
    if (globalHeader)
        enc->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;

    Av::Dictionary options;
    if (std::string_view(codec->name) == "libx264") {
        options.set("preset", "medium");
        options.set("crf", "18");
    } else if (codec->id == AV_CODEC_ID_MPEG4) {
        enc->flags |= AV_CODEC_FLAG_QSCALE;
        enc->global_quality = FF_QP2LAMBDA * 2;
    } else {
        enc->bit_rate = 20'000'000;
    }
    if (avcodec_open2(enc, codec, options.out()) < 0)
        return nullptr;
    return self;
}

VideoReencoder::~VideoReencoder() = default;

AVRational VideoReencoder::timeBase() const
{
    return encoder_->time_base;
}

void VideoReencoder::parametersInto(AVCodecParameters *parameters) const
{
    avcodec_parameters_from_context(parameters, encoder_.get());
}

bool VideoReencoder::beginClip(const AVCodecParameters *parameters, AVRational streamTimeBase)
{
    decoder_ = VideoDecoder::open(parameters, streamTimeBase, VideoDecoder::Options{.threads = 0});
    return decoder_ != nullptr;
}

void VideoReencoder::decode(const AVPacket *packet, const Placement &place, const PacketSink &sink)
{
    if (!decoder_)
        return;
    // A damaged packet costs that picture only.
    decoder_->send(packet);
    receiveFrames(place, sink);
}

void VideoReencoder::endClip(const Placement &place, const PacketSink &sink)
{
    if (!decoder_)
        return;
    decode(nullptr, place, sink);
    decoder_.reset();
}

void VideoReencoder::receiveFrames(const Placement &place, const PacketSink &sink)
{
    while (const AVFrame *decoded = decoder_->receive()) {
        const int64_t timestamp = VideoDecoder::timestampOf(decoded);
        const std::optional<int64_t> pts = timestamp == AV_NOPTS_VALUE ? std::nullopt : place(timestamp);
        if (!pts)
            continue;
        scaler_.reset(sws_getCachedContext(scaler_.release(), decoded->width, decoded->height,
                                           AVPixelFormat(decoded->format), encoder_->width, encoder_->height,
                                           encoder_->pix_fmt, SWS_BICUBIC, nullptr, nullptr, nullptr));
        if (!scaler_)
            throw ExportError::failed(
                QCoreApplication::translate("VideoReencoder", "The footage couldn't be converted for the movie."));
        const int *coefficients = sws_getCoefficients(SWS_CS_DEFAULT);
        sws_setColorspaceDetails(scaler_.get(), coefficients, isFullRange(decoded) ? 1 : 0, coefficients, 0, 0,
                                 1 << 16, 1 << 16);
        Av::Frame out(av_frame_alloc());
        if (!out)
            throw ExportError::failed(
                QCoreApplication::translate("VideoReencoder", "There wasn't enough memory to convert the footage."));
        out->format = encoder_->pix_fmt;
        out->width = encoder_->width;
        out->height = encoder_->height;
        out->color_range = AVCOL_RANGE_MPEG;
        if (av_frame_get_buffer(out.get(), 0) < 0)
            throw ExportError::failed(
                QCoreApplication::translate("VideoReencoder", "There wasn't enough memory to convert the footage."));
        sws_scale(scaler_.get(), decoded->data, decoded->linesize, 0, decoded->height, out->data, out->linesize);
        out->pts = *pts > lastPts_ ? *pts : lastPts_ + 1;
        lastPts_ = out->pts;
        encode(out.get(), sink);
    }
}

void VideoReencoder::encode(AVFrame *frame, const PacketSink &sink)
{
    int result = avcodec_send_frame(encoder_.get(), frame);
    if (result < 0 && result != AVERROR_EOF) {
        char text[AV_ERROR_MAX_STRING_SIZE] = {};
        av_strerror(result, text, sizeof text);
        throw ExportError::failed(
            //: %1 is the video library's reason
            QCoreApplication::translate("VideoReencoder", "The footage couldn't be encoded: %1.")
                .arg(QString::fromLocal8Bit(text)));
    }
    while (avcodec_receive_packet(encoder_.get(), encoded_.get()) >= 0) {
        // Encoders leave the duration out; the last picture needs one.
        if (encoded_->duration <= 0 && encoder_->framerate.num > 0)
            encoded_->duration = av_rescale_q(1, av_inv_q(encoder_->framerate), encoder_->time_base);
        sink(encoded_.get());
        av_packet_unref(encoded_.get());
    }
}

void VideoReencoder::finish(const PacketSink &sink)
{
    encode(nullptr, sink);
}
