#pragma once

#include <QByteArray>
#include <cerrno>
#include <QString>
#include <optional>
#include <vector>

// The only way this program touches a drive: read-only opens that ask for
// O_NOATIME, so access times stay as they were where the file system honours
// it (exfat-fuse doesn't: it records them itself). A car's drive (FAT,
// exFAT) holds only folders and regular files: links are never followed and
// FIFOs and devices are never read, so a crafted stick can't lead a read
// elsewhere or hold it forever.
namespace ReadOnlyFs {

// errno of an open refused because the path is not a regular file.
inline constexpr int notRegularFile = EMEDIUMTYPE;

struct Entry {
    QString name;
    bool isDirectory = false;        // false when the flag could not be read
    std::optional<qint64> size;      // only when sizes were asked for
};

struct Listing {
    std::vector<Entry> entries;      // sorted by name, hidden entries left out
    int error = 0;                   // errno of a failed listing, 0 on success
    bool ok() const { return error == 0; }
};

enum ListFields { namesOnly = 0, directoryFlag = 1, fileSize = 2 };

// Lists a folder, skipping hidden (dot) entries. Links are not followed: a
// link is neither a folder nor sized.
Listing list(const QString &folder, int fields);

// A name as a listing holds it: the bytes of one directory entry, decoded
// as the system decodes file names.
QString decodeName(const char *name);

// Opens a regular file for reading only; -1 with errno set on failure, and
// notRegularFile for a link, FIFO, device or folder (found without blocking).
int openRead(const QString &path);

struct PathInfo {
    bool exists = false;
    bool isDirectory = false;
    bool isRegularFile = false;
    qint64 size = 0;
    qint64 modifiedMs = 0; // since 1970
    int error = 0; // errno when nothing could be seen, ENOENT for nothing there
};
enum class Links { notFollowed, followed };
// What stands at path. Inside a drive links are not followed; the folder a
// user chose may itself be reached through one.
PathInfo stat(const QString &path, Links links = Links::notFollowed);

// Reads a whole small file, refusing anything over maxBytes.
std::optional<QByteArray> readFile(const QString &path, qint64 maxBytes);

bool isPermissionDenied(int error);

} // namespace ReadOnlyFs
