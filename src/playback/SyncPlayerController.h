#pragma once

#include "base/ReadPriority.h"
#include "model/Camera.h"
#include "model/TeslaEvent.h"
#include "playback/RateMeter.h"
#include "timeline/Composition.h"
#include "playback/PlaybackGroup.h"
#include "timeline/EventTimeline.h"
#include "playback/TrackPlayer.h"

#include <QObject>
#include <QPointer>
#include <QVariant>
#include <qcoro/qcorotask.h>

#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>


// Lays every camera of one event on one shared time axis and plays them as
// one: every player is started with the same media time and the same future
// instant of the host clock, and every seek is exact. Lives on the main
// thread; the same object is reloaded when the screen switches events.
class SyncPlayerController : public QObject {
    Q_OBJECT
    Q_PROPERTY(QVariantList tiles READ tilesForQml NOTIFY tilesChanged)
    Q_PROPERTY(bool isLoadingTiles READ isLoadingTiles NOTIFY isLoadingTilesChanged)
    Q_PROPERTY(bool isPlaying READ isPlaying NOTIFY isPlayingChanged)
    Q_PROPERTY(float rate READ rate WRITE setRate NOTIFY rateChanged)
    Q_PROPERTY(double currentTime READ currentTime NOTIFY currentTimeChanged)
    Q_PROPERTY(double duration READ duration NOTIFY durationChanged)
    Q_PROPERTY(QString focusedCamera READ focusedCameraRaw WRITE setFocusedCameraRaw NOTIFY focusedCameraChanged)
    Q_PROPERTY(QVariant triggerOffset READ triggerOffsetForQml NOTIFY triggerOffsetChanged)
    Q_PROPERTY(QVariantList allowedRates READ allowedRatesForQml CONSTANT)
    // While a seek decodes its exact frames, cameras show the key frame
    // before the target: the pictures are near the time shown, not at it.
    Q_PROPERTY(bool isShowingApproximateFrames READ isShowingApproximateFrames NOTIFY isShowingApproximateFramesChanged)
    Q_PROPERTY(QString approximateFramesText READ approximateFramesText CONSTANT)
    // The speed the event really plays at, measured while it plays; 0 until known.
    Q_PROPERTY(double playingRate READ playingRateForQml NOTIFY playingRateChanged)
    Q_PROPERTY(bool isFallingBehind READ isFallingBehind NOTIFY playingRateChanged)
    // Whether N and Shift+N have anywhere to go.
    Q_PROPERTY(bool hasPlaces READ hasPlaces NOTIFY placesChanged)

public:
    struct Tile {
        Camera camera;
        std::shared_ptr<TrackPlayer> player;      // absent when the camera can't be shown
        std::optional<QString> placeholderReason; // set exactly when player is absent
        double contentEnd = 0;                    // where this camera's footage ends on the axis
        std::vector<EventTimeline::Gap> gaps;     // stretches before contentEnd where nothing plays
        bool locked = false;                      // encrypted, no key held yet
        bool waiting = false;                     // its clips are still being read
        Camera id() const { return camera; }
    };

    // A place worth a look: something moving in front of a camera, or a
    // hard moment of the drive (no camera of its own).
    struct Place {
        double time = 0;
        std::optional<Camera> camera;
        bool operator==(const Place &) const = default;
    };

    static constexpr std::array<float, 5> allowedRates{0.5f, 1.0f, 1.5f, 2.0f, 4.0f};
    static constexpr double startLead = 0.15;
    static constexpr double stepSeconds = 5.0;
    static constexpr double cueLead = 10.0;
    // A jump to a place starts a little before it, to see it begin.
    static constexpr double placeLead = 2.0;
    static constexpr double endMargin = 1.0;
    static constexpr std::chrono::milliseconds cueWaitLimit{3000};
    static constexpr std::chrono::milliseconds cuePollInterval{50};
    static constexpr std::chrono::milliseconds clipTimeout{8000};
    static constexpr qint64 observerIntervalTicks = 150; // 0.25 s at timescale 600
    static constexpr std::chrono::milliseconds retireDelay{500};
    // Below this share of the chosen speed, the transport says the computer can't keep up.
    static constexpr double keepUpShare = 0.85;

    // English sources; the tiles and the transport read them translated.
    static inline const QString damagedReason = EventTimeline::damagedReason;
    static inline const QString noFootageReason = EventTimeline::noFootageReason;
    //: Shown on the timeline while a seek shows a nearby frame first
    static inline const QString approximateFramesNote = QString::fromUtf8(
        QT_TRANSLATE_NOOP("SyncPlayerController", "Finding the exact frame…"));

    explicit SyncPlayerController(const TeslaEvent &event, QObject *parent = nullptr);
    ~SyncPlayerController() override;

    void loadEvent(const TeslaEvent &event);

    const std::vector<Tile> &tiles() const { return tiles_; }
    bool isLoadingTiles() const { return isLoadingTiles_; }
    // What a camera's tile says while its clips are read and its first picture found.
    static QString waitingReason();
    bool isPlaying() const { return isPlaying_; }
    float rate() const { return rate_; }
    void setRate(float rate);
    double currentTime() const { return currentTime_; }
    double duration() const { return duration_; }
    std::optional<Camera> focusedCamera() const { return focusedCamera_; }
    void setFocusedCamera(std::optional<Camera> camera);
    std::optional<double> triggerOffset() const { return triggerOffset_; }
    bool isShowingApproximateFrames() const { return approximate_; }
    QString approximateFramesText() const { return tr(approximateFramesNote.toUtf8().constData()); }
    std::optional<double> playingRate() const { return playingRate_; }
    double playingRateForQml() const { return playingRate_.value_or(0.0); }
    bool isFallingBehind() const { return playingRate_ && *playingRate_ < rate_ * keepUpShare; }

    Q_INVOKABLE void play();
    Q_INVOKABLE void pause();
    Q_INVOKABLE void togglePlayPause();
    Q_INVOKABLE void seek(double seconds);
    Q_INVOKABLE void stepBack() { seek(currentTime_ - stepSeconds); }
    Q_INVOKABLE void stepForward() { seek(currentTime_ + stepSeconds); }
    Q_INVOKABLE void jumpToMoment();
    // The places of this event, any order; a new event clears them.
    void setPlaces(std::vector<Place> places);
    const std::vector<Place> &places() const { return places_; }
    bool hasPlaces() const { return !places_.empty(); }
    // Plays from just before the next place (direction > 0) or the one
    // before the place shown now, enlarging its camera; false where there
    // is none.
    Q_INVOKABLE bool jumpToPlace(int direction);
    Q_INVOKABLE void focusCamera(int index);
    Q_INVOKABLE void clearFocus() { setFocusedCamera(std::nullopt); }
    // Moves every camera by one frame of the primary camera (+1 or -1),
    // pausing first if needed.
    Q_INVOKABLE void stepFrame(int direction);
    Q_INVOKABLE static QString timeString(double seconds);

Q_SIGNALS:
    void tilesChanged();
    void isLoadingTilesChanged();
    void isPlayingChanged();
    void rateChanged();
    void currentTimeChanged();
    void durationChanged();
    void focusedCameraChanged();
    void triggerOffsetChanged();
    void isShowingApproximateFramesChanged();
    void playingRateChanged();
    void placesChanged();

private:
    friend class TestSyncPlayerController;

    using TileOutcome = EventTimeline::CameraTrack;

    TeslaEvent event_; // the event loaded last, whose clips say why a stretch is empty
    RateMeter rateMeter_;
    std::optional<double> playingRate_;
    void setPlayingRate(std::optional<double> rate);

    static std::vector<TileOutcome> buildTileData(const TeslaEvent &event, std::stop_token stop);
    void applyTileOutcomes(const std::vector<TileOutcome> &outcomes);
    std::vector<Tile> playableTiles() const;
    // Ten seconds before the moment, never nearer than a second to the end.
    static double cueTarget(std::optional<double> triggerOffset, double duration);

    static QCoro::Task<void> runBuild(QPointer<SyncPlayerController> self, TeslaEvent event, std::stop_token stop);
    // fresh: the players were made at t, so nothing needs seeking.
    static QCoro::Task<void> cueAndPlay(QPointer<SyncPlayerController> self, double t, bool fresh,
                                        std::stop_token stop);
    void cue(double t, bool fresh);
    void publishWaitingTiles();
    void publishTiles();
    static QCoro::Task<void> runFrameSteps(QPointer<SyncPlayerController> self);

    void removeTimeObserver();
    void observedTime(double seconds);
    void setIsPlaying(bool value);
    void setCurrentTime(double value);
    void setDuration(double value);
    void setTriggerOffset(std::optional<double> value);
    void setIsLoadingTiles(bool value);
    QVariantList tilesForQml() const { return tilesForQml_; }
    QString focusedCameraRaw() const;
    void setFocusedCameraRaw(const QString &raw);
    QVariant triggerOffsetForQml() const;
    static QVariantList allowedRatesForQml();

    void updateApproximate();

    bool approximate_ = false;
    std::vector<Tile> tiles_;
    // Presents every camera's frames from one clock.
    PlaybackGroup group_;
    QVariantList tilesForQml_;
    bool isLoadingTiles_ = true;
    bool isPlaying_ = false;
    float rate_ = 1.0f;
    double currentTime_ = 0;
    double duration_ = 1.0;
    std::optional<Camera> focusedCamera_;
    std::optional<double> triggerOffset_;
    std::vector<Place> places_; // by time

    std::optional<int> timeObserverToken_;
    QPointer<TrackPlayer> primaryPlayer_;
    // The player whose footage runs longest: its clock is the timeline's
    // and reaches the end of the event, where playback stops.
    QPointer<TrackPlayer> clockPlayer_;
    // From a new event until its first picture: the drive's background
    // pass waits meanwhile.
    std::optional<ReadPriority::Urgent> opening_;
    std::optional<std::stop_source> buildTask_;
    std::optional<std::stop_source> cueTask_;
    int pendingFrameSteps_ = 0;
    bool frameStepRunning_ = false;
};
