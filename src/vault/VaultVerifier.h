#pragma once

#include "vault/VerificationLog.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

// Re-reads the kept files that manifest.json lists and compares each one's
// size and SHA-256 with the newest record that lists it (an event kept
// twice has a record per keep, and a re-keep may have replaced a file's
// bytes). A separate check the user asks for; an archive run never reads
// its copies back. What it finds goes into the Vault's verification log.
namespace VaultVerifier {

struct Progress {
    qint64 bytesDone = 0;
    qint64 totalBytes = 0;
    int eventsDone = 0;
    int totalEvents = 0;
};
using ProgressCallback = std::function<void(const Progress &)>;

struct Result {
    std::vector<EventCheck> events; // one per event, in the order first kept
    bool cancelled = false;         // stopped early: `events` holds those finished
    // When a whole pass that ended dated the Vault's log.
    std::optional<Date> vaultCheckedAt;
};

// The events named (all kept events when none are), each once. Blocking;
// a stop ends it between 1 MiB blocks. Each finished event's check is
// written to the log, and a whole pass that ends also dates the Vault's.
// Raises what VaultIndex::load raises.
Result verify(const QString &vaultURL, const QStringList &eventIDs = {}, const ProgressCallback &progress = {},
              std::stop_token stop = {});

} // namespace VaultVerifier
