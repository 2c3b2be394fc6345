#include "playback/PlaybackGroup.h"

#include "playback/HostClock.h"

#include <algorithm>

namespace {
constexpr int tickMs = 4;
}

PlaybackGroup::PlaybackGroup(QObject *parent) : QObject(parent)
{
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setInterval(tickMs);
    connect(&timer_, &QTimer::timeout, this, &PlaybackGroup::tick);
}

PlaybackGroup::~PlaybackGroup()
{
    clear();
}

void PlaybackGroup::add(Member *player)
{
    prune();
    if (members_.empty())
        *clock_ = player->clock();
    members_.push_back(Entry{player->lifetime(), player});
    player->setGroup(this);
}

void PlaybackGroup::clear()
{
    for (const auto &m : members_)
        if (m.alive && m->group() == this)
            m->setGroup(nullptr);
    members_.clear();
    laggingSince_.clear();
    timer_.stop();
}

void PlaybackGroup::clockChanged(Member *member)
{
    // A member lagging since before keeps its count: a seek doesn't make a
    // stuck drive answer.
    preparedUpTo_ = member->currentSeconds();
    wake();
}

void PlaybackGroup::wake()
{
    if (!timer_.isActive())
        timer_.start();
}

void PlaybackGroup::prune()
{
    members_.erase(std::remove_if(members_.begin(), members_.end(), [](const Entry &m) { return !m.alive; }),
                   members_.end());
}

// The one place where the cameras' pictures are chosen while they play
// together: every member shows its frame for the same t, or none moves.
void PlaybackGroup::tick()
{
    prune();
    if (members_.empty()) {
        timer_.stop();
        return;
    }
    // Up to the end of the longest track: an earlier end doesn't stop the others.
    double end = 0;
    for (const auto &m : members_)
        end = std::max(end, m->trackDuration().seconds());
    double t = std::max(0.0, clock_->seconds());
    if (end > 0)
        t = std::min(t, end);
    const double now = HostClock::now();
    bool prepared = true;
    for (const auto &m : members_) {
        // One that never gave a picture (its clip doesn't open) holds nobody.
        if (m->preparedFor(t) || !m->isReadyToPlay()) {
            laggingSince_.erase(m.member);
            continue;
        }
        const auto [it, fresh] = laggingSince_.emplace(m.member, now);
        if (now - it->second < stallLimit)
            prepared = false;
    }
    if (prepared) {
        preparedUpTo_ = t;
        for (const auto &m : members_)
            m->presentFor(t);
    } else {
        // A camera still decoding its way to a seek's exact frame shows the
        // key frame before it meanwhile, marked as such.
        for (const auto &m : members_)
            if (m->isSeeking())
                m->presentPreview();
        clock_->hold(preparedUpTo_, now);
    }
    const bool busy = clock_->running() || std::any_of(members_.begin(), members_.end(), [](const Entry &m) {
                          return m->isSeeking();
                      });
    if (!busy)
        timer_.stop();
}
