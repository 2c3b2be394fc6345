#pragma once

#include "model/TeslaEvent.h"
#include "model/TriageState.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QStringList>
#include <vector>

class AppState;

// The rows of an event list (the inbox, or the Vault list) with every text the
// row shows already made. Follows the state: a list that only changes by rows
// coming and going moves those rows alone, so the view keeps its place and
// its delegates.
class EventListModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)
public:
    enum class Source { inbox, vault };
    enum Role {
        EventIDRole = Qt::UserRole + 1,
        KindRole,
        TimestampTextRole,
        SecondLineRole,
        TextToolTipRole,
        AccessibleNameRole,
        FallbackIconRole,
        ThumbSourceRole,
        OverlayKindRole,
        OverlayIconRole,
        OverlayToolTipRole,
        ReasonLabelRole,
        ReasonShortLabelRole,
        ReasonIconRole,
        ReasonBlurbRole,
        ReasonAccessibleRole,
        CorruptCountRole,
        CorruptToolTipRole,
        CorruptAccessibleRole,
        IsBulkSelectedRole,
        TickIconRole,
        TickToolTipRole,
        IsSelectedRole,
        DayHeadingRole,
        LockStateRole,
        LockIconRole,
        LockToolTipRole,
        ActivityLineRole,
    };

    EventListModel(AppState *state, Source source, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int count() const { return int(events_.size()); }
    int selectedIndex() const;
    const std::vector<TeslaEvent> &events() const { return events_; }
    Q_INVOKABLE QString idAt(int row) const;
    Q_INVOKABLE int indexOf(const QString &eventID) const;

    // The thumbnail's image-provider id: the epoch keys the request, so a
    // picture that failed while access was missing is asked for again.
    static QString thumbSource(const TeslaEvent &event, int epoch);

Q_SIGNALS:
    void countChanged();
    void selectedIndexChanged();

private:
    std::vector<TeslaEvent> currentEvents() const;
    void refresh();
    void refreshAllRows();
    // The triage mark as the row shows it.
    TriageState shownState(const TeslaEvent &e) const;

    QPointer<AppState> state_;
    Source source_;
    std::vector<TeslaEvent> events_;
};
