#include "moments/EventActivity.h"

#include "timeline/Composition.h"

#include <QHash>
#include <algorithm>
#include <cmath>
#include <map>

namespace {

// The quiet level of every second: a low percentile of the recorded
// seconds around it.
std::vector<double> quietLevels(const std::vector<float> &change)
{
    std::vector<double> quiet(change.size(), EventActivity::leastQuiet);
    std::vector<float> window;
    for (size_t s = 0; s < change.size(); ++s) {
        const size_t from = s >= size_t(EventActivity::quietWindow) ? s - EventActivity::quietWindow : 0;
        const size_t to = std::min(change.size(), s + EventActivity::quietWindow + 1);
        window.clear();
        for (size_t k = from; k < to; ++k)
            if (change[k] >= 0)
                window.push_back(change[k]);
        if (window.empty())
            continue;
        const auto at = window.begin() + std::ptrdiff_t(double(window.size() - 1) * EventActivity::quietPercentile);
        std::nth_element(window.begin(), at, window.end());
        quiet[s] = std::max(EventActivity::leastQuiet, double(*at));
    }
    return quiet;
}

} // namespace

float EventActivity::levelOfRatio(double ratio)
{
    if (!(ratio > 1.0))
        return 0.0f;
    return float(std::clamp(std::log(ratio) / std::log(fullRatio), 0.0, 1.0));
}

std::vector<float> EventActivity::levelsOf(const std::vector<float> &changePerSecond)
{
    const std::vector<double> quiet = quietLevels(changePerSecond);
    std::vector<float> levels(changePerSecond.size(), 0.0f);
    for (size_t s = 0; s < levels.size(); ++s)
        if (changePerSecond[s] >= 0)
            levels[s] = levelOfRatio(changePerSecond[s] / quiet[s]);
    return levels;
}

std::vector<ActivityBurst> EventActivity::burstsOf(Camera camera, const std::vector<float> &levels)
{
    const float threshold = levelOfRatio(burstRatio);
    std::vector<ActivityBurst> bursts;
    for (size_t s = 0; s < levels.size(); ++s) {
        if (levels[s] < threshold)
            continue;
        if (!bursts.empty() && double(s) - bursts.back().end <= joinGap) {
            bursts.back().end = double(s + 1);
            bursts.back().peak = std::max(bursts.back().peak, levels[s]);
        } else {
            bursts.push_back({camera, double(s), double(s + 1), levels[s]});
        }
    }
    return bursts;
}

EventActivity EventActivity::make(const TeslaEvent &event, const std::vector<std::pair<ClipRef, ClipActivity>> &clips)
{
    // Each camera's clips, by start, placed as the player places them.
    std::map<int, std::vector<const std::pair<ClipRef, ClipActivity> *>> byCamera;
    for (const auto &clip : clips)
        byCamera[clip.first.camera.gridOrder()].push_back(&clip);
    EventActivity result;
    std::vector<std::pair<Camera, std::vector<float>>> changes;
    for (auto &[order, list] : byCamera) {
        std::stable_sort(list.begin(), list.end(), [](auto *a, auto *b) { return a->first.startDate < b->first.startDate; });
        Composition::Track axis;
        QHash<QString, const ClipActivity *> activityOf;
        for (const auto *clip : list)
            if (clip->second.duration > 0 &&
                axis.placeClip(clip->first.url, clip->second.duration, event.timelineOffset(clip->first)))
                activityOf.insert(clip->first.url, &clip->second);
        std::vector<float> change;
        for (const Composition::Segment &segment : axis.segments) {
            const ClipActivity *activity = activityOf.value(segment.file);
            const double from = segment.sourceStart.seconds();
            const double to = from + segment.duration.seconds();
            const double shift = segment.timelineStart.seconds() - from;
            for (size_t k = 0; k < activity->changePerSecond.size(); ++k) {
                const double middle = double(k) + 0.5;
                if (middle < from || middle >= to)
                    continue;
                const size_t second = size_t(std::max(0.0, std::floor(middle + shift)));
                if (second >= change.size())
                    change.resize(second + 1, -1.0f);
                change[second] = std::max(change[second], activity->changePerSecond[k]);
            }
        }
        result.duration = std::max(result.duration, axis.end().seconds());
        changes.emplace_back(list.front()->first.camera, std::move(change));
    }
    for (auto &[camera, change] : changes) {
        change.resize(size_t(std::ceil(result.duration)), -1.0f);
        CameraLevels levels{camera, levelsOf(change)};
        const auto bursts = burstsOf(camera, levels.levels);
        result.bursts.insert(result.bursts.end(), bursts.begin(), bursts.end());
        result.cameras.push_back(std::move(levels));
    }
    std::stable_sort(result.bursts.begin(), result.bursts.end(), [](const ActivityBurst &a, const ActivityBurst &b) {
        return a.start < b.start || (a.start == b.start && a.camera.gridOrder() < b.camera.gridOrder());
    });
    return result;
}

std::vector<ActivityBurst> EventActivity::highlights(int count) const
{
    std::vector<ActivityBurst> strongest;
    for (const ActivityBurst &burst : bursts) {
        auto it = std::find_if(strongest.begin(), strongest.end(), [&](const ActivityBurst &b) { return b.camera == burst.camera; });
        if (it == strongest.end())
            strongest.push_back(burst);
        else if (burst.peak > it->peak)
            *it = burst;
    }
    // The strongest cameras, told in the order they happened.
    std::stable_sort(strongest.begin(), strongest.end(), [](const ActivityBurst &a, const ActivityBurst &b) { return a.peak > b.peak; });
    if (strongest.size() > size_t(std::max(0, count)))
        strongest.resize(size_t(std::max(0, count)));
    std::stable_sort(strongest.begin(), strongest.end(), [](const ActivityBurst &a, const ActivityBurst &b) { return a.start < b.start; });
    return strongest;
}
