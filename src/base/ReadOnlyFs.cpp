#include "base/ReadOnlyFs.h"

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ReadOnlyFs {

namespace {
int openWith(const QByteArray &path, int flags)
{
    int fd;
    do {
        fd = ::open(path.constData(), flags | O_NOATIME | O_CLOEXEC);
    } while (fd < 0 && errno == EINTR);
    // O_NOATIME is refused with EPERM on files we don't own (as non-root).
    if (fd < 0 && errno == EPERM) {
        do {
            fd = ::open(path.constData(), flags | O_CLOEXEC);
        } while (fd < 0 && errno == EINTR);
    }
    return fd;
}
} // namespace

QString decodeName(const char *name)
{
    // Car drives hold ASCII names; skip the UTF-8 decoder for those.
    const size_t length = std::strlen(name);
    for (size_t i = 0; i < length; ++i)
        if (static_cast<unsigned char>(name[i]) >= 0x80)
            return QFile::decodeName(QByteArray(name, qsizetype(length)));
    return QString::fromLatin1(name, qsizetype(length));
}

int openRead(const QString &path)
{
    // Non-blocking so that a FIFO or device answers at once; no links.
    const int fd = openWith(QFile::encodeName(path), O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
    if (fd < 0) {
        if (errno == ELOOP)
            errno = notRegularFile;
        return -1;
    }
    struct stat st {};
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        ::close(fd);
        errno = notRegularFile;
        return -1;
    }
    // Reads of the file itself wait as usual.
    const int flags = ::fcntl(fd, F_GETFL);
    if (flags >= 0)
        ::fcntl(fd, F_SETFL, flags & ~O_NONBLOCK);
    return fd;
}

Listing list(const QString &folder, int fields)
{
    Listing result;
    const int fd = openWith(QFile::encodeName(folder), O_RDONLY | O_DIRECTORY);
    if (fd < 0) {
        result.error = errno;
        return result;
    }
    DIR *dir = ::fdopendir(fd);
    if (!dir) {
        result.error = errno;
        ::close(fd);
        return result;
    }
    const int dirFd = ::dirfd(dir);
    for (;;) {
        errno = 0;
        const dirent *d = ::readdir(dir);
        if (!d) {
            if (errno != 0)
                result.error = errno;
            break;
        }
        if (d->d_name[0] == '.')
            continue; // hidden, and "." / ".."
        Entry entry;
        entry.name = decodeName(d->d_name);
        const bool typeKnown = d->d_type != DT_UNKNOWN && d->d_type != DT_LNK;
        const bool needStat = (fields & fileSize) || ((fields & directoryFlag) && !typeKnown);
        if (needStat) {
            struct stat st {};
            if (::fstatat(dirFd, d->d_name, &st, AT_SYMLINK_NOFOLLOW) == 0) {
                entry.isDirectory = S_ISDIR(st.st_mode);
                if (fields & fileSize)
                    entry.size = qint64(st.st_size);
            } else if (typeKnown) {
                entry.isDirectory = d->d_type == DT_DIR;
            }
        } else if (typeKnown) {
            entry.isDirectory = d->d_type == DT_DIR;
        }
        result.entries.push_back(std::move(entry));
    }
    ::closedir(dir);
    if (!result.ok()) {
        result.entries.clear();
        return result;
    }
    std::sort(result.entries.begin(), result.entries.end(),
              [](const Entry &a, const Entry &b) { return a.name < b.name; });
    return result;
}

PathInfo stat(const QString &path, Links links)
{
    PathInfo info;
    struct stat st {};
    const QByteArray name = QFile::encodeName(path);
    if ((links == Links::followed ? ::stat(name.constData(), &st) : ::lstat(name.constData(), &st)) != 0) {
        info.error = errno;
        return info;
    }
    info.exists = true;
    info.isDirectory = S_ISDIR(st.st_mode);
    info.isRegularFile = S_ISREG(st.st_mode);
    info.size = qint64(st.st_size);
    info.modifiedMs = qint64(st.st_mtim.tv_sec) * 1000 + st.st_mtim.tv_nsec / 1000000;
    return info;
}

std::optional<QByteArray> readFile(const QString &path, qint64 maxBytes)
{
    const int fd = openRead(path);
    if (fd < 0)
        return std::nullopt;
    QByteArray data;
    char buffer[16384];
    bool failed = false;
    for (;;) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            failed = true;
            break;
        }
        if (n == 0)
            break;
        data.append(buffer, n);
        if (data.size() > maxBytes) {
            failed = true;
            break;
        }
    }
    ::close(fd);
    if (failed)
        return std::nullopt;
    return data;
}

bool isPermissionDenied(int error)
{
    return error == EACCES || error == EPERM;
}

} // namespace ReadOnlyFs
