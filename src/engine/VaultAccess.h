#pragma once

#include "model/ArchiveProgress.h"
#include "model/ArchiveReport.h"
#include "model/TeslaEvent.h"
#include "vault/ArchivePlan.h"
#include "vault/VaultIndex.h"
#include "vault/VaultVerifier.h"
#include "vault/VerificationLog.h"

#include <QFuture>
#include <QString>
#include <QStringList>
#include <stop_token>
#include <vector>

// The engine's part that keeps events in the Vault, reads it back and
// checks it. Threads, errors and cancelling as EngineFacade says.
class VaultAccess {
public:
    virtual ~VaultAccess() = default;

    virtual ArchivePlan planArchive(const std::vector<TeslaEvent> &events, const VaultIndex &vault) = 0;
    // Never fails as a whole: every failure is inside the report. Cancelling
    // the future stops the run but drops its report; a stop asked through
    // `stop` ends the run just the same and still delivers the report, with
    // `cancelled` set.
    virtual QFuture<ArchiveReport> runArchive(const ArchivePlan &plan, const QString &vaultURL,
                                              ArchiveProgressCallback progress, std::stop_token stop = {}) = 0;
    // Forgiving: anything unreadable is an empty index.
    virtual VaultIndex loadVaultIndex(const QString &vaultURL) = 0;
    // Whether an event was removed. Raises when the index or the folder
    // can't be changed.
    virtual bool removeFromVault(const QString &eventID, const QString &vaultURL) = 0;
    // Raises when the Vault folder can't be read.
    virtual QFuture<std::vector<TeslaEvent>> scanVault(const QString &url) = 0;
    // Re-reads the kept files of the events named (every kept event when
    // none are) against their records, and notes what it found in the
    // Vault's verification log. A stop ends it early with what was done.
    // Raises when the index can't be read.
    virtual QFuture<VaultVerifier::Result> verifyVault(const QString &vaultURL, const QStringList &eventIDs,
                                                       VaultVerifier::ProgressCallback progress,
                                                       std::stop_token stop = {}) = 0;
    // Forgiving: anything unreadable is an empty log.
    virtual VerificationLog loadVerificationLog(const QString &vaultURL) = 0;
};
