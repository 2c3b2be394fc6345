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

constexpr int samplesAcross = 8;

// Block means of the picture's brightness. About eight by eight pixels of
// each block are plenty to even out the noise: a large picture is sampled
// sparsely, a small one whole.
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
    const int step = std::max(1, std::min(frame->width / (columns * samplesAcross), frame->height / (rows * samplesAcross)));
    for (int y = 0; y < frame->height; y += step) {
        const int row = y * rows / frame->height;
        const uint8_t *line = frame->data[0] + ptrdiff_t(y) * frame->linesize[0];
        double *sum = sums.data() + row * columns;
        int *count = counts.data() + row * columns;
        for (int x = 0; x < frame->width; x += step) {
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
    std::vector<double> sizeSums;
    std::vector<int> sizeCounts;
    for (int i = 0; i < entries; ++i) {
        const AVIndexEntry *entry = avformat_index_get_entry(stream, i);
        if (!entry || (entry->flags & AVINDEX_DISCARD_FRAME))
            continue;
        const double time = double(entry->timestamp - first) * timeBase;
        activity.duration = std::max(activity.duration, time);
        if (entry->flags & AVINDEX_KEYFRAME) {
            keys.push_back(entry->timestamp);
        } else if (time >= 0 && time < 24 * 3600) {
            const size_t second = size_t(time);
            if (second >= sizeSums.size()) {
                sizeSums.resize(second + 1, 0.0);
                sizeCounts.resize(second + 1, 0);
            }
            sizeSums[second] += entry->size;
            ++sizeCounts[second];
        }
    }
    if (stream->duration > 0)
        activity.duration = std::max(activity.duration, double(stream->duration) * timeBase);
    activity.changePerSecond.assign(size_t(std::ceil(activity.duration)), -1.0f);
    if (keys.size() < 2)
        return activity;
    const auto timeOf = [&](size_t k) { return double(keys[k] - first) * timeBase; };

    const Av::Packet packet(av_packet_alloc());
    if (!packet)
        return std::nullopt;
    std::vector<std::optional<Grid>> grids(keys.size());
    std::vector<bool> tried(keys.size(), false);
    const auto gridAt = [&](size_t k) -> const std::optional<Grid> & {
        if (tried[k])
            return grids[k];
        tried[k] = true;
        if (stop.stop_requested())
            throw CancellationError();
        // Straight to the key frame's sample: the frames between are never read.
        if (av_seek_frame(format, video, keys[k], AVSEEK_FLAG_BACKWARD) < 0)
            return grids[k];
        decoder.flush();
        while (av_read_frame(format, packet.get()) >= 0) {
            const bool ours = packet->stream_index == video;
            if (ours && (packet->flags & AV_PKT_FLAG_KEY)) {
                decoder.send(packet.get());
                decoder.send(nullptr);
                if (const AVFrame *picture = decoder.receive())
                    grids[k] = gridOf(picture);
            }
            av_packet_unref(packet.get());
            if (ours)
                break; // a damaged key frame costs its own seconds
        }
        return grids[k];
    };
    // The change between two key frames belongs to the seconds between them.
    const auto assign = [&](size_t from, size_t to) {
        const auto &a = gridAt(from), &b = gridAt(to);
        if (!a || !b)
            return;
        const float value = change(*a, *b);
        for (size_t s = size_t(std::max(0.0, std::floor(timeOf(from)))); s < activity.changePerSecond.size(); ++s) {
            const double middle = double(s) + 0.5;
            if (middle >= timeOf(to))
                break;
            if (middle >= timeOf(from))
                activity.changePerSecond[s] = value;
        }
    };

    // First every key frame about coarseSpacing apart; then every one
    // between where that pair changed, or where the coded sizes rose.
    std::vector<double> intervals;
    for (size_t k = 1; k < keys.size(); ++k)
        intervals.push_back(timeOf(k) - timeOf(k - 1));
    std::nth_element(intervals.begin(), intervals.begin() + ptrdiff_t(intervals.size() / 2), intervals.end());
    const double typical = std::max(1e-3, intervals[intervals.size() / 2]);
    const size_t stride = std::max<size_t>(1, size_t(std::floor(coarseSpacing / typical + 1e-6)));
    std::vector<std::pair<size_t, size_t>> pairs;
    for (size_t k = 0; k + 1 < keys.size(); k += stride)
        pairs.emplace_back(k, std::min(k + stride, keys.size() - 1));
    std::vector<float> coarse;
    for (const auto &[from, to] : pairs) {
        const auto &a = gridAt(from), &b = gridAt(to);
        coarse.push_back(a && b ? change(*a, *b) : -1.0f);
    }
    const auto lowShare = [](std::vector<float> values) {
        values.erase(std::remove_if(values.begin(), values.end(), [](float v) { return v <= 0; }), values.end());
        if (values.empty())
            return 0.0f;
        const auto at = values.begin() + ptrdiff_t(double(values.size() - 1) * 0.2);
        std::nth_element(values.begin(), at, values.end());
        return *at;
    };
    std::vector<float> sizes(sizeSums.size(), 0.0f);
    for (size_t second = 0; second < sizes.size(); ++second)
        sizes[second] = sizeCounts[second] ? float(sizeSums[second] / sizeCounts[second]) : 0.0f;
    const float quietChange = std::max(float(refineFloor), lowShare(coarse));
    const float quietSize = lowShare(sizes);
    for (size_t i = 0; i < pairs.size(); ++i) {
        const auto [from, to] = pairs[i];
        bool look = coarse[i] >= quietChange * refineRatio;
        for (size_t second = size_t(std::max(0.0, timeOf(from))); !look && second < sizes.size() && second < timeOf(to); ++second)
            look = quietSize > 0 && sizes[second] >= quietSize * refineRatio;
        if (look && to - from > 1) {
            for (size_t k = from; k < to; ++k)
                assign(k, k + 1);
        } else {
            assign(from, to);
        }
    }
    if (stop.stop_requested())
        throw CancellationError();
    return activity;
}
