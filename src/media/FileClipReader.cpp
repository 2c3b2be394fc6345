#include "media/FileClipReader.h"

#include "base/ReadOnlyFs.h"

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

std::unique_ptr<FileClipReader> FileClipReader::open(const QString &path)
{
    const int fd = ReadOnlyFs::openRead(path);
    if (fd < 0)
        return nullptr;
    return std::unique_ptr<FileClipReader>(new FileClipReader(fd));
}

FileClipReader::~FileClipReader()
{
    ::close(fd_);
}

int FileClipReader::read(unsigned char *buffer, int size)
{
    ssize_t n;
    do {
        n = ::read(fd_, buffer, size_t(size));
    } while (n < 0 && errno == EINTR);
    return n < 0 ? -errno : int(n);
}

int64_t FileClipReader::seek(int64_t position)
{
    const off_t at = ::lseek(fd_, off_t(position), SEEK_SET);
    return at < 0 ? -errno : int64_t(at);
}

int64_t FileClipReader::size()
{
    struct stat st {};
    if (::fstat(fd_, &st) != 0)
        return -errno;
    return int64_t(st.st_size);
}
