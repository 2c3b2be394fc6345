#pragma once

#include "playback/DecodeWorker.h"
#include "playback/PlaybackClock.h"
#include "timeline/Composition.h"
#include "timeline/MediaTime.h"
#include "playback/PlaybackGroup.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVideoFrame>
#include <QVideoSink>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>

// Plays the first video track of one composition. Its DecodeWorker keeps a
// small queue of frames ahead; the GUI thread hands each frame to the video
// sink when the clock reaches it. Alone, the player has a clock of its own;
// in a group, every member reads the group's one clock.
// Empty stretches of the track show no picture.
class TrackPlayer : public QObject, public PlaybackGroup::Member {
    Q_OBJECT
    Q_PROPERTY(QVideoSink *videoSink READ videoSink WRITE setVideoSink NOTIFY videoSinkChanged)
    Q_PROPERTY(Status status READ status NOTIFY statusChanged)
    Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY framePresented)

public:
    enum Status { Unknown, ReadyToPlay, Failed };
    Q_ENUM(Status)

    // The first frame decoded is the one for start: that is the first read.
    explicit TrackPlayer(const Composition &composition, MediaTime start = MediaTime(), QObject *parent = nullptr);
    ~TrackPlayer() override;

    // Asks the worker to end now, so that the destructor, run later, finds
    // it gone and doesn't hold up the GUI thread.
    void requestStop();

    // Decoder threads per player; 0 (the default) gives the large HW4 front
    // camera two and every other camera one.
    static void setDecoderThreads(int threads);
    // Skipping ahead to a keyframe when decoding falls behind the clock; off
    // only to measure raw decoding speed.
    static void setCatchUpEnabled(bool enabled);
    // Workers not yet ended, stopped players' included: each holds its clip
    // open until it ends, so a drive can be let go only after.
    static int runningWorkers();

    Status status() const { return status_; }
    bool isReadyToPlay() const override { return status_ == ReadyToPlay; }
    QObject *lifetime() override { return this; }
    MediaTime trackDuration() const override { return MediaTime::fromSeconds(trackEnd_); }

    // Plays from time at rate, beginning at hostTime of HostClock. A time
    // other than the present position seeks there first.
    void setRate(float rate, MediaTime time, double hostTime);
    float rate() const { return clock_->running() ? clock_->rate() : 0.0f; }
    void pause();
    // Exact: the frame shown is the newest one not after time. completion
    // gets true once that frame is shown, false when a later seek replaced
    // this one or the player is not ready.
    void seek(MediaTime time, std::function<void(bool)> completion = {});
    MediaTime currentTime() const { return MediaTime::fromSeconds(currentSeconds()); }
    double currentSeconds() const override;

    QVideoSink *videoSink() const { return sink_; }
    void setVideoSink(QVideoSink *sink);

    // What is on screen: the frame's time on the track, none for no picture.
    std::optional<double> presentedTime() const { return presentedTime_; }
    bool hasPicture() const { return presentedTime_.has_value(); }
    QVideoFrame currentFrame() const { return currentFrame_; }
    quint64 presentedFrameCount() const { return presentedCount_; }
    // Frames decoded so far, shown or not (for measurements).
    quint64 decodedFrameCount() const;
    // True until the frame of the latest seek is on screen.
    bool isSeeking() const override { return presentedGeneration_ != generation_; }
    // Time of the next decoded frame after the one shown, if already queued.
    std::optional<double> nextFrameTime() const;

    // Joins a group that presents its members' frames from one clock (null
    // to leave); alone, the player presents on its own timer.
    void setGroup(PlaybackGroup *group) override;
    PlaybackGroup *group() const override { return group_; }
    const PlaybackClock &clock() const override { return *clock_; }
    bool isPlaying() const { return clock_->running(); }
    // For the group: true when the frame for time t is known (a later frame
    // is queued, or nothing more will come).
    bool preparedFor(double t) override;
    // Shows the newest queued frame not after t, if there is one.
    void presentFor(double t) override;
    // For the group, while a seek is decoding its exact frame: shows the
    // key frame before the target once, if the worker has it. True if shown.
    bool presentPreview() override;
    // The picture is a key frame near the last seek's target, not yet its exact frame.
    bool isShowingPreview() const { return showingPreview_; }
    // Makes every decoded frame take at least this long (measurements and tests).
    void setDecodeDelay(std::chrono::milliseconds delay);

    // Calls back on the GUI thread every interval while playing.
    int addPeriodicTimeObserver(MediaTime interval, std::function<void(MediaTime)> callback);
    void removeTimeObserver(int token);

Q_SIGNALS:
    void statusChanged();
    void framePresented();
    void videoSinkChanged();

private:
    struct Pending {
        quint64 generation = 0;
        std::function<void(bool)> completion;
    };

    void present();
    void requestSeek(double seconds);
    void syncClock();
    void updateTimers();
    void markReady();

    std::shared_ptr<DecodeWorker::State> shared_;
    std::unique_ptr<DecodeWorker> worker_;
    std::shared_ptr<PlaybackClock> clock_;
    // Where the decoder was last sent while the clock stood; none once it runs.
    std::optional<double> parkedAt_;
    double trackEnd_ = 0;
    Status status_ = Unknown;
    quint64 generation_ = 0;
    quint64 presentedGeneration_ = 0;
    quint64 previewGeneration_ = 0;
    bool showingPreview_ = false;
    std::vector<Pending> pending_;
    QTimer presentTimer_;
    QPointer<QVideoSink> sink_;
    QPointer<PlaybackGroup> group_;
    QVideoFrame currentFrame_;
    std::optional<double> presentedTime_;
    quint64 presentedCount_ = 0;
    struct Observer {
        std::function<void(MediaTime)> callback;
        QTimer *timer = nullptr;
    };
    std::map<int, Observer> observers_;
    int nextObserverToken_ = 1;
};
