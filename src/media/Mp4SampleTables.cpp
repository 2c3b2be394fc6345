#include "media/Mp4SampleTables.h"

#include <QtEndian>
#include <algorithm>
#include <cstdint>
#include <utility>

namespace Mp4SampleTables {

namespace {

// The largest movie header read; a minute of the car's footage has some
// tens of kilobytes. A larger one is left to libavformat's own reading.
constexpr int64_t largestHeader = int64_t(16) << 20;
// Top-level boxes looked at before giving up on finding the header.
constexpr int boxesToHeader = 64;

// A bounded view of box bytes: reads past the end give nothing.
class Bytes {
public:
    Bytes(const char *data, int64_t size) : data_(data), size_(size) {}
    int64_t size() const { return size_; }
    bool has(int64_t at, int64_t count) const { return at >= 0 && count >= 0 && at <= size_ - count; }
    uint32_t u32(int64_t at) const { return has(at, 4) ? qFromBigEndian<quint32>(data_ + at) : 0; }
    uint64_t u64(int64_t at) const { return has(at, 8) ? qFromBigEndian<quint64>(data_ + at) : 0; }
    QByteArray type(int64_t at) const { return has(at, 4) ? QByteArray(data_ + at, 4) : QByteArray(); }
    Bytes sub(int64_t at, int64_t count) const
    {
        return has(at, count) ? Bytes(data_ + at, count) : Bytes(data_, 0);
    }

private:
    const char *data_;
    int64_t size_;
};

// Each child box of a container: its type and its payload.
template <typename F>
void eachBox(const Bytes &container, F &&visit)
{
    int64_t at = 0;
    while (container.has(at, 8)) {
        uint64_t size = container.u32(at);
        int64_t header = 8;
        if (size == 1) {
            size = container.u64(at + 8);
            header = 16;
        } else if (size == 0) {
            size = uint64_t(container.size() - at);
        }
        if (size < uint64_t(header) || size > uint64_t(container.size() - at))
            return;
        visit(container.type(at + 4), container.sub(at + header, int64_t(size) - header));
        at += int64_t(size);
    }
}

// A full box's version, from its first byte.
int versionOf(const Bytes &box)
{
    return box.has(0, 1) ? int(box.u32(0) >> 24) : 0;
}

// mvhd and mdhd: time scale and duration, by version.
std::pair<uint32_t, uint64_t> timing(const Bytes &box)
{
    if (versionOf(box) == 1)
        return {box.u32(20), box.u64(24)};
    return {box.u32(12), box.u32(16)};
}

void readTimes(const Bytes &stts, Track &track)
{
    const uint32_t count = stts.u32(4);
    std::vector<std::pair<uint64_t, uint64_t>> entries; // delta, samples
    for (uint32_t i = 0; i < count && stts.has(8 + int64_t(i) * 8, 8); ++i) {
        const uint64_t samples = stts.u32(8 + int64_t(i) * 8);
        const uint64_t delta = stts.u32(12 + int64_t(i) * 8);
        if (samples == 0)
            continue;
        track.timedSamples += samples;
        track.timedDuration += double(samples) * double(delta);
        track.longestDelta = std::max(track.longestDelta, delta);
        entries.emplace_back(delta, samples);
    }
    std::sort(entries.begin(), entries.end());
    uint64_t seen = 0;
    for (const auto &[delta, samples] : entries) {
        seen += samples;
        if (seen * 2 >= track.timedSamples) {
            track.medianDelta = delta;
            break;
        }
    }
}

void readChunks(const Bytes &stsc, uint64_t chunks, Track &track)
{
    const uint32_t count = stsc.u32(4);
    for (uint32_t i = 0; i < count && stsc.has(8 + int64_t(i) * 12, 12); ++i) {
        const uint64_t first = stsc.u32(8 + int64_t(i) * 12);
        const uint64_t perChunk = stsc.u32(12 + int64_t(i) * 12);
        uint64_t end = chunks + 1;
        if (i + 1 < count && stsc.has(8 + int64_t(i + 1) * 12, 4))
            end = std::min<uint64_t>(end, stsc.u32(8 + int64_t(i + 1) * 12));
        if (first < 1 || end <= first)
            continue;
        const uint64_t placed = perChunk != 0 && end - first > UINT64_MAX / perChunk ? UINT64_MAX : (end - first) * perChunk;
        track.chunkCapacity = placed > UINT64_MAX - track.chunkCapacity ? UINT64_MAX : track.chunkCapacity + placed;
    }
}

void readEdits(const Bytes &elst, Track &track)
{
    const bool wide = versionOf(elst) == 1;
    const int64_t entrySize = wide ? 20 : 12;
    const uint32_t count = elst.u32(4);
    for (uint32_t i = 0; i < count && elst.has(8 + int64_t(i) * entrySize, entrySize); ++i) {
        const int64_t at = 8 + int64_t(i) * entrySize;
        Edit edit;
        edit.segmentDuration = wide ? elst.u64(at) : elst.u32(at);
        edit.mediaTime = wide ? int64_t(elst.u64(at + 8)) : int64_t(int32_t(elst.u32(at + 4)));
        track.edits.push_back(edit);
    }
}

void readSampleTable(const Bytes &stbl, Track &track)
{
    uint64_t chunks = 0;
    Bytes stsc(nullptr, 0);
    eachBox(stbl, [&](const QByteArray &type, const Bytes &box) {
        if (type == "stsd") {
            // After version, count and the entry's size; a visual entry's
            // picture size follows 24 bytes into its own payload.
            track.sampleEntry = box.type(12);
            if (box.has(40, 4)) {
                track.width = int(box.u32(40) >> 16);
                track.height = int(box.u32(40) & 0xffff);
            }
        } else if (type == "stts") {
            readTimes(box, track);
        } else if (type == "stsz" || type == "stz2") {
            track.sizedSamples = box.u32(8);
        } else if (type == "stsc") {
            stsc = box;
        } else if (type == "stco" || type == "co64") {
            chunks = box.u32(4);
        }
    });
    readChunks(stsc, chunks, track);
}

Track readTrack(const Bytes &trak)
{
    Track track;
    eachBox(trak, [&](const QByteArray &type, const Bytes &box) {
        if (type == "edts") {
            eachBox(box, [&](const QByteArray &inner, const Bytes &elst) {
                if (inner == "elst")
                    readEdits(elst, track);
            });
        } else if (type == "mdia") {
            eachBox(box, [&](const QByteArray &inner, const Bytes &part) {
                if (inner == "mdhd") {
                    std::tie(track.timeScale, track.mediaDuration) = timing(part);
                } else if (inner == "hdlr") {
                    track.handler = part.type(8);
                } else if (inner == "minf") {
                    eachBox(part, [&](const QByteArray &minf, const Bytes &stbl) {
                        if (minf == "stbl")
                            readSampleTable(stbl, track);
                    });
                }
            });
        }
    });
    return track;
}

} // namespace

std::optional<Header> read(const ReadAt &readAt, int64_t fileSize)
{
    int64_t at = 0;
    for (int box = 0; box < boxesToHeader && at + 8 <= fileSize; ++box) {
        char head[16] = {};
        if (readAt(at, head, 16) < 8)
            return std::nullopt;
        const Bytes header(head, 16);
        uint64_t size = header.u32(0);
        int64_t headerSize = 8;
        if (size == 1) {
            size = header.u64(8);
            headerSize = 16;
        } else if (size == 0) {
            size = uint64_t(fileSize - at);
        }
        if (size < uint64_t(headerSize) || size > uint64_t(fileSize - at))
            return std::nullopt;
        if (header.type(4) == "moov") {
            const int64_t length = int64_t(size) - headerSize;
            if (length > largestHeader)
                return std::nullopt;
            QByteArray moov(qsizetype(length), '\0');
            if (readAt(at + headerSize, moov.data(), length) != length)
                return std::nullopt;
            Header result;
            eachBox(Bytes(moov.constData(), length), [&](const QByteArray &type, const Bytes &box) {
                if (type == "mvhd")
                    std::tie(result.movieTimeScale, result.movieDuration) = timing(box);
                else if (type == "trak")
                    result.tracks.push_back(readTrack(box));
                else if (type == "mvex")
                    result.fragmented = true;
            });
            return result;
        }
        at += int64_t(size);
    }
    return std::nullopt;
}

} // namespace Mp4SampleTables
