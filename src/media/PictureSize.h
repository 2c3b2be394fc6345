#pragma once

// The picture size a video stream's own parameter sets give (H.264 and
// H.265: the sequence parameter set), read by libavcodec's parser from the
// stream's configuration and its first packet, without decoding a picture.
// What a damaged header claims is measured against it.

#include <QSize>
#include <optional>

struct AVCodecParameters;
struct AVPacket;

namespace PictureSize {

// None when the codec has no parser or the packet names no size.
std::optional<QSize> fromParameterSets(const AVCodecParameters *parameters, const AVPacket *firstPacket);

} // namespace PictureSize
