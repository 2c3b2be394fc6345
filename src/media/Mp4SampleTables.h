#pragma once

// What an MP4 header declares about its tracks, read from the boxes
// themselves: handlers, sample entries, time scales and lengths, the time,
// size and chunk tables' counts, and the edit lists. libavformat turns these
// into an index and quietly works around what doesn't add up; the header
// checks need the declarations as they stand.

#include <QByteArray>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace Mp4SampleTables {

struct Edit {
    uint64_t segmentDuration = 0; // in the movie's time scale
    int64_t mediaTime = 0;        // in the track's time scale; -1 for an empty edit
};

struct Track {
    QByteArray handler;     // "vide", "soun", ...
    QByteArray sampleEntry; // the first sample description's format, "avc1", "hvc1", ...
    int width = 0;          // of a visual sample entry, as it declares
    int height = 0;
    uint32_t timeScale = 0;
    uint64_t mediaDuration = 0; // in timeScale units
    // The time table (stts): samples it times, their total time, the
    // longest one sample lasts and the typical one (its median), in timeScale units.
    uint64_t timedSamples = 0;
    double timedDuration = 0;
    uint64_t longestDelta = 0;
    uint64_t medianDelta = 0;
    uint64_t sizedSamples = 0;  // the size table's (stsz, stz2) count
    uint64_t chunkCapacity = 0; // samples the chunk tables (stsc, stco) place
    std::vector<Edit> edits;
};

struct Header {
    bool fragmented = false; // samples described in movie fragments, not here
    uint32_t movieTimeScale = 0;
    uint64_t movieDuration = 0;
    std::vector<Track> tracks; // in file order, as libavformat numbers its streams
};

// Reads up to size bytes at offset into buffer: the count read, or negative.
using ReadAt = std::function<int64_t(int64_t offset, char *buffer, int64_t size)>;

// None when the file has no readable movie header.
std::optional<Header> read(const ReadAt &readAt, int64_t fileSize);

} // namespace Mp4SampleTables
