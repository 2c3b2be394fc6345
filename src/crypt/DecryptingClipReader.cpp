#include "crypt/DecryptingClipReader.h"

#include "base/IOWatchdog.h"
#include "crypt/EcryptfsReader.h"
#include "crypt/KeyStore.h"
#include "media/FileClipReader.h"
#include "model/ClipRef.h"

#include <cstdio>

DecryptingClipReader::DecryptingClipReader(std::unique_ptr<EcryptfsReader> reader) : reader_(std::move(reader)) {}
DecryptingClipReader::~DecryptingClipReader() = default;

std::unique_ptr<ClipReader> DecryptingClipReader::open(const QString &path, std::stop_token stop)
{
    auto file = FileClipReader::open(path);
    if (!file)
        return nullptr;
    // A clear clip costs one short read of its first bytes and nothing more.
    unsigned char head[16];
    int got = 0;
    while (got < int(sizeof head)) {
        const int n = file->read(head + got, int(sizeof head) - got);
        if (n <= 0)
            break;
        got += n;
    }
    if (got == int(sizeof head) && Ecryptfs::hasMarker(QByteArrayView(head, got))) {
        if (const auto key = KeyRing::keyFor(path)) {
            auto reader = EcryptfsReader::open(path, *key, [stop] { return stop.stop_requested(); });
            if (reader)
                return std::unique_ptr<ClipReader>(new DecryptingClipReader(std::move(reader)));
        }
    }
    // Locked or clear: the bytes as they lie (a locked clip is then no movie).
    if (file->seek(0) != 0)
        return nullptr;
    return file;
}

void DecryptingClipReader::install()
{
    ClipReaders::install(&DecryptingClipReader::open);
}

int DecryptingClipReader::read(unsigned char *buffer, int size)
{
    return reader_->read(buffer, size);
}

int64_t DecryptingClipReader::seek(int64_t position)
{
    return reader_->seek(position, SEEK_SET);
}

int64_t DecryptingClipReader::size()
{
    return reader_->size();
}

bool DecryptingClipReader::opens(const ClipRef &clip, std::chrono::milliseconds limit, std::stop_token stop)
{
    if (clip.health.isPlayable())
        return true;
    if (clip.health != ClipHealth::encrypted)
        return false;
    try {
        return IOWatchdog::run(
            limit, [url = clip.url](std::stop_token) { return KeyRing::keyFor(url).has_value(); }, stop);
    } catch (const IOWatchdog::TimedOut &) {
        return false;
    }
}
