#pragma once

#include "media/AvHandles.h"

#include <QString>
#include <cstdint>
#include <exception>
#include <functional>
#include <stop_token>
#include <optional>
#include <vector>

extern "C" {
#include <libavutil/rational.h>
}

struct AVCodecParameters;
struct AVFormatContext;
struct AVIOContext;
struct AVPacket;

// An MP4 file being written, with the index moved to the front at the end.
// The file is created new: a file already standing there is an error, never
// overwritten. Decode timestamps are kept strictly increasing per stream.
// Whatever was written stays on disk if the writer is dropped unfinished.
class Mp4Writer {
public:
    // The muxer turned down a packet (timestamps or data it can't take) while
    // the file itself is fine: the clip it came from is at fault, not the movie.
    class PacketRefused : public std::exception {
    public:
        const char *what() const noexcept override { return "packet refused"; }
    };

    // Throws Exporter::ExportError (exportFailed) when the file can't be made.
    Mp4Writer(const QString &path, std::stop_token stop);
    ~Mp4Writer();

    Mp4Writer(const Mp4Writer &) = delete;
    Mp4Writer &operator=(const Mp4Writer &) = delete;

    // Returns the new stream's index; throws compositionFailed.
    int addStream(const AVCodecParameters *parameters, AVRational timeBase);
    // Writes the header; stream time bases may change here.
    void begin();
    AVRational timeBase(int stream) const;
    // Takes the packet's data; timestamps in the stream's time base. Throws
    // PacketRefused, or ExportError when the file can't be written.
    void write(AVPacket *packet);
    // Writes the index and moves it to the front.
    void finish();

    int64_t bytesWritten() const { return bytesWritten_; }
    // Called as bytes reach the file, also while the index moves to the front.
    void setByteObserver(std::function<void(int64_t)> observer) { observer_ = std::move(observer); }

private:
    static int writeBytes(void *opaque, uint8_t *buffer, int size);
    static int64_t seek(void *opaque, int64_t offset, int whence);
    // sentence holds %1 for the system's reason.
    [[noreturn]] void fail(const QString &sentence, int averror) const;

    QString path_;
    std::stop_token stop_;
    int fd_ = -1;
    Av::IoContext io_;
    Av::OutputContext format_;
    std::vector<int64_t> lastDts_;
    // Per stream: what is added to its timestamps (see write()).
    std::vector<std::optional<int64_t>> shift_;
    int64_t bytesWritten_ = 0;
    bool fileFailed_ = false;
    std::function<void(int64_t)> observer_;
};
