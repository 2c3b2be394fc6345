#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <stop_token>

struct AVFormatContext;
struct AVIOContext;

// One movie file opened for demuxing through our own read-only file
// descriptor (ReadOnlyFs: O_RDONLY, O_NOATIME), never through FFmpeg's file
// protocol, so a clip on the car's drive can't be opened for writing by
// accident. Reads and libavformat's interrupt callback answer the stop token.
class MediaInput {
public:
    struct Options {
        // Refuse anything but a regular file up front (a FIFO would block the
        // open). Off where the caller bounds a hanging open itself.
        bool regularFilesOnly = true;
        // The car writes ISO base media only; naming the demuxer keeps
        // libavformat from guessing some other format out of random bytes.
        bool mp4Only = false;
    };

    // Null when the file can't be opened or isn't a movie FFmpeg can read.
    static std::unique_ptr<MediaInput> open(const QString &path, std::stop_token stop, Options options);
    static std::unique_ptr<MediaInput> open(const QString &path, std::stop_token stop)
    {
        return open(path, stop, Options{});
    }
    ~MediaInput();

    MediaInput(const MediaInput &) = delete;
    MediaInput &operator=(const MediaInput &) = delete;

    AVFormatContext *context() const { return format_; }
    // Index of the best stream of a media type (AVMEDIA_TYPE_*), -1 if none.
    int bestStream(int mediaType) const;

private:
    MediaInput() = default;
    static int readPacket(void *opaque, unsigned char *buffer, int size);
    static int64_t seek(void *opaque, int64_t offset, int whence);
    static int interrupted(void *opaque);

    int fd_ = -1;
    std::stop_token stop_;
    AVIOContext *io_ = nullptr;
    AVFormatContext *format_ = nullptr;
};
