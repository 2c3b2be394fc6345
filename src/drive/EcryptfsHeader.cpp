#include "drive/EcryptfsHeader.h"

#include "base/ReadOnlyFs.h"

#include <QtEndian>
#include <openssl/evp.h>

#include <cerrno>
#include <unistd.h>

namespace Ecryptfs {

namespace {

template <typename T> T bigEndian(QByteArrayView bytes, qsizetype at)
{
    return qFromBigEndian<T>(bytes.data() + at);
}

bool allZero(QByteArrayView bytes)
{
    for (const char c : bytes)
        if (c != 0)
            return false;
    return true;
}

bool isVinText(QByteArrayView bytes)
{
    for (const char c : bytes)
        if (!((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z')))
            return false;
    return true;
}

} // namespace

bool hasMarker(QByteArrayView head)
{
    if (head.size() < 16)
        return false;
    return (bigEndian<quint32>(head, 8) ^ bigEndian<quint32>(head, 12)) == marker;
}

QString KeyBlock::fingerprint() const
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    EVP_Digest(raw.constData(), size_t(raw.size()), digest, &length, EVP_sha256(), nullptr);
    return QString::fromLatin1(QByteArray(reinterpret_cast<const char *>(digest), int(length)).toHex());
}

qint64 pageCount(qint64 plainSize)
{
    return plainSize <= 0 ? 0 : (plainSize + pageSize - 1) / pageSize;
}

qint64 lowerFileSize(qint64 plainSize)
{
    return payloadOffset + pageCount(plainSize) * pageSize;
}

Header parse(QByteArrayView head, qint64 fileSize)
{
    Header header;
    if (!hasMarker(head))
        return header;
    header.state = Header::State::damaged;
    if (head.size() < keyBlockOffset + keyBlockSize)
        return header;
    // A clip copied while the car still wrote it has no key yet, whatever else it holds.
    const QByteArrayView block = head.sliced(keyBlockOffset, keyBlockSize);
    if (allZero(block)) {
        header.state = Header::State::zeroKeyBlock;
        return header;
    }
    const auto plainSize = bigEndian<quint64>(head, 0);
    const auto flags = bigEndian<quint32>(head, 0x10);
    const auto extentSize = bigEndian<quint32>(head, 0x14);
    const auto extents = bigEndian<quint16>(head, 0x18);
    // Version 3 with the encrypted flag, and the two 4 KiB header extents
    // that put the payload at 8192: anything else is read some other way.
    if ((flags >> 24) != 3 || !(flags & 0x2) || extentSize != pageSize || extents != 2)
        return header;
    // The pages on disk must cover the plain size; a file cut short can't be unlocked whole.
    if (plainSize > quint64(fileSize) || lowerFileSize(qint64(plainSize)) > fileSize)
        return header;

    KeyBlock key;
    key.raw = block.toByteArray();
    qsizetype at = 0;
    key.keyId = bigEndian<quint32>(block, at);
    at += 4;
    key.publicKey = block.sliced(at, publicKeySize).toByteArray();
    at += publicKeySize;
    const QByteArrayView vin = block.sliced(at, vinSize);
    at += vinSize;
    key.timestamp = bigEndian<quint64>(block, at);
    at += 8;
    key.wrappedKey = block.sliced(at, wrappedKeySize).toByteArray();
    if (key.publicKey.at(0) != 0x04 || !isVinText(vin))
        return header;
    key.vin = QString::fromLatin1(vin.data(), vin.size());
    header.state = Header::State::ok;
    header.plainSize = qint64(plainSize);
    header.keyBlock = std::move(key);
    return header;
}

Header read(const QString &path)
{
    const int fd = ReadOnlyFs::openRead(path);
    if (fd < 0)
        return {};
    QByteArray head(int(payloadOffset), '\0');
    qsizetype got = 0;
    while (got < head.size()) {
        const ssize_t n = ::read(fd, head.data() + got, size_t(head.size() - got));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        got += n;
    }
    const off_t size = ::lseek(fd, 0, SEEK_END);
    ::close(fd);
    head.truncate(got);
    return parse(head, qint64(size));
}

} // namespace Ecryptfs
