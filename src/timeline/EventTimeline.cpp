#include "timeline/EventTimeline.h"

#include "crypt/DecryptingClipReader.h"
#include "media/MediaClip.h"
#include "base/CancellationError.h"
#include "base/IOWatchdog.h"
#include "base/LogCategories.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <QCoreApplication>
#include <algorithm>

namespace EventTimeline {

namespace {
struct Placeable {
    double seconds = 0; // 0: nothing to place
    bool damaged = false; // a movie, but without pictures or with a header its data contradict
};

// How long the clip at path plays, reading only its header (and its first
// sample, to measure the header against). Every read, the first look at the
// path included, is under the clip's limit.
Placeable placeable(const QString &path, std::chrono::milliseconds limit, std::stop_token stop)
{
    MediaClip::Options options;
    options.mp4Only = false;
    // The header places the clip; reading packets for what it already says
    // would cost every minute of every camera a picture or more from the drive.
    options.streamInfo = MediaClip::StreamInfo::whenIncomplete;
    options.checkHeader = true;
    options.lookOnly = true;
    const auto clip = MediaClip::openWithin(limit, path, stop, options);
    if (clip->outcome() == MediaClip::Outcome::notAMovie)
        return {0.0, !clip->facts().usable()}; // gone, or not a movie at all
    if (!clip->isOpened() || clip->facts().verdict != HeaderCheck::ClipFacts::Verdict::sound)
        return {0.0, true};
    const AVStream *video = clip->video();
    if (video->duration > 0)
        return {double(video->duration) * av_q2d(video->time_base), false};
    const AVFormatContext *format = clip->context();
    return {format->duration > 0 ? double(format->duration) / AV_TIME_BASE : 0.0, false};
}
} // namespace
QString damagedReasonText() { return QCoreApplication::translate("EventTimeline", damagedReason.toUtf8().constData()); }

QString noFootageReasonText()
{
    return QCoreApplication::translate("EventTimeline", noFootageReason.toUtf8().constData());
}

QString lockedReason()
{
    //: On a camera's tile: encrypted footage that needs its keys first
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
        // An encrypted clip plays once its key is held.
        std::vector<ClipRef> playable;
        try {
            for (const ClipRef &c : clips)
                if (DecryptingClipReader::opens(c, clipTimeout, stop))
                    playable.push_back(c);
        } catch (const CancellationError &) {
            return tracks;
        }

        if (playable.empty()) {
            const bool allDamaged = !clips.empty()
                && std::all_of(clips.begin(), clips.end(), [](const ClipRef &c) { return c.health.isDamaged(); });
            const bool locked = std::any_of(clips.begin(), clips.end(),
                                            [](const ClipRef &c) { return c.health == ClipHealth::encrypted; });
            if (locked)
                tracks.push_back(CameraTrack{camera, std::nullopt, lockedReason(), 0, {}, true});
            else
                tracks.push_back(CameraTrack{camera, std::nullopt,
                                             allDamaged ? damagedReasonText() : noFootageReasonText(), 0, {}});
            continue;
        }

        Composition composition;
        const auto trackIndex = composition.addMutableTrack();
        if (!trackIndex) {
            tracks.push_back(CameraTrack{camera, std::nullopt, damagedReasonText(), 0, {}});
            continue;
        }
        bool hasContent = false;
        double contentEnd = 0;
        std::vector<double> damagedStarts;
        for (const ClipRef &clip : playable) {
            if (stop.stop_requested())
                return tracks;
            const double offset = event.timelineOffset(clip);
            double placed = 0;
            try {
                const Placeable found = placeable(clip.url, clipTimeout, stop);
                if (found.damaged)
                    damagedStarts.push_back(offset);
                if (found.seconds > 0 && composition.track(*trackIndex).placeClip(clip.url, found.seconds, offset))
                    placed = found.seconds;
            } catch (const CancellationError &) {
                return tracks;
            } catch (const IOWatchdog::TimedOut &) {
                continue; // this clip only
            } catch (const std::exception &e) {
                qCWarning(lcTimeline) << "placing" << clip.url << "failed:" << e.what();
                continue;
            }
            if (placed > 0) {
                hasContent = true;
                contentEnd = std::max(contentEnd, offset + placed);
            }
        }
        if (hasContent)
            tracks.push_back(
                CameraTrack{camera, std::move(composition), std::nullopt, contentEnd, std::move(damagedStarts)});
        else
            tracks.push_back(CameraTrack{camera, std::nullopt, damagedReasonText(), 0, {}});
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
        for (const double at : track.damagedStarts)
            if (at >= start - minGap && at < end)
                return damagedReasonText();
        for (const ClipRef &clip : event.clips) {
            if (clip.camera != track.camera || !clip.health.isDamaged())
                continue;
            const double at = std::max(0.0, clip.startDate.timeIntervalSince(*origin));
            if (at >= start - minGap && at < end)
                return damagedReasonText();
        }
        return noFootageReasonText();
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
