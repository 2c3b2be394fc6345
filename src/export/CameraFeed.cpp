#include "export/CameraFeed.h"

#include "export/ClipPacketReader.h"
#include "model/CancellationError.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/frame.h>
}

#include <cmath>
#include <new>

namespace {
// Pictures that stop before the clip says it ends (a damaged tail) are held
// this long, as one late frame would be; after that the cell goes black.
constexpr double holdAfterLastPicture = 0.25;
// A seek lands on the key frame before; short leads are decoded through.
constexpr double seekWorthwhile = 1.0;
constexpr double epsilon = 1e-6;
} // namespace

CameraFeed::CameraFeed(Camera camera, const std::optional<Composition> &composition,
                       const std::vector<ClipRef> &clips, std::chrono::milliseconds clipLimit, int decoderThreads,
                       std::stop_token stop)
    : camera_(camera), clipLimit_(clipLimit), decoderThreads_(decoderThreads), stop_(stop)
{
    if (composition && !composition->tracks().empty()) {
        for (const Composition::Segment &s : composition->tracks().front().segments) {
            Segment segment;
            segment.path = s.file;
            segment.start = s.timelineStart.seconds();
            segment.end = s.timelineEnd().seconds();
            segment.sourceStart = s.sourceStart.seconds();
            for (const ClipRef &clip : clips)
                if (clip.url == s.file) {
                    segment.clipStart = clip.startDate;
                    break;
                }
            segments_.push_back(segment);
        }
    }
    shown_ = av_frame_alloc();
    next_ = av_frame_alloc();
    packet_ = av_packet_alloc();
    decoded_ = av_frame_alloc();
    if (!shown_ || !next_ || !packet_ || !decoded_) {
        av_frame_free(&shown_);
        av_frame_free(&next_);
        av_packet_free(&packet_);
        av_frame_free(&decoded_);
        throw std::bad_alloc();
    }
}

CameraFeed::~CameraFeed()
{
    close();
    av_frame_free(&shown_);
    av_frame_free(&next_);
    av_packet_free(&packet_);
    av_frame_free(&decoded_);
}

void CameraFeed::close()
{
    // A reader left on a stuck read ends on its own when the read does.
    reader_.reset();
    avcodec_free_context(&decoder_);
    av_packet_unref(packet_);
    av_frame_unref(decoded_);
    videoStream_ = -1;
    inputEnded_ = false;
    failed_ = false;
    hasShown_ = false;
    hasNext_ = false;
    av_frame_unref(shown_);
    av_frame_unref(next_);
}

bool CameraFeed::open(size_t index, double local)
{
    close();
    const Segment &segment = segments_[index];
    std::optional<int64_t> seekTo;
    if (local > seekWorthwhile)
        seekTo = std::llround(local * AV_TIME_BASE);
    reader_ = std::make_unique<ClipPacketReader>(segment.path, seekTo, clipLimit_, stop_,
                                                 ClipPacketReader::Options{.probe = true, .seekFromVideoStart = true});
    const auto streams = reader_->open();
    if (stop_.stop_requested())
        throw CancellationError();
    const AVCodec *codec = streams ? avcodec_find_decoder(streams->videoParameters->codec_id) : nullptr;
    if (codec)
        decoder_ = avcodec_alloc_context3(codec);
    if (!decoder_ || avcodec_parameters_to_context(decoder_, streams->videoParameters.get()) < 0) {
        close();
        failed_ = true;
        return false;
    }
    videoStream_ = streams->video;
    const AVRational base = streams->timeBases[size_t(videoStream_)];
    timeBase_ = av_q2d(base);
    videoStart_ = streams->videoStart;
    decoder_->pkt_timebase = base;
    decoder_->thread_count = decoderThreads_;
    if (avcodec_open2(decoder_, codec, nullptr) < 0) {
        close();
        failed_ = true;
        return false;
    }
    if (streams->videoFrameRate.num > 0)
        frameRate_ = av_q2d(streams->videoFrameRate);
    pull();
    if (!hasNext_) {
        close();
        failed_ = true;
        return false;
    }
    return true;
}

// The next picture of the open clip with its time from the clip's first
// moment, or null at its end, on a damaged stretch, or on a read that
// didn't answer in time (the decoder still gives what it holds).
const AVFrame *CameraFeed::decodeNext(double *time)
{
    for (;;) {
        const int received = avcodec_receive_frame(decoder_, decoded_);
        if (received == 0) {
            int64_t pts = decoded_->best_effort_timestamp;
            if (pts == AV_NOPTS_VALUE)
                pts = decoded_->pts;
            if (pts == AV_NOPTS_VALUE)
                pts = videoStart_;
            *time = double(pts - videoStart_) * timeBase_;
            return decoded_;
        }
        if (received != AVERROR(EAGAIN) || inputEnded_)
            return nullptr;
        const ClipPacketReader::Read read = reader_->next(packet_);
        if (stop_.stop_requested())
            throw CancellationError();
        if (read != ClipPacketReader::Read::packet) {
            inputEnded_ = true;
            avcodec_send_packet(decoder_, nullptr);
            continue;
        }
        if (packet_->stream_index == videoStream_) {
            const int sent = avcodec_send_packet(decoder_, packet_);
            if (sent < 0 && sent != AVERROR(EAGAIN) && sent != AVERROR_INVALIDDATA) {
                av_packet_unref(packet_);
                return nullptr;
            }
        }
        av_packet_unref(packet_);
    }
}

void CameraFeed::pull()
{
    hasNext_ = false;
    av_frame_unref(next_);
    if (!decoder_)
        return;
    if (stop_.stop_requested())
        throw CancellationError();
    const Segment &segment = segments_[current_];
    double time = 0;
    const AVFrame *frame = decodeNext(&time);
    // Past the length the clip was placed with, its pictures belong to nothing.
    if (!frame || time >= segment.sourceStart + (segment.end - segment.start) - epsilon)
        return;
    av_frame_move_ref(next_, decoded_);
    nextTime_ = time;
    hasNext_ = true;
}

void CameraFeed::start(double from)
{
    for (size_t index = 0; index < segments_.size(); ++index) {
        const Segment &segment = segments_[index];
        if (segment.end <= from + epsilon)
            continue;
        current_ = index;
        if (!open(index, std::max(0.0, from - segment.start) + segment.sourceStart))
            continue;
        width_ = next_->width;
        height_ = next_->height;
        pixelFormat_ = next_->format;
        return;
    }
    current_ = segments_.size();
}

CameraFeed::Picture CameraFeed::at(double t)
{
    while (current_ < segments_.size() && t >= segments_[current_].end - epsilon) {
        close();
        ++current_;
    }
    if (current_ >= segments_.size() || t < segments_[current_].start - epsilon)
        return {};
    const Segment &segment = segments_[current_];
    const double local = segment.sourceStart + (t - segment.start);
    if (!decoder_ && !failed_)
        open(current_, local);
    if (failed_)
        return {};
    while (hasNext_ && nextTime_ <= local + epsilon) {
        std::swap(shown_, next_);
        shownTime_ = nextTime_;
        hasShown_ = true;
        pull();
    }
    if (!hasShown_) {
        // Before the clip's first picture: that picture, when it is near.
        if (hasNext_ && nextTime_ - local < holdAfterLastPicture)
            return Picture{next_, segment.clipStart.addingTimeInterval(nextTime_)};
        return {};
    }
    if (!hasNext_ && local - shownTime_ > holdAfterLastPicture)
        return {};
    return Picture{shown_, segment.clipStart.addingTimeInterval(shownTime_)};
}
