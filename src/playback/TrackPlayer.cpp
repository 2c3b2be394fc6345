#include "playback/TrackPlayer.h"

#include "media/AvHandles.h"
#include "playback/FrameConverter.h"
#include "playback/HostClock.h"
#include "playback/MediaSource.h"
#include "playback/PlaybackGroup.h"

extern "C" {
#include <libavutil/frame.h>
}

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <stop_token>
#include <thread>

namespace {
std::atomic<int> workersRunning{0};
constexpr size_t queueLimit = 4;
constexpr double epsilon = 1e-6;
constexpr int presentIntervalMs = 4;
constexpr double lateTolerance = 0.05;     // a frame later than this is not converted
constexpr double catchUpThreshold = 0.5;   // this far behind, skip ahead to a keyframe
constexpr double catchUpLead = 0.3;        // aim this far past the clock when skipping
constexpr double stillPictureLimit = 0.25; // even when late, show a frame this often
constexpr double previewDistance = 0.1;    // a seek this far past its key frame shows the key frame first
std::atomic<int> decoderThreads{0}; // 0: by picture size
std::atomic<bool> catchUpEnabled{true};

} // namespace

struct TrackPlayer::Shared {
    struct Entry {
        quint64 generation = 0;
        double time = 0;
        QVideoFrame frame; // invalid: no picture
        bool picture = false;
        // A key frame before a seek's target, shown while the exact frame
        // is decoded; never the answer to the seek.
        bool preview = false;
    };

    std::mutex mutex;
    std::condition_variable changed;
    std::stop_source stop;
    std::atomic<quint64> decoded{0};
    std::atomic<int> decodeDelayMs{0};
    bool finished = false;
    // In a group the clock waits for the slowest camera, so no camera drops
    // or skips frames on its own.
    bool grouped = false;
    // The generation whose frames have all been queued: nothing more comes.
    quint64 endedGeneration = 0;
    TrackPlayer *owner = nullptr; // cleared under mutex when the player goes

    quint64 generation = 0;
    bool seekRequested = false;
    double seekTarget = 0;
    std::deque<Entry> queue;
    // Frames a seek took out of the queue; the worker may still use them.
    std::deque<Entry> salvage;

    // The clock, for dropping frames that are already late.
    bool playing = false;
    double anchorMedia = 0;
    double anchorHost = 0;
    float rate = 1.0f;

    double mediaNow() const
    {
        if (!playing)
            return -1e300;
        return anchorMedia + double(rate) * std::max(0.0, HostClock::now() - anchorHost);
    }

    // Wakes the player on the GUI thread, if it still exists.
    void post(void (TrackPlayer::*method)())
    {
        if (owner)
            QMetaObject::invokeMethod(owner, method, Qt::QueuedConnection);
    }
};

// The decoding side: owns the open sources and fills the shared queue.
class TrackPlayer::Worker {
public:
    Worker(std::shared_ptr<Shared> shared, Composition::Track track, int threads)
        : s_(std::move(shared)), segs_(std::move(track.segments)), threads_(threads)
    {
    }

    void run()
    {
        for (;;) {
            std::unique_lock lock(s_->mutex);
            while (!s_->stop.stop_requested() && !s_->seekRequested && (atEnd_ || s_->queue.size() >= queueLimit)) {
                if (wantsPreopen()) {
                    lock.unlock();
                    preopen();
                    lock.lock();
                    continue;
                }
                s_->changed.wait(lock);
            }
            if (s_->stop.stop_requested())
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
        cur_.reset();
        pre_.reset();
        std::lock_guard lock(s_->mutex);
        s_->finished = true;
        s_->changed.notify_all();
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
            return std::make_unique<MediaSource>(path, s_->stop.get_token(), threads_);
        } catch (const std::exception &) {
            return nullptr;
        }
    }

    bool wantsPreopen() const
    {
        const size_t next = size_t(curSeg_ + 1);
        return curSeg_ >= 0 && next < segs_.size() && preSeg_ != int(next) && !s_->stop.stop_requested()
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
            s_->post(&TrackPlayer::markReady);
        }
        if (generation_ != s_->generation) {
            // A newer seek is waiting; the frame may still serve it.
            s_->salvage.push_back(Shared::Entry{generation_, time, frame, picture});
            return;
        }
        s_->queue.push_back(Shared::Entry{generation_, time, frame, picture});
        lastPushed_ = time;
        if (firstOfGeneration_) {
            firstOfGeneration_ = false;
            s_->post(&TrackPlayer::present);
        }
    }

    void pushGap(double time) { push(time, QVideoFrame(), false); }

    void markEnd()
    {
        atEnd_ = true;
        std::lock_guard lock(s_->mutex);
        if (generation_ == s_->generation) {
            s_->endedGeneration = generation_;
            s_->post(&TrackPlayer::present);
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

    void pushSalvaged(const Shared::Entry &e, double clampTo)
    {
        push(firstOfGeneration_ ? std::min(e.time, clampTo) : e.time, e.frame, true);
    }

    // Keyframe at or before, then decode forward: the frame shown is the
    // newest one not after the target.
    void exactSeek(int i, double sourceTarget, double target)
    {
        const auto &seg = segs_[size_t(i)];
        std::optional<Shared::Entry> carried; // a salvaged frame at or before the target
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
                if (s_->stop.stop_requested() || newerSeekWaiting())
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
        s_->queue.push_back(Shared::Entry{generation_, time, frame, true, true});
        s_->post(&TrackPlayer::present);
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

    std::shared_ptr<Shared> s_;
    std::vector<Composition::Segment> segs_;
    int threads_;
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
    std::deque<Shared::Entry> salvage_;
};

void TrackPlayer::setDecoderThreads(int threads)
{
    decoderThreads = std::clamp(threads, 0, 8);
}

void TrackPlayer::setCatchUpEnabled(bool enabled)
{
    catchUpEnabled = enabled;
}

TrackPlayer::TrackPlayer(const Composition &composition, MediaTime start, QObject *parent)
    : QObject(parent), shared_(std::make_shared<Shared>())
{
    Composition::Track track;
    if (!composition.tracks().empty())
        track = composition.tracks().front();
    trackEnd_ = track.end().seconds();
    shared_->owner = this;
    presentTimer_.setTimerType(Qt::PreciseTimer);
    presentTimer_.setInterval(presentIntervalMs);
    connect(&presentTimer_, &QTimer::timeout, this, &TrackPlayer::present);

    // A fresh player is a seek to its start.
    pausedAt_ = std::max(0.0, start.seconds());
    shared_->generation = generation_ = 1;
    shared_->seekRequested = true;
    shared_->seekTarget = pausedAt_;
    auto shared = shared_;
    const int threads = decoderThreads;
    ++workersRunning;
    std::thread([shared, track, threads] {
        Worker(shared, track, threads).run();
        --workersRunning;
    }).detach();
}

int TrackPlayer::runningWorkers()
{
    return workersRunning;
}

TrackPlayer::~TrackPlayer()
{
    std::unique_lock lock(shared_->mutex);
    shared_->owner = nullptr;
    shared_->stop.request_stop();
    shared_->changed.notify_all();
    // A read stuck in the kernel (a dead drive) can't be interrupted: wait a
    // moment, then leave the worker to end by itself; it owns what it uses.
    // A player stopped earlier had its moment already, and waiting again
    // would only hold the window's thread.
    if (!stopRequested_)
        shared_->changed.wait_for(lock, std::chrono::seconds(1), [this] { return shared_->finished; });
    // Pending completions are dropped: their owners may be going too.
}

void TrackPlayer::requestStop()
{
    stopRequested_ = true;
    presentTimer_.stop();
    std::lock_guard lock(shared_->mutex);
    shared_->stop.request_stop();
    shared_->changed.notify_all();
}

void TrackPlayer::markReady()
{
    if (status_ == ReadyToPlay)
        return;
    status_ = ReadyToPlay;
    Q_EMIT statusChanged();
}

double TrackPlayer::currentSeconds() const
{
    if (!playing_)
        return pausedAt_;
    double t = anchorMedia_ + double(rate_) * std::max(0.0, HostClock::now() - anchorHost_);
    if (trackEnd_ > 0)
        t = std::min(t, trackEnd_);
    return std::max(0.0, t);
}

void TrackPlayer::syncClock()
{
    std::lock_guard lock(shared_->mutex);
    shared_->playing = playing_;
    shared_->anchorMedia = anchorMedia_;
    shared_->anchorHost = anchorHost_;
    shared_->rate = rate_;
}

void TrackPlayer::requestSeek(double seconds)
{
    std::lock_guard lock(shared_->mutex);
    generation_ = ++shared_->generation;
    shared_->seekRequested = true;
    shared_->seekTarget = seconds;
    // A forward step often lands on a frame already decoded: hand the
    // queue to the worker instead of throwing it away. An empty queue means
    // the worker has not produced since the last seek, so the older salvage
    // still matches its decoder.
    // Previews are left out: the frames between one and the next are not there.
    if (!shared_->queue.empty()) {
        shared_->salvage.clear();
        for (auto &e : shared_->queue)
            if (!e.preview)
                shared_->salvage.push_back(std::move(e));
    }
    shared_->queue.clear();
    shared_->changed.notify_all();
}

void TrackPlayer::setRate(float rate, MediaTime time, double hostTime)
{
    if (rate == 0.0f) {
        pause();
        return;
    }
    const double position = currentSeconds();
    if (std::abs(position - time.seconds()) > 0.5 / MediaTime::timescale || playing_)
        requestSeek(time.seconds());
    rate_ = rate;
    anchorMedia_ = time.seconds();
    anchorHost_ = hostTime;
    playing_ = true;
    syncClock();
    updateTimers();
    for (auto &[token, o] : observers_)
        o.callback(currentTime());
}

void TrackPlayer::pause()
{
    pausedAt_ = currentSeconds();
    playing_ = false;
    syncClock();
    present();
    updateTimers();
}

void TrackPlayer::seek(MediaTime time, std::function<void(bool)> completion)
{
    const double t = std::max(0.0, time.seconds());
    if (playing_) {
        anchorMedia_ = t;
        anchorHost_ = HostClock::now();
        syncClock();
    } else {
        pausedAt_ = t;
    }
    requestSeek(t);
    auto replaced = std::move(pending_);
    pending_.clear();
    if (completion) {
        if (status_ == ReadyToPlay)
            pending_.push_back(Pending{generation_, std::move(completion)});
        else
            replaced.push_back(Pending{0, std::move(completion)});
    }
    updateTimers();
    for (auto &p : replaced)
        if (p.completion)
            p.completion(false);
}

void TrackPlayer::updateTimers()
{
    const bool needed = playing_ || presentedGeneration_ != generation_;
    if (group_) {
        group_->clockChanged(this);
    } else if (needed && !presentTimer_.isActive())
        presentTimer_.start();
    else if (!needed && !group_)
        presentTimer_.stop();
    for (auto &[token, o] : observers_) {
        if (playing_ && !o.timer->isActive())
            o.timer->start();
        else if (!playing_)
            o.timer->stop();
    }
}

void TrackPlayer::present()
{
    if (group_) {
        group_->wake();
        return;
    }
    presentFor(currentSeconds());
    if (!playing_ && presentedGeneration_ == generation_)
        presentTimer_.stop();
}

bool TrackPlayer::preparedFor(double t)
{
    std::lock_guard lock(shared_->mutex);
    auto &q = shared_->queue;
    while (!q.empty() && q.front().generation != generation_)
        q.pop_front();
    // Nothing is dropped here: the group may yet hold the clock back to
    // before t, and every frame after its last presented time may be needed.
    if (shared_->endedGeneration == generation_)
        return true;
    return std::any_of(q.begin(), q.end(), [t](const Shared::Entry &e) { return e.time > t + epsilon; });
}

void TrackPlayer::presentFor(double t)
{
    std::optional<Shared::Entry> chosen;
    {
        std::lock_guard lock(shared_->mutex);
        auto &q = shared_->queue;
        while (!q.empty() && q.front().generation != generation_)
            q.pop_front();
        while (!q.empty() && q.front().time <= t + epsilon) {
            // A preview gives way to any frame after it, and is never the answer.
            if (q.front().preview) {
                if (q.size() == 1)
                    break;
                q.pop_front();
                continue;
            }
            chosen = std::move(q.front());
            q.pop_front();
        }
        if (chosen)
            shared_->changed.notify_all();
    }
    if (!chosen)
        return;
    showingPreview_ = false;
    currentFrame_ = chosen->frame;
    presentedTime_ = chosen->picture ? std::optional<double>(chosen->time) : std::nullopt;
    presentedGeneration_ = chosen->generation;
    ++presentedCount_;
    if (sink_)
        sink_->setVideoFrame(currentFrame_);
    std::vector<Pending> done;
    for (auto it = pending_.begin(); it != pending_.end();) {
        if (it->generation <= presentedGeneration_) {
            done.push_back(std::move(*it));
            it = pending_.erase(it);
        } else {
            ++it;
        }
    }
    Q_EMIT framePresented();
    for (auto &p : done)
        if (p.completion)
            p.completion(true);
}

bool TrackPlayer::presentPreview()
{
    QVideoFrame frame;
    double time = 0;
    {
        std::lock_guard lock(shared_->mutex);
        if (presentedGeneration_ == generation_ || previewGeneration_ == generation_)
            return false;
        const auto &q = shared_->queue;
        const auto it = std::find_if(q.begin(), q.end(), [this](const Shared::Entry &e) { return e.generation == generation_; });
        if (it == q.end() || !it->preview)
            return false;
        frame = it->frame;
        time = it->time;
    }
    previewGeneration_ = generation_;
    showingPreview_ = true;
    currentFrame_ = frame;
    presentedTime_ = time;
    if (sink_)
        sink_->setVideoFrame(currentFrame_);
    Q_EMIT framePresented();
    return true;
}

void TrackPlayer::holdClock(double media, double host)
{
    if (!playing_ || host <= anchorHost_)
        return;
    anchorMedia_ = media;
    anchorHost_ = host;
    syncClock();
}

void TrackPlayer::setGroup(PlaybackGroup *group)
{
    group_ = group;
    presentTimer_.stop();
    {
        std::lock_guard lock(shared_->mutex);
        shared_->grouped = group != nullptr;
    }
    updateTimers();
}

void TrackPlayer::setDecodeDelay(std::chrono::milliseconds delay)
{
    shared_->decodeDelayMs = int(delay.count());
}

quint64 TrackPlayer::decodedFrameCount() const
{
    return shared_->decoded.load();
}

std::optional<double> TrackPlayer::nextFrameTime() const
{
    std::lock_guard lock(shared_->mutex);
    for (const auto &e : shared_->queue) {
        if (e.generation != generation_ || !e.picture)
            continue;
        if (!presentedTime_ || e.time > *presentedTime_ + epsilon)
            return e.time;
    }
    return std::nullopt;
}

void TrackPlayer::setVideoSink(QVideoSink *sink)
{
    if (sink_ == sink)
        return;
    sink_ = sink;
    if (sink_)
        sink_->setVideoFrame(currentFrame_);
    Q_EMIT videoSinkChanged();
}

int TrackPlayer::addPeriodicTimeObserver(MediaTime interval, std::function<void(MediaTime)> callback)
{
    const int token = nextObserverToken_++;
    auto *timer = new QTimer(this);
    timer->setInterval(std::max(1, int(interval.seconds() * 1000.0)));
    connect(timer, &QTimer::timeout, this, [this, token] {
        auto it = observers_.find(token);
        if (it != observers_.end())
            it->second.callback(currentTime());
    });
    observers_[token] = Observer{std::move(callback), timer};
    updateTimers();
    return token;
}

void TrackPlayer::removeTimeObserver(int token)
{
    auto it = observers_.find(token);
    if (it == observers_.end())
        return;
    it->second.timer->deleteLater();
    observers_.erase(it);
}
