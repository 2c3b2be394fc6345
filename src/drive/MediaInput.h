#pragma once

#include <QString>
#include <cstdint>
#include <functional>
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
        // The car writes ISO base media only; naming the demuxer keeps
        // libavformat from guessing some other format out of random bytes.
        bool mp4Only = false;
    };

    // Null when the file can't be opened or isn't a movie FFmpeg can read.
    // shouldStop is asked before every read and by libavformat's interrupt callback.
    static std::unique_ptr<MediaInput> open(const QString &path, std::function<bool()> shouldStop, Options options);
    static std::unique_ptr<MediaInput> open(const QString &path, std::stop_token stop, Options options)
    {
        return open(path, [stop] { return stop.stop_requested(); }, options);
    }
    // A regular file of any movie format.
    static std::unique_ptr<MediaInput> open(const QString &path, std::stop_token stop);
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
    bool stopRequested() const { return shouldStop_ && shouldStop_(); }

    int fd_ = -1;
    std::function<bool()> shouldStop_;
    AVIOContext *io_ = nullptr;
    AVFormatContext *format_ = nullptr;
};
