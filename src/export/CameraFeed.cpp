#include "export/CameraFeed.h"

#include "drive/IOWatchdog.h"
#include "model/CancellationError.h"
#include "playback/MediaSource.h"

extern "C" {
#include <libavutil/frame.h>
}

#include <stdexcept>

namespace {
// Pictures that stop before the clip says it ends (a damaged tail) are held
// this long, as one late frame would be; after that the cell goes black.
constexpr double holdAfterLastPicture = 0.25;
// A seek lands on the key frame before; short leads are decoded through.
constexpr double seekWorthwhile = 1.0;
constexpr double epsilon = 1e-6;
} // namespace

CameraFeed::CameraFeed(Camera camera, const std::optional<Composition> &composition,
                       const std::vector<ClipRef> &clips, std::chrono::milliseconds clipLimit, int decoderThreads,
                       std::stop_token stop)
    : camera_(camera), clipLimit_(clipLimit), decoderThreads_(decoderThreads), stop_(stop)
{
    if (composition && !composition->tracks().empty()) {
        for (const Composition::Segment &s : composition->tracks().front().segments) {
            Segment segment;
            segment.path = s.file;
            segment.start = s.timelineStart.seconds();
            segment.end = s.timelineEnd().seconds();
            segment.sourceStart = s.sourceStart.seconds();
            for (const ClipRef &clip : clips)
                if (clip.url == s.file) {
                    segment.clipStart = clip.startDate;
                    break;
                }
            segments_.push_back(segment);
        }
    }
    shown_ = av_frame_alloc();
    next_ = av_frame_alloc();
    if (!shown_ || !next_)
        throw std::bad_alloc();
}

CameraFeed::~CameraFeed()
{
    close();
    av_frame_free(&shown_);
    av_frame_free(&next_);
}

void CameraFeed::close()
{
    source_.reset();
    failed_ = false;
    hasShown_ = false;
    hasNext_ = false;
    av_frame_unref(shown_);
    av_frame_unref(next_);
}

bool CameraFeed::open(size_t index, double local)
{
    close();
    const Segment &segment = segments_[index];
    try {
        // Opening reads the header and the first packets; a drive that
        // doesn't answer costs this clip, and the caller's stop ends the wait.
        source_ = IOWatchdog::run(
            clipLimit_,
            [path = segment.path, threads = decoderThreads_, stop = stop_](std::stop_token watch) {
                return std::make_unique<MediaSource>(
                    path, [watch, stop] { return watch.stop_requested() || stop.stop_requested(); }, true, threads);
            },
            stop_);
    } catch (const CancellationError &) {
        throw;
    } catch (...) {
        failed_ = true;
        return false;
    }
    if (!source_->hasVideo()) {
        close();
        failed_ = true;
        return false;
    }
    if (local > seekWorthwhile)
        source_->seekKeyframe(local);
    pull();
    if (!hasNext_) {
        close();
        failed_ = true;
        return false;
    }
    return true;
}

void CameraFeed::pull()
{
    hasNext_ = false;
    av_frame_unref(next_);
    if (!source_)
        return;
    if (stop_.stop_requested())
        throw CancellationError();
    const Segment &segment = segments_[current_];
    double time = 0;
    const AVFrame *frame = source_->nextFrame(&time);
    if (stop_.stop_requested())
        throw CancellationError();
    // Past the length the clip was placed with, its pictures belong to nothing.
    if (!frame || time >= segment.sourceStart + (segment.end - segment.start) - epsilon)
        return;
    if (av_frame_ref(next_, frame) < 0)
        return;
    nextTime_ = time;
    hasNext_ = true;
}

void CameraFeed::start(double from)
{
    for (size_t index = 0; index < segments_.size(); ++index) {
        const Segment &segment = segments_[index];
        if (segment.end <= from + epsilon)
            continue;
        current_ = index;
        if (!open(index, std::max(0.0, from - segment.start) + segment.sourceStart))
            continue;
        width_ = next_->width;
        height_ = next_->height;
        pixelFormat_ = next_->format;
        frameRate_ = source_->frameRate();
        return;
    }
    current_ = segments_.size();
}

CameraFeed::Picture CameraFeed::at(double t)
{
    while (current_ < segments_.size() && t >= segments_[current_].end - epsilon) {
        close();
        ++current_;
    }
    if (current_ >= segments_.size() || t < segments_[current_].start - epsilon)
        return {};
    const Segment &segment = segments_[current_];
    const double local = segment.sourceStart + (t - segment.start);
    if (!source_ && !failed_)
        open(current_, local);
    if (failed_)
        return {};
    while (hasNext_ && nextTime_ <= local + epsilon) {
        std::swap(shown_, next_);
        shownTime_ = nextTime_;
        hasShown_ = true;
        pull();
    }
    if (!hasShown_) {
        // Before the clip's first picture: that picture, when it is near.
        if (hasNext_ && nextTime_ - local < holdAfterLastPicture)
            return Picture{next_, segment.clipStart.addingTimeInterval(nextTime_)};
        return {};
    }
    if (!hasNext_ && local - shownTime_ > holdAfterLastPicture)
        return {};
    return Picture{shown_, segment.clipStart.addingTimeInterval(shownTime_)};
}
