#include "unlock/Unlocker.h"

#include "base/AsyncRun.h"
#include "base/EnginePools.h"
#include "base/IOWatchdog.h"
#include "crypt/EcryptfsReader.h"
#include "crypt/KeyStore.h"
#include "drive/EcryptfsHeader.h"
#include "unlock/KeyServiceClient.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <qcoro/qcorofuture.h>

#include <algorithm>

using KeyService::Outcome;

namespace {

struct Looked {
    Ecryptfs::Header header;
    bool held = false;
    bool answered = true; // false: the drive didn't give the header in time
};

// Each header is read under the limit: a drive that stops answering costs
// the clip it stopped on, not the whole unlock.
std::vector<Looked> lookUp(const std::vector<QString> &paths, std::chrono::milliseconds limit, KeyStore *store)
{
    std::vector<Looked> looked;
    looked.reserve(paths.size());
    for (const QString &path : paths) {
        try {
            // Only the reads are watched: one left behind after its limit
            // must touch nothing its caller may have let go, such as the store.
            looked.push_back(IOWatchdog::run(limit, [path](std::stop_token) {
                Looked l;
                l.header = Ecryptfs::read(path);
                l.held = KeyRing::keyBeside(path, l.header).has_value();
                return l;
            }));
            Looked &l = looked.back();
            if (!l.held && l.header.state == Ecryptfs::Header::State::ok)
                l.held = store->find(l.header.keyBlock).has_value();
        } catch (const IOWatchdog::TimedOut &) {
            Looked l;
            l.answered = false;
            looked.push_back(std::move(l));
        }
    }
    return looked;
}

struct Fetched {
    QString path;
    Ecryptfs::KeyBlock block;
    QByteArray key;
};

struct Kept {
    std::vector<bool> fits;
    bool saved = true;
};

// Keeps each key that opens its file; answers which did, and whether the
// store took them.
Kept keepFitting(const std::vector<Fetched> &fetched, const QString &vaultURL, KeyStore &store)
{
    std::vector<bool> fits;
    std::vector<KeyEntry> entries;
    QMap<QString, std::vector<QString>> besideVault; // kept event folder -> its clips
    const QString vaultPrefix = vaultURL.isEmpty() ? QString() : QDir::cleanPath(vaultURL) + QLatin1Char('/');
    for (const Fetched &f : fetched) {
        auto reader = EcryptfsReader::open(f.path, f.key);
        const bool ok = reader && reader->keyFits();
        fits.push_back(ok);
        if (!ok)
            continue;
        entries.push_back({QFileInfo(f.path).fileName(), f.block.keyId, f.block.vin, f.key, f.block.fingerprint()});
        if (!vaultPrefix.isEmpty() && QDir::cleanPath(f.path).startsWith(vaultPrefix))
            besideVault[QFileInfo(f.path).path()].push_back(f.path);
    }
    const bool saved = entries.empty() || store.add(entries);
    for (auto it = besideVault.cbegin(); it != besideVault.cend(); ++it)
        KeyRing::storeBeside(it.key(), it.value(), store);
    return {std::move(fits), saved};
}

} // namespace

Unlocker::Unlocker(QNetworkAccessManager &network, QUrl batchURL, std::chrono::milliseconds answerLimit,
                   std::chrono::milliseconds readLimit, KeyStore &store)
    : network_(network), batchURL_(std::move(batchURL)), answerLimit_(answerLimit), readLimit_(readLimit), store_(store)
{
}

QCoro::Task<std::vector<Unlocker::FileOutcome>> Unlocker::unlock(std::vector<QString> paths, QByteArray token,
                                                                  QString vaultURL)
{
    // Futures are named before they are awaited: g++ 12 destroys a lambda
    // temporary of an awaited full-expression twice.
    QFuture<std::vector<Looked>> lookup =
        AsyncRun::onPool(EnginePools::media(), [paths, limit = readLimit_, store = &store_] { return lookUp(paths, limit, store); });
    const std::vector<Looked> looked = co_await lookup;

    std::vector<FileOutcome> outcomes(paths.size());
    std::vector<KeyServiceClient::Item> items;
    std::vector<size_t> itemIndex;
    for (size_t i = 0; i < paths.size(); ++i) {
        outcomes[i].path = paths[i];
        const Looked &l = looked[i];
        if (!l.answered) {
            outcomes[i].outcome = Outcome::unreadable;
            continue;
        }
        switch (l.header.state) {
        case Ecryptfs::Header::State::zeroKeyBlock: outcomes[i].outcome = Outcome::zeroKeyBlock; continue;
        case Ecryptfs::Header::State::damaged:
        case Ecryptfs::Header::State::notEncrypted: outcomes[i].outcome = Outcome::damagedHeader; continue;
        case Ecryptfs::Header::State::ok: break;
        }
        if (l.held) {
            outcomes[i].outcome = Outcome::key;
            continue;
        }
        items.push_back({QString::number(i), l.header.keyBlock});
        itemIndex.push_back(i);
    }
    if (items.empty())
        co_return outcomes;

    KeyServiceClient client(network_, batchURL_, answerLimit_);
    QCoro::Task<std::vector<KeyServiceClient::Answer>> asking = client.fetch(token, items);
    const std::vector<KeyServiceClient::Answer> answers = co_await asking;

    std::vector<Fetched> fetched;
    std::vector<size_t> fetchedIndex;
    for (size_t k = 0; k < answers.size() && k < items.size(); ++k) {
        const size_t i = itemIndex[k];
        outcomes[i].outcome = answers[k].outcome;
        if (answers[k].outcome == Outcome::key) {
            fetched.push_back({paths[i], items[k].block, answers[k].key});
            fetchedIndex.push_back(i);
        }
    }
    if (fetched.empty())
        co_return outcomes;
    QFuture<Kept> keeping =
        AsyncRun::onPool(EnginePools::quick(), [fetched, vaultURL, store = &store_] { return keepFitting(fetched, vaultURL, *store); });
    const Kept kept = co_await keeping;
    for (size_t k = 0; k < kept.fits.size(); ++k) {
        outcomes[fetchedIndex[k]].outcome = kept.fits[k] ? Outcome::key : Outcome::keyDoesNotFit;
        outcomes[fetchedIndex[k]].fetched = kept.fits[k];
        outcomes[fetchedIndex[k]].saved = !kept.fits[k] || kept.saved;
    }
    co_return outcomes;
}

QStringList Unlocker::sentences(const std::vector<FileOutcome> &outcomes)
{
    // A sign-in problem first: it is the one the user can fix at once.
    static const Outcome order[] = {Outcome::notSignedIn,    Outcome::signInExpired,  Outcome::unreachable,
                                    Outcome::refused,        Outcome::malformedAnswer, Outcome::ownershipNotConfirmed,
                                    Outcome::keyDoesNotFit,  Outcome::zeroKeyBlock,   Outcome::damagedHeader,
                                    Outcome::unreadable};
    QStringList out;
    for (const Outcome o : order) {
        if (std::any_of(outcomes.begin(), outcomes.end(), [o](const FileOutcome &f) { return f.outcome == o; }))
            out.append(KeyService::sentence(o));
    }
    if (std::any_of(outcomes.begin(), outcomes.end(), [](const FileOutcome &f) { return !f.saved; }))
        out.append(QCoreApplication::translate("Unlocker",
                                               "The keys couldn't be saved on this computer, so they work until "
                                               "Keelhold quits and will be asked for again next time."));
    return out;
}

int Unlocker::unlockedCount(const std::vector<FileOutcome> &outcomes)
{
    return int(std::count_if(outcomes.begin(), outcomes.end(),
                             [](const FileOutcome &f) { return f.outcome == Outcome::key; }));
}
