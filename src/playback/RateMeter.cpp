#include "playback/RateMeter.h"

void RateMeter::add(double mediaSeconds, double wallSeconds)
{
    // Time running backwards means a jump the owner didn't report: start over.
    if (!samples_.empty() && (mediaSeconds < samples_.back().first || wallSeconds <= samples_.back().second))
        samples_.clear();
    samples_.emplace_back(mediaSeconds, wallSeconds);
    while (samples_.size() > 2 && wallSeconds - samples_[1].second >= windowSeconds)
        samples_.pop_front();
}

std::optional<double> RateMeter::rate() const
{
    if (samples_.size() < 2)
        return std::nullopt;
    const auto &[firstMedia, firstWall] = samples_.front();
    const auto &[lastMedia, lastWall] = samples_.back();
    if (lastWall - firstWall < minimumSpanSeconds)
        return std::nullopt;
    return (lastMedia - firstMedia) / (lastWall - firstWall);
}
