#include "playback/SyncPlayerController.h"

#include "base/Awaiting.h"
#include "base/LogCategories.h"
#include "base/AsyncRun.h"
#include "base/EnginePools.h"
#include "playback/HostClock.h"
#include "timeline/EventTimeline.h"

#include <QThreadPool>
#include <QTimer>
#include <qcoro/qcorotimer.h>

#include <algorithm>
#include <cmath>

using namespace std::chrono_literals;

SyncPlayerController::SyncPlayerController(const TeslaEvent &event, QObject *parent) : QObject(parent)
{
    loadEvent(event);
}

SyncPlayerController::~SyncPlayerController()
{
    if (buildTask_)
        buildTask_->request_stop();
    removeTimeObserver();
}

void SyncPlayerController::removeTimeObserver()
{
    if (timeObserverToken_) {
        if (clockPlayer_)
            clockPlayer_->removeTimeObserver(*timeObserverToken_);
        timeObserverToken_.reset();
    }
}

void SyncPlayerController::loadEvent(const TeslaEvent &event)
{
    event_ = event;
    if (buildTask_)
        buildTask_->request_stop();
    buildTask_.reset();
    if (cueTask_)
        cueTask_->request_stop();
    cueTask_.reset();
    removeTimeObserver();
    primaryPlayer_.clear();
    clockPlayer_.clear();

    setIsPlaying(false);
    setCurrentTime(0);
    setFocusedCamera(std::nullopt);
    setPlaces({});
    // The old players stop at once and go a little later: each one's
    // destructor waits for its worker, which would stall the GUI thread.
    group_.clear();
    if (approximate_) {
        approximate_ = false;
        Q_EMIT isShowingApproximateFramesChanged();
    }
    std::vector<std::shared_ptr<TrackPlayer>> retired;
    for (Tile &tile : tiles_)
        if (tile.player) {
            tile.player->requestStop();
            retired.push_back(std::move(tile.player));
        }
    if (!retired.empty())
        QTimer::singleShot(retireDelay, this, [retired] {});
    opening_.emplace();
    setIsLoadingTiles(true);
    setDuration(std::max(1.0, event.approximateDuration()));
    setTriggerOffset(EventTimeline::momentOffset(event, duration_));
    // The click is answered at once: a tile for each camera the scan found,
    // saying what it waits for, before any clip is read.
    publishWaitingTiles();

    std::stop_source stop;
    buildTask_ = stop;
    runBuild(QPointer<SyncPlayerController>(this), event, stop.get_token());
}

QCoro::Task<void> SyncPlayerController::runBuild(QPointer<SyncPlayerController> self, TeslaEvent event,
                                                 std::stop_token stop)
{
    QFuture<std::vector<TileOutcome>> future =
        AsyncRun::onPool(EnginePools::media(), [event, stop] { return buildTileData(event, stop); });
    auto futureEnded = Awaiting::finished(future);
    co_await futureEnded;
    if (!self || stop.stop_requested())
        co_return;
    std::optional<std::vector<TileOutcome>> outcomes;
    try {
        outcomes = Awaiting::take(future);
    } catch (const std::exception &e) {
        qCWarning(lcPlayback) << "the cameras could not be laid out:" << e.what();
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcPlayback);
    }
    self->applyTileOutcomes(outcomes.value_or(std::vector<TileOutcome>{}));
    if (!self->playableTiles().empty())
        self->cue(cueTarget(self->triggerOffset_, self->duration_), true);
    else
        self->opening_.reset();
}

QString SyncPlayerController::waitingReason()
{
    return QCoreApplication::translate("SyncPlayerController", "Reading this camera from the drive…");
}

void SyncPlayerController::publishWaitingTiles()
{
    std::vector<Camera> cameras = event_.cameras();
    std::stable_sort(cameras.begin(), cameras.end(), [](Camera a, Camera b) { return a.gridOrder() < b.gridOrder(); });
    tiles_.clear();
    for (Camera camera : cameras) {
        Tile tile{camera, nullptr, waitingReason(), 0, {}};
        tile.waiting = true;
        tiles_.push_back(std::move(tile));
    }
    publishTiles();
}

void SyncPlayerController::publishTiles()
{
    tilesForQml_.clear();
    for (const Tile &t : tiles_) {
        QVariantMap m;
        m.insert(QStringLiteral("camera"), t.camera.rawValue());
        m.insert(QStringLiteral("cameraName"), t.camera.displayName());
        m.insert(QStringLiteral("player"), QVariant::fromValue<QObject *>(t.player.get()));
        m.insert(QStringLiteral("placeholderReason"),
                 t.placeholderReason ? QVariant(*t.placeholderReason) : QVariant());
        m.insert(QStringLiteral("contentEnd"), t.contentEnd);
        QVariantList gaps;
        for (const EventTimeline::Gap &gap : t.gaps)
            gaps.append(QVariantMap{{QStringLiteral("start"), gap.start},
                                    {QStringLiteral("end"), gap.end},
                                    {QStringLiteral("reason"), gap.reason}});
        m.insert(QStringLiteral("gaps"), gaps);
        m.insert(QStringLiteral("locked"), t.locked);
        m.insert(QStringLiteral("waiting"), t.waiting);
        tilesForQml_.append(m);
    }
    Q_EMIT tilesChanged();
}

std::vector<SyncPlayerController::TileOutcome> SyncPlayerController::buildTileData(const TeslaEvent &event,
                                                                                   std::stop_token stop)
{
    return EventTimeline::build(event, clipTimeout, stop);
}

void SyncPlayerController::applyTileOutcomes(const std::vector<TileOutcome> &outcomes)
{
    double contentEnd = 0;
    for (const TileOutcome &o : outcomes)
        contentEnd = std::max(contentEnd, o.contentEnd);
    if (contentEnd > 0) {
        setDuration(contentEnd);
        if (triggerOffset_ && *triggerOffset_ > duration_)
            setTriggerOffset(duration_);
    }
    // Each player's first read is the first picture the user will see, not
    // the start of the event: on a slow drive every read counts.
    const double start = cueTarget(triggerOffset_, duration_);
    setCurrentTime(start);
    std::vector<Tile> tiles;
    for (const TileOutcome &o : outcomes) {
        if (o.composition)
            tiles.push_back(Tile{o.camera, std::make_shared<TrackPlayer>(*o.composition, MediaTime::fromSeconds(start)),
                                 std::nullopt, o.contentEnd, EventTimeline::gaps(event_, o)});
        else
            tiles.push_back(Tile{o.camera, nullptr, o.placeholderReason, 0, {}, o.locked});
    }
    tiles_ = std::move(tiles);
    group_.clear();
    for (const Tile &t : tiles_)
        if (t.player) {
            group_.add(t.player.get());
            connect(t.player.get(), &TrackPlayer::framePresented, this, &SyncPlayerController::updateApproximate);
        }
    publishTiles();
    setIsLoadingTiles(false);

    const Tile *longest = nullptr;
    for (const Tile &t : tiles_) {
        if (!t.player)
            continue;
        if (!primaryPlayer_)
            primaryPlayer_ = t.player.get();
        if (!longest || t.contentEnd > longest->contentEnd)
            longest = &t;
    }
    if (longest) {
        clockPlayer_ = longest->player.get();
        QPointer<SyncPlayerController> self(this);
        timeObserverToken_ = clockPlayer_->addPeriodicTimeObserver(
            MediaTime::fromTicks(observerIntervalTicks), [self](MediaTime time) {
                QMetaObject::invokeMethod(
                    self.data(),
                    [self, time] {
                        if (self)
                            self->observedTime(time.seconds());
                    },
                    Qt::QueuedConnection);
            });
    }
}

void SyncPlayerController::observedTime(double seconds)
{
    if (!isPlaying_)
        return;
    setCurrentTime(seconds);
    rateMeter_.add(seconds, HostClock::now());
    setPlayingRate(rateMeter_.rate());
    // The clock's player stops at its footage's end, which is the event's:
    // playback is over, so the transport offers Play again.
    const double end = clockPlayer_ ? std::min(duration_, clockPlayer_->trackDuration().seconds()) : duration_;
    if (seconds >= end - 1e-3) {
        setCurrentTime(duration_);
        pause();
    }
}

void SyncPlayerController::updateApproximate()
{
    const auto playable = playableTiles();
    const bool approximate = std::any_of(playable.begin(), playable.end(),
                                         [](const Tile &t) { return t.player->isShowingPreview(); });
    if (approximate == approximate_)
        return;
    approximate_ = approximate;
    Q_EMIT isShowingApproximateFramesChanged();
}

std::vector<SyncPlayerController::Tile> SyncPlayerController::playableTiles() const
{
    std::vector<Tile> result;
    for (const Tile &t : tiles_)
        if (t.player)
            result.push_back(t);
    return result;
}

void SyncPlayerController::play()
{
    const auto playable = playableTiles();
    if (playable.empty())
        return;
    // Play at the end starts over.
    if (currentTime_ >= duration_ - 1e-3)
        setCurrentTime(0);
    const double startInstant = HostClock::now() + startLead;
    const MediaTime position = MediaTime::fromSeconds(currentTime_);
    for (const Tile &t : playable)
        t.player->setRate(rate_, position, startInstant);
    setIsPlaying(true);
}

void SyncPlayerController::pause()
{
    const MediaTime position = MediaTime::fromSeconds(currentTime_);
    for (const Tile &t : playableTiles()) {
        t.player->pause();
        t.player->seek(position);
    }
    setIsPlaying(false);
}

void SyncPlayerController::togglePlayPause()
{
    if (isPlaying_)
        pause();
    else
        play();
}

void SyncPlayerController::seek(double seconds)
{
    const double t = std::max(std::min(seconds, duration_), 0.0);
    setCurrentTime(t);
    const bool wasPlaying = isPlaying_;
    const MediaTime position = MediaTime::fromSeconds(t);
    for (const Tile &t : playableTiles()) {
        t.player->pause();
        t.player->seek(position);
    }
    setIsPlaying(false);
    if (wasPlaying)
        play();
}

void SyncPlayerController::setRate(float rate)
{
    if (rate_ != rate) {
        rate_ = rate;
        Q_EMIT rateChanged();
    }
    if (isPlaying_)
        play();
}

void SyncPlayerController::jumpToMoment()
{
    const auto offset = triggerOffset_;
    const double duration = duration_;
    cue(cueTarget(offset, duration), false);
}

void SyncPlayerController::cue(double t, bool fresh)
{
    if (cueTask_)
        cueTask_->request_stop();
    std::stop_source stop;
    cueTask_ = stop;
    cueAndPlay(QPointer<SyncPlayerController>(this), t, fresh, stop.get_token());
}

void SyncPlayerController::setPlaces(std::vector<Place> places)
{
    std::stable_sort(places.begin(), places.end(), [](const Place &a, const Place &b) { return a.time < b.time; });
    if (places == places_)
        return;
    places_ = std::move(places);
    Q_EMIT placesChanged();
}

bool SyncPlayerController::jumpToPlace(int direction)
{
    // Measured from where a jump lands, so a second press moves on from
    // the place just reached rather than landing on it again.
    const auto landing = [](const Place &p) { return std::max(0.0, p.time - placeLead); };
    constexpr double slack = 0.5;
    const Place *target = nullptr;
    if (direction > 0) {
        for (const Place &p : places_)
            if (landing(p) > currentTime_ + slack) {
                target = &p;
                break;
            }
    } else {
        for (auto it = places_.rbegin(); it != places_.rend(); ++it)
            if (landing(*it) < currentTime_ - slack) {
                target = &*it;
                break;
            }
    }
    if (!target)
        return false;
    if (target->camera && std::any_of(tiles_.begin(), tiles_.end(), [&](const Tile &t) { return t.camera == *target->camera; }))
        setFocusedCamera(target->camera);
    cue(std::min(landing(*target), std::max(0.0, duration_ - endMargin)), false);
    return true;
}

double SyncPlayerController::cueTarget(std::optional<double> triggerOffset, double duration)
{
    const double target = triggerOffset ? std::max(0.0, *triggerOffset - cueLead) : 0.0;
    const double limit = std::max(0.0, duration - endMargin);
    return std::min(target, limit);
}

QCoro::Task<void> SyncPlayerController::cueAndPlay(QPointer<SyncPlayerController> self, double t, bool fresh,
                                                   std::stop_token stop)
{
    const auto deadline = std::chrono::steady_clock::now() + cueWaitLimit;
    while (!fresh && std::chrono::steady_clock::now() < deadline && !stop.stop_requested()) {
        if (!self)
            co_return;
        const auto playable = self->playableTiles();
        const bool allReady = !playable.empty() && std::all_of(playable.begin(), playable.end(), [](const Tile &tile) {
            return tile.player->status() == TrackPlayer::ReadyToPlay;
        });
        if (allReady)
            break;
        QCoro::Task<void> nap = QCoro::sleepFor(cuePollInterval);
        co_await nap;
    }
    if (!self || stop.stop_requested())
        co_return;
    // Players made at t are seeking there already; a user's seek meanwhile
    // replaced that, and so does this one.
    fresh = fresh && self->currentTime_ == t;
    self->setCurrentTime(t);
    auto seeking = [self] {
        const auto playable = self->playableTiles();
        return std::any_of(playable.begin(), playable.end(),
                           [](const Tile &tile) { return tile.player->isSeeking(); });
    };
    if (!fresh) {
        const MediaTime position = MediaTime::fromSeconds(t);
        for (const Tile &tile : self->playableTiles())
            tile.player->seek(position);
    }
    // A player whose worker is stuck on a dead drive never lands; don't wait forever.
    const auto seekDeadline = std::chrono::steady_clock::now() + 5s;
    while (seeking() && std::chrono::steady_clock::now() < seekDeadline) {
        QCoro::Task<void> nap = QCoro::sleepFor(5ms);
        co_await nap;
        if (!self || stop.stop_requested())
            co_return;
    }
    if (!self || stop.stop_requested())
        co_return;
    self->opening_.reset();
    self->play();
}

void SyncPlayerController::focusCamera(int index)
{
    if (index >= 0 && index < int(tiles_.size()))
        setFocusedCamera(tiles_[size_t(index)].camera);
}

void SyncPlayerController::stepFrame(int direction)
{
    if (direction == 0 || playableTiles().empty())
        return;
    if (isPlaying_)
        pause();
    pendingFrameSteps_ += direction > 0 ? 1 : -1;
    if (!frameStepRunning_)
        runFrameSteps(QPointer<SyncPlayerController>(this));
}

QCoro::Task<void> SyncPlayerController::runFrameSteps(QPointer<SyncPlayerController> self)
{
    self->frameStepRunning_ = true;
    while (self && self->pendingFrameSteps_ != 0) {
        const int direction = self->pendingFrameSteps_ > 0 ? 1 : -1;
        self->pendingFrameSteps_ -= direction;
        QPointer<TrackPlayer> primary = self->primaryPlayer_;
        // Wait for the primary camera to show the frame of the last seek.
        const auto deadline = std::chrono::steady_clock::now() + 2s;
        while (primary && primary->isSeeking() && std::chrono::steady_clock::now() < deadline) {
            QCoro::Task<void> nap = QCoro::sleepFor(2ms);
            co_await nap;
        }
        if (!self)
            co_return;
        if (!primary || self->isPlaying_)
            break;
        constexpr qint64 nominalFrameTicks = 17; // about one frame at 36 fps
        const qint64 now = MediaTime::fromSeconds(self->currentTime_).ticks();
        std::optional<qint64> target;
        const auto shown = primary->presentedTime();
        if (direction > 0) {
            std::optional<double> next = primary->nextFrameTime();
            while (primary && !next && std::chrono::steady_clock::now() < deadline) {
                QCoro::Task<void> nap = QCoro::sleepFor(2ms);
                co_await nap;
                next = primary ? primary->nextFrameTime() : std::nullopt;
            }
            if (!self)
                co_return;
            if (next) // the first whole tick at or after the next frame
                target = qint64(std::ceil(*next * MediaTime::timescale - 1e-6));
            else if (!shown)
                target = now + nominalFrameTicks;
        } else {
            if (shown) // the last whole tick before the frame shown
                target = qint64(std::ceil(*shown * MediaTime::timescale - 1e-6)) - 1;
            else
                target = now - nominalFrameTicks;
        }
        if (!target || *target < 0)
            continue;
        self->seek(MediaTime::fromTicks(*target).seconds());
    }
    if (self)
        self->frameStepRunning_ = false;
}

QString SyncPlayerController::timeString(double seconds)
{
    double rounded = std::round(seconds);
    if (!(rounded >= 0))
        rounded = 0;
    const qint64 whole = qint64(rounded);
    // An hour or more reads as hours, not as hundreds of minutes.
    if (whole >= 3600)
        return QString::asprintf("%d:%02d:%02d", int(whole / 3600), int(whole / 60 % 60), int(whole % 60));
    return QString::asprintf("%d:%02d", int(whole / 60), int(whole % 60));
}

void SyncPlayerController::setIsPlaying(bool value)
{
    // Every start, stop, seek and new speed measures afresh.
    rateMeter_.reset();
    setPlayingRate(std::nullopt);
    if (isPlaying_ == value)
        return;
    isPlaying_ = value;
    Q_EMIT isPlayingChanged();
}

void SyncPlayerController::setPlayingRate(std::optional<double> rate)
{
    if (playingRate_ == rate)
        return;
    const bool wasBehind = isFallingBehind();
    playingRate_ = rate;
    // A figure that wobbles in its last digits is not news to the screen.
    if (wasBehind != isFallingBehind() || isFallingBehind() || !rate)
        Q_EMIT playingRateChanged();
}

void SyncPlayerController::setCurrentTime(double value)
{
    if (currentTime_ == value)
        return;
    currentTime_ = value;
    Q_EMIT currentTimeChanged();
}

void SyncPlayerController::setDuration(double value)
{
    if (duration_ == value)
        return;
    duration_ = value;
    Q_EMIT durationChanged();
}

void SyncPlayerController::setTriggerOffset(std::optional<double> value)
{
    if (triggerOffset_ == value)
        return;
    triggerOffset_ = value;
    Q_EMIT triggerOffsetChanged();
}

void SyncPlayerController::setIsLoadingTiles(bool value)
{
    if (isLoadingTiles_ == value)
        return;
    isLoadingTiles_ = value;
    Q_EMIT isLoadingTilesChanged();
}

void SyncPlayerController::setFocusedCamera(std::optional<Camera> camera)
{
    if (focusedCamera_ == camera)
        return;
    focusedCamera_ = camera;
    Q_EMIT focusedCameraChanged();
}

QString SyncPlayerController::focusedCameraRaw() const
{
    return focusedCamera_ ? focusedCamera_->rawValue() : QString();
}

void SyncPlayerController::setFocusedCameraRaw(const QString &raw)
{
    setFocusedCamera(raw.isEmpty() ? std::nullopt : Camera::fromRawValue(raw));
}

QVariant SyncPlayerController::triggerOffsetForQml() const
{
    return triggerOffset_ ? QVariant(*triggerOffset_) : QVariant();
}

QVariantList SyncPlayerController::allowedRatesForQml()
{
    QVariantList list;
    for (float r : allowedRates)
        list.append(double(r));
    return list;
}
