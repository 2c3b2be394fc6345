#include "vault/VaultVerifier.h"

#include "vault/Sha256.h"
#include "vault/VaultIndex.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <algorithm>
#include <map>
#include <memory>
#include <optional>

namespace VaultVerifier {

namespace {

struct Digest {
    qint64 size = 0;
    QString sha256;
};

enum class ReadOutcome { read, unreadable, stopped };

ReadOutcome digestFile(const QString &path, Digest &digest, const std::function<void(qint64)> &advanced,
                       const std::stop_token &stop)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ReadOutcome::unreadable;
    Sha256 hash;
    const qint64 blockSize = 1 << 20;
    const std::unique_ptr<char[]> block(new char[size_t(blockSize)]);
    for (;;) {
        if (stop.stop_requested())
            return ReadOutcome::stopped;
        const qint64 n = file.read(block.get(), blockSize);
        if (n < 0)
            return ReadOutcome::unreadable;
        if (n == 0)
            break;
        hash.update(block.get(), size_t(n));
        digest.size += n;
        advanced(n);
    }
    digest.sha256 = hash.finishHex();
    return ReadOutcome::read;
}

// What one event should hold: each file name with the newest record that
// lists it, in the order the files were first kept.
struct Expected {
    QString relativePath; // of the newest record
    std::vector<ArchivedFile> files;
    std::optional<int> expectedFiles;
    int keptFiles = 0;
};

std::vector<std::pair<QString, Expected>> expectations(const VaultIndex &index, const QStringList &wanted)
{
    const QSet<QString> only(wanted.cbegin(), wanted.cend());
    std::vector<std::pair<QString, Expected>> out;
    std::map<QString, size_t> slot;
    for (const ArchivedEvent &record : index.events) {
        if (!only.isEmpty() && !only.contains(record.eventID))
            continue;
        auto [it, fresh] = slot.try_emplace(record.eventID, out.size());
        if (fresh)
            out.emplace_back(record.eventID, Expected{});
        Expected &e = out[it->second].second;
        e.relativePath = record.relativePath;
        e.expectedFiles = record.expectedFileCount;
        e.keptFiles = int(record.files.size());
        for (const ArchivedFile &f : record.files) {
            const auto same = std::find_if(e.files.begin(), e.files.end(), [&](const ArchivedFile &k) { return k.name == f.name; });
            if (same == e.files.end())
                e.files.push_back(f);
            else
                *same = f;
        }
    }
    return out;
}

} // namespace

Result verify(const QString &vaultURL, const QStringList &eventIDs, const ProgressCallback &progress,
              std::stop_token stop)
{
    const VaultIndex index = VaultIndex::load(vaultURL);
    const auto wanted = expectations(index, eventIDs);

    Progress p;
    p.totalEvents = int(wanted.size());
    for (const auto &[id, e] : wanted)
        for (const ArchivedFile &f : e.files)
            p.totalBytes += f.size;
    const auto tell = [&] {
        if (progress)
            progress(p);
    };
    tell();

    Result result;
    for (const auto &[id, expected] : wanted) {
        EventCheck check;
        check.eventID = id;
        check.expectedFiles = expected.expectedFiles;
        check.keptFiles = expected.keptFiles;
        const QDir folder(QDir(vaultURL).filePath(expected.relativePath));
        for (const ArchivedFile &file : expected.files) {
            const QString path = folder.filePath(file.name);
            const QFileInfo info(path);
            if (!info.exists() || !info.isFile()) {
                check.missing << file.name;
                p.bytesDone += file.size;
                continue;
            }
            Digest digest;
            qint64 counted = 0;
            const ReadOutcome outcome = digestFile(
                path, digest,
                [&](qint64 n) {
                    // A file that grew counts no further than its record.
                    const qint64 step = std::min(n, file.size - counted);
                    if (step <= 0)
                        return;
                    counted += step;
                    p.bytesDone += step;
                    tell();
                },
                stop);
            if (outcome == ReadOutcome::stopped) {
                result.cancelled = true;
                break;
            }
            p.bytesDone += file.size - counted;
            if (outcome == ReadOutcome::unreadable)
                check.unreadable << file.name;
            else if (digest.size != file.size || digest.sha256 != file.sha256)
                check.changed << file.name;
            else
                ++check.verified;
        }
        if (result.cancelled || stop.stop_requested()) {
            result.cancelled = true;
            break;
        }
        check.checkedAt = Date::now();
        result.events.push_back(std::move(check));
        ++p.eventsDone;
        tell();
    }

    if (wanted.empty())
        return result;
    VerificationLog log = VerificationLog::load(vaultURL);
    log.record(result.events);
    if (eventIDs.isEmpty() && !result.cancelled) {
        result.vaultCheckedAt = Date::now();
        log.wholeVaultCheckedAt = result.vaultCheckedAt;
    }
    // A Vault that can't be written still gets its answer; only the date is lost.
    (void)log.save(vaultURL);
    return result;
}

} // namespace VaultVerifier
