#include "moments/ClipActivity.h"

#include "base/CancellationError.h"
#include "media/AvHandles.h"
#include "media/MediaClip.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

namespace {

// Block means of the picture's brightness. Every second pixel of every
// second row is plenty for a 48 × 36 grid, and a quarter of the work.
std::optional<ClipActivity::Grid> gridOf(const AVFrame *frame)
{
    const AVPixFmtDescriptor *format = av_pix_fmt_desc_get(AVPixelFormat(frame->format));
    if (!format || (format->flags & (AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_HWACCEL)) || frame->width < 2 ||
        frame->height < 2 || !frame->data[0])
        return std::nullopt;
    const bool wide = format->comp[0].depth > 8;
    constexpr int columns = ClipActivity::gridColumns, rows = ClipActivity::gridRows;
    std::vector<double> sums(size_t(columns * rows), 0.0);
    std::vector<int> counts(size_t(columns * rows), 0);
    std::vector<int> columnOf(size_t(frame->width));
    for (int x = 0; x < frame->width; ++x)
        columnOf[size_t(x)] = x * columns / frame->width;
    for (int y = 0; y < frame->height; y += 2) {
        const int row = y * rows / frame->height;
        const uint8_t *line = frame->data[0] + ptrdiff_t(y) * frame->linesize[0];
        double *sum = sums.data() + row * columns;
        int *count = counts.data() + row * columns;
        for (int x = 0; x < frame->width; x += 2) {
            const int c = columnOf[size_t(x)];
            sum[c] += wide ? reinterpret_cast<const uint16_t *>(line)[x] >> (format->comp[0].depth - 8) : line[x];
            ++count[c];
        }
    }
    ClipActivity::Grid grid(sums.size());
    for (size_t i = 0; i < grid.size(); ++i)
        grid[i] = counts[i] ? float(sums[i] / counts[i]) : 0.0f;
    return grid;
}

} // namespace

float ClipActivity::change(const Grid &before, const Grid &after)
{
    if (before.size() != after.size() || before.empty())
        return 0.0f;
    const double n = double(before.size());
    std::vector<float> differences(before.size());
    for (size_t i = 0; i < before.size(); ++i)
        differences[i] = after[i] - before[i];
    // The light's shift is what most blocks moved by: the median, since the
    // blocks at black or white can't follow it.
    const auto middle = differences.begin() + ptrdiff_t(differences.size() / 2);
    std::nth_element(differences.begin(), middle, differences.end());
    const float shift = *middle;
    for (float &d : differences)
        d = std::abs(d - shift);
    const size_t top = std::max<size_t>(1, size_t(std::lround(n * changedShare)));
    std::nth_element(differences.begin(), differences.begin() + ptrdiff_t(top) - 1, differences.end(),
                     std::greater<float>());
    return float(std::accumulate(differences.begin(), differences.begin() + ptrdiff_t(top), 0.0) / double(top));
}

std::optional<ClipActivity> ClipActivity::read(const QString &path, std::stop_token stop)
{
    MediaClip::Options options;
    VideoDecoder::Options decode;
    decode.keyFramesOnly = true;
    options.decode = decode;
    const auto opened = MediaClip::open(path, stop, options);
    if (stop.stop_requested())
        throw CancellationError();
    if (!opened->isOpened() || !opened->decoder())
        return std::nullopt;
    AVFormatContext *format = opened->context();
    AVStream *stream = opened->video();
    const int video = opened->videoStream();
    opened->demuxer()->keepOnly(video);
    VideoDecoder &decoder = *opened->decoder();

    const double timeBase = av_q2d(stream->time_base);
    const int entries = avformat_index_get_entries_count(stream);
    if (entries <= 0)
        return std::nullopt;
    // Times as the player counts them: the first frame at 0.
    const int64_t first = avformat_index_get_entry(stream, 0)->timestamp;
    ClipActivity activity;
    std::vector<int64_t> keys;
    for (int i = 0; i < entries; ++i) {
        const AVIndexEntry *entry = avformat_index_get_entry(stream, i);
        if (entry && !(entry->flags & AVINDEX_DISCARD_FRAME)) {
            activity.duration = std::max(activity.duration, double(entry->timestamp - first) * timeBase);
            if (entry->flags & AVINDEX_KEYFRAME)
                keys.push_back(entry->timestamp);
        }
    }
    if (stream->duration > 0)
        activity.duration = std::max(activity.duration, double(stream->duration) * timeBase);
    activity.changePerSecond.assign(size_t(std::ceil(activity.duration)), -1.0f);

    const Av::Packet packet(av_packet_alloc());
    if (!packet)
        return std::nullopt;
    std::optional<Grid> previous;
    double previousTime = 0;
    for (const int64_t key : keys) {
        if (stop.stop_requested())
            throw CancellationError();
        // Straight to the key frame's sample: the frames between are never read.
        if (av_seek_frame(format, video, key, AVSEEK_FLAG_BACKWARD) < 0)
            break;
        decoder.flush();
        const AVFrame *picture = nullptr;
        while (av_read_frame(format, packet.get()) >= 0) {
            const bool ours = packet->stream_index == video;
            if (ours && (packet->flags & AV_PKT_FLAG_KEY)) {
                decoder.send(packet.get());
                decoder.send(nullptr);
                picture = decoder.receive();
            }
            av_packet_unref(packet.get());
            if (ours)
                break; // a damaged key frame costs its own seconds
        }
        std::optional<Grid> grid = picture ? gridOf(picture) : std::nullopt;
        const double time = double(key - first) * timeBase;
        if (grid && previous) {
            const float value = change(*previous, *grid);
            // The change between two key frames belongs to the seconds between them.
            for (size_t s = size_t(std::max(0.0, std::floor(previousTime))); s < activity.changePerSecond.size(); ++s) {
                const double middle = double(s) + 0.5;
                if (middle >= time)
                    break;
                if (middle >= previousTime)
                    activity.changePerSecond[s] = std::max(activity.changePerSecond[s], value);
            }
        }
        if (grid) {
            previous = std::move(grid);
            previousTime = time;
        }
    }
    if (stop.stop_requested())
        throw CancellationError();
    return activity;
}
