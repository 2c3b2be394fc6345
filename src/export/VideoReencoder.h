#pragma once

#include "media/AvHandles.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

extern "C" {
#include <libavutil/rational.h>
}

struct AVCodecContext;
struct AVCodecParameters;
struct AVFrame;
struct AVPacket;
class VideoDecoder;

// The fallback when clips can't be joined as they are: decodes each clip
// and encodes all of them into one H.264 stream of one picture size, at the
// best quality the FFmpeg build offers.
class VideoReencoder {
public:
    // Maps a decoded frame's timestamp (in the clip stream's time base) to
    // the encoder's time base, or nothing to leave the frame out.
    using Placement = std::function<std::optional<int64_t>(int64_t)>;
    using PacketSink = std::function<void(AVPacket *)>;

    // Null when no suitable encoder is present, or the picture is larger
    // than any camera footage.
    static std::unique_ptr<VideoReencoder> create(int width, int height, AVRational frameRate, bool globalHeader);
    ~VideoReencoder();

    VideoReencoder(const VideoReencoder &) = delete;
    VideoReencoder &operator=(const VideoReencoder &) = delete;

    const AVCodecContext *encoder() const { return encoder_.get(); }
    AVRational timeBase() const;
    void parametersInto(AVCodecParameters *parameters) const;

    // Starts decoding one clip's video stream; false when it can't be decoded.
    bool beginClip(const AVCodecParameters *parameters, AVRational streamTimeBase);
    // Feeds one packet of the current clip (null drains the clip's decoder).
    void decode(const AVPacket *packet, const Placement &place, const PacketSink &sink);
    void endClip(const Placement &place, const PacketSink &sink);
    // Drains the encoder.
    void finish(const PacketSink &sink);

private:
    VideoReencoder() = default;
    void encode(AVFrame *frame, const PacketSink &sink);
    void receiveFrames(const Placement &place, const PacketSink &sink);

    Av::CodecContext encoder_;
    std::unique_ptr<VideoDecoder> decoder_;
    Av::Scaler scaler_;
    Av::Packet encoded_;
    int64_t lastPts_ = INT64_MIN;
};
