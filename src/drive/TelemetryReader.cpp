#include "drive/TelemetryReader.h"

#include "drive/MediaInput.h"
#include "drive/SeiTelemetry.h"
#include "model/CancellationError.h"

extern "C" {
#include <libavcodec/packet.h>
#include <libavformat/avformat.h>
}

#include <memory>

namespace TelemetryReader {

namespace {
struct PacketFree {
    void operator()(AVPacket *p) const { av_packet_free(&p); }
};
} // namespace

std::optional<TelemetryTrack> readClip(const ClipRef &clip, std::stop_token stop)
{
    const auto input = MediaInput::open(clip.url, stop, {.mp4Only = true});
    if (stop.stop_requested())
        throw CancellationError();
    if (!input)
        return std::nullopt;
    AVFormatContext *format = input->context();
    const int video = input->bestStream(AVMEDIA_TYPE_VIDEO);
    if (video < 0)
        return std::nullopt;
    // Only the video's packets are read; the rest is skipped unread.
    for (unsigned i = 0; i < format->nb_streams; ++i)
        format->streams[i]->discard = int(i) == video ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    const AVStream *stream = format->streams[video];
    const AVCodecParameters *params = stream->codecpar;
    const auto nal = SeiTelemetry::NalFormat::fromStream(params->codec_id, params->extradata,
                                                         params->extradata_size > 0 ? size_t(params->extradata_size) : 0);
    // Times as the player counts them: the stream's first frame at 0.
    const double timeBase = av_q2d(stream->time_base);
    const int64_t startPts = stream->start_time != AV_NOPTS_VALUE ? stream->start_time : 0;
    double duration = 0.0;
    if (stream->duration > 0)
        duration = double(stream->duration) * timeBase;
    else if (format->duration > 0)
        duration = double(format->duration) / AV_TIME_BASE;

    std::vector<TelemetryTrack::Frame> frames;
    if (const int indexed = avformat_index_get_entries_count(stream); indexed > 0)
        frames.reserve(size_t(indexed));
    const std::unique_ptr<AVPacket, PacketFree> packet(av_packet_alloc());
    if (!packet)
        return std::nullopt;
    while (av_read_frame(format, packet.get()) >= 0) {
        if (packet->stream_index == video) {
            const int64_t pts = packet->pts != AV_NOPTS_VALUE ? packet->pts : packet->dts;
            if (pts != AV_NOPTS_VALUE)
                frames.push_back({double(pts - startPts) * timeBase,
                                  SeiTelemetry::recordInPacket(packet->data, size_t(packet->size), nal)});
        }
        av_packet_unref(packet.get());
    }
    // The end of the file, a damaged tail or a failed read: what was read stands.
    if (stop.stop_requested())
        throw CancellationError();
    return TelemetryTrack::make(clip, duration, std::move(frames));
}

} // namespace TelemetryReader
