#pragma once

#include "media/AvHandles.h"

#include <QString>
#include <exception>
#include <functional>
#include <memory>

extern "C" {
#include <libavutil/rational.h>
}

struct AVBufferRef;
struct AVCodecContext;
struct AVCodecParameters;
struct AVFrame;
struct AVPacket;

// H.264 for a combined movie: the graphics hardware's encoder through VAAPI
// where one answers, x264 otherwise, at a quality that keeps number plates
// readable at 1080p.
class H264Encoder {
public:
    // The hardware encoder gave up; nothing it made is of use.
    class HardwareFailed : public std::exception {
    public:
        const char *what() const noexcept override { return "hardware encoder failed"; }
    };
    using PacketSink = std::function<void(AVPacket *)>;

    static constexpr const char *x264Preset = "veryfast";
    static constexpr int x264Quality = 20; // constant rate factor
    static constexpr int hardwareQuality = 22; // constant quantiser

    // x264 for planar 4:2:0 pictures; throws Exporter::ExportError when it can't be opened.
    static std::unique_ptr<H264Encoder> software(int width, int height, int framesPerSecond);
    // A VAAPI device, or null when there is none or it doesn't answer.
    // path: a render node; empty for the first one.
    static AVBufferRef *openHardwareDevice(const QString &path);
    // VAAPI for pictures uploaded into framesContext; null when it won't open.
    static std::unique_ptr<H264Encoder> hardware(AVBufferRef *framesContext, int width, int height,
                                                 int framesPerSecond);
    ~H264Encoder();
    H264Encoder(const H264Encoder &) = delete;
    H264Encoder &operator=(const H264Encoder &) = delete;

    bool isHardware() const { return hardware_; }
    AVRational timeBase() const;
    void parametersInto(AVCodecParameters *parameters) const;
    // One picture (its pts in the time base); null drains. Throws
    // HardwareFailed, or Exporter::ExportError for the software encoder.
    void encode(const AVFrame *frame, const PacketSink &sink);

private:
    H264Encoder() = default;

    Av::CodecContext context_;
    Av::Packet packet_;
    bool hardware_ = false;
};
