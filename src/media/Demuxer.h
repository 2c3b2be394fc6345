#pragma once

// One movie opened for demuxing. Its bytes come through a ClipReader, never
// through FFmpeg's own file protocol, so a clip on the car's drive can't be
// opened for writing by accident, and a decrypting reader serves every
// demuxer alike. Reads and libavformat's interrupt callback answer the stop
// token, so a watchdog or a closing player ends a read in progress.

#include "media/AvHandles.h"
#include "media/ClipReader.h"

#include <QString>
#include <cstdint>
#include <memory>
#include <stop_token>

class Demuxer {
public:
    struct Options {
        // The car writes ISO base media only; naming the demuxer keeps
        // libavformat from guessing some other format out of random bytes.
        bool mp4Only = false;
        ClipReaderFactory reader; // empty: the installed one
        // Reads in small steps, for a look at the header and a sample or
        // two rather than the whole clip.
        bool lookOnly = false;
    };

    // Null when the file can't be read or isn't a movie FFmpeg can open.
    static std::unique_ptr<Demuxer> open(const QString &path, std::stop_token stop, const Options &options);
    ~Demuxer();
    Demuxer(const Demuxer &) = delete;
    Demuxer &operator=(const Demuxer &) = delete;

    AVFormatContext *context() const { return format_.get(); }
    // Reads packets for what the header leaves out; false when that fails.
    bool findStreamInfo();
    // Index of the best stream of a media type (AVMEDIA_TYPE_*), -1 if none.
    int bestStream(int mediaType) const;
    // Only this stream's packets are read from now on; the rest are skipped unread.
    void keepOnly(int stream);
    // The plain movie's length in bytes; -1 when the reader can't tell.
    int64_t fileSize() const;
    // Reads bytes of the movie aside from the demuxing (the header checks):
    // the count read, or negative. The demuxer's own reading is not moved.
    int64_t readAt(int64_t offset, char *buffer, int64_t size);
    bool stopRequested() const { return stop_.stop_requested(); }

private:
    Demuxer() = default;
    static int readPacket(void *opaque, unsigned char *buffer, int size);
    static int64_t seek(void *opaque, int64_t offset, int whence);
    static int interrupted(void *opaque);

    std::stop_token stop_;
    std::unique_ptr<ClipReader> reader_;
    int64_t position_ = 0;
    Av::IoContext io_;
    // Declared after the I/O context it reads through, so freed before it.
    Av::InputContext format_;
};
