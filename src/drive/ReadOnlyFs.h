#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

// The only way this program touches a drive: read-only opens that ask for
// O_NOATIME so that even access times stay as they were.
namespace ReadOnlyFs {

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

// Lists a folder, skipping hidden (dot) entries. Sizes follow symlinks.
Listing list(const QString &folder, int fields);

// Opens a file for reading only; -1 with errno set on failure.
int openRead(const QString &path);
// The same without waiting for a partner: a FIFO or device node opens at
// once instead of blocking. Reads of regular files are unaffected.
int openReadNonBlocking(const QString &path);

struct PathInfo {
    bool exists = false;
    bool isDirectory = false;
    bool isRegularFile = false;
    qint64 size = 0;
};
PathInfo stat(const QString &path);

// Reads a whole small file, refusing anything over maxBytes.
std::optional<QByteArray> readFile(const QString &path, qint64 maxBytes);

bool isPermissionDenied(int error);

} // namespace ReadOnlyFs
