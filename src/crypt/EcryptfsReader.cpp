#include "crypt/EcryptfsReader.h"

#include "base/ReadOnlyFs.h"
#include "crypt/PageDecrypter.h"
#include "crypt/PagePrefetcher.h"
#include "crypt/PageIV.h"

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
// Reads this long, each going on from the last, are a demuxer streaming
// through the file: worth decrypting ahead of it.
constexpr qint64 streamingRun = 32;

const EVP_MD *md5()
{
    static EVP_MD *md = EVP_MD_fetch(nullptr, "MD5", nullptr);
    return md;
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
    if (key.size() != Ecryptfs::fileKeySize || !md5())
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
    reader->decrypter_ = std::make_unique<PageDecrypter>(reader->fd_, reader->key_, reader->rootIV_, reader->shouldStop_);
    if (!reader->decrypter_->isReady())
        return nullptr;
    return reader;
}

EcryptfsReader::~EcryptfsReader()
{
    prefetcher_.reset(); // joined before the file it reads closes
    if (fd_ >= 0)
        ::close(fd_);
}

bool EcryptfsReader::runPages(qint64 page, qint64 pages, uint8_t *into)
{
    const qint64 ready = prefetcher_ ? prefetcher_->take(page, pages, into) : 0;
    if (ready == pages || decrypter_->run(page + ready, pages - ready, into + ready * Ecryptfs::pageSize))
        return true;
    lastError_ = decrypter_->error();
    return false;
}

bool EcryptfsReader::loadPage(qint64 page)
{
    if (page == pageNumber_)
        return true;
    page_.resize(size_t(Ecryptfs::pageSize));
    pageNumber_ = -1;
    if (!runPages(page, 1, page_.data()))
        return false;
    pageNumber_ = page;
    return true;
}

// A demuxer reading on from where it stopped, in long reads, will ask for
// the next pages in a moment.
void EcryptfsReader::readAhead()
{
    if (!prefetcher_ && !prefetchTried_) {
        prefetchTried_ = true;
        prefetcher_ = PagePrefetcher::make(
            std::make_unique<PageDecrypter>(fd_, key_, rootIV_, shouldStop_), Ecryptfs::pageCount(plainSize_));
    }
    if (prefetcher_)
        prefetcher_->keepAheadOf((position_ + Ecryptfs::pageSize - 1) / Ecryptfs::pageSize);
}

int EcryptfsReader::read(uint8_t *buffer, int size)
{
    if (size <= 0 || position_ >= plainSize_)
        return 0;
    int copied = 0;
    qint64 longestRun = 0;
    const bool streaming = position_ == lastReadEnd_;
    const qint64 lastPage = Ecryptfs::pageCount(plainSize_);
    while (copied < size && position_ < plainSize_) {
        const qint64 page = position_ / Ecryptfs::pageSize;
        const qint64 inPage = position_ % Ecryptfs::pageSize;
        // Whole pages go into the caller's buffer as read and are decrypted
        // there: a demuxer reading through the file pays for no copy of its own.
        const qint64 wholePages = std::min({qint64(size - copied) / Ecryptfs::pageSize, pagesPerRun, lastPage - page});
        if (inPage == 0 && wholePages > 0 && page != pageNumber_) {
            if (!runPages(page, wholePages, buffer + copied))
                return copied > 0 ? copied : -lastError_;
            longestRun = std::max(longestRun, wholePages);
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
    lastReadEnd_ = position_;
    if (streaming && longestRun >= streamingRun)
        readAhead();
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
