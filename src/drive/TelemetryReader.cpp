#include "drive/TelemetryReader.h"

#include "drive/SeiTelemetry.h"
#include "media/AvHandles.h"
#include "media/MediaClip.h"
#include "base/CancellationError.h"

extern "C" {
#include <libavcodec/packet.h>
#include <libavformat/avformat.h>
#include <libavutil/parseutils.h>
}

#include <memory>

namespace TelemetryReader {

namespace {

// The header's creation time, which the car sets from its GPS clock; a
// movie that gives none (or the muxer's zero) has no known UTC start.
std::optional<Date> headerStart(const AVFormatContext *format)
{
    const AVDictionaryEntry *entry = av_dict_get(format->metadata, "creation_time", nullptr, 0);
    if (!entry || !entry->value)
        return std::nullopt;
    int64_t micros = 0; // since 1970, UTC: the header's times carry no zone
    if (av_parse_time(&micros, entry->value, 0) < 0 || micros <= 0)
        return std::nullopt;
    return Date::fromUnixSeconds(double(micros) / 1e6);
}

} // namespace

std::optional<TelemetryTrack> readClip(const ClipRef &clip, std::stop_token stop)
{
    const auto opened = MediaClip::open(clip.url, stop, MediaClip::Options{});
    if (stop.stop_requested())
        throw CancellationError();
    if (!opened->isOpened())
        return std::nullopt;
    AVFormatContext *format = opened->context();
    const int video = opened->videoStream();
    // Only the video's packets are read; the rest is skipped unread.
    opened->demuxer()->keepOnly(video);
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
    const Av::Packet packet(av_packet_alloc());
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
    TelemetryTrack track = TelemetryTrack::make(clip, duration, std::move(frames));
    track.headerStart = headerStart(format);
    return track;
}

} // namespace TelemetryReader
