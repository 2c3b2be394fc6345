#pragma once

#include "media/AvHandles.h"
#include "model/Camera.h"
#include "model/ClipRef.h"
#include "model/Date.h"
#include "timeline/Composition.h"

#include <QHash>
#include <chrono>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

struct AVFrame;
class ClipPacketReader;
class VideoDecoder;

// The pictures of one camera along the event's axis, decoded in order: for
// each moment asked for, the frame on show then, or nothing where the
// camera has no footage (a missing minute, or one that can't be read). The
// clips are only read, each through the read-only opener, on a thread of
// their own: a read the drive doesn't answer within the limit costs the
// rest of that clip, never the export.
class CameraFeed {
public:
    struct Picture {
        const AVFrame *frame = nullptr; // null where the camera has nothing to show
        Date shownAt;                   // with a frame: its clip's start plus the frame's own media time
    };

    // composition: the camera's track on the axis, as the player lays it
    // out; clips: the event's, for their start dates. clipLimit bounds each
    // read of a clip, opening included.
    CameraFeed(Camera camera, const std::optional<Composition> &composition, const std::vector<ClipRef> &clips,
               std::chrono::milliseconds clipLimit, int decoderThreads, std::stop_token stop);
    ~CameraFeed();
    CameraFeed(const CameraFeed &) = delete;
    CameraFeed &operator=(const CameraFeed &) = delete;

    Camera camera() const { return camera_; }
    // Opens the first clip that reaches past `from` and has a picture, so
    // that the size and format below are known. Throws CancellationError.
    void start(double from);
    // Of the first picture found; 0 when the camera has none in the stretch.
    int width() const { return width_; }
    int height() const { return height_; }
    int pixelFormat() const { return pixelFormat_; }
    double frameRate() const { return frameRate_; }

    // The picture at t seconds on the axis; t must not go back. The frame
    // stays valid until the next call. Throws CancellationError.
    Picture at(double t);

private:
    struct Segment {
        QString path;
        double start = 0;       // on the axis
        double end = 0;         // on the axis
        double sourceStart = 0; // the clip's own media time at `start`
        Date clipStart;
    };

    bool open(size_t index, double local);
    void close();
    void pull();
    const AVFrame *decodeNext(double *time);

    Camera camera_;
    std::vector<Segment> segments_;
    std::chrono::milliseconds clipLimit_;
    int decoderThreads_;
    std::stop_token stop_;

    size_t current_ = 0;
    std::unique_ptr<ClipPacketReader> reader_;
    std::unique_ptr<VideoDecoder> decoder_;
    int videoStream_ = -1;
    double timeBase_ = 0;
    int64_t videoStart_ = 0;
    bool failed_ = false;
    Av::Frame shown_;
    Av::Frame next_;
    bool hasShown_ = false;
    bool hasNext_ = false;
    double shownTime_ = 0;
    double nextTime_ = 0;

    int width_ = 0;
    int height_ = 0;
    int pixelFormat_ = -1;
    double frameRate_ = 0;
};
