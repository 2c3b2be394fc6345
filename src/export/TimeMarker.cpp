#include "export/TimeMarker.h"

extern "C" {
#include <libavutil/frame.h>
#include <libavutil/pixfmt.h>
}

#include <cstring>

namespace TimeMarker {

namespace {
constexpr uint8_t white = 235;
constexpr uint8_t black = 16;

bool blockBit(int index, quint32 value)
{
    if (index == 0)
        return true;
    if (index == 1)
        return false;
    return (value >> (bits - 1 - (index - 2))) & 1u;
}

// Mean luma of the block's inner half, away from edges the encoder blurs.
int innerMean(const uint8_t *luma, int linesize, int x, int y, int block)
{
    const int inset = block / 4;
    const int size = block - 2 * inset;
    int sum = 0;
    for (int row = 0; row < size; ++row)
        for (int column = 0; column < size; ++column)
            sum += luma[size_t(y + inset + row) * size_t(linesize) + size_t(x + inset + column)];
    return sum / (size * size);
}
} // namespace

void draw(AVFrame *frame, int x, int y, int block, quint32 value)
{
    for (int index = 0; index < blocks; ++index) {
        const int left = x + index * block;
        if (left + block > frame->width || y + block > frame->height)
            return;
        const uint8_t shade = blockBit(index, value) ? white : black;
        for (int row = 0; row < block; ++row)
            std::memset(frame->data[0] + size_t(y + row) * size_t(frame->linesize[0]) + size_t(left), shade, size_t(block));
        // Grey chroma: in one interleaved plane (NV12) or two planar ones.
        const bool interleaved = frame->format == AV_PIX_FMT_NV12;
        for (int plane = 1; plane <= (interleaved ? 1 : 2); ++plane)
            for (int row = 0; row < block / 2; ++row)
                std::memset(frame->data[plane] + size_t(y / 2 + row) * size_t(frame->linesize[plane])
                                + size_t(interleaved ? left : left / 2),
                            128, size_t(interleaved ? block : block / 2));
    }
}

std::optional<quint32> read(const uint8_t *luma, int linesize, int x, int y, int block)
{
    if (innerMean(luma, linesize, x, y, block) < 160 || innerMean(luma, linesize, x + block, y, block) > 90)
        return std::nullopt;
    quint32 value = 0;
    for (int index = 2; index < blocks; ++index)
        value = value << 1 | (innerMean(luma, linesize, x + index * block, y, block) >= 126 ? 1u : 0u);
    return value;
}

} // namespace TimeMarker
