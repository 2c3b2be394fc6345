#pragma once

#include "playback/PlaybackClock.h"
#include "timeline/MediaTime.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <map>
#include <memory>
#include <vector>

// Presents the frames of every camera of an event from one clock, so that
// whatever the machine's load and the rate, the pictures on screen belong to
// one media time: a camera's frame for a moment is shown only once every
// camera has its frame for that moment decoded, and while one hasn't, the
// clock waits for it (playback slows down as a whole; no camera trails).
// A camera stuck for longer than stallLimit (a drive that stopped answering),
// or one that never gave a picture, doesn't hold the others; it joins again
// once it has caught up. The group has one clock, which its members read
// and set and which it alone holds back.
class PlaybackGroup : public QObject {
    Q_OBJECT
public:
    static constexpr double stallLimit = 1.5; // seconds of real time

    // What the group asks of a camera's player; the player stands on the
    // group, not the other way round.
    class Member {
    public:
        // Goes with the member: the group lets it go then.
        virtual QObject *lifetime() = 0;
        virtual const PlaybackClock &clock() const = 0;
        virtual PlaybackGroup *group() const = 0;
        // Reads the group's clock from now on; none: its own again.
        virtual void setGroup(PlaybackGroup *group) = 0;
        virtual double currentSeconds() const = 0;
        virtual MediaTime trackDuration() const = 0;
        // False while it can't give a picture at all (its clip doesn't open).
        virtual bool isReadyToPlay() const = 0;
        virtual bool preparedFor(double t) = 0;
        virtual void presentFor(double t) = 0;
        virtual bool isSeeking() const = 0;
        virtual bool presentPreview() = 0;

    protected:
        ~Member() = default;
    };

    explicit PlaybackGroup(QObject *parent = nullptr);
    ~PlaybackGroup() override;

    // The first member brings its clock's time; the others take the group's.
    void add(Member *player);
    void clear();
    // A member's clock was set (play, pause, seek, rate): time starts from there.
    void clockChanged(Member *member);
    // A member has something new to show.
    void wake();
    const std::shared_ptr<PlaybackClock> &clock() const { return clock_; }

private:
    void tick();
    void prune();

    struct Entry {
        QPointer<QObject> alive;
        Member *member;
        Member *operator->() const { return member; }
    };
    std::vector<Entry> members_;
    // When each member that isn't prepared for the clock's time began to lag.
    std::map<const Member *, double> laggingSince_;
    // The newest time every member was prepared for: where a held clock waits.
    double preparedUpTo_ = 0;
    std::shared_ptr<PlaybackClock> clock_ = std::make_shared<PlaybackClock>();
    QTimer timer_;
};
