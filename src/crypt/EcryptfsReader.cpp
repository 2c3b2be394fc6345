#include "crypt/EcryptfsReader.h"

#include "drive/ReadOnlyFs.h"

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

// Pages read and decrypted in one go: few system calls for a demuxer that
// reads straight through, and little wasted work for one that seeks.
constexpr qint64 pagesPerFill = 64;

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

void md5Into(EVP_MD_CTX *ctx, const void *data, size_t size, unsigned char out[16])
{
    unsigned int length = 0;
    EVP_DigestInit_ex(ctx, md5(), nullptr);
    EVP_DigestUpdate(ctx, data, size);
    EVP_DigestFinal_ex(ctx, out, &length);
}

// The 32 bytes hashed for a page's IV: the root IV, then the page number in
// decimal digits padded with zero bytes to 16.
void pageIVInput(const unsigned char rootIV[16], qint64 page, unsigned char out[32])
{
    std::memcpy(out, rootIV, 16);
    std::memset(out + 16, 0, 16);
    char digits[24];
    const int n = std::snprintf(digits, sizeof digits, "%lld", static_cast<long long>(page));
    std::memcpy(out + 16, digits, size_t(std::min(n, 16)));
}

} // namespace

QByteArray EcryptfsReader::rootIV(const QByteArray &key)
{
    EVP_MD_CTX *ctx = EVP_MD_CTX_new();
    QByteArray iv(16, '\0');
    md5Into(ctx, key.constData(), size_t(key.size()), reinterpret_cast<unsigned char *>(iv.data()));
    EVP_MD_CTX_free(ctx);
    return iv;
}

QByteArray EcryptfsReader::pageIV(const QByteArray &root, qint64 page)
{
    unsigned char input[32];
    pageIVInput(reinterpret_cast<const unsigned char *>(root.constData()), page, input);
    EVP_MD_CTX *ctx = EVP_MD_CTX_new();
    QByteArray iv(16, '\0');
    md5Into(ctx, input, sizeof input, reinterpret_cast<unsigned char *>(iv.data()));
    EVP_MD_CTX_free(ctx);
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
    reader->md5_ = EVP_MD_CTX_new();
    if (!reader->cipher_ || !reader->md5_
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
    if (md5_)
        EVP_MD_CTX_free(md5_);
    if (fd_ >= 0)
        ::close(fd_);
}

bool EcryptfsReader::fill(qint64 page)
{
    const qint64 pages = std::min(pagesPerFill, Ecryptfs::pageCount(plainSize_) - page);
    if (pages <= 0)
        return false;
    const size_t bytes = size_t(pages * Ecryptfs::pageSize);
    buffer_.resize(size_t(pagesPerFill * Ecryptfs::pageSize));
    bufferFirstPage_ = -1;
    size_t got = 0;
    const off_t start = off_t(Ecryptfs::payloadOffset + page * Ecryptfs::pageSize);
    while (got < bytes) {
        if (shouldStop_ && shouldStop_()) {
            lastError_ = ECANCELED;
            return false;
        }
        const ssize_t n = ::pread(fd_, buffer_.data() + got, bytes - got, start + off_t(got));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            lastError_ = n < 0 ? errno : EIO; // the header promised these pages
            return false;
        }
        got += size_t(n);
    }
    const auto *root = reinterpret_cast<const unsigned char *>(rootIV_.constData());
    for (qint64 i = 0; i < pages; ++i) {
        unsigned char input[32];
        unsigned char iv[16];
        pageIVInput(root, page + i, input);
        md5Into(md5_, input, sizeof input, iv);
        uint8_t *data = buffer_.data() + i * Ecryptfs::pageSize;
        int out = 0;
        if (EVP_DecryptInit_ex2(cipher_, nullptr, nullptr, iv, nullptr) != 1
            || EVP_DecryptUpdate(cipher_, data, &out, data, Ecryptfs::pageSize) != 1) {
            lastError_ = EIO;
            return false;
        }
    }
    bufferFirstPage_ = page;
    bufferPages_ = pages;
    return true;
}

int EcryptfsReader::read(uint8_t *buffer, int size)
{
    if (size <= 0 || position_ >= plainSize_)
        return 0;
    int copied = 0;
    while (copied < size && position_ < plainSize_) {
        const qint64 page = position_ / Ecryptfs::pageSize;
        if (bufferFirstPage_ < 0 || page < bufferFirstPage_ || page >= bufferFirstPage_ + bufferPages_) {
            if (!fill(page))
                return copied > 0 ? copied : -lastError_;
        }
        const qint64 offset = position_ - bufferFirstPage_ * Ecryptfs::pageSize;
        const qint64 available = std::min(bufferPages_ * Ecryptfs::pageSize - offset, plainSize_ - position_);
        const int n = int(std::min<qint64>(available, size - copied));
        std::memcpy(buffer + copied, buffer_.data() + offset, size_t(n));
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
