#pragma once

#include "crypt/KeyStore.h"
#include "drive/ClipProber.h"
#include "unlock/KeyService.h"

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <qcoro/qcorotask.h>
#include <chrono>
#include <vector>

class QNetworkAccessManager;

// Finds the keys of encrypted clips: those already held cost nothing, the
// ones that can never be unlocked (no key written, damaged header) are said
// so without asking, and the rest are fetched with the token, checked
// against their file and kept (the app's store, and beside the clip when it
// lies in a kept Vault folder). File reads run off the calling thread.
class Unlocker {
public:
    struct FileOutcome {
        QString path;
        KeyService::Outcome outcome = KeyService::Outcome::malformedAnswer;
        bool fetched = false; // the key came from the service just now
        bool saved = true;    // false: fetched, but the app's key store couldn't be written
    };

    // readLimit: how long a clip's header may take to read before the clip
    // counts as unreadable.
    explicit Unlocker(QNetworkAccessManager &network, QUrl batchURL = KeyService::batchURL(),
                      std::chrono::milliseconds answerLimit = KeyService::answerLimit,
                      std::chrono::milliseconds readLimit = ClipProber::defaultTimeout,
                      KeyStore &store = KeyStore::shared());

    // One outcome per path, in path order. vaultURL: the Vault folder, whose
    // kept events get the keys beside them; empty for none.
    QCoro::Task<std::vector<FileOutcome>> unlock(std::vector<QString> paths, QByteArray token, QString vaultURL = {});

    // The sentences of a run's failures, one per kind, most useful first.
    static QStringList sentences(const std::vector<FileOutcome> &outcomes);
    static int unlockedCount(const std::vector<FileOutcome> &outcomes);

private:
    QNetworkAccessManager &network_;
    QUrl batchURL_;
    std::chrono::milliseconds answerLimit_;
    std::chrono::milliseconds readLimit_;
    KeyStore &store_;
};
