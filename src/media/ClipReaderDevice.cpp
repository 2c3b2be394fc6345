#include "media/ClipReaderDevice.h"

#include <algorithm>
#include <climits>

ClipReaderDevice::ClipReaderDevice(std::unique_ptr<ClipReader> reader) : reader_(std::move(reader))
{
    // Unbuffered: the reader's own position is the device's.
    QIODevice::open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 ClipReaderDevice::size() const
{
    const int64_t size = reader_->size();
    return size >= 0 ? qint64(size) : 0;
}

bool ClipReaderDevice::seek(qint64 position)
{
    return QIODevice::seek(position) && reader_->seek(position) == position;
}

qint64 ClipReaderDevice::readData(char *data, qint64 maxSize)
{
    const int n = reader_->read(reinterpret_cast<unsigned char *>(data), int(std::min<qint64>(maxSize, INT_MAX)));
    return n < 0 ? -1 : qint64(n);
}
