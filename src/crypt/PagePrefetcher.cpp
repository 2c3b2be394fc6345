#include "crypt/PagePrefetcher.h"

#include "crypt/PageDecrypter.h"
#include "drive/EcryptfsHeader.h"

#include <algorithm>
#include <cstring>

namespace {

// 128 kB a chunk: a reader that catches up waits for at most one chunk's
// decryption, some tens of microseconds. Eight of them keep 1 MB ahead,
// more than a demuxer asks for between two of the thread's wake-ups.
constexpr qint64 pagesPerChunk = 32;
constexpr size_t chunksAhead = 8;

} // namespace

std::unique_ptr<PagePrefetcher> PagePrefetcher::make(std::unique_ptr<PageDecrypter> decrypter, qint64 pageCount)
{
    if (std::thread::hardware_concurrency() < 2 || !decrypter || !decrypter->isReady())
        return nullptr;
    return std::unique_ptr<PagePrefetcher>(new PagePrefetcher(std::move(decrypter), pageCount));
}

PagePrefetcher::PagePrefetcher(std::unique_ptr<PageDecrypter> decrypter, qint64 pageCount)
    : decrypter_(std::move(decrypter)), pageCount_(pageCount)
{
    thread_ = std::thread([this] { loop(); });
}

PagePrefetcher::~PagePrefetcher()
{
    {
        std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

void PagePrefetcher::loop()
{
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] {
            return stopping_ || (active_ && chunks_.size() < chunksAhead && next_ < pageCount_);
        });
        if (stopping_)
            return;
        Chunk &chunk = chunks_.emplace_back();
        chunk.first = next_;
        chunk.pages = std::min(pagesPerChunk, pageCount_ - next_);
        next_ += chunk.pages;
        if (!spare_.empty()) {
            chunk.data = std::move(spare_.back());
            spare_.pop_back();
        }
        chunk.data.resize(size_t(pagesPerChunk * Ecryptfs::pageSize));
        // Only this thread touches a working chunk, and the deque keeps it in
        // place while others are added or taken at the ends.
        lock.unlock();
        const bool ok = decrypter_->run(chunk.first, chunk.pages, chunk.data.data());
        lock.lock();
        chunk.state = ok ? Chunk::State::ready : Chunk::State::failed;
        if (!ok)
            active_ = false; // the reader meets the failure itself, with its errno
        changed_.notify_all();
    }
}

void PagePrefetcher::dropBefore(qint64 page)
{
    while (!chunks_.empty() && chunks_.front().state != Chunk::State::working
           && chunks_.front().first + chunks_.front().pages <= page) {
        spare_.push_back(std::move(chunks_.front().data));
        chunks_.pop_front();
    }
}

void PagePrefetcher::restartAt(qint64 page, std::unique_lock<std::mutex> &lock)
{
    active_ = false;
    changed_.wait(lock, [this] { return chunks_.empty() || chunks_.back().state != Chunk::State::working; });
    dropBefore(pageCount_ + 1);
    next_ = page;
    active_ = true;
    changed_.notify_all();
}

void PagePrefetcher::keepAheadOf(qint64 page)
{
    std::unique_lock lock(mutex_);
    dropBefore(page);
    const bool covered = active_ && page < next_ && !chunks_.empty() && chunks_.front().first <= page;
    if (!covered && !(active_ && chunks_.empty() && next_ == page))
        restartAt(page, lock);
}

qint64 PagePrefetcher::take(qint64 page, qint64 pages, uint8_t *into)
{
    qint64 copied = 0;
    while (copied < pages) {
        const Chunk *chunk = nullptr;
        {
            std::unique_lock lock(mutex_);
            for (;;) {
                dropBefore(page + copied);
                if (chunks_.empty() || chunks_.front().first > page + copied
                    || chunks_.front().state == Chunk::State::failed)
                    break;
                if (chunks_.front().state == Chunk::State::ready) {
                    chunk = &chunks_.front();
                    break;
                }
                changed_.wait(lock);
            }
        }
        if (!chunk)
            break;
        // A ready chunk is left alone by the thread, and only this caller
        // takes chunks off the front: the copy needs no lock.
        const qint64 at = page + copied - chunk->first;
        const qint64 n = std::min(pages - copied, chunk->pages - at);
        std::memcpy(into + copied * Ecryptfs::pageSize, chunk->data.data() + at * Ecryptfs::pageSize,
                    size_t(n * Ecryptfs::pageSize));
        copied += n;
    }
    if (copied > 0) {
        std::lock_guard lock(mutex_);
        dropBefore(page + copied);
    }
    changed_.notify_all();
    return copied;
}
