#include "media/ClipReader.h"

#include "media/FileClipReader.h"

#include <mutex>

namespace ClipReaders {

namespace {
std::mutex mutex;
ClipReaderFactory &slot()
{
    static ClipReaderFactory factory;
    return factory;
}
} // namespace

std::unique_ptr<ClipReader> openFile(const QString &path, std::stop_token)
{
    return FileClipReader::open(path);
}

ClipReaderFactory installed()
{
    std::lock_guard lock(mutex);
    if (slot())
        return slot();
    return &openFile;
}

void install(ClipReaderFactory factory)
{
    std::lock_guard lock(mutex);
    slot() = std::move(factory);
}

std::unique_ptr<ClipReader> open(const ClipReaderFactory &factory, const QString &path, std::stop_token stop)
{
    if (factory)
        return factory(path, stop);
    return installed()(path, stop);
}

} // namespace ClipReaders
