#include "vault/VaultIndex.h"

#include "base/LogCategories.h"
#include "model/AtomicFile.h"

#include "model/JsonCoding.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>
#include <algorithm>

#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The user's own Trash and its two folders, made the way freedesktop.org
// desktops lay them out when they are missing (a fresh home has no
// ~/.local/share). Without them Qt would fall back on the working folder.
bool makeHomeTrash(const QString &trash)
{
    for (const QString &folder : {trash, trash + QStringLiteral("/files"), trash + QStringLiteral("/info")}) {
        if (QFileInfo(folder).isDir())
            continue;
        if (!QDir().mkpath(folder) || ::chmod(QFile::encodeName(folder).constData(), 0700) != 0)
            return false;
    }
    return true;
}

bool isBelow(const QString &path, const QString &folder)
{
    return path.startsWith(QDir::cleanPath(folder) + QLatin1Char('/'));
}

// Where the desktop's Trash rules let a trashed item land: the home Trash, or the
// Trash at the top of the item's own volume.
bool isInATrash(const QString &path, const QString &homeTrash, const QString &volumeRoot)
{
    const QString uid = QString::number(::getuid());
    const QDir top(volumeRoot);
    return isBelow(path, homeTrash + QStringLiteral("/files"))
        || isBelow(path, top.filePath(QStringLiteral(".Trash-") + uid + QStringLiteral("/files")))
        || isBelow(path, top.filePath(QStringLiteral(".Trash/") + uid + QStringLiteral("/files")));
}

bool present(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

// Moves a kept folder to the Trash, so the user can undo it from the
// desktop, or raises with one sentence and leaves it where it was.
void moveToTrash(const QString &folder)
{
    const QString dataHome = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QString homeTrash = QDir::cleanPath(dataHome + QStringLiteral("/Trash"));
    if (dataHome.isEmpty() || !makeHomeTrash(homeTrash))
        //: %1 is a folder's full path
        throw VaultIndex::FileError(QCoreApplication::translate("VaultIndex", "There is no Trash folder at %1 and it "
                                                                              "can't be made, so nothing was removed.")
                                        .arg(homeTrash));
    //: %1 is a folder's full path
    const QString notMoved =
        QCoreApplication::translate("VaultIndex", "Couldn't move %1 to the Trash, so nothing was removed.").arg(folder);
    QString landed;
    if (!QFile::moveToTrash(folder, &landed))
        throw VaultIndex::FileError(notMoved);
    landed = QDir::cleanPath(landed);
    if (isInATrash(landed, homeTrash, QStorageInfo(QFileInfo(folder).absolutePath()).rootPath()) && present(landed)
        && !present(folder))
        return;
    // Anywhere else is no Trash the user can find: it goes back.
    if (present(landed) && !present(folder))
        std::rename(QFile::encodeName(landed).constData(), QFile::encodeName(folder).constData());
    throw VaultIndex::FileError(notMoved);
}

} // namespace

QString VaultIndex::manifestPath(const QString &vaultURL)
{
    return QDir(vaultURL).filePath(manifestFileName);
}

const ArchivedEvent *VaultIndex::newestRecord(const QString &eventID) const
{
    const auto it = std::find_if(events.rbegin(), events.rend(), [&](const ArchivedEvent &e) { return e.eventID == eventID; });
    return it == events.rend() ? nullptr : &*it;
}

QSet<QString> VaultIndex::dedupeKeySet() const
{
    QSet<QString> keys;
    keys.reserve(qsizetype(events.size()));
    for (const auto &e : events)
        keys.insert(e.dedupeKey());
    return keys;
}

bool VaultIndex::contains(const ArchivedEvent &dedupeKeyOf) const
{
    const QString key = dedupeKeyOf.dedupeKey();
    return std::any_of(events.begin(), events.end(), [&](const ArchivedEvent &e) { return e.dedupeKey() == key; });
}

VaultIndex VaultIndex::load(const QString &vaultURL)
{
    const QString path = manifestPath(vaultURL);
    if (!QFileInfo::exists(path))
        return {};
    QFile file(path);
    //: %1 is a file's full path, %2 the system's reason
    const char *const unreadable = QT_TRANSLATE_NOOP("VaultIndex", "Couldn't read %1: %2");
    if (!file.open(QIODevice::ReadOnly))
        throw FileError(QCoreApplication::translate("VaultIndex", unreadable).arg(path, file.errorString()));
    const QByteArray data = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw FileError(QCoreApplication::translate("VaultIndex", unreadable).arg(path, file.errorString()));
    return fromJson(JsonCoding::parseObject(data));
}

VaultIndex VaultIndex::loadOrEmpty(const QString &vaultURL) noexcept
{
    try {
        return load(vaultURL);
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcVault);
        return {};
    }
}

void VaultIndex::save(const QString &vaultURL) const
{
    if (!QDir().mkpath(vaultURL))
        //: %1 is a folder's full path
        throw FileError(QCoreApplication::translate("VaultIndex", "Couldn't create the folder %1.").arg(vaultURL));
    const QString path = manifestPath(vaultURL);
    QString why;
    if (!AtomicFile::write(path, JsonCoding::toCompactJson(toJson()), &why))
        //: %1 is a file's full path, %2 the system's reason
        throw FileError(QCoreApplication::translate("VaultIndex", "Couldn't write %1: %2").arg(path, why));
}

bool VaultIndex::removeEvent(const QString &eventID, const QString &vaultURL)
{
    VaultIndex index = load(vaultURL);
    const auto first = std::find_if(index.events.begin(), index.events.end(),
                                    [&](const ArchivedEvent &e) { return e.eventID == eventID; });
    if (first == index.events.end())
        return false;

    // Only ever something below the Vault: an edited index must not be able
    // to send the Vault itself, or anything outside it, to the Trash.
    const QString root = QDir::cleanPath(QDir(vaultURL).absolutePath());
    const QString folder = QDir::cleanPath(root + QLatin1Char('/') + first->relativePath);
    if (first->relativePath.isEmpty() || QDir::isAbsolutePath(first->relativePath)
        || !folder.startsWith(root + QLatin1Char('/')))
        //: %1 is the folder the index names, as written in it
        throw FileError(QCoreApplication::translate("VaultIndex", "The Vault's index points outside the Vault folder "
                                                                  "(%1), so nothing was removed.")
                            .arg(first->relativePath));
    const QFileInfo info(folder);
    // A folder that is already gone is no error: the record goes all the same.
    if (info.exists() || info.isSymLink())
        moveToTrash(folder);

    std::erase_if(index.events, [&](const ArchivedEvent &e) { return e.eventID == eventID; });
    index.save(vaultURL);
    return true;
}

QJsonObject VaultIndex::toJson() const
{
    QJsonObject o;
    o.insert(QStringLiteral("events"), JsonCoding::encodeArray(events));
    return o;
}

VaultIndex VaultIndex::fromJson(const QJsonValue &value)
{
    const QJsonObject o = JsonCoding::requireObject(value, "VaultIndex");
    VaultIndex index;
    index.events = JsonCoding::decodeArray<ArchivedEvent>(JsonCoding::requireArray(o, "events"));
    return index;
}
