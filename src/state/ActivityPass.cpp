#include "state/ActivityPass.h"

#include "base/Awaiting.h"
#include "base/CancellationError.h"
#include "base/LogCategories.h"

ActivityPass::ActivityPass(MomentsAccess &engine, QObject *parent) : QObject(parent), engine_(engine) {}

ActivityPass::~ActivityPass() { current_.cancel(); }

void ActivityPass::start(std::vector<TeslaEvent> events)
{
    queue_ = std::move(events);
    resume();
}

void ActivityPass::stop()
{
    queue_.clear();
    resume();
}

void ActivityPass::setPaused(bool paused)
{
    if (paused_ == paused)
        return;
    paused_ = paused;
    resume();
}

// Drops the run in progress (the event it was on stays queued) and starts
// anew if there is work and no pause.
void ActivityPass::resume()
{
    ++generation_;
    current_.cancel();
    running_ = !paused_ && !queue_.empty();
    if (running_)
        runTask(QPointer<ActivityPass>(this), generation_);
}

void ActivityPass::note(const QString &eventID, const EventActivity &activity)
{
    auto highlights = activity.highlights(highlightCount);
    const auto it = highlights_.constFind(eventID);
    if (it != highlights_.cend() && *it == highlights)
        return;
    highlights_.insert(eventID, std::move(highlights));
    Q_EMIT highlightsChanged(eventID);
}

QCoro::Task<void> ActivityPass::runTask(QPointer<ActivityPass> self, quint64 generation)
{
    while (self && self->generation_ == generation && !self->queue_.empty()) {
        const TeslaEvent event = self->queue_.front();
        if (!self->isKnown(event.id())) {
            QFuture<EventActivity> loading = self->engine_.loadActivity(event);
            self->current_ = loading;
            auto ended = Awaiting::finished(loading);
            co_await ended;
            if (!self || self->generation_ != generation)
                co_return; // a newer run or a pause took over
            std::optional<EventActivity> activity;
            try {
                activity = Awaiting::take(loading);
            } catch (const CancellationError &) {
            } catch (...) {
                // That event only: its clips can't be read now.
                KEELHOLD_LOG_CAUGHT(lcState);
            }
            if (activity)
                self->note(event.id(), *activity);
        }
        self->queue_.erase(self->queue_.begin());
    }
    if (self && self->generation_ == generation) {
        self->running_ = false;
        Q_EMIT self->finished();
    }
}
