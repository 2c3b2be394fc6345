#include "export/CameraFeed.h"

#include "export/ClipPacketReader.h"
#include "media/VideoDecoder.h"
#include "base/CancellationError.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/frame.h>
}

#include <cmath>

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
    shown_ = Av::makeFrame();
    next_ = Av::makeFrame();
}

CameraFeed::~CameraFeed()
{
    close();
}

void CameraFeed::close()
{
    decoder_.reset();
    // A reader left on a stuck read ends on its own when the read does.
    reader_.reset();
    videoStream_ = -1;
    failed_ = false;
    hasShown_ = false;
    hasNext_ = false;
    av_frame_unref(shown_.get());
    av_frame_unref(next_.get());
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
    if (streams) {
        const AVRational base = streams->timeBases[size_t(streams->video)];
        decoder_ = VideoDecoder::open(streams->videoParameters.get(), base,
                                      VideoDecoder::Options{.threads = decoderThreads_});
        videoStream_ = streams->video;
        timeBase_ = av_q2d(base);
        videoStart_ = streams->videoStart;
        if (streams->videoFrameRate.num > 0)
            frameRate_ = av_q2d(streams->videoFrameRate);
    }
    if (decoder_)
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
    const AVFrame *frame = decoder_->next([this](AVPacket *into) {
        for (;;) {
            const ClipPacketReader::Read read = reader_->next(into);
            if (stop_.stop_requested()) {
                av_packet_unref(into);
                throw CancellationError();
            }
            if (read != ClipPacketReader::Read::packet)
                return false;
            if (into->stream_index == videoStream_)
                return true;
            av_packet_unref(into);
        }
    });
    if (!frame)
        return nullptr;
    int64_t pts = VideoDecoder::timestampOf(frame);
    if (pts == AV_NOPTS_VALUE)
        pts = videoStart_;
    *time = double(pts - videoStart_) * timeBase_;
    return frame;
}

void CameraFeed::pull()
{
    hasNext_ = false;
    av_frame_unref(next_.get());
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
    if (av_frame_ref(next_.get(), frame) < 0)
        return;
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
            return Picture{next_.get(), segment.clipStart.addingTimeInterval(nextTime_)};
        return {};
    }
    if (!hasNext_ && local - shownTime_ > holdAfterLastPicture)
        return {};
    return Picture{shown_.get(), segment.clipStart.addingTimeInterval(shownTime_)};
}
