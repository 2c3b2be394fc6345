#include "VaultViewModel.h"

#include "FileChooser.h"
#include "InboxPresenter.h"
#include "SymbolIcons.h"
#include "VaultMarks.h"
#include "base/Awaiting.h"
#include "drive/DriveBoundary.h"
#include "base/AsyncRun.h"
#include "base/EnginePools.h"
#include "model/PlatformWords.h"
#include "state/AppState.h"

#include <QDir>
#include <QStorageInfo>
#include <QUrl>

namespace {
QString icon(const char *symbol) { return SymbolIcons::iconUrl(QString::fromLatin1(symbol)); }
} // namespace

VaultViewModel::VaultViewModel(AppState *state, QObject *parent)
    : QObject(parent), state_(state), rows_(new EventListModel(state, EventListModel::Source::vault, this))
{
    refreshFreeSpace();
    connect(state, &AppState::vaultEventsChanged, this, [this] {
        refreshFreeSpace();
        Q_EMIT eventsChanged();
        Q_EMIT summaryChanged();
    });
    connect(state, &AppState::vaultURLChanged, this, [this] {
        refreshFreeSpace();
        Q_EMIT emptyStateChanged();
        Q_EMIT summaryChanged();
    });
    connect(state, &AppState::archiveProgressChanged, this, &VaultViewModel::progressChanged);
    connect(state, &AppState::isArchivePausedChanged, this, [this] {
        otherDriveSeen_ = false;
        Q_EMIT progressChanged();
    });
    connect(state, &AppState::keepDriveChecked, this, [this](const QString &, bool same) {
        otherDriveSeen_ = !same;
        Q_EMIT progressChanged();
    });
    connect(state, &AppState::lastArchiveReportChanged, this, &VaultViewModel::reportChanged);
    connect(state, &AppState::shownDriveChanged, this, &VaultViewModel::autoKeepChanged);
    connect(state, &AppState::autoKeepOfferChanged, this, &VaultViewModel::autoKeepChanged);
    connect(&state->autoKeep(), &AutoKeep::changed, this, &VaultViewModel::autoKeepChanged);
    const auto marks = [this] {
        ++marksRevision_;
        Q_EMIT marksChanged();
    };
    connect(state, &AppState::vaultIndexChanged, this, marks);
    connect(state, &AppState::verificationLogChanged, this, marks);
    connect(state, &AppState::vaultEventsChanged, this, marks);
    connect(state, &AppState::verificationChanged, this, &VaultViewModel::verificationChanged);
    connect(state, &AppState::verificationProgressChanged, this, &VaultViewModel::verificationChanged);
    // A keep with no Vault yet: the first choice of one, with its own words.
    connect(state, &AppState::vaultFolderWanted, this, [this] { askForFolder(true); });
}

QVariantMap VaultViewModel::texts() const
{
    return {
        //: Title of the Vault's list
        {QStringLiteral("title"), tr("Vault")},
        //: Title of the folder dialog that picks the Vault's folder
        {QStringLiteral("pickerTitle"), tr("Choose Your Vault Folder")},
        {QStringLiteral("pickerMessage"),
         tr("Pick (or create) a folder where Keelhold will keep permanent copies of the footage you decide to keep.")},
        //: Accept button of the folder dialog that picks the Vault's folder
        {QStringLiteral("pickerPrompt"), tr("Use This Folder")},
        {QStringLiteral("changeFolder"), tr("Change Vault Folder")},
        {QStringLiteral("changeFolderIcon"), icon("folder.badge.gearshape")},
        {QStringLiteral("changeFolderTip"), tr("Point Keelhold at a different folder or drive for your permanent archive.")},
        {QStringLiteral("summaryIcon"), icon("internaldrive")},
        {QStringLiteral("summaryTip"),
         tr("How much space your kept footage uses, and how much room the Vault's disk has left.")},
        //: Menu item of a kept event
        {QStringLiteral("moveToTrashItem"), tr("Move to Trash…")},
        {QStringLiteral("removalTitle"), tr("Move this event to the Trash?")},
        //: Button that confirms moving the kept event to the Trash
        {QStringLiteral("moveToTrash"), tr("Move to Trash")},
        {QStringLiteral("cancel"), tr("Cancel")},
        {QStringLiteral("refusalTitle"), tr("Choose a Different Folder")},
        {QStringLiteral("chooseAnother"), tr("Choose Another Folder…")},
        {QStringLiteral("overlayIcon"), icon("checkmark.shield")},
        {QStringLiteral("overlayTitle"), tr("Keeping footage safe…")},
        {QStringLiteral("overlayCancelTip"),
         tr("Stops after the current file. Anything already copied and verified stays in your Vault — nothing is "
            "undone.")},
        //: Button that closes the keep's report
        {QStringLiteral("done"), tr("Done")},
        {QStringLiteral("verifyVault"), tr("Verify Vault")},
        {QStringLiteral("verifyVaultIcon"), icon("arrow.triangle.2.circlepath")},
        {QStringLiteral("verifyVaultTip"),
         tr("Read every kept file again and compare it with the checksum taken when it was kept.")},
        {QStringLiteral("verifyItem"), tr("Verify")},
        {QStringLiteral("noticeIcon"), icon("exclamationmark.triangle")},
    };
}

bool VaultViewModel::isEmpty() const { return !state_ || state_->vaultEvents().empty(); }

QVariantMap VaultViewModel::emptyStateFor(bool hasVaultFolder)
{
    if (!hasVaultFolder)
        return {{QStringLiteral("symbolName"), QStringLiteral("lock.shield")},
                {QStringLiteral("title"), tr("Choose a Vault Folder")},
                {QStringLiteral("message"),
                 //: %1 is the user's machine, e.g. "computer"
                 tr("Your Vault is a folder on this %1 (or an external drive you keep) where Keelhold keeps permanent, "
                    "verified copies of the footage you choose to keep — safe even if your car's drive fails, fills "
                    "up, or gets wiped.")
                     .arg(PlatformWords::computer())},
                {QStringLiteral("actionTitle"), tr("Choose Folder…")}};
    return {{QStringLiteral("symbolName"), QStringLiteral("tray")},
            {QStringLiteral("title"), tr("Your Vault is empty so far")},
            {QStringLiteral("message"),
             //: "Drive" and "Keep" are the app's own tab and button; translate them as there
             tr("Nothing has been kept yet. From the Drive tab, select an event and choose \"Keep\" to copy it here "
                "permanently.")},
            // Not a dead end: the folder can be changed from here too.
            {QStringLiteral("actionTitle"), tr("Change Vault Folder")}};
}

QVariantMap VaultViewModel::emptyState() const { return emptyStateFor(state_ && state_->vaultURL()); }

QString VaultViewModel::summaryFor(const std::vector<TeslaEvent> &events, std::optional<qint64> freeBytes)
{
    qint64 bytes = 0;
    for (const TeslaEvent &e : events)
        bytes += e.totalBytes();
    const int count = int(events.size());
    if (freeBytes)
        //: The Vault's summary: how many kept events, their size, and the room left on the Vault's disk
        return tr("%n events · %1 · %2 free on this disk", nullptr, count)
            .arg(InboxPresenter::byteCount(bytes), InboxPresenter::byteCount(*freeBytes));
    //: The Vault's summary: how many kept events and their size
    return tr("%n events · %1", nullptr, count).arg(InboxPresenter::byteCount(bytes));
}

QString VaultViewModel::summary() const { return state_ ? summaryFor(state_->vaultEvents(), freeBytes_) : QString(); }

std::optional<qint64> VaultViewModel::freeBytesAt(const QString &folder)
{
    if (folder.isEmpty())
        return std::nullopt;
    QStorageInfo info(folder);
    if (!info.isValid() || !info.isReady() || info.bytesAvailable() < 0)
        return std::nullopt;
    return info.bytesAvailable();
}

void VaultViewModel::refreshFreeSpace()
{
    freeBytes_ = state_ && state_->vaultURL() ? freeBytesAt(*state_->vaultURL()) : std::nullopt;
}

bool VaultViewModel::showsProgress() const { return state_ && state_->archiveProgress().has_value(); }

double VaultViewModel::progressFraction() const
{
    if (!showsProgress())
        return 0;
    const ArchiveProgress &p = *state_->archiveProgress();
    return p.totalBytes > 0 ? std::clamp(double(p.bytesCopied) / double(p.totalBytes), 0.0, 1.0) : 0.0;
}

QString VaultViewModel::progressLineFor(const ArchiveProgress &p, bool paused, bool otherDriveSeen)
{
    //: A keep's progress: events done of all it keeps
    const QString counts = tr("%1 of %n events", nullptr, p.totalEvents).arg(p.eventsCompleted);
    if (!paused)
        return counts;
    return otherDriveSeen ? tr("Paused at %1 — that is a different drive; plug in the one this keep was reading").arg(counts)
                          : tr("Paused at %1 — plug the drive back in to go on").arg(counts);
}

QString VaultViewModel::progressLine() const
{
    return showsProgress() ? progressLineFor(*state_->archiveProgress(), state_->isArchivePaused(), otherDriveSeen_)
                           : QString();
}

QVariantMap VaultViewModel::reportFor(const ArchiveReport &r)
{
    QVariantList lines;
    for (const QVariant &v : VaultMarks::reportLines(r)) {
        const QVariantMap line = v.toMap();
        lines.append(QVariantMap{{QStringLiteral("icon"), SymbolIcons::iconUrl(line.value(QStringLiteral("symbol")).toString())},
                                 {QStringLiteral("text"), line.value(QStringLiteral("text"))}});
    }
    return {{QStringLiteral("heading"), VaultMarks::reportHeading(r)},
            {QStringLiteral("headingIcon"), SymbolIcons::iconUrl(VaultMarks::reportHeadingSymbol(r))},
            {QStringLiteral("lines"), lines}};
}

QVariantMap VaultViewModel::report() const
{
    return state_ && state_->lastArchiveReport() ? reportFor(*state_->lastArchiveReport()) : QVariantMap();
}

QVariantMap VaultViewModel::verificationFor(const ArchivedEvent &newest, const EventCheck *check)
{
    QVariantMap m = VaultMarks::mark(newest, check);
    m.insert(QStringLiteral("badgeIcon"), SymbolIcons::iconUrl(m.value(QStringLiteral("badgeSymbol")).toString()));
    return m;
}

QVariantMap VaultViewModel::verification(const QString &eventID) const
{
    if (state_)
        if (const ArchivedEvent *newest = state_->vaultIndex().newestRecord(eventID))
            return verificationFor(*newest, state_->verificationLog().find(eventID));
    return {{QStringLiteral("present"), false}};
}

QVariantMap VaultViewModel::notice() const
{
    if (!state_)
        return {{QStringLiteral("present"), false}};
    return VaultMarks::notice(state_->vaultEvents(), state_->vaultIndex(), state_->verificationLog());
}

bool VaultViewModel::isVerifying() const { return state_ && state_->isVerifyingVault(); }

double VaultViewModel::verifyFraction() const
{
    if (!isVerifying() || !state_->verificationProgress())
        return 0;
    const VaultVerifier::Progress &p = *state_->verificationProgress();
    return p.totalBytes > 0 ? std::clamp(double(p.bytesDone) / double(p.totalBytes), 0.0, 1.0) : 0.0;
}

QString VaultViewModel::verifyLine() const
{
    if (!isVerifying())
        return {};
    const std::optional<VaultVerifier::Progress> &p = state_->verificationProgress();
    if (!p)
        return tr("Reading your kept footage again…");
    return p->totalEvents == 1 ? tr("Reading 1 kept event again…")
                               : tr("Reading kept events again: %1 of %2 done").arg(p->eventsDone).arg(p->totalEvents);
}

void VaultViewModel::verifyAll()
{
    if (state_)
        state_->verifyVault();
}

void VaultViewModel::verifyEvent(const QString &eventID)
{
    if (state_)
        state_->verifyVault({eventID});
}

void VaultViewModel::cancelVerification()
{
    if (state_)
        state_->cancelVerification();
}

QString VaultViewModel::removalMessageFor(const TeslaEvent &event)
{
    //: %1 is the event's day and time ("Mon 2:11 AM"), %2 the user's machine, e.g. "computer"
    return tr("%1 will move to your %2's Trash, where you can still recover it. Nothing on your Tesla drive is touched.")
        .arg(InboxPresenter::rowTimestamp(event), PlatformWords::computer());
}

QString VaultViewModel::removalMessage(const QString &eventID) const
{
    if (state_)
        for (const TeslaEvent &e : state_->vaultEvents())
            if (e.id() == eventID)
                return removalMessageFor(e);
    return {};
}

void VaultViewModel::chooseFolder(const QVariant &url)
{
    if (!state_)
        return;
    const QUrl u = url.toUrl();
    const QString path = u.isLocalFile() ? u.toLocalFile() : url.toString();
    if (path.isEmpty())
        return;
    dismissChoiceRefusal();
    const std::optional<QString> drive = state_->driveRootURL();
    if (!drive) {
        state_->setVaultURL(path);
        return;
    }
    // Resolving the folder asks the disks, and the car's may not answer.
    const QFuture<std::optional<bool>> check = AsyncRun::onPool(EnginePools::quick(), [root = *drive, path] {
        return DriveBoundary::writesInto(root, path);
    });
    Awaiting::whenFinished(this, check, [this, path](QFuture<std::optional<bool>> done) {
        if (Awaiting::take(done).value_or(std::nullopt).value_or(false)) {
            choiceRefusal_ = DriveBoundary::vaultRefusalText();
            Q_EMIT choiceRefusalChanged();
        } else if (state_) {
            state_->setVaultURL(path);
        }
    });
}

void VaultViewModel::declineChoice()
{
    dismissChoiceRefusal();
    if (state_)
        state_->declineVaultFolder();
}

void VaultViewModel::dismissChoiceRefusal()
{
    if (choiceRefusal_.isEmpty())
        return;
    choiceRefusal_.clear();
    Q_EMIT choiceRefusalChanged();
}

void VaultViewModel::presentFolderPicker() { askForFolder(false); }

void VaultViewModel::askForFolder(bool forKeep)
{
    const QVariantMap t = texts();
    FileChooser::Request request;
    request.mode = FileChooser::Mode::folder;
    request.title = t.value(QStringLiteral("pickerTitle")).toString();
    request.message = t.value(QStringLiteral("pickerMessage")).toString();
    request.acceptLabel = t.value(QStringLiteral("pickerPrompt")).toString();
    request.startFolder = state_ && state_->vaultURL() ? *state_->vaultURL() : QDir::homePath();
    QPointer<VaultViewModel> self(this);
    FileChooser::open(request, [self, forKeep](std::optional<QString> chosen) {
        if (!self)
            return;
        if (chosen)
            self->chooseFolder(*chosen);
        else if (forKeep && self->state_)
            self->state_->declineVaultFolder();
    });
}

void VaultViewModel::remove(const QString &eventID)
{
    if (state_)
        state_->removeFromVault(eventID);
}

void VaultViewModel::cancelArchive()
{
    if (state_)
        state_->cancelCurrentArchiveTask();
}

QVariantMap VaultViewModel::autoKeep() const
{
    const std::optional<DriveIdentity> &offer = state_->autoKeepOffer();
    const std::optional<DriveIdentity> &shown = state_->shownDrive();
    const std::optional<DriveIdentity> &drive = offer ? offer : shown;
    AutoKeep &choice = state_->autoKeep();
    const QString name = drive && !drive->name.isEmpty() ? drive->name : tr("This drive");
    return {
        {QStringLiteral("present"), bool(shown) && state_->vaultURL().has_value()},
        {QStringLiteral("offer"), bool(offer)},
        {QStringLiteral("on"), drive && choice.isOn(*drive)},
        {QStringLiteral("recent"), drive && choice.withRecent(*drive)},
        {QStringLiteral("label"), tr("Keep new events automatically when this drive is connected")},
        //: Ticked with the choice above: recent driving is kept as well
        {QStringLiteral("recentLabel"), tr("Recent driving too")},
        //: %1 is the drive's name
        {QStringLiteral("driveLine"), tr("%1 — Sentry and saved events, each file checked, as soon as it is "
                                         "connected while Keelhold is open.").arg(name)},
    };
}

void VaultViewModel::setAutoKeep(bool on, bool recent)
{
    if (const std::optional<DriveIdentity> &drive = state_->shownDrive())
        state_->autoKeep().set(*drive, on, recent);
}

void VaultViewModel::answerAutoKeepOffer(bool on, bool recent)
{
    state_->answerAutoKeepOffer(on, recent);
}
