#include "playback/EventTimeline.h"

#include "drive/IOWatchdog.h"
#include "drive/ReadOnlyFs.h"
#include "model/CancellationError.h"
#include "playback/MediaSource.h"

#include <QCoreApplication>
#include <algorithm>

namespace EventTimeline {

QString lockedReason()
{
    return QCoreApplication::translate("EventTimeline", "Unlock to watch");
}

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
            const bool locked = std::any_of(clips.begin(), clips.end(),
                                            [](const ClipRef &c) { return c.health == ClipHealth::encrypted; });
            if (locked)
                tracks.push_back(CameraTrack{camera, std::nullopt, lockedReason(), 0, true});
            else
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
