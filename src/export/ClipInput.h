#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <stop_token>

struct AVFormatContext;
struct AVIOContext;

// One clip opened for demuxing through our own read-only file descriptor
// (ReadOnlyFs), never through FFmpeg's file protocol, so a source can't be
// opened for writing by accident. Reads answer the stop token.
class ClipInput {
public:
    // Null when the file can't be opened or isn't a movie FFmpeg can read.
    static std::unique_ptr<ClipInput> open(const QString &path, std::stop_token stop);
    ~ClipInput();

    ClipInput(const ClipInput &) = delete;
    ClipInput &operator=(const ClipInput &) = delete;

    AVFormatContext *context() const { return format_; }
    // Index of the best stream of a media type (AVMEDIA_TYPE_*), -1 if none.
    int bestStream(int mediaType) const;

private:
    ClipInput() = default;
    static int readPacket(void *opaque, unsigned char *buffer, int size);
    static int64_t seek(void *opaque, int64_t offset, int whence);
    static int interrupted(void *opaque);

    int fd_ = -1;
    std::stop_token stop_;
    AVIOContext *io_ = nullptr;
    AVFormatContext *format_ = nullptr;
};
