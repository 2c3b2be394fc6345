#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <stdexcept>
#include <stop_token>

struct AVFormatContext;
struct AVFrame;
class MediaClip;

// One clip file opened for playing: the media layer's clip with its video
// decoder, positioned and read in the player's terms. Every blocking call
// answers the stop token, so a watchdog or a closing player can end a read
// that is still in progress. Times are the file's own media time in
// seconds, with its first frame at 0.
class MediaSource {
public:
    class Error : public std::runtime_error {
    public:
        using std::runtime_error::runtime_error;
    };

    // Decoding on the graphics hardware through FFmpeg (VAAPI here), for
    // every source opened after the call; on by default. A stream the device
    // can't take, or a device that fails, decodes in software instead.
    static void setHardwareDecoding(bool enabled);
    static bool hardwareDecodingEnabled();
    // Which FFmpeg device type to try (AVHWDeviceType); VAAPI unless a test says otherwise.
    static void setHardwareDeviceType(int type);

    // Opens and reads the container's header and its video decoder.
    // decoderThreads 0 picks by picture size. Throws Error when the clip
    // has no video that can be decoded.
    MediaSource(const QString &path, std::stop_token stop, int decoderThreads = 0);
    ~MediaSource();
    MediaSource(const MediaSource &) = delete;
    MediaSource &operator=(const MediaSource &) = delete;

    const QString &path() const { return path_; }
    double duration() const { return duration_; }
    // Frames per second on average, as the container states it; 0 when it doesn't.
    double frameRate() const { return frameRate_; }

    // Positions the demuxer at the keyframe at or before seconds.
    bool seekKeyframe(double seconds);
    // Time of the keyframe at or before seconds, from the container's index.
    std::optional<double> keyframeAtOrBefore(double seconds) const;
    // The next decoded frame (owned by the source, valid until the next
    // call) with its time, or nullptr at the end or on an error. Always in
    // the computer's memory, whichever way it was decoded.
    const AVFrame *nextFrame(double *time);
    // True while the decoder runs on the graphics hardware.
    bool decodesOnHardware() const;

private:
    bool fallBackToSoftware();

    QString path_;
    std::unique_ptr<MediaClip> clip_;
    AVFormatContext *format_ = nullptr; // owned by clip_
    std::optional<double> lastTime_;  // of the last frame given
    std::optional<double> skipUntil_; // after a fall back: frames given already
    int streamIndex_ = -1;
    double timeBase_ = 0;
    int64_t startPts_ = 0;
    double duration_ = 0;
    double frameRate_ = 0;
};
