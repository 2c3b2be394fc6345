#include "state/TriageFilters.h"

#include "base/LogCategories.h"
#include "state/ChangeSignal.h"

#include <qcoro/qcorofuture.h>

TriageFilters::TriageFilters(TriageAccess &store, QObject *parent) : QObject(parent), store_(store)
{
    loadTask(QPointer<TriageFilters>(this));
}

QCoro::Task<void> TriageFilters::loadTask(QPointer<TriageFilters> self)
{
    TriageAccess::TriageStates loaded;
    try {
        auto loading = self->store_.loadAllTriageStates();
        loaded = co_await loading;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        co_return;
    }
    if (!self)
        co_return;
    bool changed = false;
    for (auto it = loaded.cbegin(); it != loaded.cend(); ++it) {
        // A mark made while the load ran wins over the stored one.
        if (!self->triageStates_.contains(it.key())) {
            self->triageStates_.insert(it.key(), it.value());
            changed = true;
        }
    }
    if (changed) {
        Q_EMIT self->triageStatesChanged();
        Q_EMIT self->visibleChanged();
    }
}

TriageState TriageFilters::triageState(const QString &eventID) const
{
    const auto it = triageStates_.constFind(eventID);
    return it != triageStates_.cend() ? it.value() : store_.triageState(eventID);
}

void TriageFilters::setTriage(TriageState state, const QString &eventID)
{
    setEntry(eventID, state);
    store_.setTriageState(state, eventID);
}

void TriageFilters::setEntry(const QString &eventID, TriageState state)
{
    const auto it = triageStates_.constFind(eventID);
    if (it != triageStates_.cend() && it.value() == state)
        return;
    triageStates_.insert(eventID, state);
    Q_EMIT triageStatesChanged();
    Q_EMIT visibleChanged();
}

void TriageFilters::setFilterState(std::optional<TriageState> v)
{
    if (filterState_.has_value() == v.has_value() && (!v || filterState_->value() == v->value()))
        return;
    filterState_ = v;
    Q_EMIT filterStateChanged();
    Q_EMIT visibleChanged();
}

void TriageFilters::setFilterReason(std::optional<ReasonCategory> v)
{
    if (filterReason_ == v)
        return;
    filterReason_ = v;
    Q_EMIT filterReasonChanged();
    Q_EMIT visibleChanged();
}

void TriageFilters::setFilterKind(std::optional<EventKind> v)
{
    if (filterKind_ == v)
        return;
    filterKind_ = v;
    Q_EMIT filterKindChanged();
    Q_EMIT visibleChanged();
}

std::vector<TeslaEvent> TriageFilters::visible(const std::vector<TeslaEvent> &events) const
{
    std::vector<TeslaEvent> out;
    for (const TeslaEvent &e : events) {
        const TriageState t = triageState(e.id());
        if (filterState_ && t != *filterState_)
            continue;
        if (filterReason_ && e.reason.category != *filterReason_)
            continue;
        if (filterKind_ && e.kind != *filterKind_)
            continue;
        if (!filterState_ && t == TriageState::dismissed)
            continue;
        out.push_back(e);
    }
    return out;
}

void TriageFilters::setSelectedEventIDsForBulk(QSet<QString> ids)
{
    setAndSignal(this, selectedEventIDsForBulk_, std::move(ids), &TriageFilters::selectedEventIDsForBulkChanged);
}

void TriageFilters::toggleBulkSelection(const QString &eventID)
{
    QSet<QString> ids = selectedEventIDsForBulk_;
    if (!ids.remove(eventID))
        ids.insert(eventID);
    setSelectedEventIDsForBulk(std::move(ids));
}

std::vector<TeslaEvent> TriageFilters::takeBulkSelection(const std::vector<TeslaEvent> &events)
{
    std::vector<TeslaEvent> chosen;
    for (const TeslaEvent &e : visible(events))
        if (selectedEventIDsForBulk_.contains(e.id()))
            chosen.push_back(e);
    setSelectedEventIDsForBulk({});
    return chosen;
}
