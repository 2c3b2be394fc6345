#include "playback/TrackPlayer.h"

#include "playback/HostClock.h"
#include "playback/PlaybackGroup.h"

#include <algorithm>
#include <atomic>
#include <cmath>

namespace {
constexpr double epsilon = 1e-6;
constexpr int presentIntervalMs = 4;
std::atomic<int> decoderThreads{0}; // 0: by picture size
} // namespace

void TrackPlayer::setDecoderThreads(int threads)
{
    decoderThreads = std::clamp(threads, 0, 8);
}

void TrackPlayer::setCatchUpEnabled(bool enabled)
{
    DecodeWorker::setCatchUpEnabled(enabled);
}

TrackPlayer::TrackPlayer(const Composition &composition, MediaTime start, QObject *parent)
    : QObject(parent), shared_(std::make_shared<DecodeWorker::State>()), clock_(std::make_shared<PlaybackClock>())
{
    Composition::Track track;
    if (!composition.tracks().empty())
        track = composition.tracks().front();
    trackEnd_ = track.end().seconds();
    presentTimer_.setTimerType(Qt::PreciseTimer);
    presentTimer_.setInterval(presentIntervalMs);
    connect(&presentTimer_, &QTimer::timeout, this, &TrackPlayer::present);

    // A fresh player is a seek to its start.
    const double at = std::max(0.0, start.seconds());
    clock_->place(at);
    parkedAt_ = at;
    shared_->generation = generation_ = 1;
    shared_->seekRequested = true;
    shared_->seekTarget = at;
    // Posted under the state's mutex, which the destructor takes to clear
    // this: nothing is posted to a player that is gone.
    shared_->notify = [this](DecodeWorker::News news) {
        if (news == DecodeWorker::News::ready)
            QMetaObject::invokeMethod(this, &TrackPlayer::markReady, Qt::QueuedConnection);
        else
            QMetaObject::invokeMethod(this, &TrackPlayer::present, Qt::QueuedConnection);
    };
    worker_ = std::make_unique<DecodeWorker>(shared_, std::move(track), decoderThreads);
}

int TrackPlayer::runningWorkers()
{
    return DecodeWorker::running();
}

TrackPlayer::~TrackPlayer()
{
    {
        std::lock_guard lock(shared_->mutex);
        shared_->notify = nullptr;
    }
    // Joins the worker; one stuck in the kernel on a dead drive is left to
    // end by itself. Pending completions are dropped: their owners may be going too.
    worker_.reset();
}

void TrackPlayer::requestStop()
{
    presentTimer_.stop();
    worker_->requestStop();
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
    double t = clock_->seconds();
    // Running, it stops at the track's end; a stopped position is where it was put.
    if (trackEnd_ > 0 && clock_->running())
        t = std::min(t, trackEnd_);
    return std::max(0.0, t);
}

void TrackPlayer::syncClock()
{
    std::lock_guard lock(shared_->mutex);
    shared_->playing = clock_->running();
    shared_->anchorMedia = clock_->anchorMedia();
    shared_->anchorHost = clock_->anchorHost();
    shared_->rate = clock_->rate();
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
    // The decoder goes on from where it is parked; anywhere else, and
    // whenever it is running already, it starts again from time.
    if (!parkedAt_ || std::abs(*parkedAt_ - time.seconds()) > 0.5 / MediaTime::timescale)
        requestSeek(time.seconds());
    parkedAt_.reset();
    clock_->run(rate, time.seconds(), hostTime);
    syncClock();
    updateTimers();
    for (auto &[token, o] : observers_)
        o.callback(currentTime());
}

void TrackPlayer::pause()
{
    const double at = currentSeconds();
    clock_->stop();
    if (!group_)
        clock_->place(at); // not past the track's end
    parkedAt_ = at;
    syncClock();
    present();
    updateTimers();
}

void TrackPlayer::seek(MediaTime time, std::function<void(bool)> completion)
{
    const double t = std::max(0.0, time.seconds());
    clock_->place(t);
    if (!clock_->running())
        parkedAt_ = t;
    syncClock();
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
    const bool needed = isPlaying() || presentedGeneration_ != generation_;
    if (group_) {
        group_->clockChanged(this);
    } else if (needed && !presentTimer_.isActive())
        presentTimer_.start();
    else if (!needed && !group_)
        presentTimer_.stop();
    for (auto &[token, o] : observers_) {
        if (isPlaying() && !o.timer->isActive())
            o.timer->start();
        else if (!isPlaying())
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
    if (!isPlaying() && presentedGeneration_ == generation_)
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
    return std::any_of(q.begin(), q.end(), [t](const DecodeWorker::Entry &e) { return e.time > t + epsilon; });
}

void TrackPlayer::presentFor(double t)
{
    std::optional<DecodeWorker::Entry> chosen;
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
        const auto it = std::find_if(q.begin(), q.end(), [this](const DecodeWorker::Entry &e) { return e.generation == generation_; });
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

void TrackPlayer::setGroup(PlaybackGroup *group)
{
    if (group)
        clock_ = group->clock();
    else if (group_)
        clock_ = std::make_shared<PlaybackClock>(*clock_); // goes on alone from the group's time
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
