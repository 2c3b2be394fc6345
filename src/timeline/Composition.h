#pragma once

#include "timeline/MediaTime.h"

#include <QString>
#include <optional>
#include <vector>

// An editable timeline that refers to clip files and copies nothing. One
// composition per camera, holding one video track. Inserting past a track's
// end leaves an empty stretch in front of the new media; inserting before
// its end splices the media in and moves everything after it later.
class Composition {
public:
    struct Segment {
        QString file;
        MediaTime sourceStart;   // in the file's media time, first frame at 0
        MediaTime duration;
        MediaTime timelineStart; // on the composition's timeline

        MediaTime timelineEnd() const { return timelineStart + duration; }
        bool operator==(const Segment &) const = default;
    };

    struct Track {
        int trackID = 0;
        std::vector<Segment> segments; // ascending timelineStart, never overlapping

        MediaTime end() const;
        // Returns false for an empty range or a negative time.
        bool insertTimeRange(const QString &file, MediaTime sourceStart, MediaTime duration, MediaTime at);
        // A whole clip of the given length, from its first frame, at a time
        // of the axis in seconds: how an event's clips are laid out.
        bool placeClip(const QString &file, double seconds, double at)
        {
            return insertTimeRange(file, MediaTime::zero(), MediaTime::fromSeconds(seconds), MediaTime::fromSeconds(at));
        }
        bool operator==(const Track &) const = default;
    };

    // Adds one video track; the id is chosen here. Returns its index.
    std::optional<int> addMutableTrack();

    const std::vector<Track> &tracks() const { return tracks_; }
    Track &track(int index) { return tracks_.at(size_t(index)); }
    const Track &track(int index) const { return tracks_.at(size_t(index)); }
    MediaTime duration() const;
    bool operator==(const Composition &) const = default;

private:
    std::vector<Track> tracks_;
};
