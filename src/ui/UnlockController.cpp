#include "UnlockController.h"

#include "SymbolIcons.h"
#include "base/AsyncRun.h"
#include "base/EnginePools.h"
#include "crypt/KeyStore.h"
#include "model/TeslaViewer.h"
#include "state/AppState.h"
#include "unlock/KeyServiceClient.h"
#include "unlock/Unlocker.h"

#include <QDesktopServices>
#include <QDir>
#include <qcoro/qcorofuture.h>

UnlockController::UnlockController(AppState *state, QObject *parent)
    : QObject(parent), state_(state), batchURL_(KeyService::batchURL()), answerLimit_(KeyService::answerLimit)
{
    connect(&token_, &TokenHolder::changed, this, &UnlockController::signInChanged);
    connect(state, &AppState::keyCoverageChanged, this, &UnlockController::noticeChanged);
    connect(state, &AppState::driveScanChanged, this, &UnlockController::noticeChanged);
}

void UnlockController::setService(QUrl batchURL, std::chrono::milliseconds answerLimit)
{
    batchURL_ = std::move(batchURL);
    answerLimit_ = answerLimit;
}

void UnlockController::setShowSheet(bool v)
{
    if (showSheet_ == v)
        return;
    showSheet_ = v;
    Q_EMIT showSheetChanged();
}

void UnlockController::setBusy(bool v)
{
    if (busy_ == v)
        return;
    busy_ = v;
    Q_EMIT busyChanged();
}

void UnlockController::setResult(QStringList messages, QString summary, bool signInAgain)
{
    messages_ = std::move(messages);
    summary_ = std::move(summary);
    offersSignInAgain_ = signInAgain;
    Q_EMIT resultChanged();
}

QVariantMap UnlockController::texts() const
{
    return {
        {QStringLiteral("title"), tr("Unlock Encrypted Footage")},
        {QStringLiteral("icon"), SymbolIcons::iconUrl(QStringLiteral("key"))},
        {QStringLiteral("intro"),
         tr("Your car encrypted this footage so that only your Tesla account can watch it. To play it here, Keelhold "
            "asks Tesla's service for each clip's key, and Tesla first checks that your account owns the car.")},
        {QStringLiteral("whatIsSent"),
         tr("What is sent: each clip's key id and the locked key the car wrote into it, and your car's VIN. Never "
            "any video: the footage stays on this computer.")},
        {QStringLiteral("afterwards"),
         tr("The keys are kept on this computer and beside the events in your Vault, so unlocked footage plays "
            "offline from then on.")},
        {QStringLiteral("tokenHeading"), tr("Your Tesla sign-in")},
        {QStringLiteral("browserSignIn"), tr("Sign In with Your Browser…")},
        {QStringLiteral("browserSignInDetail"),
         tr("Opens Tesla's sign-in page in your browser. When you have signed in, copy the address the browser "
            "shows and paste it here. This sign-in can be renewed for months without signing in again.")},
        {QStringLiteral("landedPlaceholder"), tr("Paste the address your browser landed on")},
        {QStringLiteral("continue"), tr("Continue")},
        {QStringLiteral("orToken"), tr("Or copy the viewer's sign-in token:")},
        {QStringLiteral("tokenPlaceholder"), tr("Paste your sign-in token")},
        {QStringLiteral("remember"), tr("Remember on this computer")},
        {QStringLiteral("rememberTip"),
         tr("Kept in your desktop's secret store (its keyring), never in a plain file. Without it, the sign-in is "
            "forgotten when Keelhold quits.")},
        //: Button that asks Tesla for the keys with the pasted sign-in token
        {QStringLiteral("unlock"), tr("Unlock")},
        {QStringLiteral("openViewer"), tr("Open Tesla's Viewer")},
        {QStringLiteral("viewerURL"), TeslaViewer::url()},
        {QStringLiteral("forget"), tr("Forget my sign-in")},
        {QStringLiteral("signInAgain"), tr("Sign in again…")},
        {QStringLiteral("close"), tr("Close")},
        {QStringLiteral("busy"), tr("Asking Tesla for the keys…")},
        {QStringLiteral("signedIn"), tr("You're signed in for as long as Keelhold runs.")},
        {QStringLiteral("remembered"), tr("You're signed in, and your sign-in is remembered on this computer.")},
        {QStringLiteral("noticeTitle"), tr("Some footage is encrypted by your car")},
        {QStringLiteral("noticeIcon"), SymbolIcons::iconUrl(QStringLiteral("lock.fill"))},
        {QStringLiteral("noticeUnlock"), tr("Unlock…")},
        {QStringLiteral("noticeGuide"), tr("Turn encryption off for future recordings…")},
        {QStringLiteral("unlockEncrypted"), tr("Unlock Encrypted Footage…")},
    };
}

QVariantList UnlockController::tokenSteps() const
{
    const QStringList steps{
        tr("Open Tesla's dashcam viewer (%1) in your browser and sign in with your Tesla account.").arg(TeslaViewer::host()),
        //: "Network" is the tab's name in the browser's developer tools
        tr("Open the browser's developer tools (F12) and choose the Network tab."),
        //: "batch" is the request's name as the browser lists it; keep it as it is
        tr("Play any clip in the viewer, then pick the request named “batch” in the list."),
        //: "Request Headers" is a heading in the browser's developer tools; "Authorization: Bearer" stays as it is
        tr("Under Request Headers, copy the text after “Authorization: Bearer”."),
        tr("Paste it below. It works for about eight hours; sign in again after that."),
    };
    QVariantList out;
    for (const QString &s : steps)
        out.append(s);
    return out;
}

bool UnlockController::showsNotice() const
{
    return state_ && state_->lockedEventCount() > 0;
}

QString UnlockController::noticeText() const
{
    const int n = state_ ? state_->lockedEventCount() : 0;
    const QString lead = tr("%n events here were recorded with your car's encryption on.", nullptr, n);
    return lead + QLatin1Char(' ')
        + tr("Keelhold lists and keeps them like any other; to watch them here, unlock them with your Tesla account.");
}

void UnlockController::openFor(const QStringList &eventIDs)
{
    // The secret store is asked only now: a session that never unlocks never touches it.
    if (!token_.hasToken() && !askedStore_) {
        askedStore_ = true;
        loadRemembered();
    }
    pending_ = eventIDs;
    if (pending_.isEmpty() && state_ && state_->driveScan()) {
        for (const TeslaEvent &e : state_->driveScan()->events)
            if (e.encrypted && state_->lockState(e.id()) == QLatin1String("locked"))
                pending_.append(e.id());
    }
    setResult({}, {}, false);
    showSheet_ = false; // the count changed: say so even when it stays open
    setShowSheet(true);
}

void UnlockController::unlock(const QString &pastedToken, bool remember)
{
    if (busy_)
        return;
    unlockTask(QPointer<UnlockController>(this), TokenHolder::cleaned(pastedToken.toUtf8()), QString(), remember);
}

void UnlockController::beginBrowserSignIn()
{
    attempt_ = SignInLink::begin();
    Q_EMIT signInChanged();
    QDesktopServices::openUrl(attempt_->address);
}

void UnlockController::finishBrowserSignIn(const QString &landedAddress, bool remember)
{
    if (busy_ || !attempt_)
        return;
    unlockTask(QPointer<UnlockController>(this), QByteArray(), landedAddress, remember);
}

QCoro::Task<void> UnlockController::unlockTask(QPointer<UnlockController> self, QByteArray pasted, QString landed,
                                               bool remember)
{
    self->setBusy(true);
    self->setResult({}, {}, false);
    bool newSignIn = false;
    if (!landed.isEmpty()) {
        QString error;
        const std::optional<QByteArray> code = SignInLink::codeFrom(landed, *self->attempt_, &error);
        SignInLink::Tokens tokens;
        if (code) {
            QCoro::Task<SignInLink::Tokens> exchanging = SignInLink::exchange(self->network_, *self->attempt_, *code);
            tokens = co_await exchanging;
        }
        if (!self)
            co_return;
        if (!code || tokens.access.isEmpty()) {
            self->setResult({code ? tokens.error : error}, {}, false);
            self->setBusy(false);
            co_return;
        }
        self->attempt_.reset();
        self->token_.setTokens(tokens.access, tokens.refresh);
        newSignIn = true;
    } else if (!pasted.isEmpty()) {
        KeyServiceClient client(self->network_, self->batchURL_, self->answerLimit_);
        QCoro::Task<KeyService::Outcome> checking = client.check(pasted);
        const KeyService::Outcome checked = co_await checking;
        if (!self)
            co_return;
        if (checked != KeyService::Outcome::key) {
            self->setResult({KeyService::sentence(checked)}, {}, KeyService::asksForSignIn(checked));
            self->setBusy(false);
            co_return;
        }
        self->token_.setToken(pasted);
        newSignIn = true;
    }
    if (newSignIn) {
        self->rememberNote_.clear();
        self->token_.setRemembered(false);
        if (remember) {
            QCoro::Task<TokenHolder::StoreResult> storing = TokenHolder::store(self->token_.secretToStore());
            const TokenHolder::StoreResult stored = co_await storing;
            if (!self)
                co_return;
            self->token_.setRemembered(stored.ok);
            self->rememberNote_ = stored.sentence;
        }
        Q_EMIT self->signInChanged();
    }

    // A lapsed access token with a refresh token beside it: renew once, and ask again.
    QCoro::Task<bool> fetching = fetchKeys(self);
    const bool lapsed = co_await fetching;
    if (lapsed && self && !self->token_.refreshToken().isEmpty()) {
        QCoro::Task<SignInLink::Tokens> renewing = SignInLink::refresh(self->network_, self->token_.refreshToken());
        const SignInLink::Tokens renewed = co_await renewing;
        if (!self)
            co_return;
        if (!renewed.access.isEmpty()) {
            self->token_.setTokens(renewed.access, renewed.refresh);
            if (self->token_.isRemembered()) {
                // The remembered sign-in was spent by the renewal: say so if its successor can't be kept.
                QCoro::Task<TokenHolder::StoreResult> storing = TokenHolder::store(self->token_.secretToStore());
                const TokenHolder::StoreResult stored = co_await storing;
                if (self && !stored.ok) {
                    self->token_.setRemembered(false);
                    self->rememberNote_ = stored.sentence;
                    Q_EMIT self->signInChanged();
                }
            }
            if (self) {
                QCoro::Task<bool> again = fetchKeys(self);
                co_await again;
            }
        }
    }
    if (!self)
        co_return;
    self->setBusy(false);
    if (self->state_)
        self->state_->refreshKeyCoverage();
}

QCoro::Task<bool> UnlockController::fetchKeys(QPointer<UnlockController> self)
{
    if (!self || !self->state_)
        co_return false;
    std::vector<QString> paths;
    const std::vector<TeslaEvent> events = self->state_->eventsWithIDs(self->pending_);
    for (const TeslaEvent &e : events)
        for (const ClipRef &clip : e.clips)
            if (clip.health == ClipHealth::encrypted)
                paths.push_back(clip.url);
    const QString vaultURL = self->state_->vaultURL().value_or(QString());
    Unlocker unlocker(self->network_, self->batchURL_, self->answerLimit_);
    QCoro::Task<std::vector<Unlocker::FileOutcome>> unlocking = unlocker.unlock(paths, self->token_.token(), vaultURL);
    const std::vector<Unlocker::FileOutcome> outcomes = co_await unlocking;
    if (!self)
        co_return false;

    // A drive event kept before its keys came: they go beside the Vault's copy too.
    if (self->state_ && !vaultURL.isEmpty()) {
        std::vector<std::pair<QString, std::vector<QString>>> besides;
        for (const TeslaEvent &e : events) {
            for (const ArchivedEvent &kept : self->state_->vaultIndex().events) {
                if (kept.eventID != e.id() || !kept.encrypted)
                    continue;
                const QString folder = QDir(vaultURL).filePath(kept.relativePath);
                std::vector<QString> copies;
                for (const ArchivedFile &f : kept.files)
                    copies.push_back(QDir(folder).filePath(f.name));
                besides.emplace_back(folder, std::move(copies));
            }
        }
        if (!besides.empty()) {
            QFuture<void> writing = AsyncRun::onPool(EnginePools::quick(), [besides] {
                for (const auto &[folder, copies] : besides)
                    KeyRing::storeBeside(folder, copies);
            });
            co_await writing;
        }
        if (!self)
            co_return false;
    }

    const int unlocked = Unlocker::unlockedCount(outcomes);
    const int total = int(outcomes.size());
    QString summary;
    if (total > 0)
        summary = unlocked == total ? tr("Unlocked %n clips.", nullptr, total)
                                    : tr("Unlocked %1 of %n clips.", nullptr, total).arg(unlocked);
    bool signInAgain = false;
    for (const auto &o : outcomes)
        signInAgain = signInAgain || o.outcome == KeyService::Outcome::signInExpired;
    self->setResult(Unlocker::sentences(outcomes), summary, signInAgain);
    co_return signInAgain;
}

void UnlockController::signInAgain()
{
    token_.clear();
    setResult({}, {}, false);
}

void UnlockController::forgetSignIn()
{
    forgetTask(QPointer<UnlockController>(this));
}

QCoro::Task<void> UnlockController::forgetTask(QPointer<UnlockController> self)
{
    const bool wasRemembered = self->token_.isRemembered();
    self->token_.clear();
    self->token_.setRemembered(false);
    QCoro::Task<TokenHolder::StoreResult> forgetting = TokenHolder::forgetStored();
    const TokenHolder::StoreResult result = co_await forgetting;
    if (!self)
        co_return;
    self->rememberNote_ = result.ok || !wasRemembered ? QString() : result.sentence;
    Q_EMIT self->signInChanged();
}

void UnlockController::loadRemembered()
{
    loadTask(QPointer<UnlockController>(this));
}

QCoro::Task<void> UnlockController::loadTask(QPointer<UnlockController> self)
{
    QCoro::Task<SignInLink::Tokens> restoring = SignInLink::restore(self->network_);
    const SignInLink::Tokens restored = co_await restoring;
    if (!self)
        co_return;
    self->storeAnswered_ = true;
    if (restored.access.isEmpty() || self->token_.hasToken())
        co_return;
    self->token_.setTokens(restored.access, restored.refresh);
    self->token_.setRemembered(restored.rememberNote.isEmpty());
    self->rememberNote_ = restored.rememberNote;
    Q_EMIT self->signInChanged();
}

void UnlockController::openViewer() const
{
    QDesktopServices::openUrl(QUrl(TeslaViewer::url()));
}
