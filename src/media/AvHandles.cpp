#include "media/AvHandles.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavfilter/avfilter.h>
#include <libavformat/avformat.h>
#include <libavutil/buffer.h>
#include <libavutil/dict.h>
#include <libavutil/frame.h>
#include <libswscale/swscale.h>
}

#include <new>

namespace Av {

void PacketFree::operator()(AVPacket *packet) const
{
    av_packet_free(&packet);
}

void FrameFree::operator()(AVFrame *frame) const
{
    av_frame_free(&frame);
}

void CodecContextFree::operator()(AVCodecContext *context) const
{
    avcodec_free_context(&context);
}

void CodecParametersFree::operator()(AVCodecParameters *parameters) const
{
    avcodec_parameters_free(&parameters);
}

void BufferUnref::operator()(AVBufferRef *buffer) const
{
    av_buffer_unref(&buffer);
}

void ScalerFree::operator()(SwsContext *scaler) const
{
    sws_freeContext(scaler);
}

void FilterGraphFree::operator()(AVFilterGraph *graph) const
{
    avfilter_graph_free(&graph);
}

void ParserClose::operator()(AVCodecParserContext *parser) const
{
    av_parser_close(parser);
}

void OutputContextFree::operator()(AVFormatContext *context) const
{
    avformat_free_context(context);
}

void IoContextFree::operator()(AVIOContext *context) const
{
    av_freep(&context->buffer);
    avio_context_free(&context);
}

void InputContextClose::operator()(AVFormatContext *context) const
{
    avformat_close_input(&context);
}

Packet makePacket()
{
    Packet packet(av_packet_alloc());
    if (!packet)
        throw std::bad_alloc();
    return packet;
}

Frame makeFrame()
{
    Frame frame(av_frame_alloc());
    if (!frame)
        throw std::bad_alloc();
    return frame;
}

SharedCodecParameters copyParameters(const AVCodecParameters *source)
{
    CodecParameters copy(avcodec_parameters_alloc());
    if (!copy || avcodec_parameters_copy(copy.get(), source) < 0)
        return nullptr;
    return SharedCodecParameters(copy.release(), [](const AVCodecParameters *p) {
        CodecParametersFree()(const_cast<AVCodecParameters *>(p));
    });
}

Dictionary::~Dictionary()
{
    av_dict_free(&dictionary_);
}

void Dictionary::set(const char *key, const char *value)
{
    av_dict_set(&dictionary_, key, value, 0);
}

void Dictionary::set(const char *key, long long value)
{
    av_dict_set_int(&dictionary_, key, value, 0);
}

} // namespace Av
