#pragma once

#include "engine/BookmarkAccess.h"
#include "engine/SettingsAccess.h"
#include "engine/VaultAccess.h"
#include "model/ArchivedEvent.h"
#include "model/TeslaEvent.h"
#include "vault/VaultIndex.h"
#include "vault/VaultVerifier.h"
#include "vault/VerificationLog.h"

#include <QFutureSynchronizer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <qcoro/qcorotask.h>
#include <stop_token>
#include <vector>

class QTimer;

// The Vault folder the window shows: its index, its events, and the
// re-reading of its copies, asked for or weekly. Signals only on a real
// change.
class VaultSession : public QObject {
    Q_OBJECT
public:
    // Whether the Vault is re-read in the background once a week (on unless set off).
    static inline const QString verifyWeeklyKey = QStringLiteral("KHVerifyVaultWeekly");
    static constexpr double verifyEverySeconds = 7 * 24 * 3600;

    // The engine's parts must outlive the session.
    VaultSession(VaultAccess &vault, BookmarkAccess &bookmarks, SettingsAccess &settings, QObject *parent = nullptr);
    ~VaultSession() override;

    // Opens the folder and remembers it; indexLoaded follows.
    void open(const QString &url);
    void loadEvents();
    // Whether the event is gone from the folder and from here; false when
    // the folder couldn't be changed.
    bool remove(const QString &eventID);
    // What a keep wrote, counted at once.
    void recordKept(const std::vector<ArchivedEvent> &records);
    void endHeldAccess() { accessedURL_.reset(); }

    const std::optional<QString> &vaultURL() const { return vaultURL_; }
    const VaultIndex &vaultIndex() const { return vaultIndex_; }
    const std::vector<TeslaEvent> &vaultEvents() const { return vaultEvents_; }

    // One check at a time; one the user asked for shows its progress, the
    // weekly one runs unseen and only its findings show.
    void verify(const QStringList &eventIDs);
    void cancelVerification();
    // Starts the weekly check when it is due and allowed; answers whether it did.
    bool verifyIfDue();
    // No weekly check starts while a keep runs.
    void setKeepRunning(bool running) { keepRunning_ = running; }
    bool isVerifying() const { return currentVerification_ && verificationShown_; }
    const std::optional<VaultVerifier::Progress> &verificationProgress() const { return verificationProgress_; }
    const VerificationLog &verificationLog() const { return verificationLog_; }

Q_SIGNALS:
    void vaultURLChanged();
    void vaultIndexChanged();
    void vaultEventsChanged();
    void verificationChanged();
    void verificationProgressChanged();
    void verificationLogChanged();
    void accessBegan();
    // The index and log of the folder now open were read.
    void indexLoaded();

private:
    void startVerification(const QStringList &eventIDs, bool shown);
    static QCoro::Task<void> eventsTask(QPointer<VaultSession> self, QString vaultURL);
    static QCoro::Task<void> verifyTask(QPointer<VaultSession> self, QString vaultURL, QStringList eventIDs,
                                        std::shared_ptr<std::stop_source> task);
    void setVaultIndex(VaultIndex v);
    void setVaultEvents(std::vector<TeslaEvent> v);
    void setVerificationLog(VerificationLog v);

    VaultAccess &engine_;
    BookmarkAccess &bookmarks_;
    SettingsAccess &settings_;
    std::optional<QString> vaultURL_;
    std::optional<QString> accessedURL_;
    VaultIndex vaultIndex_;
    std::vector<TeslaEvent> vaultEvents_;
    bool keepRunning_ = false;
    std::shared_ptr<std::stop_source> currentVerification_;
    bool verificationShown_ = false;
    std::optional<VaultVerifier::Progress> verificationProgress_;
    VerificationLog verificationLog_;
    QTimer *weekly_ = nullptr;
    // The index loads read through the engine off this thread: the session
    // waits for them as it goes, so none outlives the engine.
    QFutureSynchronizer<void> detachedLoads_;
};
