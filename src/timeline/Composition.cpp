#include "timeline/Composition.h"

#include <algorithm>

MediaTime Composition::Track::end() const
{
    return segments.empty() ? MediaTime::zero() : segments.back().timelineEnd();
}

bool Composition::Track::insertTimeRange(const QString &file, MediaTime sourceStart, MediaTime duration, MediaTime at)
{
    if (duration <= MediaTime::zero() || at < MediaTime::zero() || sourceStart < MediaTime::zero())
        return false;
    const Segment inserted{file, sourceStart, duration, at};
    if (at >= end()) {
        segments.push_back(inserted);
        return true;
    }
    std::vector<Segment> result;
    result.reserve(segments.size() + 2);
    for (const Segment &s : segments) {
        if (s.timelineEnd() <= at) {
            result.push_back(s);
        } else if (s.timelineStart >= at) {
            Segment moved = s;
            moved.timelineStart = s.timelineStart + duration;
            result.push_back(moved);
        } else {
            // The insertion point falls inside this segment: split it.
            const MediaTime head = at - s.timelineStart;
            result.push_back(Segment{s.file, s.sourceStart, head, s.timelineStart});
            result.push_back(Segment{s.file, s.sourceStart + head, s.duration - head, at + duration});
        }
    }
    result.push_back(inserted);
    std::sort(result.begin(), result.end(),
              [](const Segment &a, const Segment &b) { return a.timelineStart < b.timelineStart; });
    segments = std::move(result);
    return true;
}

std::optional<int> Composition::addMutableTrack()
{
    Track t;
    t.trackID = int(tracks_.size()) + 1;
    tracks_.push_back(t);
    return int(tracks_.size()) - 1;
}

MediaTime Composition::duration() const
{
    MediaTime d;
    for (const Track &t : tracks_)
        d = std::max(d, t.end());
    return d;
}
