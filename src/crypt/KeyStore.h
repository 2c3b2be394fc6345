#pragma once

#include "drive/EcryptfsHeader.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

// The file keys fetched for the car's encrypted clips, kept so that a clip
// unlocked once plays offline for ever. Two homes, both readable only by
// the user (mode 0600): the app's data folder ("keys.json"), and a hidden
// file beside each kept encrypted event in the Vault, so a Vault copied to
// another computer still plays. A key is found again by the file's key
// block wherever the file lies.
struct KeyEntry {
    QString file; // the clip's file name
    quint32 keyId = 0;
    QString vin;
    QByteArray key; // 16 bytes
    QString fingerprint; // of the whole key block; empty in older records
};

class KeyStore {
public:
    // The app's own store in its data folder.
    static KeyStore &shared();
    explicit KeyStore(QString path);

    // Looks in the file again on a miss: the command line and the app may
    // both be fetching keys.
    std::optional<QByteArray> find(const Ecryptfs::KeyBlock &block);
    // Adds or replaces, merged with what another process wrote meanwhile;
    // answers whether the file was written. The keys stay held for this
    // process either way.
    bool add(const std::vector<KeyEntry> &entries);
    const QString &path() const { return path_; }

private:
    void loadLocked();
    std::optional<QByteArray> findLocked(const QString &fingerprint) const;

    QString path_;
    std::mutex mutex_;
    bool loaded_ = false;
    std::vector<KeyEntry> entries_;
    std::pair<QDateTime, qint64> seen_; // the file as last read again after a miss
};

namespace VaultKeys {

inline const QString fileName = QStringLiteral(".keelhold-keys.json");

std::vector<KeyEntry> read(const QString &eventFolder);
// Merges with what the folder's file already holds, by file name.
bool write(const QString &eventFolder, const std::vector<KeyEntry> &entries);

} // namespace VaultKeys

namespace KeyRing {

// The key kept beside the clip's event in the Vault, if any: a read of that
// folder, nothing of the store.
std::optional<QByteArray> keyBeside(const QString &clipPath, const Ecryptfs::Header &header);
// The key of one encrypted clip: the Vault's file beside it first, then the
// app's store. Nothing when none is held or the header can't be read.
std::optional<QByteArray> keyFor(const QString &clipPath, const Ecryptfs::Header &header,
                                 KeyStore &store = KeyStore::shared());
std::optional<QByteArray> keyFor(const QString &clipPath);

// Writes the keys held for these clips (copies in one kept event folder)
// into that folder's hidden key file. Answers how many it wrote.
int storeBeside(const QString &eventFolder, const std::vector<QString> &clipPaths,
                KeyStore &store = KeyStore::shared());

} // namespace KeyRing

// Writes a whole file readable by its owner alone, replacing any old one at once.
namespace PrivateFile {
bool write(const QString &path, const QByteArray &data);
}
