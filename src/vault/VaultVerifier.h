#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// Re-reads the kept files that manifest.json lists and compares each one's
// size and SHA-256 with its record. A separate check the user asks for;
// an archive run never reads its copies back.
namespace VaultVerifier {

struct EventResult {
    QString eventID;
    QString relativePath;
    int verified = 0;
    QStringList changed;    // size or digest differs
    QStringList missing;    // no regular file under that name
    QStringList unreadable; // there, but reading it failed

    bool ok() const { return changed.isEmpty() && missing.isEmpty() && unreadable.isEmpty(); }
};

// One result per record, in the manifest's order. Raises what
// VaultIndex::load raises.
std::vector<EventResult> verify(const QString &vaultURL);

} // namespace VaultVerifier
