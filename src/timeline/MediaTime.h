#pragma once

#include <QtGlobal>
#include <cmath>
#include <compare>

// A rational media time. Everything this program makes uses timescale 600,
// which holds the common frame rates (24, 25, 30, 36, 60) as whole ticks per
// second and keeps positions identical across cameras.
class MediaTime {
public:
    static constexpr qint64 timescale = 600;

    constexpr MediaTime() = default;
    static constexpr MediaTime fromTicks(qint64 ticks) { return MediaTime(ticks); }
    // Rounds to the nearest tick.
    static MediaTime fromSeconds(double seconds) { return MediaTime(qint64(std::llround(seconds * timescale))); }
    static constexpr MediaTime zero() { return MediaTime(0); }

    constexpr qint64 ticks() const { return ticks_; }
    constexpr double seconds() const { return double(ticks_) / timescale; }

    constexpr MediaTime operator+(MediaTime o) const { return MediaTime(ticks_ + o.ticks_); }
    constexpr MediaTime operator-(MediaTime o) const { return MediaTime(ticks_ - o.ticks_); }
    constexpr auto operator<=>(const MediaTime &) const = default;

private:
    constexpr explicit MediaTime(qint64 ticks) : ticks_(ticks) {}
    qint64 ticks_ = 0;
};
