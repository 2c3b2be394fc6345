#include "media/Demuxer.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/log.h>
#include <libavutil/mem.h>
}

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <mutex>

namespace {
// Large enough that a one-minute clip is read in few system calls.
constexpr int ioBufferSize = 256 * 1024;
// A look at a clip reads its first bytes, its index at the end and its first
// sample: a large buffer per look would cost a slow drive a megabyte a clip.
constexpr int lookBufferSize = 32 * 1024;
// The most FFmpeg may take in one allocation, for every file of the process.
// A crafted index can make the demuxer ask for gigabytes; the largest buffer
// real footage needs, a decoded picture, is some ten megabytes.
constexpr size_t largestAllocation = size_t(64) << 20;
} // namespace

std::unique_ptr<Demuxer> Demuxer::open(const QString &path, std::stop_token stop, const Options &options)
{
    static std::once_flag once;
    std::call_once(once, [] {
        av_max_alloc(largestAllocation);
        // Damaged clips are expected and end as placeholders or skipped
        // minutes; FFmpeg's own messages about them would only be noise.
        if (av_log_get_level() > AV_LOG_FATAL)
            av_log_set_level(AV_LOG_FATAL);
    });
    if (stop.stop_requested())
        return nullptr;
    std::unique_ptr<Demuxer> demuxer(new Demuxer);
    demuxer->stop_ = stop;
    demuxer->reader_ = ClipReaders::open(options.reader, path, stop);
    if (!demuxer->reader_ || stop.stop_requested())
        return nullptr;

    const int bufferSize = options.lookOnly ? lookBufferSize : ioBufferSize;
    auto *buffer = static_cast<unsigned char *>(av_malloc(bufferSize));
    if (!buffer)
        return nullptr;
    demuxer->io_.reset(avio_alloc_context(buffer, bufferSize, 0, demuxer.get(), &Demuxer::readPacket, nullptr,
                                          &Demuxer::seek));
    if (!demuxer->io_) {
        av_free(buffer);
        return nullptr;
    }
    AVFormatContext *format = avformat_alloc_context();
    if (!format)
        return nullptr;
    format->pb = demuxer->io_.get();
    format->flags |= AVFMT_FLAG_CUSTOM_IO;
    // Set before avformat_open_input, so that even the header read can be stopped.
    format->interrupt_callback = {&Demuxer::interrupted, demuxer.get()};
    static const AVInputFormat *mp4 = av_find_input_format("mp4");
    // The path only helps format probing; all bytes come through the reader.
    if (avformat_open_input(&format, QFile::encodeName(path).constData(), options.mp4Only ? mp4 : nullptr, nullptr) < 0)
        return nullptr; // avformat_open_input freed format
    demuxer->format_.reset(format);
    return demuxer;
}

Demuxer::~Demuxer() = default;

bool Demuxer::findStreamInfo()
{
    return avformat_find_stream_info(format_.get(), nullptr) >= 0;
}

int Demuxer::bestStream(int mediaType) const
{
    const int index = av_find_best_stream(format_.get(), AVMediaType(mediaType), -1, -1, nullptr, 0);
    return index >= 0 ? index : -1;
}

void Demuxer::keepOnly(int stream)
{
    for (unsigned i = 0; i < format_->nb_streams; ++i)
        format_->streams[i]->discard = int(i) == stream ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
}

int64_t Demuxer::fileSize() const
{
    const int64_t size = reader_->size();
    return size >= 0 ? size : -1;
}

int64_t Demuxer::readAt(int64_t offset, char *buffer, int64_t size)
{
    if (reader_->seek(offset) != offset)
        return -1;
    int64_t done = 0;
    while (done < size && !stop_.stop_requested()) {
        const int n = reader_->read(reinterpret_cast<unsigned char *>(buffer + done),
                                    int(std::min<int64_t>(size - done, 1 << 20)));
        if (n <= 0)
            break;
        done += n;
    }
    // Back where libavformat left its reading.
    if (reader_->seek(position_) != position_)
        return -1;
    return done;
}

int Demuxer::readPacket(void *opaque, unsigned char *buffer, int size)
{
    auto *self = static_cast<Demuxer *>(opaque);
    if (self->stop_.stop_requested())
        return AVERROR_EXIT;
    const int n = self->reader_->read(buffer, size);
    if (n < 0)
        return AVERROR(-n);
    if (n == 0)
        return AVERROR_EOF;
    self->position_ += n;
    return n;
}

int64_t Demuxer::seek(void *opaque, int64_t offset, int whence)
{
    auto *self = static_cast<Demuxer *>(opaque);
    if (whence & AVSEEK_SIZE) {
        const int64_t size = self->reader_->size();
        return size >= 0 ? size : AVERROR(-size);
    }
    int64_t target = offset;
    switch (whence & ~AVSEEK_FORCE) {
    case SEEK_SET:
        break;
    case SEEK_CUR:
        target = self->position_ + offset;
        break;
    case SEEK_END: {
        const int64_t size = self->reader_->size();
        if (size < 0)
            return AVERROR(-size);
        target = size + offset;
        break;
    }
    default:
        return AVERROR(EINVAL);
    }
    if (target < 0)
        return AVERROR(EINVAL);
    const int64_t at = self->reader_->seek(target);
    if (at < 0)
        return AVERROR(-at);
    self->position_ = at;
    return at;
}

int Demuxer::interrupted(void *opaque)
{
    return static_cast<Demuxer *>(opaque)->stop_.stop_requested() ? 1 : 0;
}
