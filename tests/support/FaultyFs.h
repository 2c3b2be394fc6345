#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <chrono>
#include <memory>

// A small FUSE file system served from memory on a thread of the test
// process: a drive that can be made to fail. Reads can fail with EIO from
// a given offset, and the whole drive can vanish after a number of bytes
// has been served, as when it is pulled mid-copy. Needs root and /dev/fuse;
// tests check available() and skip otherwise.
class FaultyFs {
public:
    static bool available();

    // Mounts on mountPoint (an existing empty folder); isMounted() tells
    // whether that worked.
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
    // Opening the folder to list it fails with error (EIO, EACCES, …); with
    // lookupsToo, so does any look at the folder itself.
    void failFolder(const QString &relativePath, int error, bool lookupsToo = false);
    // Reads that reach offset fail with EIO from then on.
    void failReadsFrom(const QString &relativePath, qint64 offset);
    // Once this many bytes have been served in all, every file and folder is
    // gone: lookups answer ENOENT and reads of open files EIO.
    void vanishAfterBytes(qint64 bytes);
    // Reads that reach offset don't answer until release(): a drive that
    // stops responding mid-file.
    void hangReadsFrom(const QString &relativePath, qint64 offset);
    // A file no read of which answers until release(): its path on the drive.
    QString addHeldFile(const QString &relativePath, const QByteArray &content);
    // Asking the drive for its size and free space doesn't answer until
    // release().
    void hangStatfs();
    // The size the drive answers when asked (none by default, as libfuse).
    void setCapacity(qint64 bytes);
    // Serves reads one after another at no more than this many bytes a
    // second, as a USB stick does; 0 (the default) is as fast as memory.
    void limitReadRate(qint64 bytesPerSecond);
    void release();
    bool isHanging() const;
    // How many reads (or size queries) the drive holds right now, and the
    // most it held at once.
    int heldRequests() const;
    int mostHeldRequests() const;
    // Until at least `count` requests are held at once; false past the limit.
    bool waitUntilHeld(int count = 1, std::chrono::milliseconds limit = std::chrono::seconds(20));
    qint64 bytesServed() const;

    struct State;

private:
    std::unique_ptr<State> state_;
};

// In a test function: skips it where FUSE can't be had, else mounts `fs` on
// a fresh temporary folder `mountPoint`.
#define KEELHOLD_FAULTY_FS(fs, mountPoint)                                                                             \
    if (!FaultyFs::available())                                                                                        \
        QSKIP("needs root and /dev/fuse");                                                                             \
    QTemporaryDir mountPoint;                                                                                          \
    FaultyFs fs(mountPoint.path());                                                                                    \
    QVERIFY(fs.isMounted())
