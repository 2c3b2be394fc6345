#include "MapViewModel.h"

#include "model/DrivingDataText.h"
#include "EventMapPresenter.h"
#include "EventRoutes.h"
#include "InboxPresenter.h"
#include "SymbolIcons.h"
#include "state/AppState.h"
#include "state/SidebarSection.h"

#include <QCoreApplication>

MapViewModel::MapViewModel(AppState *state, QObject *parent)
    : QObject(parent), state_(state), routes_(new EventRoutes(state->engine(), this))
{
    connect(state, &AppState::driveScanChanged, this, &MapViewModel::requestRoutes);
    connect(state, &AppState::vaultEventsChanged, this, &MapViewModel::requestRoutes);
    connect(state, &AppState::driveScanChanged, this, &MapViewModel::changed);
    connect(state, &AppState::vaultEventsChanged, this, &MapViewModel::changed);
    connect(routes_, &EventRoutes::changed, this, &MapViewModel::changed);
}

std::vector<TeslaEvent> MapViewModel::listedEvents() const
{
    if (!state_)
        return {};
    static const std::vector<TeslaEvent> none;
    return EventMapPresenter::allEvents(state_->driveScan() ? state_->driveScan()->events : none, state_->vaultEvents());
}

std::vector<TeslaEvent> MapViewModel::allEvents() const
{
    std::vector<TeslaEvent> events = listedEvents();
    for (TeslaEvent &e : events)
        if (const auto fix = routes_->firstFix(e)) {
            e.latitude = fix->latitude;
            e.longitude = fix->longitude;
        }
    return events;
}

void MapViewModel::showRoutes()
{
    if (routesShown_)
        return;
    routesShown_ = true;
    requestRoutes();
}

void MapViewModel::requestRoutes()
{
    if (routesShown_)
        routes_->request(listedEvents());
}

QVariant MapViewModel::routesForQml() const { return QVariant::fromValue(routes_->routes()); }

bool MapViewModel::hasRoutes() const { return !routes_->routes().empty(); }

QVariantList MapViewModel::routeKey()
{
    using State = TelemetryRecord::AutopilotState;
    QVariantList key;
    for (State state : {State::none, State::autosteer, State::trafficAwareCruise, State::selfDriving}) {
        const QString name = DrivingDataText::assistance(state);
        //: The route key's colour for driving without Autopilot
        key.append(QVariantMap{{QStringLiteral("label"), name.isEmpty() ? tr("Driving yourself") : name},
                               {QStringLiteral("colour"), DrivingDataText::assistanceColour(state)}});
    }
    return key;
}

bool MapViewModel::isEmpty() const
{
    for (const TeslaEvent &e : allEvents())
        if (EventMapPresenter::isLocated(e))
            return false;
    return true;
}

QSet<QString> MapViewModel::keptIDs() const
{
    QSet<QString> kept;
    if (state_)
        for (const TeslaEvent &e : state_->vaultEvents())
            kept.insert(e.id());
    return kept;
}

QVariantList MapViewModel::pinsFor(const std::vector<TeslaEvent> &events, const QSet<QString> &kept)
{
    QVariantList out;
    for (const TeslaEvent &e : events) {
        if (!EventMapPresenter::isLocated(e))
            continue;
        out.append(QVariantMap{{QStringLiteral("id"), e.id()},
                               {QStringLiteral("latitude"), *e.latitude},
                               {QStringLiteral("longitude"), *e.longitude},
                               {QStringLiteral("tint"), EventMapPresenter::pinTint(e)},
                               {QStringLiteral("kept"), kept.contains(e.id())},
                               {QStringLiteral("label"), e.reason.label()},
                               {QStringLiteral("icon"), SymbolIcons::iconUrl(e.reason.symbolName())}});
    }
    return out;
}

QVariantList MapViewModel::sectionsFor(const std::vector<TeslaEvent> &events, const QSet<QString> &kept)
{
    QVariantList out;
    for (const auto &section : EventMapPresenter::sections(events)) {
        QVariantList rows;
        for (const TeslaEvent &e : section.events)
            rows.append(QVariantMap{{QStringLiteral("id"), e.id()},
                                    {QStringLiteral("timestamp"), EventMapPresenter::rowTimestamp(e)},
                                    {QStringLiteral("city"), e.placeName().value_or(QString())},
                                    {QStringLiteral("kept"), kept.contains(e.id())},
                                    {QStringLiteral("reasonLabel"), e.reason.label()},
                                    {QStringLiteral("reasonShortLabel"), e.reason.shortLabel()},
                                    {QStringLiteral("reasonIcon"), SymbolIcons::iconUrl(e.reason.symbolName())},
                                    {QStringLiteral("reasonBlurb"), e.reason.blurb()},
                                    {QStringLiteral("reasonAccessible"), InboxPresenter::reasonChipAccessibilityLabel(e)}});
        out.append(QVariantMap{{QStringLiteral("title"), section.title}, {QStringLiteral("rows"), rows}});
    }
    return out;
}

QVariantList MapViewModel::pins() const { return pinsFor(allEvents(), keptIDs()); }
QVariantList MapViewModel::sections() const { return sectionsFor(allEvents(), keptIDs()); }

QVariantList MapViewModel::listRows() const
{
    QVariantList out;
    for (const QVariant &s : sections()) {
        const QVariantMap section = s.toMap();
        for (const QVariant &r : section.value(QStringLiteral("rows")).toList()) {
            QVariantMap row = r.toMap();
            row.insert(QStringLiteral("section"), section.value(QStringLiteral("title")));
            out.append(row);
        }
    }
    return out;
}

QVariantMap MapViewModel::texts() const
{
    return {{QStringLiteral("emptyIcon"), SymbolIcons::iconUrl(QStringLiteral("map"))},
            {QStringLiteral("emptySymbol"), QStringLiteral("map")},
            {QStringLiteral("emptyTitle"), QCoreApplication::translate("EventMapPresenter", EventMapPresenter::emptyTitle)},
            {QStringLiteral("emptyText"), QCoreApplication::translate("EventMapPresenter", EventMapPresenter::emptyText)},
            {QStringLiteral("attribution"), QString::fromUtf8(EventMapPresenter::attribution)},
            {QStringLiteral("noTiles"), tr("Map tiles aren't available — check your internet connection.")},
            {QStringLiteral("noTilesIcon"), SymbolIcons::iconUrl(QStringLiteral("wifi.slash"))},
            {QStringLiteral("kept"), tr("Kept in your Vault")},
            {QStringLiteral("keptIcon"), SymbolIcons::iconUrl(QStringLiteral("checkmark.circle"))}};
}

void MapViewModel::select(const QString &eventID)
{
    if (!state_ || eventID.isEmpty())
        return;
    state_->setSelectedSection(SidebarSection::drive);
    state_->setSelectedEventID(eventID);
}
