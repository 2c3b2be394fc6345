#include "playback/PlaybackClock.h"

#include "playback/HostClock.h"

#include <algorithm>

double PlaybackClock::seconds() const
{
    if (!running_)
        return stoppedAt_;
    return anchorMedia_ + double(rate_) * std::max(0.0, HostClock::now() - anchorHost_);
}

void PlaybackClock::run(float rate, double media, double hostTime)
{
    rate_ = rate;
    anchorMedia_ = media;
    anchorHost_ = hostTime;
    running_ = true;
}

void PlaybackClock::stop()
{
    stoppedAt_ = seconds();
    running_ = false;
}

void PlaybackClock::place(double media)
{
    if (running_) {
        anchorMedia_ = media;
        anchorHost_ = HostClock::now();
    } else {
        stoppedAt_ = media;
    }
}

void PlaybackClock::hold(double media, double host)
{
    if (!running_ || host <= anchorHost_)
        return;
    anchorMedia_ = media;
    anchorHost_ = host;
}
