#pragma once

#include "media/AvHandles.h"

#include <QString>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

extern "C" {
#include <libavutil/rational.h>
}

struct AVCodecParameters;
struct AVPacket;

// Reads one clip's packets on a thread of its own, a few ahead of the
// writer, so that a read the drive never answers costs that clip after a
// limit instead of holding the export. The thread owns the open clip and the
// packets it has read: one left behind on a stuck read frees them itself
// when the read ends, and touches nothing of the caller's.
class ClipPacketReader {
public:
    struct Streams {
        int video = -1;
        int audio = -1;
        std::vector<AVRational> timeBases; // of every stream, by index
        Av::SharedCodecParameters videoParameters;
        // With Options::probe: the video's first moment, in its time base,
        // and its average rate (0/1 when the file doesn't say).
        int64_t videoStart = 0;
        AVRational videoFrameRate{0, 1};
    };
    struct Options {
        // Reads the first packets to learn what the header leaves out (the
        // video's first moment and picture format), as a player does.
        bool probe = false;
        // seekTo counts from the video's first moment, not the file's zero.
        bool seekFromVideoStart = false;
    };
    enum class Read { packet, end, stuck };

    // seekTo: a moment in AV_TIME_BASE units to start from (the key frame
    // at or before it). The caller's stop ends the reading, too.
    ClipPacketReader(const QString &path, std::optional<int64_t> seekTo, std::chrono::milliseconds limit,
                     std::stop_token stop, Options options);
    ClipPacketReader(const QString &path, std::optional<int64_t> seekTo, std::chrono::milliseconds limit,
                     std::stop_token stop);
    ~ClipPacketReader();
    ClipPacketReader(const ClipPacketReader &) = delete;
    ClipPacketReader &operator=(const ClipPacketReader &) = delete;

    // Waits for the clip to open. Null when it isn't a readable movie with
    // pictures, or the drive didn't answer within the limit.
    std::optional<Streams> open();
    // The next packet into `into` (which must be blank). end: the clip is
    // done, a read failed, or the caller stopped; stuck: no read answered
    // within the limit, and the clip is given up.
    Read next(AVPacket *into);

private:
    struct State;
    static void readClip(const std::shared_ptr<State> &state, const QString &path, std::optional<int64_t> seekTo,
                         Options options);

    std::shared_ptr<State> state_;
    std::chrono::milliseconds limit_;
    std::stop_callback<std::function<void()>> forwardStop_;
};
