#include "EventListModel.h"

#include "VaultMarks.h"

#include "InboxPresenter.h"
#include "SymbolIcons.h"
#include "state/AppState.h"

#include <QSet>

EventListModel::EventListModel(AppState *state, Source source, QObject *parent)
    : QAbstractListModel(parent), state_(state), source_(source)
{
    events_ = currentEvents();
    if (source_ == Source::inbox) {
        connect(state, &AppState::visibleInboxEventsChanged, this, &EventListModel::refresh);
        connect(state, &AppState::selectedEventIDChanged, this, [this] {
            refreshAllRows();
            Q_EMIT selectedIndexChanged();
        });
    } else {
        connect(state, &AppState::vaultEventsChanged, this, &EventListModel::refresh);
        connect(state, &AppState::selectedVaultEventIDChanged, this, [this] {
            refreshAllRows();
            Q_EMIT selectedIndexChanged();
        });
    }
    connect(state, &AppState::triageStatesChanged, this, &EventListModel::refreshAllRows);
    connect(state, &AppState::vaultIndexChanged, this, &EventListModel::refreshAllRows);
    connect(state, &AppState::verificationLogChanged, this, &EventListModel::refreshAllRows);
    connect(state, &AppState::selectedEventIDsForBulkChanged, this, &EventListModel::refreshAllRows);
    connect(state, &AppState::resourceAccessEpochChanged, this, &EventListModel::refreshAllRows);
    connect(state, &AppState::keyCoverageChanged, this, &EventListModel::refreshAllRows);
    connect(&state->activity(), &ActivityPass::highlightsChanged, this, [this](const QString &id) {
        if (const int row = indexOf(id); row >= 0)
            Q_EMIT dataChanged(index(row), index(row), {ActivityLineRole});
    });
}

std::vector<TeslaEvent> EventListModel::currentEvents() const
{
    if (!state_)
        return {};
    return source_ == Source::inbox ? state_->visibleInboxEvents() : state_->vaultEvents();
}

TriageState EventListModel::shownState(const TeslaEvent &e) const
{
    const TriageState t = state_->triageState(e);
    // Part of an event, or a copy found changed, is no verified copy safe in
    // the Vault, whatever was kept of it before: its newest keep and the
    // last check of it speak.
    if (t == TriageState::kept)
        if (const ArchivedEvent *newest = state_->vaultIndex().newestRecord(e.id());
            newest && !VaultMarks::vouchesFor(*newest, state_->verificationLog().find(e.id())))
            return TriageState::reviewed;
    return t;
}

int EventListModel::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : int(events_.size()); }

QHash<int, QByteArray> EventListModel::roleNames() const
{
    return {
        {EventIDRole, "eventID"},
        {KindRole, "kind"},
        {TimestampTextRole, "timestampText"},
        {SecondLineRole, "secondLine"},
        {TextToolTipRole, "textToolTip"},
        {AccessibleNameRole, "accessibleName"},
        {FallbackIconRole, "fallbackIcon"},
        {ThumbSourceRole, "thumbSource"},
        {OverlayKindRole, "overlayKind"},
        {OverlayIconRole, "overlayIcon"},
        {OverlayToolTipRole, "overlayToolTip"},
        {ReasonLabelRole, "reasonLabel"},
        {ReasonShortLabelRole, "reasonShortLabel"},
        {ReasonIconRole, "reasonIcon"},
        {ReasonBlurbRole, "reasonBlurb"},
        {ReasonAccessibleRole, "reasonAccessible"},
        {CorruptCountRole, "corruptCount"},
        {CorruptToolTipRole, "corruptToolTip"},
        {CorruptAccessibleRole, "corruptAccessible"},
        {IsBulkSelectedRole, "isBulkSelected"},
        {TickIconRole, "tickIcon"},
        {TickToolTipRole, "tickToolTip"},
        {IsSelectedRole, "isSelected"},
        {DayHeadingRole, "dayHeading"},
        {LockStateRole, "lockState"},
        {LockIconRole, "lockIcon"},
        {LockToolTipRole, "lockToolTip"},
        {ActivityLineRole, "activityLine"},
    };
}

QString EventListModel::thumbSource(const TeslaEvent &event, int epoch)
{
    // The car's encrypted thumbnail is no picture to us.
    if (!event.thumbURL || event.thumbURL->isEmpty() || event.encrypted)
        return {};
    return QStringLiteral("image://thumbs/") + QString::number(epoch) + *event.thumbURL;
}

QVariant EventListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() < 0 || index.row() >= int(events_.size()) || !state_)
        return {};
    const TeslaEvent &e = events_[size_t(index.row())];
    const bool inBulk = source_ == Source::inbox && state_->selectedEventIDsForBulk().contains(e.id());
    switch (role) {
    case EventIDRole:
        return e.id();
    case KindRole:
        return e.kind.rawValue();
    case TimestampTextRole:
        return InboxPresenter::rowTimestamp(e);
    case DayHeadingRole:
        return InboxPresenter::dayHeading(e.timestamp, QDate::currentDate());
    case SecondLineRole:
        return InboxPresenter::secondLine(e, source_ == Source::vault);
    case TextToolTipRole:
        return InboxPresenter::textBlockToolTip(e);
    case AccessibleNameRole:
        return InboxPresenter::accessibilityLabel(e);
    case FallbackIconRole:
        return SymbolIcons::iconUrl(InboxPresenter::fallbackSymbol(e.kind));
    case ThumbSourceRole:
        return thumbSource(e, state_->resourceAccessEpoch());
    case OverlayKindRole:
        return InboxPresenter::triageOverlay(shownState(e)).kind;
    case OverlayIconRole: {
        const QString symbol = InboxPresenter::triageOverlay(shownState(e)).symbolName;
        return symbol.isEmpty() ? QString() : SymbolIcons::iconUrl(symbol);
    }
    case OverlayToolTipRole:
        return InboxPresenter::triageOverlay(shownState(e)).toolTip;
    case ReasonLabelRole:
        return InboxPresenter::reasonText(e).label;
    case ReasonShortLabelRole:
        return InboxPresenter::reasonText(e).shortLabel;
    case ReasonIconRole:
        return SymbolIcons::iconUrl(InboxPresenter::reasonText(e).symbolName);
    case ReasonBlurbRole:
        return InboxPresenter::reasonText(e).blurb;
    case ReasonAccessibleRole:
        return InboxPresenter::reasonChipAccessibilityLabel(e);
    case LockStateRole:
        return state_->lockState(e.id());
    case LockIconRole: {
        const QString symbol = InboxPresenter::lockMark(state_->lockState(e.id())).symbolName;
        return symbol.isEmpty() ? QString() : SymbolIcons::iconUrl(symbol);
    }
    case LockToolTipRole:
        return InboxPresenter::lockMark(state_->lockState(e.id())).toolTip;
    case ActivityLineRole:
        return InboxPresenter::activityLine(state_->activity().highlights(e.id()));
    case CorruptCountRole:
        return e.corruptClipCount();
    case CorruptToolTipRole:
        return InboxPresenter::corruptionToolTip(e.corruptClipCount());
    case CorruptAccessibleRole:
        return InboxPresenter::corruptionAccessibilityText(e.corruptClipCount());
    case IsBulkSelectedRole:
        return inBulk;
    case TickIconRole:
        return SymbolIcons::iconUrl(InboxPresenter::tickSymbol(inBulk));
    case TickToolTipRole:
        return InboxPresenter::tickToolTip(inBulk);
    case IsSelectedRole: {
        const auto &sel = source_ == Source::inbox ? state_->selectedEventID() : state_->selectedVaultEventID();
        return sel && *sel == e.id();
    }
    default:
        return {};
    }
}

QString EventListModel::idAt(int row) const
{
    return row >= 0 && row < int(events_.size()) ? events_[size_t(row)].id() : QString();
}

int EventListModel::indexOf(const QString &eventID) const
{
    for (size_t i = 0; i < events_.size(); ++i)
        if (events_[i].id() == eventID)
            return int(i);
    return -1;
}

int EventListModel::selectedIndex() const
{
    if (!state_)
        return -1;
    const auto &sel = source_ == Source::inbox ? state_->selectedEventID() : state_->selectedVaultEventID();
    return sel ? indexOf(*sel) : -1;
}

void EventListModel::refreshAllRows()
{
    if (!events_.empty())
        Q_EMIT dataChanged(index(0), index(int(events_.size()) - 1));
}

void EventListModel::refresh()
{
    std::vector<TeslaEvent> next = currentEvents();
    const int oldSelected = selectedIndex();
    QStringList oldIDs, newIDs;
    for (const TeslaEvent &e : events_)
        oldIDs.append(e.id());
    for (const TeslaEvent &e : next)
        newIDs.append(e.id());

    if (oldIDs == newIDs) {
        events_ = std::move(next);
        refreshAllRows();
        return;
    }

    // Rows that stay must keep their relative order; then removing the gone
    // ones and inserting the new ones walks both lists once.
    const QSet<QString> newSet(newIDs.cbegin(), newIDs.cend());
    QStringList kept;
    for (const QString &id : oldIDs)
        if (newSet.contains(id))
            kept.append(id);
    const QSet<QString> keptSet(kept.cbegin(), kept.cend());
    QStringList keptInNew;
    for (const QString &id : newIDs)
        if (keptSet.contains(id))
            keptInNew.append(id);
    if (kept != keptInNew) {
        beginResetModel();
        events_ = std::move(next);
        endResetModel();
    } else {
        for (int i = int(events_.size()) - 1; i >= 0; --i) {
            if (newSet.contains(events_[size_t(i)].id()))
                continue;
            int first = i;
            while (first > 0 && !newSet.contains(events_[size_t(first - 1)].id()))
                --first;
            beginRemoveRows({}, first, i);
            events_.erase(events_.begin() + first, events_.begin() + i + 1);
            endRemoveRows();
            i = first;
        }
        for (size_t i = 0; i < next.size(); ++i) {
            if (i < events_.size() && events_[i].id() == next[i].id())
                continue;
            size_t last = i;
            while (last + 1 < next.size() && !keptSet.contains(next[last + 1].id())
                   && !(i < events_.size() && events_[i].id() == next[last + 1].id()))
                ++last;
            beginInsertRows({}, int(i), int(last));
            events_.insert(events_.begin() + qsizetype(i), next.begin() + qsizetype(i), next.begin() + qsizetype(last) + 1);
            endInsertRows();
            i = last;
        }
        // Rows that stayed may carry new data (clip health after a probe).
        events_ = std::move(next);
        refreshAllRows();
    }
    Q_EMIT countChanged();
    if (selectedIndex() != oldSelected)
        Q_EMIT selectedIndexChanged();
}
