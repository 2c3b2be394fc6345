#pragma once

// Where a movie's bytes come from. Every clip the program demuxes (and every
// event picture) is read through one of these: the plain read-only file by
// default. A reader that turns the car's encrypted clips back into plain
// movies page by page plugs in here, and nowhere else.

#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <stop_token>

class ClipReader {
public:
    virtual ~ClipReader() = default;

    // Up to `size` bytes of the plain movie from the current position: the
    // count read, 0 at its end, or a negative errno.
    virtual int read(unsigned char *buffer, int size) = 0;
    // Moves to an absolute position of the plain movie: that position, or a
    // negative errno.
    virtual int64_t seek(int64_t position) = 0;
    // The plain movie's length in bytes, or a negative errno.
    virtual int64_t size() = 0;
};

// Opens the reader of one file; null when it can't be read. A reader may
// hear `stop` inside a long read; callers also ask it between reads.
using ClipReaderFactory = std::function<std::unique_ptr<ClipReader>(const QString &path, std::stop_token stop)>;

namespace ClipReaders {

// The file as it lies on the drive, opened read-only (ReadOnlyFs).
std::unique_ptr<ClipReader> openFile(const QString &path, std::stop_token stop);

// The factory that opens use unless they are handed one: openFile until
// another is installed. Installing an empty one restores openFile.
ClipReaderFactory installed();
void install(ClipReaderFactory factory);

// The given factory, or the installed one when it is empty.
std::unique_ptr<ClipReader> open(const ClipReaderFactory &factory, const QString &path, std::stop_token stop);

} // namespace ClipReaders
