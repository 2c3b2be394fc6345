#pragma once

// A clip read as it lies on the drive: a regular file opened read-only,
// links never followed, access times left alone where the file system allows.

#include "media/ClipReader.h"

class FileClipReader : public ClipReader {
public:
    // Null (errno set) when the path is not a regular file that can be read.
    static std::unique_ptr<FileClipReader> open(const QString &path);
    ~FileClipReader() override;
    FileClipReader(const FileClipReader &) = delete;
    FileClipReader &operator=(const FileClipReader &) = delete;

    int read(unsigned char *buffer, int size) override;
    int64_t seek(int64_t position) override;
    int64_t size() override;

private:
    explicit FileClipReader(int fd) : fd_(fd) {}
    int fd_;
};
