#include "timeline/HardMoments.h"

#include "timeline/EventTimeline.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

QString HardMoment::kindName(Kind kind)
{
    switch (kind) {
    case Kind::hardBraking: return QStringLiteral("hardBraking");
    case Kind::swerve: return QStringLiteral("swerve");
    case Kind::autopilotOff: return QStringLiteral("autopilotOff");
    case Kind::suddenStop: return QStringLiteral("suddenStop");
    case Kind::emergencyBraking: return QStringLiteral("emergencyBraking");
    }
    return {};
}

QString HardMoment::displayName() const
{
    switch (kind) {
    case Kind::hardBraking: return QCoreApplication::translate("HardMoment", "Hard braking");
    case Kind::swerve: return QCoreApplication::translate("HardMoment", "Swerve");
    case Kind::suddenStop: return QCoreApplication::translate("HardMoment", "Sudden stop");
    case Kind::emergencyBraking: return QCoreApplication::translate("HardMoment", "Emergency braking");
    case Kind::autopilotOff:
        switch (assistance) {
        case TelemetryRecord::AutopilotState::selfDriving:
            return QCoreApplication::translate("HardMoment", "Self-Driving off");
        case TelemetryRecord::AutopilotState::trafficAwareCruise:
            return QCoreApplication::translate("HardMoment", "Cruise control off");
        default: return QCoreApplication::translate("HardMoment", "Autosteer off");
        }
    }
    return {};
}

namespace HardMoments {

namespace {

using Sample = EventTelemetry::Sample;
using Kind = HardMoment::Kind;

// Frames further apart than this belong to different stretches (a missing
// minute, a clip's seam): nothing is measured across them.
constexpr double longestGap = 1.0;

double speedOf(const Sample &s)
{
    const float v = s.record->speed;
    return std::isfinite(v) ? std::max(0.0f, v) : 0.0;
}

// The change of a value per second over the window centred on each frame,
// within the frame's stretch; nullopt where the window holds too little.
std::vector<std::optional<double>> ratesOf(const std::vector<Sample> &samples, double window,
                                           const std::function<std::optional<double>(const Sample &, const Sample &)> &change)
{
    std::vector<std::optional<double>> rates(samples.size());
    std::vector<size_t> stretchStart(samples.size(), 0);
    for (size_t i = 1; i < samples.size(); ++i)
        stretchStart[i] = samples[i].time - samples[i - 1].time > longestGap ? i : stretchStart[i - 1];
    const double half = window / 2;
    size_t behind = 0, ahead = 0;
    for (size_t i = 0; i < samples.size(); ++i) {
        behind = std::max(behind, stretchStart[i]);
        while (samples[behind].time < samples[i].time - half)
            ++behind;
        ahead = std::max(ahead, i);
        while (ahead + 1 < samples.size() && stretchStart[ahead + 1] == stretchStart[i] &&
               samples[ahead + 1].time <= samples[i].time + half)
            ++ahead;
        const double span = samples[ahead].time - samples[behind].time;
        if (span < window * 0.6)
            continue;
        if (const auto delta = change(samples[behind], samples[ahead]))
            rates[i] = *delta / span;
    }
    return rates;
}

// Builds one moment per stretch where `measure` answers, started at its
// first frame; `keep` folds each later frame's measure into it.
void episodes(const std::vector<Sample> &samples, Kind kind, const std::function<std::optional<double>(size_t)> &measure,
              const std::function<void(HardMoment &, size_t, double)> &keep, std::vector<HardMoment> &out)
{
    std::optional<size_t> open;
    double lastTrue = 0;
    for (size_t i = 0; i < samples.size(); ++i) {
        const double t = samples[i].time;
        if (open && t - lastTrue >= rearmAfter)
            open.reset();
        const auto value = measure(i);
        if (!value)
            continue;
        lastTrue = t;
        if (!open) {
            HardMoment moment;
            moment.kind = kind;
            moment.time = t;
            moment.speed = speedOf(samples[i]);
            out.push_back(moment);
            open = out.size() - 1;
        }
        keep(out[*open], i, *value);
    }
}

bool steers(TelemetryRecord::AutopilotState s)
{
    return s == TelemetryRecord::AutopilotState::autosteer || s == TelemetryRecord::AutopilotState::selfDriving;
}

// Whether going from `from` to `to` is the car handing something back.
bool letsGo(TelemetryRecord::AutopilotState from, TelemetryRecord::AutopilotState to)
{
    if (from == TelemetryRecord::AutopilotState::none)
        return false;
    if (to == TelemetryRecord::AutopilotState::none)
        return true;
    return steers(from) && !steers(to);
}

} // namespace

std::vector<double> decelerations(const std::vector<Sample> &samples)
{
    const auto rates =
        ratesOf(samples, decelerationWindow, [](const Sample &a, const Sample &b) { return speedOf(a) - speedOf(b); });
    std::vector<double> out(samples.size(), 0.0);
    for (size_t i = 0; i < rates.size(); ++i)
        out[i] = rates[i].value_or(0.0);
    return out;
}

std::vector<HardMoment> find(const EventTelemetry &telemetry, const TeslaEvent &event, double duration)
{
    std::vector<Sample> samples;
    for (const Sample &s : telemetry.frames())
        if (s.record && s.time >= 0 && s.time < duration)
            samples.push_back(s);

    std::vector<HardMoment> moments;
    const std::vector<double> deceleration = decelerations(samples);
    episodes(
        samples, Kind::hardBraking,
        [&](size_t i) -> std::optional<double> {
            if (deceleration[i] >= hardBrakingDeceleration)
                return deceleration[i];
            return std::nullopt;
        },
        [](HardMoment &m, size_t, double value) { m.deceleration = std::max(m.deceleration, value); }, moments);

    const auto steering = ratesOf(samples, steeringWindow, [](const Sample &a, const Sample &b) -> std::optional<double> {
        const float from = a.record->steeringAngle, to = b.record->steeringAngle;
        if (!std::isfinite(from) || !std::isfinite(to))
            return std::nullopt;
        return std::abs(double(to) - double(from));
    });
    const auto turning = ratesOf(samples, decelerationWindow, [](const Sample &a, const Sample &b) -> std::optional<double> {
        if (!a.record->hasPosition() || !b.record->hasPosition())
            return std::nullopt;
        // The shorter way round: 350° to 10° is a turn of 20°.
        const double turn = std::remainder(b.record->heading - a.record->heading, 360.0);
        return std::isfinite(turn) ? std::optional(std::abs(turn)) : std::nullopt;
    });
    std::vector<double> lateral(samples.size(), 0.0);
    for (size_t i = 0; i < samples.size(); ++i)
        if (turning[i])
            lateral[i] = speedOf(samples[i]) * *turning[i] * std::numbers::pi / 180.0;
    episodes(
        samples, Kind::swerve,
        [&](size_t i) -> std::optional<double> {
            const bool wheel = steering[i] && *steering[i] >= swerveSteeringRate && speedOf(samples[i]) >= swerveMinimumSpeed;
            if (wheel || lateral[i] >= swerveLateralAcceleration)
                return 0.0;
            return std::nullopt;
        },
        [&](HardMoment &m, size_t i, double) {
            m.steeringRate = std::max(m.steeringRate, steering[i].value_or(0.0));
            m.lateralAcceleration = std::max(m.lateralAcceleration, lateral[i]);
        },
        moments);

    // Coming to rest: the highest speed of the second before it.
    size_t stretch = 0;
    for (size_t i = 1; i < samples.size(); ++i) {
        if (samples[i].time - samples[i - 1].time > longestGap)
            stretch = i;
        if (!(speedOf(samples[i]) <= standstillSpeed && speedOf(samples[i - 1]) > standstillSpeed))
            continue;
        size_t fastest = i;
        for (size_t k = i; k-- > stretch && samples[i].time - samples[k].time <= suddenStopWithin;)
            if (speedOf(samples[k]) > speedOf(samples[fastest]))
                fastest = k;
        const double from = speedOf(samples[fastest]);
        if (from < suddenStopFromSpeed)
            continue;
        HardMoment stop;
        stop.kind = Kind::suddenStop;
        stop.time = samples[i].time;
        stop.speed = from;
        stop.deceleration = from / std::max(samples[i].time - samples[fastest].time, 1e-3);
        moments.push_back(stop);
    }

    // Assistance handing back, once it had settled.
    std::optional<double> since;
    for (size_t i = 0; i < samples.size(); ++i) {
        const auto state = samples[i].record->autopilot;
        if (i == 0 || samples[i].time - samples[i - 1].time > longestGap) {
            since = samples[i].time;
            continue;
        }
        const auto before = samples[i - 1].record->autopilot;
        if (state == before)
            continue;
        if (letsGo(before, state) && since && samples[i].time - *since >= assistanceSettled) {
            HardMoment off;
            off.kind = Kind::autopilotOff;
            off.time = samples[i].time;
            off.speed = speedOf(samples[i]);
            off.assistance = before;
            moments.push_back(off);
        }
        since = samples[i].time;
    }

    if (event.reasonRaw == emergencyBrakingReason) {
        if (const auto at = EventTimeline::momentOffset(event, duration)) {
            HardMoment braking;
            braking.kind = Kind::emergencyBraking;
            braking.time = *at;
            if (const TelemetryRecord *r = telemetry.recordAt(*at); r && std::isfinite(r->speed))
                braking.speed = std::max(0.0f, r->speed);
            moments.push_back(braking);
        }
    }

    std::stable_sort(moments.begin(), moments.end(), [](const HardMoment &a, const HardMoment &b) { return a.time < b.time; });
    return moments;
}

} // namespace HardMoments
