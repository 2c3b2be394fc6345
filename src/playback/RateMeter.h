#pragma once

#include <deque>
#include <optional>
#include <utility>

// How fast the event's clock really moves against the wall clock while it
// plays, so the speed control can say when the computer can't keep up with
// the speed chosen instead of playing slower without a word.
class RateMeter {
public:
    // How far back the figure looks, and how much it needs before it speaks.
    static constexpr double windowSeconds = 3.0;
    static constexpr double minimumSpanSeconds = 1.5;

    // A media time seen at a wall-clock time (seconds, monotonic).
    void add(double mediaSeconds, double wallSeconds);
    // Forgets everything: after a pause, a seek or a new speed.
    void reset() { samples_.clear(); }
    // Media seconds per wall second over the window, once it spans enough.
    std::optional<double> rate() const;

private:
    std::deque<std::pair<double, double>> samples_; // (media, wall), oldest first
};
