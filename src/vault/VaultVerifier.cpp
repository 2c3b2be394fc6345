#include "vault/VaultVerifier.h"

#include "vault/Sha256.h"
#include "vault/VaultIndex.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <memory>
#include <optional>

namespace VaultVerifier {

namespace {

struct Digest {
    qint64 size = 0;
    QString sha256;
};

std::optional<Digest> digestFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    Sha256 hash;
    Digest digest;
    const qint64 blockSize = 1 << 20;
    const std::unique_ptr<char[]> block(new char[size_t(blockSize)]);
    for (;;) {
        const qint64 n = file.read(block.get(), blockSize);
        if (n < 0)
            return std::nullopt;
        if (n == 0)
            break;
        hash.update(block.get(), size_t(n));
        digest.size += n;
    }
    digest.sha256 = hash.finishHex();
    return digest;
}

} // namespace

std::vector<EventResult> verify(const QString &vaultURL)
{
    const VaultIndex index = VaultIndex::load(vaultURL);
    std::vector<EventResult> results;
    results.reserve(index.events.size());
    for (const auto &event : index.events) {
        EventResult result{event.eventID, event.relativePath, 0, {}, {}, {}};
        const QDir folder(QDir(vaultURL).filePath(event.relativePath));
        for (const auto &file : event.files) {
            const QString path = folder.filePath(file.name);
            const QFileInfo info(path);
            if (!info.exists() || !info.isFile()) {
                result.missing << file.name;
                continue;
            }
            const auto digest = digestFile(path);
            if (!digest)
                result.unreadable << file.name;
            else if (digest->size != file.size || digest->sha256 != file.sha256)
                result.changed << file.name;
            else
                ++result.verified;
        }
        results.push_back(std::move(result));
    }
    return results;
}

} // namespace VaultVerifier
