#include "EventPlayerPresenter.h"

#include "VaultMarks.h"

#include "ExportFlow.h"

#include <QFileInfo>
#include <QPointer>
#include "InboxPresenter.h"
#include "PlayerDrivingData.h"
#include "PlayerLayout.h"
#include "SymbolIcons.h"
#include "model/PlatformWords.h"
#include "timeline/EventTimeline.h"

EventPlayerPresenter::EventPlayerPresenter(QObject *parent)
    : QObject(parent), drivingData_(new PlayerDrivingData(this)), moments_(new PlayerMoments(this))
{
    connect(drivingData_, &PlayerDrivingData::loadFinished, this, &EventPlayerPresenter::tellExportFlowAboutDrivingData);
}

EventPlayerPresenter::~EventPlayerPresenter()
{
    for (const auto &c : stateConnections_)
        disconnect(c);
}

void EventPlayerPresenter::setAppState(AppState *state)
{
    if (appState_ == state)
        return;
    for (const auto &c : stateConnections_)
        disconnect(c);
    stateConnections_.clear();
    appState_ = state;
    if (state) {
        stateConnections_ << connect(state, &AppState::driveScanChanged, this, &EventPlayerPresenter::resolve)
                          << connect(state, &AppState::vaultEventsChanged, this, &EventPlayerPresenter::resolve)
                          << connect(state, &AppState::vaultIndexChanged, this, &EventPlayerPresenter::metadataChanged);
    }
    Q_EMIT appStateChanged();
    resolve();
}

void EventPlayerPresenter::setEventID(const QString &id)
{
    if (eventID_ == id)
        return;
    eventID_ = id;
    Q_EMIT eventIDChanged();
    resolve();
}

void EventPlayerPresenter::setFromVault(bool value)
{
    if (fromVault_ == value)
        return;
    fromVault_ = value;
    Q_EMIT fromVaultChanged();
    resolve();
}

void EventPlayerPresenter::resolve()
{
    std::optional<TeslaEvent> found;
    if (appState_ && !eventID_.isEmpty()) {
        if (fromVault_) {
            for (const TeslaEvent &e : appState_->vaultEvents())
                if (e.id() == eventID_) {
                    found = e;
                    break;
                }
        } else if (const auto &scan = appState_->driveScan()) {
            for (const TeslaEvent &e : scan->events)
                if (e.id() == eventID_) {
                    found = e;
                    break;
                }
        }
    }
    const bool hadEvent = event_.has_value();
    event_ = std::move(found);
    if (hadEvent || event_)
        Q_EMIT eventChanged();
    Q_EMIT metadataChanged();
    if (!event_) {
        // The event went away (drive detached, kept copy removed): the
        // player stops and the keys no longer reach it.
        if (controller_ && !loadedID_.isEmpty()) {
            controller_->pause();
            if (appState_ && appState_->activePlayerController() == controller_)
                appState_->setActivePlayerController(nullptr);
        }
        loadedID_.clear();
        drivingData_->load(nullptr, std::nullopt);
        moments_->load(nullptr, std::nullopt, nullptr);
        return;
    }
    if (event_->id() == loadedID_)
        return;
    // A new identity: the same controller takes the new event.
    loadedID_ = event_->id();
    if (!controller_) {
        controller_ = new SyncPlayerController(*event_, this);
        Q_EMIT controllerChanged();
    } else {
        controller_->loadEvent(*event_);
    }
    drivingData_->follow(controller_);
    drivingData_->load(appState_ ? &appState_->engine() : nullptr, event_);
    moments_->follow(controller_, drivingData_);
    moments_->load(appState_ ? &appState_->engine() : nullptr, event_, appState_ ? &appState_->activity() : nullptr);
    opened();
}

void EventPlayerPresenter::opened()
{
    if (!appState_ || !event_)
        return;
    // Looking at an event for the first time is what marks it reviewed.
    if (appState_->triageState(*event_) == TriageState::new_)
        appState_->setTriage(TriageState::reviewed, *event_);
    appState_->setActivePlayerController(controller_);
}

QString EventPlayerPresenter::dateText(const TeslaEvent &event)
{
    return InboxPresenter::longTimestamp(event);
}

QVariantMap EventPlayerPresenter::metadata() const
{
    QVariantMap m;
    if (!event_)
        return m;
    const TeslaEvent &e = *event_;
    const int damaged = e.corruptClipCount();
    const InboxPresenter::ReasonText reason = InboxPresenter::reasonText(e);
    m.insert(QStringLiteral("reasonLabel"), reason.label);
    m.insert(QStringLiteral("reasonIcon"), SymbolIcons::iconUrl(reason.symbolName));
    m.insert(QStringLiteral("reasonTooltip"), reason.blurb);
    m.insert(QStringLiteral("damagedCount"), damaged);
    m.insert(QStringLiteral("damagedIcon"), SymbolIcons::iconUrl(QStringLiteral("exclamationmark.triangle.fill")));
    m.insert(QStringLiteral("damagedTooltip"), InboxPresenter::corruptionToolTip(damaged));
    m.insert(QStringLiteral("dateText"), dateText(e));
    m.insert(QStringLiteral("dateIcon"), SymbolIcons::iconUrl(QStringLiteral("calendar")));
    m.insert(QStringLiteral("city"), e.placeName().value_or(QString()));
    m.insert(QStringLiteral("cityIcon"), SymbolIcons::iconUrl(QStringLiteral("mappin.and.ellipse")));
    const bool located = e.latitude && e.longitude;
    m.insert(QStringLiteral("hasCoordinates"), located);
    m.insert(QStringLiteral("coordinatesText"),
             PlayerLayout::coordinatesText(e.latitude ? QVariant(*e.latitude) : QVariant(),
                                           e.longitude ? QVariant(*e.longitude) : QVariant()));
    m.insert(QStringLiteral("coordinatesIcon"),
             SymbolIcons::iconUrl(located ? QStringLiteral("location") : QStringLiteral("location.slash")));
    m.insert(QStringLiteral("coordinatesTooltip"),
             located ? tr("Coordinates as recorded by your car — useful for an insurance or police report.")
                     : QString());
    // The verification badge: only for a copy that is whole and, as far as
    // its last re-reading saw, as it was kept.
    bool verified = false;
    QString archivedLine;
    if (appState_) {
        if (const ArchivedEvent *newest = appState_->vaultIndex().newestRecord(e.id())) {
            verified = VaultMarks::vouchesFor(*newest, appState_->verificationLog().find(e.id()));
            //: %1 is when the event was kept, %2 the name of the drive it came from
            archivedLine = tr("Archived %1 from %2")
                               .arg(newest->archivedAt.formatForPeople(QStringLiteral("MMM d, yyyy h:mm AP"), Date::Shown::dateAndTime),
                                    newest->sourceVolumeText());
        }
    }
    m.insert(QStringLiteral("verified"), verified);
    m.insert(QStringLiteral("verifiedIcon"), SymbolIcons::iconUrl(QStringLiteral("checkmark.seal")));
    m.insert(QStringLiteral("archivedLine"), archivedLine);
    return m;
}

QVariantMap EventPlayerPresenter::texts()
{
    auto icon = [](const char *name) { return SymbolIcons::iconUrl(QString::fromLatin1(name)); };
    return {
        {QStringLiteral("loading"), tr("Loading cameras…")},
        {QStringLiteral("waiting"), SyncPlayerController::waitingReason()},
        {QStringLiteral("emptyIcon"), icon("video.slash")},
        {QStringLiteral("emptyTitle"), tr("No playable footage for this event")},
        {QStringLiteral("emptyText"),
         tr("None of this event's camera angles could be read. The files are still safely on your drive — this can "
            "happen with a failing drive or a corrupted minute.")},
        {QStringLiteral("placeholderIcon"), icon("video.slash")},
        {QStringLiteral("noFootage"), EventTimeline::noFootageReasonText()},
        {QStringLiteral("stepBackIcon"), icon("gobackward.5")},
        {QStringLiteral("stepBackTip"), tr("Step back 5 seconds. (Left Arrow)")},
        {QStringLiteral("stepForwardIcon"), icon("goforward.5")},
        {QStringLiteral("stepForwardTip"), tr("Step forward 5 seconds. (Right Arrow)")},
        {QStringLiteral("frameBackIcon"), icon("backward.frame")},
        {QStringLiteral("frameBackTip"), tr("Step back one frame. (,)")},
        {QStringLiteral("frameForwardIcon"), icon("forward.frame")},
        {QStringLiteral("frameForwardTip"), tr("Step forward one frame. (.)")},
        {QStringLiteral("playIcon"), icon("play.fill")},
        {QStringLiteral("pauseIcon"), icon("pause.fill")},
        {QStringLiteral("playTip"), tr("Play or pause all cameras together, perfectly in sync. (Space)")},
        //: Button: jump to the moment the event happened
        {QStringLiteral("moment"), tr("Moment")},
        {QStringLiteral("momentIcon"), icon("flag.fill")},
        {QStringLiteral("previousPlaceIcon"), icon("chevron.left")},
        {QStringLiteral("nextPlaceIcon"), icon("chevron.right")},
        {QStringLiteral("momentTip"), tr("Jump to just before the moment it happened — the honk, bump, or detection. (M)")},
        //: Label of the playback speed picker
        {QStringLiteral("speed"), tr("Speed")},
        {QStringLiteral("speedTip"), tr("Playback speed, from half speed to 4×.")},
        {QStringLiteral("showAll"), tr("Show All Cameras")},
        {QStringLiteral("showAllTip"), tr("Return to the full camera grid.")},
        {QStringLiteral("showAllIcon"), icon("square.grid.2x2")},
        {QStringLiteral("sliderTip"), tr("Drag to jump to any moment. Every camera stays in sync.")},
        {QStringLiteral("sliderName"), tr("Playback position")},
        //: %1 is the user's machine, e.g. "computer"
        {QStringLiteral("keep"), tr("Keep a safe copy on this %1").arg(PlatformWords::computer())},
        //: Button that keeps the event in the Vault
        {QStringLiteral("keepShort"), tr("Keep")},
        {QStringLiteral("keepIcon"), icon("checkmark.shield.fill")},
        {QStringLiteral("keepTip"),
         tr("Copies this footage to your Vault and verifies it matches byte-for-byte. Nothing on your drive is ever "
            "changed or deleted. (K)")},
        //: Button that hides the event from the list
        {QStringLiteral("dismiss"), tr("Dismiss")},
        {QStringLiteral("dismissIcon"), icon("xmark.circle")},
        {QStringLiteral("dismissTip"),
         tr("Hide this from your inbox. This never deletes anything from your drive or Vault. (D)")},
        {QStringLiteral("export"), tr("Export & Share")},
        {QStringLiteral("exportIcon"), icon("square.and.arrow.up")},
        {QStringLiteral("exportTip"),
         tr("Save one camera's footage as its own file and hand it off by email, or save it to a folder.")},
        {QStringLiteral("focusIcon"), icon("arrow.up.left.and.arrow.down.right")},
        {QStringLiteral("unfocusIcon"), icon("arrow.down.right.and.arrow.up.left")},
        {QStringLiteral("focusTip"), tr("Fill the window with just the cameras. (F, Esc to go back)")},
        {QStringLiteral("verifiedLabel"), tr("Verified copy")},
        {QStringLiteral("verifiedTip"),
         tr("This copy was checked byte-for-byte against your drive when it was archived. Tap for the technical "
            "detail.")},
        {QStringLiteral("verifiedTitle"), tr("Faithful Copy")},
        {QStringLiteral("verifiedText"),
         tr("Every file below was copied and its checksum (SHA-256) was compared to the original on your drive at the "
            "time — a faithful, unaltered copy. This is a technical integrity check, not a legal certification.")},
    };
}

void EventPlayerPresenter::chooseRate(double rate)
{
    if (!controller_)
        return;
    controller_->setRate(float(rate));
    if (controller_->isPlaying())
        controller_->play();
}

void EventPlayerPresenter::keep()
{
    if (appState_ && event_)
        appState_->requestKeep({*event_});
}

void EventPlayerPresenter::dismiss()
{
    if (appState_ && event_)
        appState_->dismiss({*event_});
}

// A sheet opened while the data still loads learns what it found; one
// that is already making its movie keeps what it started with.
void EventPlayerPresenter::tellExportFlowAboutDrivingData()
{
    if (!exportFlow_ || exportFlow_->isExporting())
        return;
    exportFlow_->setDrivingData(drivingData_->isLoading() ? ExportFlow::DrivingData::unknown
                                : drivingData_->hasData() ? ExportFlow::DrivingData::present
                                                          : ExportFlow::DrivingData::absent);
}

ExportFlow *EventPlayerPresenter::newExportFlow()
{
    if (!appState_ || !event_)
        return nullptr;
    if (exportFlow_) {
        exportFlow_->stop();
        exportFlow_->deleteLater();
    }
    exportFlow_ = new ExportFlow(appState_->engine(), *event_, this);
    // The desktop hears of a long export that ended behind other windows.
    connect(exportFlow_, &ExportFlow::exportFinished, this, [this, flow = QPointer<ExportFlow>(exportFlow_)] {
        if (!flow || !appState_)
            return;
        if (flow->exportedPath())
            appState_->noteExportEnded(flow->lastRunSeconds(), tr("Export finished"),
                                       //: %1 is the file's name
                                       tr("%1 is ready.").arg(QFileInfo(*flow->exportedPath()).fileName()));
        else if (flow->errorMessage())
            appState_->noteExportEnded(flow->lastRunSeconds(), tr("Export didn't finish"), *flow->errorMessage());
    });
    exportFlow_->setDriveRoot(appState_->driveRootURL());
    exportFlow_->setVaultURL(appState_->vaultURL());
    // The player's timeline, once its tiles have told how long it is.
    if (controller_ && !controller_->isLoadingTiles() && !controller_->tiles().empty())
        exportFlow_->setTimelineLength(controller_->duration());
    tellExportFlowAboutDrivingData();
    return exportFlow_;
}
