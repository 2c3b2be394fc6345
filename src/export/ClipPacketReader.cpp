#include "export/ClipPacketReader.h"

#include "media/MediaClip.h"
#include "base/IOWatchdog.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>

namespace {
// Enough to keep the writer fed across a slow read, little enough to stay
// small at the largest pictures.
constexpr size_t readAhead = 32;
} // namespace

struct ClipPacketReader::State {
    std::mutex mutex;
    std::condition_variable changed;
    std::stop_source stop;
    bool opened = false;
    bool ended = false;
    std::optional<Streams> streams;
    std::deque<Av::Packet> packets;

    void end()
    {
        std::lock_guard lock(mutex);
        opened = true;
        ended = true;
        changed.notify_all();
    }
};

void ClipPacketReader::readClip(const std::shared_ptr<State> &state, const QString &path,
                                std::optional<int64_t> seekTo, Options options)
{
    const std::stop_token stop = state->stop.get_token();
    MediaClip::Options open;
    open.mp4Only = false;
    open.streamInfo = options.probe ? MediaClip::StreamInfo::always : MediaClip::StreamInfo::never;
    const auto clip = MediaClip::open(path, stop, open);
    if (!clip->isOpened()) {
        state->end();
        return;
    }
    AVFormatContext *format = clip->context();
    Streams streams;
    streams.video = clip->videoStream();
    streams.audio = clip->demuxer()->bestStream(AVMEDIA_TYPE_AUDIO);
    for (unsigned i = 0; i < format->nb_streams; ++i)
        streams.timeBases.push_back(format->streams[i]->time_base);
    streams.videoParameters = Av::copyParameters(format->streams[streams.video]->codecpar);
    if (!streams.videoParameters) {
        state->end();
        return;
    }
    const AVStream *video = format->streams[streams.video];
    if (video->start_time != AV_NOPTS_VALUE)
        streams.videoStart = video->start_time;
    if (video->avg_frame_rate.num > 0 && video->avg_frame_rate.den > 0)
        streams.videoFrameRate = video->avg_frame_rate;
    if (seekTo) {
        int64_t at = *seekTo;
        if (options.seekFromVideoStart)
            at += av_rescale_q(streams.videoStart, video->time_base, AVRational{1, AV_TIME_BASE});
        av_seek_frame(format, -1, at, AVSEEK_FLAG_BACKWARD);
    }
    {
        std::lock_guard lock(state->mutex);
        state->streams = std::move(streams);
        state->opened = true;
        state->changed.notify_all();
    }
    while (!stop.stop_requested()) {
        Av::Packet packet(av_packet_alloc());
        if (!packet || av_read_frame(format, packet.get()) < 0)
            break;
        std::unique_lock lock(state->mutex);
        state->changed.wait(lock, [&] { return state->packets.size() < readAhead || stop.stop_requested(); });
        if (stop.stop_requested())
            break;
        state->packets.push_back(std::move(packet));
        state->changed.notify_all();
    }
    state->end();
}

ClipPacketReader::ClipPacketReader(const QString &path, std::optional<int64_t> seekTo,
                                   std::chrono::milliseconds limit, std::stop_token stop, Options options)
    : state_(std::make_shared<State>()), limit_(limit),
      forwardStop_(stop, [state = state_] {
          state->stop.request_stop();
          std::lock_guard lock(state->mutex);
          state->changed.notify_all();
      })
{
    try {
        IOWatchdog::detail::startThread([state = state_, path, seekTo, options] { readClip(state, path, seekTo, options); });
    } catch (const std::system_error &) {
        state_->end();
    }
}

ClipPacketReader::ClipPacketReader(const QString &path, std::optional<int64_t> seekTo,
                                   std::chrono::milliseconds limit, std::stop_token stop)
    : ClipPacketReader(path, seekTo, limit, stop, Options())
{
}

ClipPacketReader::~ClipPacketReader()
{
    // Not joined: a thread stuck on the drive ends on its own when the read does.
    state_->stop.request_stop();
    std::lock_guard lock(state_->mutex);
    state_->changed.notify_all();
}

std::optional<ClipPacketReader::Streams> ClipPacketReader::open()
{
    std::unique_lock lock(state_->mutex);
    if (!state_->changed.wait_for(lock, limit_, [&] { return state_->opened || state_->stop.stop_requested(); }))
        return std::nullopt;
    return state_->streams;
}

ClipPacketReader::Read ClipPacketReader::next(AVPacket *into)
{
    std::unique_lock lock(state_->mutex);
    const bool answered = state_->changed.wait_for(lock, limit_, [&] {
        return !state_->packets.empty() || state_->ended || state_->stop.stop_requested();
    });
    if (!state_->packets.empty()) {
        av_packet_move_ref(into, state_->packets.front().get());
        state_->packets.pop_front();
        state_->changed.notify_all();
        return Read::packet;
    }
    if (!answered) {
        state_->stop.request_stop();
        return Read::stuck;
    }
    return Read::end;
}
