#include "media/PictureSize.h"

#include "media/AvHandles.h"

extern "C" {
#include <libavcodec/avcodec.h>
}

namespace PictureSize {

std::optional<QSize> fromParameterSets(const AVCodecParameters *parameters, const AVPacket *firstPacket)
{
    const Av::Parser parser(av_parser_init(parameters->codec_id));
    const Av::CodecContext context(avcodec_alloc_context3(nullptr));
    if (!parser || !context || avcodec_parameters_to_context(context.get(), parameters) < 0)
        return std::nullopt;
    // One whole sample: parse it as it is, without looking for frame ends.
    parser->flags |= PARSER_FLAG_COMPLETE_FRAMES;
    uint8_t *out = nullptr;
    int outSize = 0;
    av_parser_parse2(parser.get(), context.get(), &out, &outSize, firstPacket->data, firstPacket->size,
                     firstPacket->pts, firstPacket->dts, firstPacket->pos);
    if (parser->width <= 0 || parser->height <= 0)
        return std::nullopt;
    return QSize(parser->width, parser->height);
}

} // namespace PictureSize
