#include "export/ExportSession.h"

#include "export/ClipPacketReader.h"
#include "export/ExportError.h"
#include "export/Mp4Writer.h"
#include "export/VideoReencoder.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <optional>

using Exporter::ExportError;

namespace {
// Share of the progress bar for writing the samples; the rest is for moving
// the index to the front, which rewrites the whole file once more.
constexpr double writingShare = 0.8;
constexpr auto reportInterval = std::chrono::milliseconds(100);
} // namespace

struct ExportSession::OutputStream {
    int index = -1;
    AVRational timeBase{1, 1};
    int64_t end = AV_NOPTS_VALUE; // where the last written packet ends
};

ExportSession::ExportSession(const ExportComposition &composition, double lower, double upper,
                             const QString &destination, std::function<void(double)> progress, std::stop_token stop,
                             std::chrono::milliseconds readLimit)
    : composition_(composition), lower_(lower), upper_(upper), destination_(destination),
      progress_(std::move(progress)), stop_(stop), readLimit_(readLimit)
{
}

ExportSession::~ExportSession()
{
    // The writer flushes on its way out; that must not report into a
    // session that is going away.
    if (writer_)
        writer_->setByteObserver({});
}

void ExportSession::run()
{
    const AVOutputFormat *mp4 = av_guess_format("mp4", nullptr, nullptr);
    if (!mp4 || composition_.segments.empty())
        throw ExportError(ExportError::exportSessionUnavailable);
    const ExportSegment &first = composition_.segments.front();
    const bool copy = composition_.videoJoinsByCopy()
        && avformat_query_codec(mp4, first.video->codec_id, FF_COMPLIANCE_NORMAL) == 1;
    if (!copy) {
        const ExportSegment &largest = composition_.largestPicture();
        reencoder_ = VideoReencoder::create(largest.video->width, largest.video->height, largest.frameRate,
                                            (mp4->flags & AVFMT_GLOBALHEADER) != 0);
        if (!reencoder_)
            throw ExportError(ExportError::exportSessionUnavailable);
    }
    // Sound the container can't hold is left out rather than failing the video.
    const ExportSegment *audioSource = composition_.firstWithAudio();
    const bool withAudio
        = audioSource && avformat_query_codec(mp4, audioSource->audio->codec_id, FF_COMPLIANCE_NORMAL) == 1;

    writer_ = std::make_unique<Mp4Writer>(destination_, stop_);
    video_ = std::make_unique<OutputStream>();
    if (copy) {
        video_->index = writer_->addStream(first.video.get(), first.videoTimeBase);
    } else {
        const Av::CodecParameters parameters(avcodec_parameters_alloc());
        if (!parameters)
            throw ExportError(ExportError::compositionFailed);
        reencoder_->parametersInto(parameters.get());
        video_->index = writer_->addStream(parameters.get(), reencoder_->timeBase());
    }
    if (withAudio) {
        audio_ = std::make_unique<OutputStream>();
        audio_->index = writer_->addStream(audioSource->audio.get(), audioSource->audioTimeBase);
    }
    writer_->begin();
    video_->timeBase = writer_->timeBase(video_->index);
    if (audio_)
        audio_->timeBase = writer_->timeBase(audio_->index);
    report(0.0, true);

    for (const ExportSegment &segment : composition_.segments) {
        if (segment.end() <= lower_)
            continue;
        if (segment.start >= upper_)
            break;
        if (stop_.stop_requested())
            cancel();
        copyClip(segment);
    }
    if (stop_.stop_requested())
        cancel();
    if (reencoder_) {
        try {
            reencoder_->finish([this](AVPacket *packet) {
                // Draining the encoder's look-ahead takes a while on large pictures.
                report(lastFraction_);
                av_packet_rescale_ts(packet, reencoder_->timeBase(), video_->timeBase);
                packet->stream_index = video_->index;
                writer_->write(packet);
                videoWritten_ = true;
            });
        } catch (const Mp4Writer::PacketRefused &) {
            throw ExportError::failed(QCoreApplication::translate("ExportSession", "The movie couldn't be written."));
        }
    }
    // Clips that open but give up no picture in the stretch make no movie.
    if (!videoWritten_)
        throw ExportError(ExportError::noClipsForCamera);

    const int64_t written = std::max<int64_t>(writer_->bytesWritten(), 1);
    writer_->setByteObserver([this, written](int64_t bytes) {
        report(writingShare + (1.0 - writingShare) * std::min(1.0, double(bytes - written) / double(written)));
    });
    writer_->finish();
    writer_->setByteObserver({});
    // A stop asked while the last bytes went out still counts.
    if (stop_.stop_requested())
        cancel();
    report(1.0, true);
}

void ExportSession::copyClip(const ExportSegment &segment)
{
    // A clip that can no longer be read, or that the drive stops answering
    // for, only shortens the movie.
    const double localLower = lower_ - segment.start;
    const double localUpper = upper_ - segment.start;
    std::optional<int64_t> seekTo;
    if (localLower > 0.0)
        seekTo = std::llround((segment.origin + localLower) * AV_TIME_BASE);
    ClipPacketReader reader(segment.path, seekTo, readLimit_, stop_);
    const auto streams = reader.open();
    if (!streams)
        return;
    const int videoIn = streams->video;
    const int audioIn = audio_ && composition_.audioMatches(segment) ? streams->audio : -1;
    const double span = upper_ - lower_;
    // Output time of the clip's time zero: what earlier clips failed to fill
    // is closed up, so the movie has no hole where footage was promised.
    const double clipOffset = segment.start - lower_ - closedUp_;
    // Clip time of a timestamp, in seconds from the clip's first moment.
    const auto clipTime = [&](int64_t timestamp, AVRational base) {
        return double(timestamp) * av_q2d(base) - segment.origin;
    };

    const AVRational videoBase = streams->timeBases[size_t(videoIn)];
    VideoReencoder::Placement place;
    VideoReencoder::PacketSink sink;
    bool videoDone = false;
    if (reencoder_) {
        place = [&](int64_t timestamp) -> std::optional<int64_t> {
            // Pictures before the clip's first moment are decoder lead-in.
            const double local = clipTime(timestamp, videoBase);
            if (local < std::max(0.0, localLower) || local >= localUpper)
                return std::nullopt;
            return std::llround((clipOffset + local) / av_q2d(reencoder_->timeBase()));
        };
        sink = [this](AVPacket *packet) {
            av_packet_rescale_ts(packet, reencoder_->timeBase(), video_->timeBase);
            packet->stream_index = video_->index;
            writer_->write(packet);
            videoWritten_ = true;
        };
        videoDone = !reencoder_->beginClip(streams->videoParameters.get(), videoBase);
    }
    bool audioDone = audioIn < 0;
    std::optional<int64_t> videoShift;
    std::optional<int64_t> audioShift;

    const Av::Packet packet(av_packet_alloc());
    if (!packet)
        throw ExportError::failed(
            QCoreApplication::translate("ExportSession", "There wasn't enough memory to export the footage."));
    // How far into the clip its pictures and sound really went.
    double reached = std::max(0.0, localLower);
    // One picture's time; a damaged table's rate says nothing useful.
    const double rate = segment.frameRate.num > 0 && segment.frameRate.den > 0 ? av_q2d(segment.frameRate) : 0.0;
    const double frame = rate >= 4.0 && rate <= 240.0 ? 1.0 / rate : 0.05;
    const auto copyPackets = [&] {
        while (!(videoDone && audioDone)) {
            if (stop_.stop_requested())
                cancel();
            // The end of the clip, a read error that loses the rest of it, or
            // a read that never answered.
            if (reader.next(packet.get()) != ClipPacketReader::Read::packet)
                break;
            const bool isVideo = packet->stream_index == videoIn && !videoDone;
            const bool isAudio = packet->stream_index == audioIn && !audioDone;
            const int64_t dts = packet->dts != AV_NOPTS_VALUE ? packet->dts : packet->pts;
            if ((!isVideo && !isAudio) || dts == AV_NOPTS_VALUE) {
                av_packet_unref(packet.get());
                continue;
            }
            const AVRational inBase = streams->timeBases[size_t(packet->stream_index)];
            const int64_t originIn = std::llround(segment.origin / av_q2d(inBase));
            const double local = clipTime(dts, inBase);
            if (local >= localUpper) {
                (isVideo ? videoDone : audioDone) = true;
                av_packet_unref(packet.get());
                continue;
            }
            report(writingShare * (clipOffset + local) / span);
            // No sample lasts past what the clip's pictures span, and no
            // picture for more than a few frames' time: a damaged table can
            // give one seconds or days. One without a time lasts a frame.
            const int64_t shown = packet->pts != AV_NOPTS_VALUE ? packet->pts : dts;
            const double shownFrom = clipTime(shown, inBase);
            if (isVideo && (packet->duration <= 0 || double(packet->duration) * av_q2d(inBase) > 4 * frame))
                packet->duration = std::llround(frame / av_q2d(inBase));
            const double trustedEnd = std::min(localUpper, segment.duration);
            if (shownFrom + double(packet->duration) * av_q2d(inBase) > trustedEnd)
                packet->duration = std::max<int64_t>(0, std::llround((trustedEnd - shownFrom) / av_q2d(inBase)));
            const double shownUntil = std::min(trustedEnd, shownFrom + double(packet->duration) * av_q2d(inBase));

            if (isVideo && reencoder_) {
                reencoder_->decode(packet.get(), place, sink);
                av_packet_unref(packet.get());
                reached = std::max(reached, shownUntil);
                continue;
            }
            // Sound before the stretch is simply left out; pictures before it
            // back to the last key frame are kept, and the container's edit list
            // starts the movie at the stretch's first moment.
            if (isAudio && local + double(packet->duration) * av_q2d(inBase) <= localLower) {
                av_packet_unref(packet.get());
                continue;
            }
            OutputStream &out = isVideo ? *video_ : *audio_;
            if (packet->pts != AV_NOPTS_VALUE)
                packet->pts = av_rescale_q(packet->pts - originIn, inBase, out.timeBase);
            packet->dts = av_rescale_q(dts - originIn, inBase, out.timeBase);
            packet->duration = av_rescale_q(packet->duration, inBase, out.timeBase);
            // The clip goes at the running cursor, but never over the end of
            // what the clip before it wrote on this stream.
            std::optional<int64_t> &shift = isVideo ? videoShift : audioShift;
            if (!shift) {
                int64_t at = std::llround(clipOffset / av_q2d(out.timeBase));
                if (out.end != AV_NOPTS_VALUE && packet->dts + at < out.end)
                    at = out.end - packet->dts;
                shift = at;
            }
            packet->dts += *shift;
            if (packet->pts != AV_NOPTS_VALUE)
                packet->pts += *shift;
            packet->stream_index = out.index;
            out.end = packet->dts + std::max<int64_t>(packet->duration, 1);
            writer_->write(packet.get());
            reached = std::max(reached, shownUntil);
            videoWritten_ = videoWritten_ || isVideo;
        }
    };
    try {
        copyPackets();
    } catch (const Mp4Writer::PacketRefused &) {
        // Skipped like a damaged clip; the rest of the movie goes on.
    }
    if (reencoder_)
        reencoder_->endClip(place, sink);
    const double promised = std::min(segment.duration, localUpper);
    if (reached + frame < promised)
        closedUp_ += promised - reached;
}

void ExportSession::report(double fraction, bool force)
{
    if (!progress_)
        return;
    fraction = std::clamp(fraction, 0.0, 1.0);
    if (fraction < lastFraction_)
        fraction = lastFraction_;
    // Every tenth of a second on long exports, every percent on short ones.
    const auto now = std::chrono::steady_clock::now();
    if (!force && now - lastReport_ < reportInterval && fraction - lastFraction_ < 0.01)
        return;
    lastReport_ = now;
    lastFraction_ = fraction;
    progress_(fraction);
}

void ExportSession::cancel() const
{
    throw ExportError(ExportError::cancelled);
}
