#include "playback/FrameConverter.h"

#include <QVideoFrameFormat>

extern "C" {
#include <libavutil/frame.h>
#include <libavutil/pixfmt.h>
#include <libswscale/swscale.h>
}

#include <cstring>

namespace {
QVideoFrameFormat::ColorSpace colorSpace(const AVFrame *f)
{
    switch (f->colorspace) {
    case AVCOL_SPC_BT709:
        return QVideoFrameFormat::ColorSpace_BT709;
    case AVCOL_SPC_BT470BG:
    case AVCOL_SPC_SMPTE170M:
    case AVCOL_SPC_FCC:
        return QVideoFrameFormat::ColorSpace_BT601;
    case AVCOL_SPC_BT2020_NCL:
    case AVCOL_SPC_BT2020_CL:
        return QVideoFrameFormat::ColorSpace_BT2020;
    case AVCOL_SPC_RGB:
        return QVideoFrameFormat::ColorSpace_AdobeRgb;
    default:
        // Unspecified: standard definition is BT.601, high definition BT.709.
        return f->height >= 720 && f->width >= 1280 ? QVideoFrameFormat::ColorSpace_BT709
                                                    : QVideoFrameFormat::ColorSpace_BT601;
    }
}

bool fullRange(const AVFrame *f)
{
    if (f->color_range == AVCOL_RANGE_JPEG)
        return true;
    const auto fmt = AVPixelFormat(f->format);
    return fmt == AV_PIX_FMT_YUVJ420P || fmt == AV_PIX_FMT_YUVJ422P || fmt == AV_PIX_FMT_YUVJ444P;
}

void copyPlane(uchar *dst, int dstStride, const uint8_t *src, int srcStride, int rowBytes, int rows)
{
    for (int y = 0; y < rows; ++y)
        std::memcpy(dst + qsizetype(y) * dstStride, src + qsizetype(y) * srcStride, size_t(rowBytes));
}
} // namespace

QVideoFrame FrameConverter::convert(const AVFrame *f, double startSeconds, double durationSeconds)
{
    const int w = f->width;
    const int h = f->height;
    const auto pix = AVPixelFormat(f->format);
    const bool direct = pix == AV_PIX_FMT_YUV420P || pix == AV_PIX_FMT_YUVJ420P;
    // swscale turns the "J" formats into limited range on the way.
    const bool full = fullRange(f) && (direct || f->color_range == AVCOL_RANGE_JPEG)
        && !(pix == AV_PIX_FMT_YUVJ422P || pix == AV_PIX_FMT_YUVJ444P);
    QVideoFrameFormat format(QSize(w, h), QVideoFrameFormat::Format_YUV420P);
    auto space = colorSpace(f);
    // Qt 6.4's BT.601 full-range matrix is wrong (greens and blues come out
    // dull); its AdobeRgb entry is the JPEG matrix, which is exactly BT.601
    // at full range.
    if (space == QVideoFrameFormat::ColorSpace_BT601 && full)
        space = QVideoFrameFormat::ColorSpace_AdobeRgb;
    format.setColorSpace(space);
    format.setColorRange(full ? QVideoFrameFormat::ColorRange_Full : QVideoFrameFormat::ColorRange_Video);
    if (f->color_trc == AVCOL_TRC_BT709 || f->color_trc == AVCOL_TRC_SMPTE170M)
        format.setColorTransfer(QVideoFrameFormat::ColorTransfer_BT709);
    QVideoFrame out(format);
    if (!out.map(QVideoFrame::WriteOnly))
        return {};
    const int cw = (w + 1) / 2;
    const int ch = (h + 1) / 2;
    if (direct) {
        copyPlane(out.bits(0), out.bytesPerLine(0), f->data[0], f->linesize[0], w, h);
        copyPlane(out.bits(1), out.bytesPerLine(1), f->data[1], f->linesize[1], cw, ch);
        copyPlane(out.bits(2), out.bytesPerLine(2), f->data[2], f->linesize[2], cw, ch);
    } else {
        // Anything else (10-bit, 4:2:2, NV12) goes through swscale.
        sws_.reset(sws_getCachedContext(sws_.release(), w, h, pix, w, h, AV_PIX_FMT_YUV420P, SWS_BILINEAR, nullptr,
                                        nullptr, nullptr));
        if (!sws_) {
            out.unmap();
            return {};
        }
        uint8_t *dst[4] = {out.bits(0), out.bits(1), out.bits(2), nullptr};
        int dstStride[4] = {out.bytesPerLine(0), out.bytesPerLine(1), out.bytesPerLine(2), 0};
        sws_scale(sws_.get(), f->data, f->linesize, 0, h, dst, dstStride);
    }
    out.unmap();
    out.setStartTime(qint64(startSeconds * 1e6));
    out.setEndTime(qint64((startSeconds + durationSeconds) * 1e6));
    return out;
}
