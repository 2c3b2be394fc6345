#pragma once

// The one decoder loop: a video stream's packets in, its pictures out, always
// in the computer's memory whichever way they were decoded. On the graphics
// hardware (VAAPI) where asked and the device takes the stream; in software
// otherwise, and when the hardware gives up mid-stream the caller can go on
// in software.

#include "media/AvHandles.h"

extern "C" {
#include <libavutil/rational.h>
}

#include <cstdint>
#include <functional>
#include <memory>

class VideoDecoder {
public:
    struct Options {
        int threads = 1;       // software decoding threads; 0 lets FFmpeg choose
        bool hardware = false; // try the graphics hardware first
        int hardwareType = -1; // AVHWDeviceType to try; -1 for VAAPI
        // Only key frames come out, decoded the fast way (no loop filter):
        // for a look at the picture, not for showing it.
        bool keyFramesOnly = false;
    };

    // Null when no decoder takes the stream's parameters.
    static std::unique_ptr<VideoDecoder> open(const AVCodecParameters *parameters, AVRational timeBase,
                                              const Options &options);
    ~VideoDecoder();
    VideoDecoder(const VideoDecoder &) = delete;
    VideoDecoder &operator=(const VideoDecoder &) = delete;

    // Fills the blank packet with the stream's next one; false at its end,
    // or when no more can be read.
    using Feed = std::function<bool(AVPacket *into)>;
    // The next picture, pulling packets from feed as the decoder needs
    // them; null at the end of the stream or when it can't be decoded
    // further (see hardwareFailed). Valid until the next call.
    const AVFrame *next(const Feed &feed);

    // For a caller that hands packets over itself: a damaged packet costs
    // its picture only. Null drains the decoder.
    void send(const AVPacket *packet);
    // The next picture ready, or null until more packets come (or at the end).
    const AVFrame *receive();
    // After the demuxer moved: forget the packets fed so far.
    void flush();

    bool onHardware() const { return onHardware_; }
    // The hardware stopped decoding this stream; fallBackToSoftware() starts
    // over from the next key frame the caller feeds.
    bool hardwareFailed() const { return hardwareFailed_; }
    bool fallBackToSoftware();

    // The frame's time in the stream's time base: its best estimate, its
    // pts, or AV_NOPTS_VALUE.
    static int64_t timestampOf(const AVFrame *frame);

private:
    VideoDecoder() = default;
    bool openCodec(bool hardware);

    Av::CodecParameters parameters_;
    AVRational timeBase_{1, 1};
    Options options_;
    Av::CodecContext context_;
    Av::Packet packet_;
    Av::Frame frame_;
    Av::Frame softwareFrame_;
    int hardwareFormat_ = -1; // AVPixelFormat of the device's pictures
    bool onHardware_ = false;
    bool hardwareFailed_ = false;
    bool failed_ = false;
    bool inputEnded_ = false;
};
