#pragma once

#include <QtGlobal>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

class PageDecrypter;

// Decrypts the pages after a streaming reader's position on a thread of its
// own, a few chunks ahead, so that a demuxer reading on finds its next pages
// done and pays only for a copy. The ring of chunks is what lets the thread
// wake late now and then without the reader ever catching up with it.
//
// One reader thread at a time. The destructor joins the thread; a read stuck
// in the kernel on a dead drive holds the reader too, so it never outlives it.
class PagePrefetcher {
public:
    // Null on a machine with one core, where the thread would only take turns.
    static std::unique_ptr<PagePrefetcher> make(std::unique_ptr<PageDecrypter> decrypter, qint64 pageCount);
    ~PagePrefetcher();
    PagePrefetcher(const PagePrefetcher &) = delete;
    PagePrefetcher &operator=(const PagePrefetcher &) = delete;

    // Makes sure the pages from `page` on are being decrypted, starting over
    // there unless the run under way already covers it.
    void keepAheadOf(qint64 page);
    // Copies the pages from `page` on that the run holds, up to `pages`, into
    // `into`, waiting for one still being decrypted; how many. None when the
    // run stands elsewhere or failed there: the caller reads those itself.
    qint64 take(qint64 page, qint64 pages, uint8_t *into);

private:
    struct Chunk {
        qint64 first = 0;
        qint64 pages = 0;
        enum class State { working, ready, failed } state = State::working;
        std::vector<uint8_t> data;
    };

    PagePrefetcher(std::unique_ptr<PageDecrypter> decrypter, qint64 pageCount);
    void loop();
    void restartAt(qint64 page, std::unique_lock<std::mutex> &lock);
    void dropBefore(qint64 page);

    std::unique_ptr<PageDecrypter> decrypter_;
    const qint64 pageCount_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Chunk> chunks_; // in page order; only the last may be working
    std::vector<std::vector<uint8_t>> spare_;
    qint64 next_ = 0;
    bool active_ = false;
    bool stopping_ = false;
    std::thread thread_;
};
