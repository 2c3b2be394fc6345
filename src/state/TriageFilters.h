#pragma once

#include "engine/TriageAccess.h"
#include "model/EventKind.h"
#include "model/ReasonCategory.h"
#include "model/TeslaEvent.h"
#include "model/TriageState.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <optional>
#include <qcoro/qcorotask.h>
#include <vector>

// The user's mark on each event, the inbox's filters and its ticked rows:
// which of the drive's events the inbox shows.
class TriageFilters : public QObject {
    Q_OBJECT
public:
    // The store must outlive this; its marks load at once, in the background.
    explicit TriageFilters(TriageAccess &store, QObject *parent = nullptr);

    // The mark made here, else the stored one.
    TriageState triageState(const QString &eventID) const;
    const QHash<QString, TriageState> &triageStates() const { return triageStates_; }
    // Marks the event here and in the store.
    void setTriage(TriageState state, const QString &eventID);

    const std::optional<TriageState> &filterState() const { return filterState_; }
    void setFilterState(std::optional<TriageState> v);
    const std::optional<ReasonCategory> &filterReason() const { return filterReason_; }
    void setFilterReason(std::optional<ReasonCategory> v);
    const std::optional<EventKind> &filterKind() const { return filterKind_; }
    void setFilterKind(std::optional<EventKind> v);

    // Dismissed events hide unless the filter asks for them.
    std::vector<TeslaEvent> visible(const std::vector<TeslaEvent> &events) const;

    // A tap toggles a row; taking them hands over the visible ticked rows
    // in list order and empties the set.
    const QSet<QString> &selectedEventIDsForBulk() const { return selectedEventIDsForBulk_; }
    void setSelectedEventIDsForBulk(QSet<QString> ids);
    void toggleBulkSelection(const QString &eventID);
    std::vector<TeslaEvent> takeBulkSelection(const std::vector<TeslaEvent> &events);

Q_SIGNALS:
    void triageStatesChanged();
    void filterStateChanged();
    void filterReasonChanged();
    void filterKindChanged();
    void selectedEventIDsForBulkChanged();
    // Any of the above that changes which events show.
    void visibleChanged();

private:
    static QCoro::Task<void> loadTask(QPointer<TriageFilters> self);
    void setEntry(const QString &eventID, TriageState state);

    TriageAccess &store_;
    QHash<QString, TriageState> triageStates_;
    std::optional<TriageState> filterState_;
    std::optional<ReasonCategory> filterReason_;
    std::optional<EventKind> filterKind_;
    QSet<QString> selectedEventIDsForBulk_;
};
