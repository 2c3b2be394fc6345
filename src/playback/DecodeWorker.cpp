#include "playback/DecodeWorker.h"

#include "media/AvHandles.h"
#include "playback/FrameConverter.h"
#include "playback/MediaSource.h"

extern "C" {
#include <libavutil/frame.h>
}

#include <algorithm>
#include <chrono>
#include <cmath>
#include <optional>
#include <thread>

namespace {
std::atomic<int> workersRunning{0};
constexpr size_t queueLimit = 4;
constexpr double epsilon = 1e-6;
constexpr double lateTolerance = 0.05;     // a frame later than this is not converted
constexpr double catchUpThreshold = 0.5;   // this far behind, skip ahead to a keyframe
constexpr double catchUpLead = 0.3;        // aim this far past the clock when skipping
constexpr double stillPictureLimit = 0.25; // even when late, show a frame this often
constexpr double previewDistance = 0.1;    // a seek this far past its key frame shows the key frame first
std::atomic<bool> catchUpEnabled{true};

// Counts a worker while its thread holds anything of the drive.
struct Counted {
    Counted() { ++workersRunning; }
    ~Counted() { --workersRunning; }
    Counted(const Counted &) = delete;
    Counted &operator=(const Counted &) = delete;
};

// Owns the open sources and fills the shared queue.
class Decoder {
public:
    Decoder(std::shared_ptr<DecodeWorker::State> state, Composition::Track track, int threads, std::stop_token stop)
        : s_(std::move(state)), segs_(std::move(track.segments)), threads_(threads), stop_(std::move(stop))
    {
    }

    void run()
    {
        for (;;) {
            std::unique_lock lock(s_->mutex);
            while (!stop_.stop_requested() && !s_->seekRequested && (atEnd_ || s_->queue.size() >= queueLimit)) {
                if (wantsPreopen()) {
                    lock.unlock();
                    preopen();
                    lock.lock();
                    continue;
                }
                // A stop wakes this too.
                s_->changed.wait(lock, stop_, [this] { return s_->seekRequested || !(atEnd_ || s_->queue.size() >= queueLimit); });
            }
            if (stop_.stop_requested())
                break;
            if (s_->seekRequested) {
                s_->seekRequested = false;
                generation_ = s_->generation;
                const double target = s_->seekTarget;
                s_->queue.clear();
                salvage_ = std::move(s_->salvage);
                s_->salvage.clear();
                lock.unlock();
                firstOfGeneration_ = true;
                seekTo(target);
                continue;
            }
            lock.unlock();
            produce();
        }
    }

private:
    double sourceEnd(const Composition::Segment &seg) const { return (seg.sourceStart + seg.duration).seconds(); }
    double toTimeline(const Composition::Segment &seg, double sourceTime) const
    {
        return seg.timelineStart.seconds() + (sourceTime - seg.sourceStart.seconds());
    }

    std::unique_ptr<MediaSource> openSource(const QString &path)
    {
        try {
            return std::make_unique<MediaSource>(path, stop_, threads_);
        } catch (const std::exception &) {
            return nullptr;
        }
    }

    bool wantsPreopen() const
    {
        const size_t next = size_t(curSeg_ + 1);
        return curSeg_ >= 0 && next < segs_.size() && preSeg_ != int(next) && !stop_.stop_requested()
            && (!cur_ || segs_[next].file != cur_->path());
    }

    // Opens the next clip while the queue is full, so that crossing into it
    // costs no open and no header parse.
    void preopen()
    {
        const int next = curSeg_ + 1;
        pre_ = openSource(segs_[size_t(next)].file);
        preSeg_ = next;
    }

    // Makes cur_ the source of segment i, positioned at sourceSeconds.
    bool enterSegment(int i, double sourceSeconds)
    {
        const auto &seg = segs_[size_t(i)];
        bool fresh = false;
        if (!(cur_ && cur_->path() == seg.file)) {
            fresh = true;
            if (pre_ && preSeg_ == i && pre_->path() == seg.file) {
                cur_ = std::move(pre_);
            } else {
                cur_.reset();
                cur_ = openSource(seg.file);
            }
            pre_.reset();
            preSeg_ = -1;
        }
        curSeg_ = i;
        if (!cur_)
            return false;
        if (fresh)
            lastDecoded_ = -1e300;
        if (sourceSeconds > epsilon || !fresh)
            seekSource(sourceSeconds);
        return true;
    }

    void push(double time, const QVideoFrame &frame, bool picture)
    {
        std::lock_guard lock(s_->mutex);
        if (!readyPosted_) {
            readyPosted_ = true;
            tell(DecodeWorker::News::ready);
        }
        if (generation_ != s_->generation) {
            // A newer seek is waiting; the frame may still serve it.
            s_->salvage.push_back(DecodeWorker::Entry{generation_, time, frame, picture});
            return;
        }
        s_->queue.push_back(DecodeWorker::Entry{generation_, time, frame, picture});
        lastPushed_ = time;
        if (firstOfGeneration_) {
            firstOfGeneration_ = false;
            tell(DecodeWorker::News::frames);
        }
    }

    void pushGap(double time) { push(time, QVideoFrame(), false); }

    void markEnd()
    {
        atEnd_ = true;
        std::lock_guard lock(s_->mutex);
        if (generation_ == s_->generation) {
            s_->endedGeneration = generation_;
            tell(DecodeWorker::News::frames);
        }
    }

    // Slows decoding down on purpose, to show how the group copes.
    void decodedOne()
    {
        ++s_->decoded;
        if (const int delay = s_->decodeDelayMs.load())
            std::this_thread::sleep_for(std::chrono::milliseconds(delay));
    }

    // A drag of the scrubber seeks many times: drop a seek that is already stale.
    bool newerSeekWaiting()
    {
        std::lock_guard lock(s_->mutex);
        return s_->seekRequested;
    }

    void seekTo(double target)
    {
        atEnd_ = false;
        if (segs_.empty()) {
            pushGap(target);
            markEnd();
            return;
        }
        int i = -1;
        for (size_t k = 0; k < segs_.size(); ++k)
            if (segs_[k].timelineStart.seconds() <= target + epsilon)
                i = int(k);
        if (i < 0) {
            // Before the first media: no picture until it starts.
            pushGap(target);
            if (!enterSegment(0, segs_[0].sourceStart.seconds()))
                pushGap(segs_[0].timelineStart.seconds());
            return;
        }
        const auto &seg = segs_[size_t(i)];
        double sourceTarget = seg.sourceStart.seconds() + (target - seg.timelineStart.seconds());
        if (target >= seg.timelineEnd().seconds() - epsilon) {
            if (size_t(i) + 1 < segs_.size()) {
                pushGap(target);
                if (!enterSegment(i + 1, segs_[size_t(i) + 1].sourceStart.seconds()))
                    pushGap(segs_[size_t(i) + 1].timelineStart.seconds());
                return;
            }
            sourceTarget = sourceEnd(seg) - epsilon * 2; // past the end: the last frame stays
        }
        exactSeek(i, sourceTarget, target);
    }

    void seekSource(double sourceSeconds)
    {
        cur_->seekKeyframe(sourceSeconds);
        lastDecoded_ = -1e300;
    }

    // True when the decoder sits right after the salvaged frames and the
    // target is among them, or ahead in the same segment with no keyframe in
    // between: going on is then cheaper than going back to a keyframe.
    bool canResume(int i, double sourceTarget, double target) const
    {
        if (!cur_ || salvage_.empty())
            return false;
        for (const auto &e : salvage_)
            if (!e.picture)
                return false;
        if (salvage_.front().time > target + epsilon || std::abs(salvage_.back().time - lastDecoded_) > epsilon)
            return false;
        if (salvage_.back().time > target + epsilon)
            return true; // the frame after the target is there too
        const auto &seg = segs_[size_t(i)];
        if (curSeg_ != i || salvage_.back().time < seg.timelineStart.seconds() - epsilon)
            return false;
        const auto keyframe = cur_->keyframeAtOrBefore(sourceTarget);
        return !keyframe || toTimeline(seg, *keyframe) <= salvage_.back().time + epsilon;
    }

    void pushSalvaged(const DecodeWorker::Entry &e, double clampTo)
    {
        push(firstOfGeneration_ ? std::min(e.time, clampTo) : e.time, e.frame, true);
    }

    // Keyframe at or before, then decode forward: the frame shown is the
    // newest one not after the target.
    void exactSeek(int i, double sourceTarget, double target)
    {
        const auto &seg = segs_[size_t(i)];
        std::optional<DecodeWorker::Entry> carried; // a salvaged frame at or before the target
        if (canResume(i, sourceTarget, target)) {
            size_t k = 0;
            while (k + 1 < salvage_.size() && salvage_[k + 1].time <= target + epsilon)
                ++k;
            if (k + 1 < salvage_.size()) {
                // The frame and those after it are all decoded already.
                for (size_t j = k; j < salvage_.size(); ++j)
                    pushSalvaged(salvage_[j], target);
                salvage_.clear();
                return;
            }
            carried = std::move(salvage_[k]);
        }
        salvage_.clear();
        if (!carried && !enterSegment(i, sourceTarget)) {
            pushGap(target);
            return;
        }
        double back = 0;
        for (int attempt = 0; attempt < 6; ++attempt) {
            if (attempt > 0) {
                carried.reset();
                seekSource(sourceTarget - back);
            }
            Av::Frame prev;
            double prevTime = 0;
            bool retry = false;
            bool previewPushed = false;
            for (;;) {
                if (stop_.stop_requested() || newerSeekWaiting())
                    return;
                double st = 0;
                const AVFrame *f = cur_->nextFrame(&st);
                if (f) {
                    decodedOne();
                    lastDecoded_ = toTimeline(seg, st);
                }
                const bool ended = !f || st >= sourceEnd(seg) - epsilon;
                if (!ended && st < seg.sourceStart.seconds() - epsilon)
                    continue;
                if (!ended && st <= sourceTarget + epsilon) {
                    if (!previewPushed && st < sourceTarget - previewDistance) {
                        previewPushed = true;
                        pushPreview(seg, f, st);
                    }
                    if (!prev)
                        prev.reset(av_frame_alloc());
                    av_frame_unref(prev.get());
                    av_frame_ref(prev.get(), f);
                    prevTime = st;
                    carried.reset();
                    continue;
                }
                if (!prev && !carried && !ended && sourceTarget - back > seg.sourceStart.seconds() + epsilon) {
                    // Landed past the target: go further back.
                    back += 1.0;
                    retry = true;
                    break;
                }
                if (prev)
                    pushFrame(seg, prev.get(), prevTime, target);
                else if (carried)
                    pushSalvaged(*carried, target);
                else if (ended)
                    pushGap(target);
                if (ended) {
                    nextSegment();
                } else {
                    pushFrame(seg, f, st, target);
                }
                return;
            }
            if (!retry)
                return;
        }
        pushGap(target);
    }

    void pushPreview(const Composition::Segment &seg, const AVFrame *f, double sourceTime)
    {
        const double time = toTimeline(seg, sourceTime);
        const QVideoFrame frame = converter_.convert(f, time, 0.0);
        std::lock_guard lock(s_->mutex);
        if (generation_ != s_->generation)
            return;
        s_->queue.push_back(DecodeWorker::Entry{generation_, time, frame, true, true});
        tell(DecodeWorker::News::frames);
    }

    // clampTo keeps the first frame of a seek at or before its target so
    // that it is shown at once.
    void pushFrame(const Composition::Segment &seg, const AVFrame *f, double sourceTime, double clampTo = 1e300)
    {
        double time = toTimeline(seg, sourceTime);
        if (firstOfGeneration_)
            time = std::min(time, clampTo);
        push(time, converter_.convert(f, time, 0.0), true);
    }

    void nextSegment()
    {
        const int next = curSeg_ + 1;
        if (curSeg_ < 0 || size_t(next) >= segs_.size()) {
            markEnd();
            return;
        }
        const auto &here = segs_[size_t(curSeg_)];
        const auto &there = segs_[size_t(next)];
        if (there.timelineStart > here.timelineEnd())
            pushGap(here.timelineEnd().seconds());
        if (!enterSegment(next, there.sourceStart.seconds()))
            pushGap(there.timelineStart.seconds());
    }

    void produce()
    {
        if (curSeg_ < 0 || !cur_) {
            nextSegment();
            return;
        }
        const auto &seg = segs_[size_t(curSeg_)];
        double st = 0;
        const AVFrame *f = cur_->nextFrame(&st);
        if (!f || st >= sourceEnd(seg) - epsilon) {
            nextSegment();
            return;
        }
        decodedOne();
        lastDecoded_ = toTimeline(seg, st);
        if (st < seg.sourceStart.seconds() - epsilon)
            return;
        const double time = toTimeline(seg, st);
        bool grouped;
        {
            std::lock_guard lock(s_->mutex);
            grouped = s_->grouped;
        }
        if (!firstOfGeneration_ && !grouped) {
            double now;
            {
                std::lock_guard lock(s_->mutex);
                now = s_->mediaNow();
            }
            if (time < now - lateTolerance) {
                // Behind the clock (a slow machine, a high rate): jump to a
                // later keyframe when the index has one ahead of us...
                if (now - time > catchUpThreshold && catchUpEnabled) {
                    const double aim = seg.sourceStart.seconds() + (now + catchUpLead - seg.timelineStart.seconds());
                    const auto keyframe = cur_->keyframeAtOrBefore(std::min(aim, sourceEnd(seg)));
                    if (keyframe && *keyframe > st + catchUpThreshold / 2) {
                        seekSource(*keyframe);
                        return;
                    }
                }
                // ...and skip converting, but keep the picture moving.
                if (time < lastPushed_ + stillPictureLimit)
                    return;
            }
        }
        pushFrame(seg, f, st);
    }

    // The mutex is held.
    void tell(DecodeWorker::News news)
    {
        if (s_->notify)
            s_->notify(news);
    }

    std::shared_ptr<DecodeWorker::State> s_;
    std::vector<Composition::Segment> segs_;
    int threads_;
    std::stop_token stop_;
    FrameConverter converter_;
    std::unique_ptr<MediaSource> cur_;
    int curSeg_ = -1;
    std::unique_ptr<MediaSource> pre_;
    int preSeg_ = -1;
    quint64 generation_ = 0;
    bool atEnd_ = true;
    bool firstOfGeneration_ = false;
    bool readyPosted_ = false;
    double lastPushed_ = -1e300;
    double lastDecoded_ = -1e300; // timeline time of the newest frame out of cur_'s decoder
    std::deque<DecodeWorker::Entry> salvage_;
};

} // namespace

DecodeWorker::DecodeWorker(std::shared_ptr<State> state, Composition::Track track, int decoderThreads)
    : thread_([state = std::move(state), track = std::move(track), decoderThreads](std::stop_token stop) mutable {
          const Counted counted;
          Decoder(state, std::move(track), decoderThreads, std::move(stop)).run();
      })
{
}

void DecodeWorker::setCatchUpEnabled(bool enabled)
{
    catchUpEnabled = enabled;
}

int DecodeWorker::running()
{
    return workersRunning;
}
