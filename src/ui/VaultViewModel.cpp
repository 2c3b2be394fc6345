#include "VaultViewModel.h"

#include "FileChooser.h"
#include "InboxPresenter.h"
#include "SymbolIcons.h"
#include "base/Awaiting.h"
#include "drive/DriveBoundary.h"
#include "engine/AsyncRun.h"
#include "engine/EnginePools.h"
#include "model/PlatformWords.h"
#include "state/AppState.h"

#include <QDir>
#include <QStorageInfo>
#include <QUrl>

namespace {
QString icon(const char *symbol) { return SymbolIcons::iconUrl(QString::fromLatin1(symbol)); }
QString plural(int count, const char *word)
{
    return QString::number(count) + QLatin1Char(' ') + QString::fromLatin1(word)
        + (count == 1 ? QString() : QStringLiteral("s"));
}
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
    connect(state, &AppState::lastArchiveReportChanged, this, &VaultViewModel::reportChanged);
}

QVariantMap VaultViewModel::texts() const
{
    return {
        {QStringLiteral("title"), QStringLiteral("Vault")},
        {QStringLiteral("pickerTitle"), QStringLiteral("Choose Your Vault Folder")},
        {QStringLiteral("pickerMessage"),
         QStringLiteral("Pick (or create) a folder where Keelhold will keep permanent copies of the footage you decide "
                        "to keep.")},
        {QStringLiteral("pickerPrompt"), QStringLiteral("Use This Folder")},
        {QStringLiteral("changeFolder"), QStringLiteral("Change Vault Folder")},
        {QStringLiteral("changeFolderIcon"), icon("folder.badge.gearshape")},
        {QStringLiteral("changeFolderTip"),
         QStringLiteral("Point Keelhold at a different folder or drive for your permanent archive.")},
        {QStringLiteral("summaryIcon"), icon("internaldrive")},
        {QStringLiteral("summaryTip"),
         QStringLiteral("How much space your kept footage uses, and how much room the Vault's disk has left.")},
        {QStringLiteral("badgeIcon"), icon("checkmark.seal")},
        {QStringLiteral("badge"), QStringLiteral("Verified copy")},
        {QStringLiteral("badgeTip"),
         QStringLiteral("This copy was checked byte-for-byte against your drive when it was archived. Tap for the "
                        "technical detail.")},
        {QStringLiteral("popoverTitle"), QStringLiteral("Faithful Copy")},
        {QStringLiteral("popoverText"),
         QStringLiteral("Every file below was copied and its checksum (SHA-256) was compared to the original on your "
                        "drive at the time — a faithful, unaltered copy. This is a technical integrity check, not a "
                        "legal certification.")},
        {QStringLiteral("moveToTrashItem"), QStringLiteral("Move to Trash…")},
        {QStringLiteral("removalTitle"), QStringLiteral("Move this event to the Trash?")},
        {QStringLiteral("moveToTrash"), QStringLiteral("Move to Trash")},
        {QStringLiteral("cancel"), QStringLiteral("Cancel")},
        {QStringLiteral("refusalTitle"), QStringLiteral("Choose a Different Folder")},
        {QStringLiteral("chooseAnother"), QStringLiteral("Choose Another Folder…")},
        {QStringLiteral("overlayIcon"), icon("checkmark.shield")},
        {QStringLiteral("overlayTitle"), QStringLiteral("Keeping footage safe…")},
        {QStringLiteral("overlayCancelTip"),
         QStringLiteral("Stops after the current file. Anything already copied and verified stays in your Vault — "
                        "nothing is undone.")},
        {QStringLiteral("done"), QStringLiteral("Done")},
    };
}

bool VaultViewModel::isEmpty() const { return !state_ || state_->vaultEvents().empty(); }

QVariantMap VaultViewModel::emptyStateFor(bool hasVaultFolder)
{
    if (!hasVaultFolder)
        return {{QStringLiteral("symbolName"), QStringLiteral("lock.shield")},
                {QStringLiteral("title"), QStringLiteral("Choose a Vault Folder")},
                {QStringLiteral("message"),
                 QStringLiteral("Your Vault is a folder on this ") + PlatformWords::computer()
                     + QStringLiteral(" (or an external drive you keep) where Keelhold keeps permanent, verified "
                                      "copies of the footage you choose to keep — safe even if your car's drive "
                                      "fails, fills up, or gets wiped.")},
                {QStringLiteral("actionTitle"), QStringLiteral("Choose Folder…")}};
    return {{QStringLiteral("symbolName"), QStringLiteral("tray")},
            {QStringLiteral("title"), QStringLiteral("Your Vault is empty so far")},
            {QStringLiteral("message"),
             QStringLiteral("Nothing has been kept yet. From the Drive tab, select an event and choose \"Keep\" to "
                            "copy it here permanently.")},
            // Not a dead end: the folder can be changed from here too.
            {QStringLiteral("actionTitle"), QStringLiteral("Change Vault Folder")}};
}

QVariantMap VaultViewModel::emptyState() const { return emptyStateFor(state_ && state_->vaultURL()); }

QString VaultViewModel::summaryFor(const std::vector<TeslaEvent> &events, std::optional<qint64> freeBytes)
{
    qint64 bytes = 0;
    for (const TeslaEvent &e : events)
        bytes += e.totalBytes();
    QString text = plural(int(events.size()), "event") + QStringLiteral(" · ") + InboxPresenter::byteCount(bytes);
    if (freeBytes)
        text += QStringLiteral(" · ") + InboxPresenter::byteCount(*freeBytes) + QStringLiteral(" free on this disk");
    return text;
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

QString VaultViewModel::progressLineFor(const ArchiveProgress &p)
{
    return QString::number(p.eventsCompleted) + QStringLiteral(" of ") + QString::number(p.totalEvents)
        + QStringLiteral(" events");
}

QString VaultViewModel::progressLine() const
{
    return showsProgress() ? progressLineFor(*state_->archiveProgress()) : QString();
}

QVariantMap VaultViewModel::reportFor(const ArchiveReport &r)
{
    const QString headingIcon = icon(r.cancelled ? "pause.circle" : "checkmark.seal.fill");
    QVariantList lines;
    const int archived = int(r.archivedEvents.size());
    if (archived > 0)
        lines.append(QVariantMap{{QStringLiteral("icon"), headingIcon},
                                 {QStringLiteral("text"),
                                  plural(archived, "event")
                                      + QStringLiteral(" copied and verified, byte-for-byte. The original on your drive "
                                                       "is untouched.")}});
    if (r.skippedDuplicates > 0)
        lines.append(QVariantMap{{QStringLiteral("icon"), icon("doc.on.doc")},
                                 {QStringLiteral("text"), QString::number(r.skippedDuplicates)
                                      + QStringLiteral(" were already in your Vault, so we skipped them.")}});
    const int failed = int(r.failedFiles.size());
    if (failed > 0)
        lines.append(QVariantMap{{QStringLiteral("icon"), icon("exclamationmark.triangle")},
                                 {QStringLiteral("text"),
                                  plural(failed, "file")
                                      + QStringLiteral(" couldn't be read — your drive may be failing. Nothing was "
                                                       "deleted or changed; you can try again.")}});
    return {{QStringLiteral("heading"), r.cancelled ? QStringLiteral("Backup Stopped") : QStringLiteral("Backup Complete")},
            {QStringLiteral("headingIcon"), headingIcon},
            {QStringLiteral("lines"), lines}};
}

QVariantMap VaultViewModel::report() const
{
    return state_ && state_->lastArchiveReport() ? reportFor(*state_->lastArchiveReport()) : QVariantMap();
}

QVariantMap VaultViewModel::verificationFor(const ArchivedEvent &a)
{
    QVariantList files;
    for (const ArchivedFile &f : a.files)
        files.append(QVariantMap{{QStringLiteral("name"), f.name}, {QStringLiteral("sha256"), f.sha256}});
    return {{QStringLiteral("present"), true},
            {QStringLiteral("archivedLine"), QStringLiteral("Archived ")
                 + a.archivedAt.formatLocal(QStringLiteral("MMM d, yyyy 'at' h:mm AP")) + QStringLiteral(" from ")
                 + a.sourceVolume},
            {QStringLiteral("files"), files}};
}

QVariantMap VaultViewModel::verification(const QString &eventID) const
{
    if (state_)
        for (const ArchivedEvent &a : state_->vaultIndex().events)
            if (a.eventID == eventID)
                return verificationFor(a);
    return {{QStringLiteral("present"), false}};
}

QString VaultViewModel::removalMessageFor(const TeslaEvent &event)
{
    return InboxPresenter::rowTimestamp(event) + QStringLiteral(" will move to your ") + PlatformWords::computer()
        + QStringLiteral("'s Trash, where you can still recover it. Nothing on your Tesla drive is touched.");
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
            choiceRefusal_ = DriveBoundary::vaultRefusal;
            Q_EMIT choiceRefusalChanged();
        } else if (state_) {
            state_->setVaultURL(path);
        }
    });
}

void VaultViewModel::dismissChoiceRefusal()
{
    if (choiceRefusal_.isEmpty())
        return;
    choiceRefusal_.clear();
    Q_EMIT choiceRefusalChanged();
}

void VaultViewModel::presentFolderPicker()
{
    const QVariantMap t = texts();
    FileChooser::Request request;
    request.mode = FileChooser::Mode::folder;
    request.title = t.value(QStringLiteral("pickerTitle")).toString();
    request.message = t.value(QStringLiteral("pickerMessage")).toString();
    request.acceptLabel = t.value(QStringLiteral("pickerPrompt")).toString();
    request.startFolder = state_ && state_->vaultURL() ? *state_->vaultURL() : QDir::homePath();
    QPointer<VaultViewModel> self(this);
    FileChooser::open(request, [self](std::optional<QString> chosen) {
        if (self && chosen)
            self->chooseFolder(*chosen);
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
