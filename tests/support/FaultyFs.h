#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <chrono>
#include <memory>

// An in-memory FUSE drive on a test thread, made to fail: EIO from an offset, or gone after N bytes as when pulled
// mid-copy. Needs root and /dev/fuse; tests check available() and skip otherwise.
class FaultyFs {
public:
    static bool available();

    // Mounts on mountPoint (an existing empty folder); isMounted() tells whether it worked.
    explicit FaultyFs(const QString &mountPoint);
    ~FaultyFs();
    FaultyFs(const FaultyFs &) = delete;
    FaultyFs &operator=(const FaultyFs &) = delete;

    bool isMounted() const;
    const QString &mountPoint() const;

    // relativePath like "TeslaCam/SentryClips/<event>/<clip>"; folders are implied.
    void addFile(const QString &relativePath, const QByteArray &content);
    // More bytes at the end of a file, as when the car is still writing it.
    void appendToFile(const QString &relativePath, const QByteArray &more);
    // Listing the folder fails with error (EIO, EACCES, …); with lookupsToo, so does any look at it.
    void failFolder(const QString &relativePath, int error, bool lookupsToo = false);
    // Reads that reach offset fail with EIO from then on.
    void failReadsFrom(const QString &relativePath, qint64 offset);
    // Once this many bytes have been served, all is gone: lookups answer ENOENT, reads of open files EIO.
    void vanishAfterBytes(qint64 bytes);
    // Reads that reach offset don't answer until release(): a drive that stops responding mid-file.
    void hangReadsFrom(const QString &relativePath, qint64 offset);
    // A file no read of which answers until release(): its path on the drive.
    QString addHeldFile(const QString &relativePath, const QByteArray &content);
    // Size and free-space queries don't answer until release().
    void hangStatfs();
    // The size the drive answers when asked (none by default, as libfuse).
    void setCapacity(qint64 bytes);
    // Serves reads one at a time at most this many bytes a second, as a USB stick does; 0 is as fast as memory.
    void limitReadRate(qint64 bytesPerSecond);
    void release();
    bool isHanging() const;
    // How many reads (or size queries) the drive holds now, and the most it held at once.
    int heldRequests() const;
    int mostHeldRequests() const;
    // Until at least `count` requests are held at once; false past the limit.
    bool waitUntilHeld(int count = 1, std::chrono::milliseconds limit = std::chrono::seconds(20));
    qint64 bytesServed() const;

    struct State;

private:
    std::unique_ptr<State> state_;
};

// Skips the test function where FUSE can't be had, else mounts `fs` on a fresh temporary folder `mountPoint`.
#define KEELHOLD_FAULTY_FS(fs, mountPoint)                                                                             \
    if (!FaultyFs::available())                                                                                        \
        QSKIP("needs root and /dev/fuse");                                                                             \
    QTemporaryDir mountPoint;                                                                                          \
    FaultyFs fs(mountPoint.path());                                                                                    \
    QVERIFY(fs.isMounted())
