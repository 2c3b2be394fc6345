#pragma once

// Measures what a clip's header says against what the clip really holds, so
// that nothing downstream trusts a header value beyond the file: sample
// positions and sizes against the file's length, the number of samples
// against the index the file really gives, the picture size against the
// stream's parameter sets, and the header's durations against the times of
// the samples. The prober, the player and both exporters all judge clips by
// this one measure.

#include <QString>

class Demuxer;

namespace HeaderCheck {

// Limits of believable camera footage.
inline constexpr int largestPictureSide = 8192;
// A picture size within this many pixels of the parameter sets' is the
// same size (coded sizes are rounded up to whole macroblocks).
inline constexpr int pictureSizeSlack = 16;
// A camera never holds one picture this long, nor this many times longer
// than its typical frame: such a sample is a damaged time table.
inline constexpr double longestSampleSeconds = 5.0;
inline constexpr double longestSampleInFrames = 10.0;
// Fewer pictures a second than this is a time table that can't be footage.
inline constexpr double slowestFramesPerSecond = 1.0;

struct ClipFacts {
    enum class Verdict {
        sound,        // the header agrees with the data
        shortened,    // the data stop short of what the header promises: use what is there
        contradicted, // the header can't describe this data: nothing of it can be trusted
    };
    Verdict verdict = Verdict::sound;
    QString reason; // why not sound, in a few words for the log
    // How long the clip's pictures really last, in seconds, from its first
    // sample: the header's length where it agrees, the samples' otherwise.
    double lengthSeconds = 0;
    int samples = 0; // samples that lie within the file

    bool usable() const { return verdict != Verdict::contradicted; }
};

// The clip's video stream against its data. Reads the stream's first
// sample (the demuxer is left after it). Blocking, answers the demuxer's stop.
ClipFacts measure(Demuxer &demuxer, int videoStream);

// For a movie without a video stream: a contradiction when one of its
// tracks holds samples in a video format all the same (a damaged handler).
ClipFacts measureWithoutVideo(Demuxer &demuxer);

} // namespace HeaderCheck
