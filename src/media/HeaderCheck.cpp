#include "media/HeaderCheck.h"

#include "media/AvHandles.h"
#include "media/Demuxer.h"
#include "media/Mp4SampleTables.h"
#include "media/PictureSize.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <vector>

namespace HeaderCheck {

namespace {

using Verdict = ClipFacts::Verdict;

// Packets read while looking for the video's first; other streams' come between.
constexpr int packetsToFirstPicture = 64;
// A header's length may exceed its samples' by this much (rounding, a last
// picture held a little longer) before the samples are taken for short.
constexpr double lengthSlackSeconds = 0.5;

// A count or length off by this much is a damaged header, not rounding.
uint64_t countSlack(uint64_t count)
{
    return std::max<uint64_t>(2, count / 10);
}
double lengthSlack(double seconds)
{
    return std::max(1.0, 0.1 * seconds);
}

QString secondsText(double value)
{
    return QString::number(value, 'g', 4) + QStringLiteral(" s");
}

ClipFacts contradicted(const QString &reason)
{
    ClipFacts facts;
    facts.verdict = Verdict::contradicted;
    facts.reason = reason;
    return facts;
}

// ISO base media (MP4, MOV): always indexed, so a missing index is damage.
bool isIsoMedia(const AVFormatContext *format)
{
    return format->iformat && std::strstr(format->iformat->name, "mp4");
}

bool isVideoFormat(const QByteArray &fourcc)
{
    if (fourcc.size() != 4)
        return false;
    const AVCodecTag *const tags[] = {avformat_get_mov_video_tags(), nullptr};
    return av_codec_get_id(tags, MKTAG(fourcc[0], fourcc[1], fourcc[2], fourcc[3])) != AV_CODEC_ID_NONE;
}

// What the header's own tables say that no data can make true.
std::optional<QString> declaredContradiction(const Mp4SampleTables::Header &header,
                                             const Mp4SampleTables::Track &track)
{
    if (track.timeScale == 0)
        return QStringLiteral("a time scale of 0");
    if (track.timedSamples == 0)
        return QStringLiteral("a time table without samples");
    const double scale = track.timeScale;
    const double timed = track.timedDuration / scale;
    const double longest = double(track.longestDelta) / scale;
    if (longest > longestSampleSeconds && longest > longestSampleInFrames * double(track.medianDelta) / scale)
        return QStringLiteral("one sample lasts %1").arg(secondsText(longest));
    if (track.timedSamples >= 2 && !(double(track.timedSamples) >= slowestFramesPerSecond * timed))
        return QStringLiteral("%1 samples over %2").arg(track.timedSamples).arg(secondsText(timed));
    const uint64_t placed = track.chunkCapacity + countSlack(track.chunkCapacity);
    if (track.sizedSamples > placed || track.timedSamples > placed)
        return QStringLiteral("the header counts %1 samples, its chunks hold %2")
            .arg(std::max(track.sizedSamples, track.timedSamples))
            .arg(track.chunkCapacity);
    const double declared = double(track.mediaDuration) / scale;
    if (declared > 0 && timed > declared + lengthSlack(declared))
        return QStringLiteral("samples last %1, the header %2").arg(secondsText(timed), secondsText(declared));
    double played = 0;
    for (const Mp4SampleTables::Edit &edit : track.edits) {
        if (edit.mediaTime == -1)
            continue; // an empty edit: the media starts later
        if (edit.mediaTime < 0 || double(edit.mediaTime) / scale >= timed)
            return QStringLiteral("an edit starts outside the media");
        if (header.movieTimeScale == 0)
            return QStringLiteral("an edit list without a time scale");
        played += double(edit.segmentDuration) / header.movieTimeScale;
    }
    if (played > timed + lengthSlack(timed))
        return QStringLiteral("the edit list plays %1 of %2").arg(secondsText(played), secondsText(timed));
    return std::nullopt;
}

// What the header's own tables promise that its samples don't give.
std::optional<QString> declaredShortfall(const Mp4SampleTables::Track &track)
{
    if (track.sizedSamples + countSlack(track.timedSamples) < track.timedSamples)
        return QStringLiteral("the size table stops at sample %1 of %2").arg(track.sizedSamples).arg(track.timedSamples);
    const double timed = track.timedDuration / track.timeScale;
    const double declared = double(track.mediaDuration) / track.timeScale;
    const double frame = timed / double(track.timedSamples);
    if (declared > timed + std::max(lengthSlackSeconds, 3 * frame))
        return QStringLiteral("the header promises %1, the samples last %2").arg(secondsText(declared), secondsText(timed));
    return std::nullopt;
}

Av::Packet firstPacketOf(AVFormatContext *format, int stream)
{
    Av::Packet packet(av_packet_alloc());
    for (int i = 0; packet && i < packetsToFirstPicture; ++i) {
        if (av_read_frame(format, packet.get()) < 0)
            return nullptr;
        if (packet->stream_index == stream)
            return packet;
        av_packet_unref(packet.get());
    }
    return nullptr;
}

double medianOf(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// The samples libavformat indexed, against the file and against time.
// indexedLength: how long the indexed samples within the file last.
// indexRequired: the header itself lists the samples (ISO media that isn't
// fragmented), so a stream without an index holds nothing.
ClipFacts measureIndex(Demuxer &demuxer, AVStream *stream, double headerLength, bool indexRequired,
                       double &indexedLength)
{
    const AVFormatContext *format = demuxer.context();
    const double timeBase = av_q2d(stream->time_base);
    const int count = avformat_index_get_entries_count(stream);
    ClipFacts facts;
    if (count <= 0) {
        if (indexRequired)
            return contradicted(QStringLiteral("no samples"));
        // A container without an index: its header is all there is to go by.
        facts.lengthSeconds = indexedLength = headerLength;
        return facts;
    }
    // Samples in decode order; those from the first that doesn't lie wholly
    // within the file are data the file no longer holds.
    const int64_t fileSize = demuxer.fileSize();
    int fitting = 0;
    for (; fitting < count; ++fitting) {
        const AVIndexEntry *entry = avformat_index_get_entry(stream, fitting);
        if (!entry || entry->pos < 0 || entry->size < 0 || (fileSize >= 0 && entry->pos + entry->size > fileSize))
            break;
    }
    if (fitting == 0)
        return contradicted(QStringLiteral("no sample lies within the file"));

    std::vector<int64_t> times;
    times.reserve(size_t(fitting));
    for (int i = 0; i < fitting; ++i) {
        const AVIndexEntry *entry = avformat_index_get_entry(stream, i);
        if (!(entry->flags & AVINDEX_DISCARD_FRAME))
            times.push_back(entry->timestamp);
    }
    if (times.empty())
        return contradicted(QStringLiteral("no sample is shown"));
    std::sort(times.begin(), times.end());
    double indexed = std::min(headerLength, longestSampleSeconds); // one picture
    if (times.size() >= 2) {
        std::vector<double> steps;
        steps.reserve(times.size() - 1);
        for (size_t i = 1; i < times.size(); ++i)
            steps.push_back(double(times[i] - times[i - 1]) * timeBase);
        const double span = double(times.back() - times.front()) * timeBase;
        const double largest = *std::max_element(steps.begin(), steps.end());
        if (largest > longestSampleSeconds && largest > longestSampleInFrames * medianOf(steps))
            return contradicted(QStringLiteral("one sample lasts %1").arg(secondsText(largest)));
        if (!(double(times.size() - 1) >= slowestFramesPerSecond * span) || !(span > 0))
            return contradicted(QStringLiteral("%1 samples over %2").arg(times.size()).arg(secondsText(span)));
        indexed = span + span / double(times.size() - 1); // the last picture lasts one frame too
    }
    const double movieLength = format->duration > 0 ? double(format->duration) / AV_TIME_BASE : 0.0;
    for (const double length : {headerLength, movieLength})
        if (length > 0 && indexed > length + lengthSlack(length))
            return contradicted(
                QStringLiteral("samples last %1, the header %2").arg(secondsText(indexed), secondsText(length)));

    indexedLength = indexed;
    facts.samples = fitting;
    facts.lengthSeconds = headerLength > 0 ? headerLength : indexed;
    if (fitting < count) {
        facts.verdict = Verdict::shortened;
        facts.reason = QStringLiteral("the file ends at sample %1 of %2").arg(fitting).arg(count);
        facts.lengthSeconds = indexed;
    } else if (headerLength > indexed + std::max(lengthSlackSeconds, 3 * indexed / double(times.size()))) {
        facts.verdict = Verdict::shortened;
        facts.reason = QStringLiteral("the header promises %1, the samples last %2")
                           .arg(secondsText(headerLength), secondsText(indexed));
        facts.lengthSeconds = indexed;
    }
    return facts;
}

} // namespace

ClipFacts measure(Demuxer &demuxer, int videoStream)
{
    AVFormatContext *format = demuxer.context();
    AVStream *stream = format->streams[videoStream];
    const AVCodecParameters *parameters = stream->codecpar;
    // The picture size as the header declares it; libavformat may already
    // have replaced it with what it decoded.
    int width = parameters->width;
    int height = parameters->height;

    std::optional<QString> shortfall;
    bool indexRequired = false;
    if (isIsoMedia(format)) {
        const auto header = Mp4SampleTables::read(
            [&demuxer](int64_t offset, char *buffer, int64_t size) { return demuxer.readAt(offset, buffer, size); },
            demuxer.fileSize());
        indexRequired = !header || !header->fragmented;
        // libavformat numbers its streams in the order of the tracks.
        if (header && size_t(videoStream) < header->tracks.size()) {
            const Mp4SampleTables::Track &track = header->tracks[size_t(videoStream)];
            if (track.width > 0 || track.height > 0) {
                width = track.width;
                height = track.height;
            }
            if (!header->fragmented) {
                if (const auto reason = declaredContradiction(*header, track))
                    return contradicted(*reason);
                shortfall = declaredShortfall(track);
            }
        }
    }
    if (width <= 0 || height <= 0 || width > largestPictureSide || height > largestPictureSide)
        return contradicted(QStringLiteral("a picture of %1x%2").arg(width).arg(height));

    const double streamLength = stream->duration > 0 ? double(stream->duration) * av_q2d(stream->time_base) : 0.0;
    const double headerLength = streamLength > 0 ? streamLength
        : format->duration > 0                   ? double(format->duration) / AV_TIME_BASE
                                                 : 0.0;
    double indexedLength = 0;
    ClipFacts facts = measureIndex(demuxer, stream, headerLength, indexRequired, indexedLength);
    if (!facts.usable())
        return facts;
    if (shortfall && facts.verdict == Verdict::sound) {
        facts.verdict = Verdict::shortened;
        facts.reason = *shortfall;
        facts.lengthSeconds = std::min(facts.lengthSeconds, indexedLength);
    }

    // The size the pictures really have, from the stream's own parameter sets.
    if (const Av::Packet first = firstPacketOf(format, videoStream)) {
        if (const auto size = PictureSize::fromParameterSets(parameters, first.get());
            size
            && (std::abs(size->width() - width) > pictureSizeSlack
                || std::abs(size->height() - height) > pictureSizeSlack))
            return contradicted(QStringLiteral("the header says %1x%2, the stream's parameter sets %3x%4")
                                    .arg(width)
                                    .arg(height)
                                    .arg(size->width())
                                    .arg(size->height()));
    }
    return facts;
}

ClipFacts measureWithoutVideo(Demuxer &demuxer)
{
    const AVFormatContext *format = demuxer.context();
    if (!isIsoMedia(format))
        return {};
    const auto header = Mp4SampleTables::read(
        [&demuxer](int64_t offset, char *buffer, int64_t size) { return demuxer.readAt(offset, buffer, size); },
        demuxer.fileSize());
    if (!header)
        return {};
    for (const Mp4SampleTables::Track &track : header->tracks)
        if (track.handler != "vide" && isVideoFormat(track.sampleEntry))
            return contradicted(QStringLiteral("a track of pictures is not marked as video"));
    return {};
}

} // namespace HeaderCheck
