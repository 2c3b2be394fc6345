#pragma once

#include "drive/EcryptfsHeader.h"

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class PageDecrypter;
class PagePrefetcher;

// Reads the plain bytes of one of the car's encrypted files, given its
// 16-byte key, decrypting page by page as they are asked for: a seek
// decrypts only the pages it lands on, and nothing decrypted is written
// anywhere. Its read and seek are what a demuxer's clip reader needs. One
// thread at a time; while a demuxer streams through the file, a thread of
// its own decrypts the pages ahead.
class EcryptfsReader {
public:
    // Null when the file can't be opened, isn't one of the car's encrypted
    // files, or the key isn't 16 bytes. shouldStop is asked before each read
    // of the drive.
    static std::unique_ptr<EcryptfsReader> open(const QString &path, const QByteArray &key,
                                                std::function<bool()> shouldStop = {});
    ~EcryptfsReader();
    EcryptfsReader(const EcryptfsReader &) = delete;
    EcryptfsReader &operator=(const EcryptfsReader &) = delete;

    qint64 size() const { return plainSize_; }
    qint64 position() const { return position_; }
    // Bytes copied, 0 at the end, or a negative errno.
    int read(uint8_t *buffer, int size);
    // SEEK_SET, SEEK_CUR or SEEK_END; the new position or a negative errno.
    qint64 seek(qint64 offset, int whence);
    // Whether the key opens this file: its first page must read as an MP4's start.
    bool keyFits();

    // MD5 of the key, and of that with the page number in decimal, zero-padded
    // to 16 bytes: the IV of each page.
    static QByteArray rootIV(const QByteArray &key);
    static QByteArray pageIV(const QByteArray &rootIV, qint64 page);

private:
    EcryptfsReader() = default;
    bool runPages(qint64 page, qint64 pages, uint8_t *into);
    bool loadPage(qint64 page);
    void readAhead();

    int fd_ = -1;
    std::function<bool()> shouldStop_;
    qint64 plainSize_ = 0;
    qint64 position_ = 0;
    QByteArray key_;
    QByteArray rootIV_;
    std::unique_ptr<PageDecrypter> decrypter_;
    // Made with the first streaming read.
    std::unique_ptr<PagePrefetcher> prefetcher_;
    bool prefetchTried_ = false;
    qint64 lastReadEnd_ = -1;
    // The page a read began or ended inside, decrypted: the next read
    // usually starts in it.
    std::vector<uint8_t> page_;
    qint64 pageNumber_ = -1;
    int lastError_ = 0;
};
