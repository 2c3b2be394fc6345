#include "crypt/EcryptfsReader.h"

#include "crypt/PageIV.h"
#include "base/ReadOnlyFs.h"

extern "C" {
#include <libavformat/avio.h>
#include <libavutil/error.h>
}

#include <openssl/evp.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace {

// The most pages read and decrypted in one go: a stop is noticed between
// runs, and a run is read straight into the caller's buffer.
constexpr qint64 pagesPerRun = 256;

const EVP_MD *md5()
{
    static EVP_MD *md = EVP_MD_fetch(nullptr, "MD5", nullptr);
    return md;
}

const EVP_CIPHER *aes128cbc()
{
    static EVP_CIPHER *cipher = EVP_CIPHER_fetch(nullptr, "AES-128-CBC", nullptr);
    return cipher;
}

} // namespace

QByteArray EcryptfsReader::rootIV(const QByteArray &key)
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    EVP_Digest(key.constData(), size_t(key.size()), digest, &length, md5(), nullptr);
    return QByteArray(reinterpret_cast<const char *>(digest), int(length));
}

QByteArray EcryptfsReader::pageIV(const QByteArray &root, qint64 page)
{
    QByteArray iv(16, '\0');
    PageIV::compute(reinterpret_cast<const uint8_t *>(root.constData()), page, reinterpret_cast<uint8_t *>(iv.data()));
    return iv;
}

std::unique_ptr<EcryptfsReader> EcryptfsReader::open(const QString &path, const QByteArray &key,
                                                     std::function<bool()> shouldStop)
{
    if (key.size() != Ecryptfs::fileKeySize || !md5() || !aes128cbc())
        return nullptr;
    const Ecryptfs::Header header = Ecryptfs::read(path);
    if (header.state != Ecryptfs::Header::State::ok)
        return nullptr;
    std::unique_ptr<EcryptfsReader> reader(new EcryptfsReader);
    reader->fd_ = ReadOnlyFs::openRead(path);
    if (reader->fd_ < 0)
        return nullptr;
    reader->shouldStop_ = std::move(shouldStop);
    reader->plainSize_ = header.plainSize;
    reader->key_ = key;
    reader->rootIV_ = rootIV(key);
    reader->cipher_ = EVP_CIPHER_CTX_new();
    if (!reader->cipher_
        || EVP_DecryptInit_ex2(reader->cipher_, aes128cbc(), reinterpret_cast<const unsigned char *>(key.constData()),
                               nullptr, nullptr)
            != 1)
        return nullptr;
    EVP_CIPHER_CTX_set_padding(reader->cipher_, 0);
    return reader;
}

EcryptfsReader::~EcryptfsReader()
{
    if (cipher_)
        EVP_CIPHER_CTX_free(cipher_);
    if (fd_ >= 0)
        ::close(fd_);
}

bool EcryptfsReader::readCipher(qint64 page, qint64 pages, uint8_t *into)
{
    const size_t bytes = size_t(pages * Ecryptfs::pageSize);
    size_t got = 0;
    const off_t start = off_t(Ecryptfs::payloadOffset + page * Ecryptfs::pageSize);
    while (got < bytes) {
        if (shouldStop_ && shouldStop_()) {
            lastError_ = ECANCELED;
            return false;
        }
        const ssize_t n = ::pread(fd_, into + got, bytes - got, start + off_t(got));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            lastError_ = n < 0 ? errno : EIO; // the header promised these pages
            return false;
        }
        got += size_t(n);
    }
    return true;
}

// Each page is chained on its own IV. One pass over the run chains every page
// on the last block of the page before it instead; the first block of each
// page is put right afterwards, which costs 16 bytes of XOR a page. The pass
// runs in place, so those last blocks are put aside first.
bool EcryptfsReader::decryptInPlace(qint64 page, qint64 pages, uint8_t *data)
{
    const auto *root = reinterpret_cast<const uint8_t *>(rootIV_.constData());
    lastBlocks_.resize(size_t(pages * 16));
    for (qint64 i = 0; i + 1 < pages; ++i)
        std::memcpy(lastBlocks_.data() + i * 16, data + (i + 1) * Ecryptfs::pageSize - 16, 16);
    uint8_t iv[16];
    PageIV::compute(root, page, iv);
    int out = 0;
    const int bytes = int(pages * Ecryptfs::pageSize);
    if (EVP_DecryptInit_ex2(cipher_, nullptr, nullptr, iv, nullptr) != 1
        || EVP_DecryptUpdate(cipher_, data, &out, data, bytes) != 1 || out != bytes) {
        lastError_ = EIO;
        return false;
    }
    for (qint64 i = 1; i < pages; ++i) {
        PageIV::compute(root, page + i, iv);
        uint8_t *first = data + i * Ecryptfs::pageSize;
        const uint8_t *chained = lastBlocks_.data() + (i - 1) * 16;
        for (int b = 0; b < 16; ++b)
            first[b] ^= uint8_t(chained[b] ^ iv[b]);
    }
    return true;
}

bool EcryptfsReader::loadPage(qint64 page)
{
    if (page == pageNumber_)
        return true;
    page_.resize(size_t(Ecryptfs::pageSize));
    pageNumber_ = -1;
    if (!readCipher(page, 1, page_.data()) || !decryptInPlace(page, 1, page_.data()))
        return false;
    pageNumber_ = page;
    return true;
}

int EcryptfsReader::read(uint8_t *buffer, int size)
{
    if (size <= 0 || position_ >= plainSize_)
        return 0;
    int copied = 0;
    const qint64 lastPage = Ecryptfs::pageCount(plainSize_);
    while (copied < size && position_ < plainSize_) {
        const qint64 page = position_ / Ecryptfs::pageSize;
        const qint64 inPage = position_ % Ecryptfs::pageSize;
        // Whole pages go into the caller's buffer as read and are decrypted
        // there: a demuxer reading through the file pays for no copy of its own.
        const qint64 wholePages = std::min({qint64(size - copied) / Ecryptfs::pageSize, pagesPerRun, lastPage - page});
        if (inPage == 0 && wholePages > 0 && page != pageNumber_) {
            if (!readCipher(page, wholePages, buffer + copied) || !decryptInPlace(page, wholePages, buffer + copied))
                return copied > 0 ? copied : -lastError_;
            const int n = int(std::min(wholePages * Ecryptfs::pageSize, plainSize_ - position_));
            copied += n;
            position_ += n;
            continue;
        }
        // The part of a page a read starts or ends in.
        if (!loadPage(page))
            return copied > 0 ? copied : -lastError_;
        const qint64 available = std::min(Ecryptfs::pageSize - inPage, plainSize_ - position_);
        const int n = int(std::min<qint64>(available, size - copied));
        std::memcpy(buffer + copied, page_.data() + inPage, size_t(n));
        copied += n;
        position_ += n;
    }
    return copied;
}

qint64 EcryptfsReader::seek(qint64 offset, int whence)
{
    qint64 base = 0;
    switch (whence) {
    case SEEK_SET: base = 0; break;
    case SEEK_CUR: base = position_; break;
    case SEEK_END: base = plainSize_; break;
    default: return -EINVAL;
    }
    const qint64 target = base + offset;
    if (target < 0)
        return -EINVAL;
    position_ = target;
    return position_;
}

bool EcryptfsReader::keyFits()
{
    const qint64 saved = position_;
    uint8_t head[12];
    seek(0, SEEK_SET);
    const int n = read(head, sizeof head);
    seek(saved, SEEK_SET);
    return n == int(sizeof head) && std::memcmp(head + 4, "ftyp", 4) == 0;
}

int EcryptfsReader::readPacket(void *opaque, uint8_t *buffer, int size)
{
    auto *self = static_cast<EcryptfsReader *>(opaque);
    const int n = self->read(buffer, size);
    if (n == 0)
        return AVERROR_EOF;
    if (n == -ECANCELED)
        return AVERROR_EXIT;
    return n < 0 ? AVERROR(-n) : n;
}

int64_t EcryptfsReader::seekPacket(void *opaque, int64_t offset, int whence)
{
    auto *self = static_cast<EcryptfsReader *>(opaque);
    if (whence & AVSEEK_SIZE)
        return self->size();
    const qint64 position = self->seek(offset, whence & ~AVSEEK_FORCE);
    return position < 0 ? AVERROR(-position) : position;
}
