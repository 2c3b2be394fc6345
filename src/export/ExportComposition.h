#pragma once

#include "model/ClipRef.h"

#include "media/AvHandles.h"

extern "C" {
#include <libavutil/rational.h>
}

#include <QString>
#include <memory>
#include <stop_token>
#include <chrono>
#include <vector>

struct AVCodecParameters;

// One usable clip, placed on the joined timeline.
struct ExportSegment {
    QString path;
    double start = 0.0;    // seconds on the joined timeline
    double origin = 0.0;   // the clip's own time of its first moment, in seconds
    double duration = 0.0; // the clip's own length in seconds
    Av::SharedCodecParameters video;
    AVRational videoTimeBase{1, 1};
    AVRational frameRate{0, 1};
    Av::SharedCodecParameters audio; // null without audio
    AVRational audioTimeBase{1, 1};

    double end() const { return start + duration; }
};

// The clips of one camera joined back to back: what the export writes.
// Clips are judged by their content, never by their recorded health.
struct ExportComposition {
    std::vector<ExportSegment> segments;
    double duration = 0.0; // the running cursor after the last clip

    // Opens each clip in order, one at a time, and keeps those that open,
    // have video that decodes, a header that holds for their data and a
    // finite positive length: as long as the pictures the file really holds. Throws CancellationError
    // when stop is requested before the next clip.
    static ExportComposition build(const std::vector<ClipRef> &clips, std::stop_token stop,
                                   std::chrono::milliseconds clipLimit);

    // True when every clip's video has the same codec, size and decoder
    // configuration, so the samples can be joined as they are.
    bool videoJoinsByCopy() const;
    // The first clip with audio sets the audio format; null when none has any.
    const ExportSegment *firstWithAudio() const;
    // True when seg's audio can follow the first clip's audio by copy.
    bool audioMatches(const ExportSegment &seg) const;
    // The clip with the largest picture, for re-encoding without downscaling.
    const ExportSegment &largestPicture() const;

    // Same codec, picture or sound format and decoder configuration.
    static bool sameStreamFormat(const AVCodecParameters &a, const AVCodecParameters &b);
};
