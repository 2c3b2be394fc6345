#include "drive/MediaInput.h"

#include "drive/ReadOnlyFs.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/mem.h>
}

#include <QFile>
#include <cerrno>
#include <mutex>
#include <sys/stat.h>
#include <unistd.h>

namespace {
// Large enough that a one-minute clip is read in few system calls.
constexpr int ioBufferSize = 256 * 1024;
// The most FFmpeg may take in one allocation, for every file of the process.
// A crafted index can make the demuxer ask for gigabytes; the largest buffer
// real footage needs, a decoded picture, is some ten megabytes.
constexpr size_t largestAllocation = size_t(64) << 20;
} // namespace

std::unique_ptr<MediaInput> MediaInput::open(const QString &path, std::function<bool()> shouldStop, Options options)
{
    static std::once_flag capped;
    std::call_once(capped, [] { av_max_alloc(largestAllocation); });
    std::unique_ptr<MediaInput> input(new MediaInput);
    input->shouldStop_ = std::move(shouldStop);
    input->fd_ = ReadOnlyFs::openRead(path);
    if (input->fd_ < 0 || input->stopRequested())
        return nullptr;

    auto *buffer = static_cast<unsigned char *>(av_malloc(ioBufferSize));
    if (!buffer)
        return nullptr;
    input->io_ = avio_alloc_context(buffer, ioBufferSize, 0, input.get(), &MediaInput::readPacket, nullptr,
                                    &MediaInput::seek);
    if (!input->io_) {
        av_free(buffer);
        return nullptr;
    }
    AVFormatContext *format = avformat_alloc_context();
    if (!format)
        return nullptr;
    format->pb = input->io_;
    format->flags |= AVFMT_FLAG_CUSTOM_IO;
    // Set before avformat_open_input, so that even the header read can be stopped.
    format->interrupt_callback = {&MediaInput::interrupted, input.get()};
    static const AVInputFormat *mp4 = av_find_input_format("mp4");
    // The path only helps format probing; all bytes come through io_.
    if (avformat_open_input(&format, QFile::encodeName(path).constData(), options.mp4Only ? mp4 : nullptr, nullptr) < 0)
        return nullptr; // avformat_open_input freed format
    input->format_ = format;
    return input;
}

std::unique_ptr<MediaInput> MediaInput::open(const QString &path, std::stop_token stop)
{
    return open(path, stop, Options{});
}

MediaInput::~MediaInput()
{
    if (format_)
        avformat_close_input(&format_);
    if (io_) {
        av_freep(&io_->buffer);
        avio_context_free(&io_);
    }
    if (fd_ >= 0)
        ::close(fd_);
}

int MediaInput::bestStream(int mediaType) const
{
    const int index = av_find_best_stream(format_, AVMediaType(mediaType), -1, -1, nullptr, 0);
    return index >= 0 ? index : -1;
}

int MediaInput::readPacket(void *opaque, unsigned char *buffer, int size)
{
    auto *self = static_cast<MediaInput *>(opaque);
    if (self->stopRequested())
        return AVERROR_EXIT;
    ssize_t n;
    do {
        n = ::read(self->fd_, buffer, size_t(size));
    } while (n < 0 && errno == EINTR);
    if (n < 0)
        return AVERROR(errno);
    if (n == 0)
        return AVERROR_EOF;
    return int(n);
}

int64_t MediaInput::seek(void *opaque, int64_t offset, int whence)
{
    auto *self = static_cast<MediaInput *>(opaque);
    if (whence & AVSEEK_SIZE) {
        struct stat st {};
        if (::fstat(self->fd_, &st) != 0)
            return AVERROR(errno);
        return S_ISREG(st.st_mode) ? int64_t(st.st_size) : AVERROR(ENOSYS);
    }
    const off_t position = ::lseek(self->fd_, off_t(offset), whence & ~AVSEEK_FORCE);
    return position < 0 ? AVERROR(errno) : position;
}

int MediaInput::interrupted(void *opaque)
{
    return static_cast<MediaInput *>(opaque)->stopRequested() ? 1 : 0;
}
