#include "media/VideoDecoder.h"

#include "base/LogCategories.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/hwcontext.h>
#include <libavutil/pixdesc.h>
}

#include <map>
#include <mutex>

namespace {

// One device for every decoder of the process, made on first use; null when
// the machine has none that works (then every stream decodes in software).
AVBufferRef *hardwareDevice(AVHWDeviceType type)
{
    static std::mutex mutex;
    static std::map<int, Av::Buffer> devices;
    std::lock_guard lock(mutex);
    const auto known = devices.find(type);
    if (known != devices.end())
        return known->second.get();
    AVBufferRef *device = nullptr;
    if (av_hwdevice_ctx_create(&device, type, nullptr, nullptr, 0) < 0) {
        qCInfo(lcMedia) << "no hardware decoding device of type" << av_hwdevice_get_type_name(type);
        device = nullptr;
    }
    return devices.emplace(type, Av::Buffer(device)).first->second.get();
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

std::unique_ptr<VideoDecoder> VideoDecoder::open(const AVCodecParameters *parameters, AVRational timeBase,
                                                 const Options &options)
{
    std::unique_ptr<VideoDecoder> decoder(new VideoDecoder);
    decoder->parameters_.reset(avcodec_parameters_alloc());
    decoder->packet_.reset(av_packet_alloc());
    decoder->frame_.reset(av_frame_alloc());
    decoder->softwareFrame_.reset(av_frame_alloc());
    if (!decoder->parameters_ || !decoder->packet_ || !decoder->frame_ || !decoder->softwareFrame_
        || avcodec_parameters_copy(decoder->parameters_.get(), parameters) < 0)
        return nullptr;
    decoder->timeBase_ = timeBase;
    decoder->options_ = options;
    if (!(options.hardware && decoder->openCodec(true)) && !decoder->openCodec(false))
        return nullptr;
    return decoder;
}

VideoDecoder::~VideoDecoder() = default;

bool VideoDecoder::openCodec(bool hardware)
{
    context_.reset();
    onHardware_ = false;
    failed_ = false;
    hardwareFailed_ = false;
    inputEnded_ = false;
    const AVCodec *codec = avcodec_find_decoder(parameters_->codec_id);
    if (!codec)
        return false;
    AVPixelFormat hardwareFormat = AV_PIX_FMT_NONE;
    AVBufferRef *device = nullptr;
    if (hardware) {
        const auto type = options_.hardwareType < 0 ? AV_HWDEVICE_TYPE_VAAPI : AVHWDeviceType(options_.hardwareType);
        for (int i = 0; const AVCodecHWConfig *config = avcodec_get_hw_config(codec, i); ++i)
            if ((config->methods & AV_CODEC_HW_CONFIG_METHOD_HW_DEVICE_CTX) && config->device_type == type) {
                hardwareFormat = config->pix_fmt;
                break;
            }
        if (hardwareFormat == AV_PIX_FMT_NONE || !(device = hardwareDevice(type)))
            return false;
    }
    Av::CodecContext context(avcodec_alloc_context3(codec));
    if (!context || avcodec_parameters_to_context(context.get(), parameters_.get()) < 0)
        return false;
    context->pkt_timebase = timeBase_;
    if (hardware) {
        context->hw_device_ctx = av_buffer_ref(device);
        context->opaque = reinterpret_cast<void *>(intptr_t(hardwareFormat));
        context->get_format = pickHardwareFormat;
        hardwareFormat_ = hardwareFormat;
    } else {
        context->thread_count = options_.threads;
    }
    if (options_.keyFramesOnly) {
        context->skip_frame = AVDISCARD_NONKEY;
        context->skip_loop_filter = AVDISCARD_ALL;
        context->flags2 |= AV_CODEC_FLAG2_FAST;
    }
    if (avcodec_open2(context.get(), codec, nullptr) < 0)
        return false;
    context_ = std::move(context);
    onHardware_ = hardware;
    return true;
}

bool VideoDecoder::fallBackToSoftware()
{
    if (!onHardware_)
        return false;
    qCInfo(lcMedia) << "the graphics hardware stopped decoding a stream; going on in software";
    return openCodec(false);
}

void VideoDecoder::flush()
{
    // A software retry that failed left no decoder: nothing to flush or feed.
    if (!context_)
        return;
    avcodec_flush_buffers(context_.get());
    inputEnded_ = false;
    // A stream that failed in software may decode again from a key frame;
    // one the hardware gave up on waits for fallBackToSoftware().
    failed_ = hardwareFailed_;
}

void VideoDecoder::send(const AVPacket *packet)
{
    if (failed_ || !context_)
        return;
    const int sent = avcodec_send_packet(context_.get(), packet);
    // A damaged packet costs its picture; a decoder that refuses more is done.
    if (sent < 0 && sent != AVERROR(EAGAIN) && sent != AVERROR_INVALIDDATA && sent != AVERROR_EOF) {
        failed_ = true;
        hardwareFailed_ = onHardware_;
    }
    if (!packet)
        inputEnded_ = true;
}

const AVFrame *VideoDecoder::receive()
{
    if (failed_ || !context_)
        return nullptr;
    const int received = avcodec_receive_frame(context_.get(), frame_.get());
    if (received == AVERROR(EAGAIN) || received == AVERROR_EOF)
        return nullptr;
    if (received < 0) {
        failed_ = true;
        hardwareFailed_ = onHardware_;
        return nullptr;
    }
    if (!onHardware_ || frame_->format != hardwareFormat_)
        return frame_.get();
    av_frame_unref(softwareFrame_.get());
    if (av_hwframe_transfer_data(softwareFrame_.get(), frame_.get(), 0) < 0
        || av_frame_copy_props(softwareFrame_.get(), frame_.get()) < 0) {
        failed_ = true;
        hardwareFailed_ = true;
        return nullptr;
    }
    return softwareFrame_.get();
}

const AVFrame *VideoDecoder::next(const Feed &feed)
{
    for (;;) {
        if (const AVFrame *frame = receive())
            return frame;
        if (failed_ || inputEnded_)
            return nullptr;
        if (!feed(packet_.get())) {
            send(nullptr);
            continue;
        }
        send(packet_.get());
        av_packet_unref(packet_.get());
    }
}

int64_t VideoDecoder::timestampOf(const AVFrame *frame)
{
    return frame->best_effort_timestamp != AV_NOPTS_VALUE ? frame->best_effort_timestamp : frame->pts;
}
