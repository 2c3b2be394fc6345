#include "InboxViewModel.h"

#include "FailureScreens.h"
#include "InboxPresenter.h"
#include "OnboardingTexts.h"
#include "SymbolIcons.h"
#include "model/PlainReason.h"
#include "state/AppState.h"

InboxViewModel::InboxViewModel(AppState *state, QObject *parent)
    : QObject(parent), state_(state), rows_(new EventListModel(state, EventListModel::Source::inbox, this))
{
    for (auto sig : {&AppState::currentFailureChanged, &AppState::isScanningChanged, &AppState::driveScanChanged,
                     &AppState::isSampleModeChanged})
        connect(state, sig, this, &InboxViewModel::contentChanged);
    for (auto sig : {&AppState::filterStateChanged, &AppState::filterReasonChanged, &AppState::filterKindChanged})
        connect(state, sig, this, &InboxViewModel::filtersChanged);
    connect(state, &AppState::selectedEventIDsForBulkChanged, this, &InboxViewModel::bulkChanged);
    connect(state, &AppState::visibleInboxEventsChanged, this, &InboxViewModel::recentChanged);
    connect(state, &AppState::scanProgressChanged, this, &InboxViewModel::scanCountsChanged);
}

QString InboxViewModel::content() const
{
    if (!state_)
        return QStringLiteral("noDrive");
    const auto &scan = state_->driveScan();
    switch (InboxPresenter::columnContent(state_->currentFailure().has_value(), state_->isScanning(), scan.has_value(),
                                          scan ? qsizetype(scan->events.size()) : 0)) {
    case InboxPresenter::ColumnContent::failure:
        return QStringLiteral("failure");
    case InboxPresenter::ColumnContent::scanning:
        return QStringLiteral("scanning");
    case InboxPresenter::ColumnContent::noDrive:
        return QStringLiteral("noDrive");
    case InboxPresenter::ColumnContent::emptyDrive:
        return QStringLiteral("emptyDrive");
    case InboxPresenter::ColumnContent::inbox:
        break;
    }
    return QStringLiteral("inbox");
}

QVariantMap InboxViewModel::emptyScreen() const
{
    const QString c = content();
    if (c == QLatin1String("noDrive"))
        return FailureScreens::noTeslaCamFolder(std::nullopt).toVariantMap();
    if (c == QLatin1String("emptyDrive"))
        return FailureScreens::emptyDrive().toVariantMap();
    return {};
}

QVariantMap InboxViewModel::texts() const
{
    auto icon = [](const char *s) { return SymbolIcons::iconUrl(QString::fromLatin1(s)); };
    return {
        //: Title of the car drive's event list
        {QStringLiteral("title"), tr("Drive")},
        {QStringLiteral("switchDrive"), tr("Switch Drive")},
        {QStringLiteral("switchDriveIcon"), icon("arrow.triangle.2.circlepath")},
        {QStringLiteral("switchDriveTip"), tr("Pick a different Tesla drive or re-scan this one.")},
        {QStringLiteral("checking"), tr("Checking for new events…")},
        //: Button that opens the filter menu
        {QStringLiteral("filter"), tr("Filter")},
        {QStringLiteral("filterTip"), tr("Show only certain statuses, reasons, or kinds of events.")},
        //: Heading in the filter menu: filter by status (new, reviewed, …)
        {QStringLiteral("status"), tr("Status")},
        //: Heading in the filter menu: filter by the car's reason for recording
        {QStringLiteral("reason"), tr("Reason")},
        //: Heading in the filter menu: filter by kind (Sentry, saved, recent driving)
        {QStringLiteral("kind"), tr("Kind")},
        {QStringLiteral("clearAll"), tr("Clear All Filters")},
        //: Button that starts ticking several events
        {QStringLiteral("select"), tr("Select")},
        {QStringLiteral("selectIcon"), icon("checklist")},
        {QStringLiteral("selectTip"), tr("Select multiple events to keep or dismiss them all at once.")},
        {QStringLiteral("bulkHint"), tr("Tick events to keep or dismiss them together.")},
        {QStringLiteral("bulkKeepIcon"), icon("checkmark.shield")},
        {QStringLiteral("bulkKeepTip"), tr("Archive the selected events to your Vault.")},
        {QStringLiteral("bulkDismissIcon"), icon("xmark.circle")},
        {QStringLiteral("bulkDismissTip"),
         tr("Hide the selected events. This never deletes footage from your drive or Vault.")},
        {QStringLiteral("tokenIcon"), icon("xmark")},
        {QStringLiteral("tokenTip"), tr("Remove this filter.")},
        //: Button that keeps the event in the Vault
        {QStringLiteral("keep"), tr("Keep")},
        //: Button that hides the event from the list
        {QStringLiteral("dismiss"), tr("Dismiss")},
        {QStringLiteral("recentTitle"), tr("Just had an incident while driving?")},
        {QStringLiteral("recentIcon"), icon("road.lanes")},
        {QStringLiteral("recentText"),
         //: "Recent Driving" is the list's own heading for the car's rolling recording
         tr("It's likely in Recent Driving below. This folder overwrites itself as you keep driving, so keep a copy "
            "now if you need it.")},
        {QStringLiteral("recentKeep"), tr("Keep Recent Driving Now")},
        {QStringLiteral("recentKeepIcon"), icon("checkmark.shield.fill")},
        {QStringLiteral("recentKeepTip"),
         tr("Copies all of Recent Driving to your Vault before it's overwritten. Your drive itself is never changed.")},
        //: Button that plays Recent Driving
        {QStringLiteral("recentPreview"), tr("Preview")},
        {QStringLiteral("corruptIcon"), icon("exclamationmark.triangle.fill")},
        {QStringLiteral("scanTitle"), OnboardingTexts::texts().value(QStringLiteral("scanTitle"))},
        {QStringLiteral("scanHint"), OnboardingTexts::texts().value(QStringLiteral("scanHint"))},
    };
}

QVariantList InboxViewModel::statusEntries() const
{
    QVariantList out{QVariantMap{{QStringLiteral("value"), QString()}, {QStringLiteral("label"), tr("All statuses")}}};
    for (TriageState s : TriageState::allCases())
        out.append(QVariantMap{{QStringLiteral("value"), s.rawValue()},
                               {QStringLiteral("label"), InboxPresenter::statusEntry(s)}});
    return out;
}

QVariantList InboxViewModel::reasonEntries() const
{
    QVariantList out{QVariantMap{{QStringLiteral("value"), QString()}, {QStringLiteral("label"), tr("Any reason")}}};
    for (ReasonCategory c : ReasonCategory::allCases())
        out.append(QVariantMap{{QStringLiteral("value"), c.rawValue()},
                               {QStringLiteral("label"), PlainReason{c, {}, {}}.label()}});
    return out;
}

QVariantList InboxViewModel::kindEntries() const
{
    QVariantList out{QVariantMap{{QStringLiteral("value"), QString()},
                                 //: Kind filter: no filter, every kind of event
                                 {QStringLiteral("label"), tr("Everything")}}};
    for (EventKind k : EventKind::allCases())
        out.append(QVariantMap{{QStringLiteral("value"), k.rawValue()}, {QStringLiteral("label"), InboxPresenter::kindEntry(k)}});
    return out;
}

int InboxViewModel::activeFilterCount() const
{
    return state_ ? InboxPresenter::activeFilterCount(state_->filterState(), state_->filterReason(), state_->filterKind())
                  : 0;
}

QString InboxViewModel::filterMenuIcon() const
{
    return SymbolIcons::iconUrl(InboxPresenter::filterMenuSymbol(activeFilterCount()));
}

QVariantList InboxViewModel::filterTokens() const
{
    QVariantList out;
    if (!state_)
        return out;
    for (const auto &t : InboxPresenter::filterTokens(state_->filterState(), state_->filterReason(), state_->filterKind()))
        out.append(QVariantMap{{QStringLiteral("filter"), t.filter}, {QStringLiteral("label"), t.label}});
    return out;
}

int InboxViewModel::bulkCount() const { return state_ ? int(state_->selectedEventIDsForBulk().size()) : 0; }
QString InboxViewModel::bulkKeepTitle() const { return InboxPresenter::bulkKeepTitle(bulkCount()); }
QString InboxViewModel::bulkDismissTitle() const { return InboxPresenter::bulkDismissTitle(bulkCount()); }
bool InboxViewModel::showsBulkActions(bool isBulkSelecting) const { return isBulkSelecting && bulkCount() > 0; }

int InboxViewModel::recentCount() const
{
    return state_ ? int(InboxPresenter::recentDriving(state_->visibleInboxEvents()).size()) : 0;
}

bool InboxViewModel::showsSwitchDrive() const
{
    // Wherever a drive, the sample or a failure stands, another drive is one click away.
    return state_ && (state_->driveScan().has_value() || state_->currentFailure().has_value() || state_->isSampleMode());
}

QString InboxViewModel::scanCounts() const
{
    if (!state_ || !state_->scanProgress())
        return {};
    const ScanProgress &p = *state_->scanProgress();
    return OnboardingTexts::scanCountsText(p.eventsFound, p.clipsFound);
}

void InboxViewModel::ejectSample()
{
    if (!state_ || !state_->isSampleMode())
        return;
    state_->exitSampleMode();
    if (!state_->driveScan() && !state_->isScanning() && !state_->currentFailure())
        state_->setShowOnboarding(true);
}

void InboxViewModel::clearFilter(const QString &which)
{
    if (!state_)
        return;
    if (which == QLatin1String("state"))
        state_->setFilterState(std::nullopt);
    else if (which == QLatin1String("reason"))
        state_->setFilterReason(std::nullopt);
    else if (which == QLatin1String("kind"))
        state_->setFilterKind(std::nullopt);
}

void InboxViewModel::clearAllFilters()
{
    for (const char *f : {"state", "reason", "kind"})
        clearFilter(QString::fromLatin1(f));
}

void InboxViewModel::keepRecentDriving()
{
    if (state_)
        state_->requestKeep(InboxPresenter::recentDriving(state_->visibleInboxEvents()));
}

void InboxViewModel::previewRecentDriving()
{
    if (!state_)
        return;
    const auto recent = InboxPresenter::recentDriving(state_->visibleInboxEvents());
    if (!recent.empty())
        state_->setSelectedEventID(recent.front().id());
}

void InboxViewModel::moveSelection(int delta)
{
    if (!state_ || rows_->count() == 0)
        return;
    const int current = rows_->selectedIndex();
    const int next = current < 0 ? 0 : std::clamp(current + delta, 0, rows_->count() - 1);
    state_->setSelectedEventID(rows_->idAt(next));
}

void InboxViewModel::keepSelected()
{
    const int row = rows_->selectedIndex();
    if (state_ && row >= 0)
        state_->requestKeep({rows_->events()[size_t(row)]});
}

void InboxViewModel::dismissSelected()
{
    const int row = rows_->selectedIndex();
    if (state_ && row >= 0)
        state_->dismiss({rows_->events()[size_t(row)]});
}
