#include "crypt/KeyStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int formatVersion = 1;

QJsonObject toJson(const KeyEntry &e, bool withFingerprint)
{
    QJsonObject o;
    if (!e.file.isEmpty())
        o.insert(QStringLiteral("file"), e.file);
    o.insert(QStringLiteral("keyId"), qint64(e.keyId));
    o.insert(QStringLiteral("vin"), e.vin);
    o.insert(QStringLiteral("key"), QString::fromLatin1(e.key.toBase64()));
    if (withFingerprint && !e.fingerprint.isEmpty())
        o.insert(QStringLiteral("block"), e.fingerprint);
    return o;
}

std::vector<KeyEntry> parseEntries(const QByteArray &data)
{
    std::vector<KeyEntry> entries;
    const QJsonDocument doc = QJsonDocument::fromJson(data);
    if (!doc.isObject() || doc.object().value(QLatin1String("version")).toInt() != formatVersion)
        return entries;
    for (const QJsonValue &v : doc.object().value(QLatin1String("keys")).toArray()) {
        const QJsonObject o = v.toObject();
        KeyEntry e;
        e.file = o.value(QLatin1String("file")).toString();
        e.keyId = quint32(o.value(QLatin1String("keyId")).toInteger());
        e.vin = o.value(QLatin1String("vin")).toString();
        e.key = QByteArray::fromBase64(o.value(QLatin1String("key")).toString().toLatin1());
        e.fingerprint = o.value(QLatin1String("block")).toString();
        if (e.key.size() == Ecryptfs::fileKeySize)
            entries.push_back(std::move(e));
    }
    return entries;
}

QByteArray serialise(const std::vector<KeyEntry> &entries, bool withFingerprint)
{
    QJsonArray keys;
    for (const KeyEntry &e : entries)
        keys.append(toJson(e, withFingerprint));
    QJsonObject root;
    root.insert(QStringLiteral("version"), formatVersion);
    root.insert(QStringLiteral("keys"), keys);
    return QJsonDocument(root).toJson(QJsonDocument::Compact);
}

std::optional<QByteArray> readSmall(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > (16 << 20))
        return std::nullopt;
    return file.readAll();
}

QString fileNameOf(const QString &path)
{
    return path.section(QLatin1Char('/'), -1);
}

QString folderOf(const QString &path)
{
    return path.section(QLatin1Char('/'), 0, -2);
}

// Adds or replaces by key block; records older than the fingerprint match
// by file, key id and VIN.
void upsert(std::vector<KeyEntry> &entries, const KeyEntry &entry)
{
    if (entry.key.size() != Ecryptfs::fileKeySize)
        return;
    const auto same = std::find_if(entries.begin(), entries.end(), [&](const KeyEntry &e) {
        if (entry.fingerprint.isEmpty())
            return e.fingerprint.isEmpty() && e.file == entry.file && e.keyId == entry.keyId && e.vin == entry.vin;
        return e.fingerprint == entry.fingerprint;
    });
    if (same != entries.end())
        *same = entry;
    else
        entries.push_back(entry);
}

} // namespace

namespace PrivateFile {

bool write(const QString &path, const QByteArray &data)
{
    // mkstemp makes the file 0600 from its first byte on.
    QByteArray temp = QFile::encodeName(path) + ".XXXXXX";
    const int fd = ::mkstemp(temp.data());
    if (fd < 0)
        return false;
    qsizetype written = 0;
    bool ok = true;
    while (written < data.size()) {
        const ssize_t n = ::write(fd, data.constData() + written, size_t(data.size() - written));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            ok = false;
            break;
        }
        written += n;
    }
    ok = ::fchmod(fd, S_IRUSR | S_IWUSR) == 0 && ok && ::fsync(fd) == 0;
    ok = ::close(fd) == 0 && ok;
    if (ok && ::rename(temp.constData(), QFile::encodeName(path).constData()) == 0)
        return true;
    ::unlink(temp.constData());
    return false;
}

} // namespace PrivateFile

KeyStore &KeyStore::shared()
{
    static KeyStore store([] {
        QString base = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
        // Never a shared folder such as /tmp: the keys are the user's alone.
        if (base.isEmpty())
            base = QDir::homePath() + QStringLiteral("/.local/share");
        const QString folder = QDir(base).filePath(QStringLiteral("Keelhold"));
        QDir().mkpath(folder);
        return QDir(folder).filePath(QStringLiteral("keys.json"));
    }());
    return store;
}

KeyStore::KeyStore(QString path) : path_(std::move(path)) {}

void KeyStore::loadLocked()
{
    if (loaded_)
        return;
    loaded_ = true;
    if (const auto data = readSmall(path_))
        entries_ = parseEntries(*data);
}

std::optional<QByteArray> KeyStore::findLocked(const QString &fingerprint) const
{
    for (const KeyEntry &e : entries_)
        if (e.fingerprint == fingerprint)
            return e.key;
    return std::nullopt;
}

std::optional<QByteArray> KeyStore::find(const Ecryptfs::KeyBlock &block)
{
    const QString fingerprint = block.fingerprint();
    std::lock_guard lock(mutex_);
    loadLocked();
    if (auto key = findLocked(fingerprint))
        return key;
    // Read again only when the file changed: a drive of locked clips asks
    // once for each.
    const QFileInfo file(path_);
    const auto stamp = std::pair(file.lastModified(), file.size());
    if (stamp == seen_)
        return std::nullopt;
    seen_ = stamp;
    if (const auto data = readSmall(path_)) {
        for (const KeyEntry &e : parseEntries(*data))
            upsert(entries_, e);
    }
    return findLocked(fingerprint);
}

bool KeyStore::add(const std::vector<KeyEntry> &entries)
{
    std::lock_guard lock(mutex_);
    loadLocked();
    for (const KeyEntry &added : entries)
        upsert(entries_, added);
    QDir().mkpath(folderOf(path_));
    // Another process's keys are read back under the same lock file, so
    // neither write drops the other's.
    QLockFile writing(path_ + QStringLiteral(".lock"));
    if (!writing.tryLock(5000))
        return false;
    std::vector<KeyEntry> merged;
    if (const auto data = readSmall(path_))
        merged = parseEntries(*data);
    for (const KeyEntry &e : entries_)
        upsert(merged, e);
    entries_ = merged;
    return PrivateFile::write(path_, serialise(entries_, true));
}

namespace VaultKeys {

std::vector<KeyEntry> read(const QString &eventFolder)
{
    const auto data = readSmall(QDir(eventFolder).filePath(fileName));
    return data ? parseEntries(*data) : std::vector<KeyEntry>{};
}

bool write(const QString &eventFolder, const std::vector<KeyEntry> &entries)
{
    std::vector<KeyEntry> merged = read(eventFolder);
    for (const KeyEntry &added : entries) {
        auto same = std::find_if(merged.begin(), merged.end(), [&](const KeyEntry &e) { return e.file == added.file; });
        if (same != merged.end())
            *same = added;
        else
            merged.push_back(added);
    }
    // The file names the clips it serves; the block fingerprint stays in the app's own store.
    return PrivateFile::write(QDir(eventFolder).filePath(fileName), serialise(merged, false));
}

} // namespace VaultKeys

namespace KeyRing {

std::optional<QByteArray> keyBeside(const QString &clipPath, const Ecryptfs::Header &header)
{
    if (header.state != Ecryptfs::Header::State::ok)
        return std::nullopt;
    const QString name = fileNameOf(clipPath);
    for (const KeyEntry &e : VaultKeys::read(folderOf(clipPath))) {
        if (e.file == name && e.keyId == header.keyBlock.keyId && e.vin == header.keyBlock.vin)
            return e.key;
    }
    return std::nullopt;
}

std::optional<QByteArray> keyFor(const QString &clipPath, const Ecryptfs::Header &header, KeyStore &store)
{
    if (header.state != Ecryptfs::Header::State::ok)
        return std::nullopt;
    if (auto beside = keyBeside(clipPath, header))
        return beside;
    return store.find(header.keyBlock);
}

std::optional<QByteArray> keyFor(const QString &clipPath)
{
    return keyFor(clipPath, Ecryptfs::read(clipPath));
}

int storeBeside(const QString &eventFolder, const std::vector<QString> &clipPaths, KeyStore &store)
{
    std::vector<KeyEntry> entries;
    for (const QString &path : clipPaths) {
        const Ecryptfs::Header header = Ecryptfs::read(path);
        const auto key = keyFor(path, header, store);
        if (!key)
            continue;
        entries.push_back({fileNameOf(path), header.keyBlock.keyId, header.keyBlock.vin, *key,
                           header.keyBlock.fingerprint()});
    }
    if (entries.empty() || !VaultKeys::write(eventFolder, entries))
        return 0;
    return int(entries.size());
}

} // namespace KeyRing
