#include "playback/EventTimeline.h"

#include "drive/IOWatchdog.h"
#include "drive/ReadOnlyFs.h"
#include "model/CancellationError.h"
#include "playback/MediaSource.h"

#include <algorithm>

namespace EventTimeline {

std::vector<CameraTrack> build(const TeslaEvent &event, std::chrono::milliseconds clipTimeout, std::stop_token stop)
{
    std::vector<CameraTrack> tracks;
    const auto origin = event.earliestClipDate();
    if (!origin)
        return tracks;
    std::vector<Camera> cameras = event.cameras();
    std::stable_sort(cameras.begin(), cameras.end(), [](Camera a, Camera b) { return a.gridOrder() < b.gridOrder(); });

    for (const Camera camera : cameras) {
        if (stop.stop_requested())
            return tracks;
        std::vector<ClipRef> clips;
        for (const ClipRef &c : event.clips)
            if (c.camera == camera)
                clips.push_back(c);
        std::stable_sort(clips.begin(), clips.end(),
                         [](const ClipRef &a, const ClipRef &b) { return a.startDate < b.startDate; });
        std::vector<ClipRef> playable;
        for (const ClipRef &c : clips)
            if (c.health.isPlayable())
                playable.push_back(c);

        if (playable.empty()) {
            const bool allDamaged = !clips.empty()
                && std::all_of(clips.begin(), clips.end(), [](const ClipRef &c) { return c.health.isDamaged(); });
            tracks.push_back(CameraTrack{camera, std::nullopt, allDamaged ? damagedReason : noFootageReason, 0});
            continue;
        }

        Composition composition;
        const auto trackIndex = composition.addMutableTrack();
        if (!trackIndex) {
            tracks.push_back(CameraTrack{camera, std::nullopt, damagedReason, 0});
            continue;
        }
        bool hasContent = false;
        double contentEnd = 0;
        for (const ClipRef &clip : playable) {
            if (stop.stop_requested())
                return tracks;
            const double offset = event.timelineOffset(clip);
            double placed = 0;
            try {
                const QString path = clip.url;
                // Reads only the header: duration and tracks. Nothing is decoded.
                const double seconds = IOWatchdog::run(
                    clipTimeout,
                    [path](std::stop_token watch) -> double {
                        if (!ReadOnlyFs::stat(path).exists)
                            return 0.0;
                        MediaSource source(path, [watch] { return watch.stop_requested(); }, false);
                        if (source.duration() <= 0 || !source.hasVideo())
                            return 0.0;
                        return source.duration();
                    },
                    stop);
                if (seconds > 0) {
                    if (!composition.track(*trackIndex).placeClip(path, seconds, offset))
                        continue;
                    placed = seconds;
                }
            } catch (const CancellationError &) {
                return tracks;
            } catch (...) {
                continue; // this clip only
            }
            if (placed > 0) {
                hasContent = true;
                contentEnd = std::max(contentEnd, offset + placed);
            }
        }
        if (hasContent)
            tracks.push_back(CameraTrack{camera, std::move(composition), std::nullopt, contentEnd});
        else
            tracks.push_back(CameraTrack{camera, std::nullopt, damagedReason, 0});
    }
    return tracks;
}

std::vector<Gap> gaps(const TeslaEvent &event, const CameraTrack &track, double minGap)
{
    std::vector<Gap> out;
    const std::optional<Date> origin = event.earliestClipDate();
    if (!track.composition || track.composition->tracks().empty() || !origin)
        return out;
    // A damaged clip of this camera that starts within the stretch is why it is empty.
    const auto reasonFor = [&](double start, double end) {
        for (const ClipRef &clip : event.clips) {
            if (clip.camera != track.camera || !clip.health.isDamaged())
                continue;
            const double at = std::max(0.0, clip.startDate.timeIntervalSince(*origin));
            if (at >= start - minGap && at < end)
                return damagedReason;
        }
        return noFootageReason;
    };
    double covered = 0;
    const auto addUpTo = [&](double next) {
        if (next - covered >= minGap)
            out.push_back(Gap{covered, next, reasonFor(covered, next)});
    };
    for (const Composition::Segment &segment : track.composition->tracks().front().segments) {
        addUpTo(segment.timelineStart.seconds());
        covered = std::max(covered, segment.timelineEnd().seconds());
    }
    return out;
}

std::optional<double> momentOffset(const TeslaEvent &event, double duration)
{
    const auto earliest = event.earliestClipDate();
    if (event.kind == EventKind::recent || event.missingEventJSON || !earliest)
        return std::nullopt;
    const double raw = event.timestamp.timeIntervalSince(*earliest);
    if (raw >= 0 && raw <= duration)
        return raw;
    return std::nullopt;
}

} // namespace EventTimeline
