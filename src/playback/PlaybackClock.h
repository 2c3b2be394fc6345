#pragma once

// Media time read from the host clock: anchor + rate × (host now − anchor
// instant) while running, the position it stopped at otherwise. A player
// alone has one of its own; a group's players all read the group's, so the
// cameras can't drift apart and holding the group back moves one clock.
class PlaybackClock {
public:
    // Unbounded: each player limits it to its own track.
    double seconds() const;
    bool running() const { return running_; }
    float rate() const { return rate_; }
    double anchorMedia() const { return anchorMedia_; }
    double anchorHost() const { return anchorHost_; }

    // Runs from media at rate, beginning at hostTime (may be ahead of now).
    void run(float rate, double media, double hostTime);
    // Stops where it is now; stopping again keeps that position.
    void stop();
    // Moves to media: from now on while running, as the stopped position otherwise.
    void place(double media);
    // Running only: counts again from media at host, so that the clock waits
    // for a camera that is behind. No effect before the start instant.
    void hold(double media, double host);

private:
    bool running_ = false;
    float rate_ = 1.0f;
    double anchorMedia_ = 0;
    double anchorHost_ = 0;
    double stoppedAt_ = 0;
};
