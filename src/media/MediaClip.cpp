#include "media/MediaClip.h"

#include "base/LogCategories.h"
#include "base/IOWatchdog.h"

extern "C" {
#include <libavformat/avformat.h>
}

namespace {
bool incomplete(const AVFormatContext *format, int video)
{
    if (video < 0 || format->duration == AV_NOPTS_VALUE)
        return true;
    const AVCodecParameters *parameters = format->streams[video]->codecpar;
    return parameters->codec_id == AV_CODEC_ID_NONE || parameters->width <= 0 || parameters->height <= 0;
}
} // namespace

std::unique_ptr<MediaClip> MediaClip::open(const QString &path, std::stop_token stop, const Options &options)
{
    std::unique_ptr<MediaClip> clip(new MediaClip);
    clip->demuxer_ = Demuxer::open(path, stop, Demuxer::Options{options.mp4Only, options.reader, options.lookOnly});
    if (!clip->demuxer_)
        return clip;
    AVFormatContext *format = clip->demuxer_->context();
    clip->videoStream_ = clip->demuxer_->bestStream(AVMEDIA_TYPE_VIDEO);
    const bool probe = options.streamInfo == StreamInfo::always
        || (options.streamInfo == StreamInfo::whenIncomplete && incomplete(format, clip->videoStream_));
    if (probe) {
        if (!clip->demuxer_->findStreamInfo()) {
            // It opens, but its packets don't read: its header may say why.
            if (options.checkHeader)
                clip->facts_ = clip->videoStream_ >= 0 ? HeaderCheck::measure(*clip->demuxer_, clip->videoStream_)
                                                       : HeaderCheck::measureWithoutVideo(*clip->demuxer_);
            clip->demuxer_.reset();
            clip->videoStream_ = -1;
            return clip;
        }
        clip->videoStream_ = clip->demuxer_->bestStream(AVMEDIA_TYPE_VIDEO);
    }
    if (clip->videoStream_ < 0) {
        clip->outcome_ = Outcome::noVideo;
        if (options.checkHeader)
            clip->facts_ = HeaderCheck::measureWithoutVideo(*clip->demuxer_);
        return clip;
    }
    if (options.decode && !clip->openDecoder(*options.decode)) {
        clip->outcome_ = Outcome::undecodable;
        return clip;
    }
    if (options.checkHeader) {
        clip->facts_ = HeaderCheck::measure(*clip->demuxer_, clip->videoStream_);
        if (clip->facts_.verdict != HeaderCheck::ClipFacts::Verdict::sound)
            qCInfo(lcMedia).noquote() << path << "does not hold what its header says:" << clip->facts_.reason;
    }
    clip->outcome_ = Outcome::opened;
    return clip;
}

std::unique_ptr<MediaClip> MediaClip::openWithin(std::chrono::milliseconds limit, const QString &path,
                                                 std::stop_token stop, Options options)
{
    return IOWatchdog::run(
        limit,
        [path, options = std::move(options)](std::stop_token watch) { return open(path, watch, options); }, stop);
}

bool MediaClip::openDecoder(const VideoDecoder::Options &options)
{
    const AVStream *stream = video();
    if (!stream)
        return false;
    decoder_ = VideoDecoder::open(stream->codecpar, stream->time_base, options);
    return decoder_ != nullptr;
}

AVStream *MediaClip::video() const
{
    return videoStream_ >= 0 ? demuxer_->context()->streams[videoStream_] : nullptr;
}
