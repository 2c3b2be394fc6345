#include "export/Mp4Writer.h"

#include "export/ExportError.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/dict.h>
#include <libavutil/error.h>
#include <libavutil/mem.h>
}

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using Exporter::ExportError;

namespace {
constexpr int ioBufferSize = 256 * 1024;

QString errorText(int averror)
{
    char buffer[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(averror, buffer, sizeof buffer);
    return QString::fromLocal8Bit(buffer);
}
} // namespace

Mp4Writer::Mp4Writer(const QString &path, std::stop_token stop) : path_(path), stop_(stop)
{
    const QString shown = QDir::toNativeSeparators(path);
    do {
        fd_ = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    } while (fd_ < 0 && errno == EINTR);
    if (fd_ < 0) {
        // Taken before any other call can change it.
        const int error = errno;
        if (error == EEXIST)
            //: %1 is the movie's full path
            throw ExportError::failed(
                QCoreApplication::translate("Mp4Writer", "There is already a file at \u201c%1\u201d.").arg(shown));
        //: %1 is the movie's full path, %2 the system's reason
        throw ExportError::failed(
            QCoreApplication::translate("Mp4Writer", "The movie file \u201c%1\u201d couldn't be created: %2.")
                .arg(shown, QString::fromLocal8Bit(std::strerror(error))));
    }
    // The muxer reopens the file by name to move the index to the front.
    const QByteArray url = "file:" + QFile::encodeName(path);
    AVFormatContext *format = nullptr;
    if (avformat_alloc_output_context2(&format, nullptr, "mp4", url.constData()) < 0 || !format)
        throw ExportError(ExportError::compositionFailed);
    format_.reset(format);
    auto *buffer = static_cast<uint8_t *>(av_malloc(ioBufferSize));
    io_.reset(buffer ? avio_alloc_context(buffer, ioBufferSize, 1, this, nullptr, &Mp4Writer::writeBytes,
                                          &Mp4Writer::seek)
                     : nullptr);
    if (!io_) {
        av_free(buffer);
        throw ExportError(ExportError::compositionFailed);
    }
    format_->pb = io_.get();
}

Mp4Writer::~Mp4Writer()
{
    if (io_)
        avio_flush(io_.get());
    io_.reset();
    format_.reset();
    if (fd_ >= 0)
        ::close(fd_);
}

int Mp4Writer::addStream(const AVCodecParameters *parameters, AVRational timeBase)
{
    AVStream *stream = avformat_new_stream(format_.get(), nullptr);
    if (!stream || avcodec_parameters_copy(stream->codecpar, parameters) < 0)
        throw ExportError(ExportError::compositionFailed);
    // A source's tag that MP4 doesn't know for this codec would fail the
    // header; such tags are reset and the muxer chooses. Known ones stay, so
    // H.265 keeps "hvc1", which more players accept than the default "hev1".
    const unsigned tag = parameters->codec_tag;
    if (tag == 0 || av_codec_get_id(format_->oformat->codec_tag, tag) != parameters->codec_id)
        stream->codecpar->codec_tag = 0;
    stream->time_base = timeBase;
    lastDts_.push_back(AV_NOPTS_VALUE);
    shift_.push_back(std::nullopt);
    return stream->index;
}

void Mp4Writer::begin()
{
    Av::Dictionary options;
    options.set("movflags", "+faststart");
    const int result = avformat_write_header(format_.get(), options.out());
    if (result < 0)
        //: %1 is the video library's reason
        fail(QCoreApplication::translate("Mp4Writer", "The movie couldn't be started: %1."), result);
}

AVRational Mp4Writer::timeBase(int stream) const
{
    return format_->streams[stream]->time_base;
}

void Mp4Writer::write(AVPacket *packet)
{
    int64_t &last = lastDts_[size_t(packet->stream_index)];
    if (packet->dts == AV_NOPTS_VALUE)
        packet->dts = packet->pts;
    // A stream whose first packet lies more than a second before the
    // movie's start was placed by a damaged header (an edit list or start
    // time its data contradict): it starts with the movie instead.
    const int64_t second = av_rescale_q(1, AVRational{1, 1}, timeBase(packet->stream_index));
    std::optional<int64_t> &shift = shift_[size_t(packet->stream_index)];
    if (!shift && packet->dts != AV_NOPTS_VALUE)
        shift = packet->dts < -second ? -packet->dts : 0;
    if (shift && *shift != 0) {
        packet->dts += *shift;
        if (packet->pts != AV_NOPTS_VALUE)
            packet->pts += *shift;
    }
    // Nor does footage jump ahead by more than ten seconds within a stream
    // (clips follow on, a new movie runs at its frame rate): such a jump is
    // a damaged time table, and what follows it follows on instead.
    if (shift && last != AV_NOPTS_VALUE && packet->dts != AV_NOPTS_VALUE && packet->dts - last > 10 * second) {
        const int64_t pull = packet->dts - last - std::max<int64_t>(packet->duration, 1);
        *shift -= pull;
        packet->dts -= pull;
        if (packet->pts != AV_NOPTS_VALUE)
            packet->pts -= pull;
    }
    if (last != AV_NOPTS_VALUE && packet->dts != AV_NOPTS_VALUE && packet->dts <= last)
        packet->dts = last + 1;
    if (packet->pts != AV_NOPTS_VALUE && packet->dts != AV_NOPTS_VALUE && packet->pts < packet->dts)
        packet->pts = packet->dts;
    // A picture shown more than a second after it is decoded comes from a
    // damaged composition table: written as it is, it would start the
    // movie's edit list past its samples.
    if (packet->pts != AV_NOPTS_VALUE && packet->dts != AV_NOPTS_VALUE && packet->pts - packet->dts > second)
        packet->pts = packet->dts;
    if (packet->dts != AV_NOPTS_VALUE)
        last = packet->dts;
    packet->pos = -1;
    const int result = av_interleaved_write_frame(format_.get(), packet);
    if (result < 0 && !fileFailed_ && !stop_.stop_requested())
        throw PacketRefused();
    if (result < 0)
        //: %1 is the video library's reason
        fail(QCoreApplication::translate("Mp4Writer", "The movie couldn't be written: %1."), result);
}

void Mp4Writer::finish()
{
    const int result = av_write_trailer(format_.get());
    //: %1 is the video library's reason
    const char *const unfinished = QT_TRANSLATE_NOOP("Mp4Writer", "The movie couldn't be finished: %1.");
    if (result < 0)
        fail(QCoreApplication::translate("Mp4Writer", unfinished), result);
    avio_flush(io_.get());
    if (io_->error < 0)
        fail(QCoreApplication::translate("Mp4Writer", unfinished), io_->error);
}

void Mp4Writer::fail(const QString &sentence, int averror) const
{
    if (stop_.stop_requested())
        throw ExportError(ExportError::cancelled);
    throw ExportError::failed(sentence.arg(errorText(averror)));
}

int Mp4Writer::writeBytes(void *opaque, uint8_t *buffer, int size)
{
    auto *self = static_cast<Mp4Writer *>(opaque);
    if (self->stop_.stop_requested())
        return AVERROR_EXIT;
    int done = 0;
    while (done < size) {
        const ssize_t n = ::write(self->fd_, buffer + done, size_t(size - done));
        if (n < 0) {
            if (errno == EINTR)
                continue;
            self->fileFailed_ = true;
            return AVERROR(errno);
        }
        done += int(n);
    }
    self->bytesWritten_ += size;
    if (self->observer_)
        self->observer_(self->bytesWritten_);
    return size;
}

int64_t Mp4Writer::seek(void *opaque, int64_t offset, int whence)
{
    auto *self = static_cast<Mp4Writer *>(opaque);
    if (whence & AVSEEK_SIZE) {
        struct stat st {};
        if (::fstat(self->fd_, &st) != 0)
            return AVERROR(errno);
        return st.st_size;
    }
    const off_t position = ::lseek(self->fd_, off_t(offset), whence & ~AVSEEK_FORCE);
    return position < 0 ? AVERROR(errno) : position;
}
