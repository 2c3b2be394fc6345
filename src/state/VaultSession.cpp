#include "state/VaultSession.h"

#include "base/AsyncRun.h"
#include "base/EnginePools.h"
#include "base/LogCategories.h"
#include "state/ChangeSignal.h"
#include "state/OnMainThread.h"

#include <QTimer>
#include <algorithm>
#include <qcoro/qcorofuture.h>

VaultSession::VaultSession(VaultAccess &vault, BookmarkAccess &bookmarks, SettingsAccess &settings, QObject *parent)
    : QObject(parent), engine_(vault), bookmarks_(bookmarks), settings_(settings)
{
    // The weekly check, for an app left open for days.
    weekly_ = new QTimer(this);
    weekly_->setInterval(std::chrono::hours(6));
    connect(weekly_, &QTimer::timeout, this, [this] { verifyIfDue(); });
    weekly_->start();
}

VaultSession::~VaultSession() { detachedLoads_.waitForFinished(); }

void VaultSession::open(const QString &url)
{
    accessedURL_ = url;
    Q_EMIT accessBegan();
    setAndSignal(this, vaultURL_, std::optional<QString>(url), &VaultSession::vaultURLChanged);
    try {
        bookmarks_.saveBookmark(url, BookmarkKey::vaultFolder);
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
    }
    // A check of the Vault before belongs to that Vault: it ends unheard.
    if (currentVerification_) {
        currentVerification_->request_stop();
        currentVerification_.reset();
        verificationProgress_.reset();
        Q_EMIT verificationProgressChanged();
        Q_EMIT verificationChanged();
    }
    struct Loaded {
        VaultIndex index;
        VerificationLog log;
    };
    auto loaded = onMainThread<Loaded>(QPointer<VaultSession>(this), [url](VaultSession &self, const Loaded &l) {
        if (self.vaultURL_ != url)
            return;
        self.setVaultIndex(l.index);
        self.setVerificationLog(l.log);
        Q_EMIT self.indexLoaded();
    });
    VaultAccess *engine = &engine_;
    detachedLoads_.addFuture(AsyncRun::onPool(EnginePools::quick(), [engine, url, loaded] {
        loaded(Loaded{engine->loadVaultIndex(url), engine->loadVerificationLog(url)});
    }));
    loadEvents();
}

void VaultSession::loadEvents()
{
    if (vaultURL_)
        eventsTask(QPointer<VaultSession>(this), *vaultURL_);
}

QCoro::Task<void> VaultSession::eventsTask(QPointer<VaultSession> self, QString vaultURL)
{
    std::vector<TeslaEvent> events;
    try {
        auto reading = self->engine_.scanVault(vaultURL);
        events = co_await reading;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        co_return;
    }
    if (self && self->vaultURL_ == vaultURL)
        self->setVaultEvents(std::move(events));
}

bool VaultSession::remove(const QString &eventID)
{
    if (!vaultURL_)
        return false;
    try {
        (void)engine_.removeFromVault(eventID, *vaultURL_);
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        return false;
    }
    // Every record of it: a part keep and a whole one may both stand.
    VaultIndex index = vaultIndex_;
    if (std::erase_if(index.events, [&](const ArchivedEvent &a) { return a.eventID == eventID; }) > 0)
        setVaultIndex(std::move(index));
    std::vector<TeslaEvent> events = vaultEvents_;
    std::erase_if(events, [&](const TeslaEvent &e) { return e.id() == eventID; });
    setVaultEvents(std::move(events));
    return true;
}

void VaultSession::recordKept(const std::vector<ArchivedEvent> &records)
{
    VaultIndex index = vaultIndex_;
    index.events.insert(index.events.end(), records.begin(), records.end());
    setVaultIndex(std::move(index));
}

void VaultSession::verify(const QStringList &eventIDs)
{
    if (!vaultURL_)
        return;
    if (currentVerification_) {
        // The weekly check already on its way becomes the one asked for.
        if (!verificationShown_) {
            verificationShown_ = true;
            Q_EMIT verificationChanged();
        }
        return;
    }
    startVerification(eventIDs, true);
}

void VaultSession::cancelVerification()
{
    if (currentVerification_)
        currentVerification_->request_stop();
}

bool VaultSession::verifyIfDue()
{
    if (!vaultURL_ || currentVerification_ || keepRunning_ || vaultIndex_.events.empty())
        return false;
    if (!settings_.flag(verifyWeeklyKey, true))
        return false;
    // A Vault never checked counts from its first keep.
    Date last = vaultIndex_.events.front().archivedAt;
    for (const ArchivedEvent &a : vaultIndex_.events)
        last = std::min(last, a.archivedAt);
    if (verificationLog_.wholeVaultCheckedAt)
        last = *verificationLog_.wholeVaultCheckedAt;
    if (Date::now().timeIntervalSince(last) < verifyEverySeconds)
        return false;
    startVerification({}, false);
    return true;
}

void VaultSession::startVerification(const QStringList &eventIDs, bool shown)
{
    verificationShown_ = shown;
    auto task = std::make_shared<std::stop_source>();
    currentVerification_ = task;
    if (shown)
        Q_EMIT verificationChanged();
    verifyTask(QPointer<VaultSession>(this), *vaultURL_, eventIDs, task);
}

QCoro::Task<void> VaultSession::verifyTask(QPointer<VaultSession> self, QString vaultURL, QStringList eventIDs,
                                           std::shared_ptr<std::stop_source> task)
{
    auto progress =
        onMainThread<VaultVerifier::Progress>(self, [task](VaultSession &session, const VaultVerifier::Progress &p) {
            if (session.currentVerification_ != task || !session.verificationShown_)
                return;
            session.verificationProgress_ = p;
            Q_EMIT session.verificationProgressChanged();
        });
    VaultVerifier::Result result;
    bool read = true;
    try {
        auto verifying = self->engine_.verifyVault(vaultURL, eventIDs, progress, task->get_token());
        result = co_await verifying;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        read = false;
    }
    if (!self || self->currentVerification_ != task)
        co_return;
    self->currentVerification_.reset();
    self->verificationProgress_.reset();
    if (read && self->vaultURL_ == vaultURL) {
        VerificationLog log = self->verificationLog_;
        log.record(result.events);
        if (result.vaultCheckedAt)
            log.wholeVaultCheckedAt = result.vaultCheckedAt;
        self->setVerificationLog(std::move(log));
    }
    Q_EMIT self->verificationProgressChanged();
    Q_EMIT self->verificationChanged();
}

void VaultSession::setVaultIndex(VaultIndex v)
{
    setAndSignal(this, vaultIndex_, std::move(v), &VaultSession::vaultIndexChanged);
}
void VaultSession::setVaultEvents(std::vector<TeslaEvent> v)
{
    setAndSignal(this, vaultEvents_, std::move(v), &VaultSession::vaultEventsChanged);
}
void VaultSession::setVerificationLog(VerificationLog v)
{
    setAndSignal(this, verificationLog_, std::move(v), &VaultSession::verificationLogChanged);
}
