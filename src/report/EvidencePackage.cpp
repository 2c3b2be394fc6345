#include "report/EvidencePackage.h"

#include "base/CancellationError.h"
#include "base/IOWatchdog.h"
#include "base/ReadOnlyFs.h"
#include "drive/DriveBoundary.h"
#include "report/ReportError.h"
#include "vault/Sha256.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QUuid>

#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <cerrno>
#include <ctime>
#include <memory>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace EvidencePackage {

namespace {

constexpr qint64 blockSize = 1 << 20;
// A few dozen calls a second at most, however fast the disks are.
constexpr auto progressInterval = std::chrono::milliseconds(40);
const QString sumsName = QStringLiteral("SHA256SUMS");

// The texts' translation context, as lupdate sees it.
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(EvidencePackage)
};

QString readProblem(const QString &file, int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR: return Texts::tr("Couldn't read %1 from the drive — it is no longer there.").arg(file);
    case ReadOnlyFs::notRegularFile:
        return Texts::tr("Couldn't read %1 from the drive — it isn't an ordinary file.").arg(file);
    case EACCES:
    case EPERM: return Texts::tr("Couldn't read %1 from the drive — the system refused to open it.").arg(file);
    default: return Texts::tr("Couldn't read %1 from the drive — the drive reported an error.").arg(file);
    }
}

QString writeProblem(int error)
{
    switch (error) {
    case ENOSPC:
    case EDQUOT: return Texts::tr("Couldn't write the package there — the disk is full.");
    case EACCES:
    case EPERM:
    case EROFS: return Texts::tr("Couldn't write the package there — that folder can't be written to.");
    case ENOENT:
    case ENOTDIR: return Texts::tr("Couldn't write the package there — that folder doesn't exist.");
    case EISDIR: return Texts::tr("Couldn't write the package there — a folder already has that name.");
    default: return Texts::tr("Couldn't write the package there — the disk reported an error.");
    }
}

// A source's descriptor, closed by whoever lets go of it last: a read the
// watchdog gave up on may still use it on its own thread.
struct Source {
    int fd = -1;
    qint64 size = 0;
    time_t modified = 0;
    int error = 0;
    ~Source()
    {
        if (fd >= 0)
            ::close(fd);
    }
};
using Block = std::vector<char>;

struct ReadResult {
    qint64 size = 0;
    int error = 0;
};

// Drive work under the read limit. Everything it touches is captured by
// value, so a read stuck in the kernel keeps its own file and buffer alive
// after we have given up on it.
template <typename Op>
auto onDrive(const QString &file, const Options &options, Op &&op)
{
    try {
        return IOWatchdog::run(options.readLimit, std::forward<Op>(op), options.stop);
    } catch (const IOWatchdog::TimedOut &) {
        throw ReportError(Texts::tr("Couldn't read %1 from the drive — it stopped answering.").arg(file));
    }
}

std::shared_ptr<Source> openSource(const QString &path, const QString &file, const Options &options)
{
    auto source = onDrive(file, options, [path](std::stop_token) {
        auto opened = std::make_shared<Source>();
        opened->fd = ReadOnlyFs::openRead(path);
        struct stat info {};
        if (opened->fd < 0 || ::fstat(opened->fd, &info) != 0) {
            opened->error = errno;
            return opened;
        }
        opened->size = qint64(info.st_size);
        opened->modified = info.st_mtime;
        ::posix_fadvise(opened->fd, 0, 0, POSIX_FADV_SEQUENTIAL);
        return opened;
    });
    if (source->error != 0)
        throw ReportError(readProblem(file, source->error));
    return source;
}

ReadResult readBlock(const std::shared_ptr<Source> &source, const std::shared_ptr<Block> &block, qint64 want,
                     const QString &file, const Options &options)
{
    return onDrive(file, options, [source, block, want](std::stop_token) {
        for (;;) {
            const ssize_t n = ::read(source->fd, block->data(), size_t(want));
            if (n >= 0)
                return ReadResult{qint64(n), 0};
            if (errno != EINTR)
                return ReadResult{0, errno};
        }
    });
}

// Names a reader of the ZIP and `sha256sum -c` both take as written.
bool isPlainName(const QString &name)
{
    if (name.isEmpty() || name == sumsName)
        return false;
    for (const QChar c : name)
        if (c.unicode() < 0x20 || c == QLatin1Char('\\'))
            return false;
    const QStringList parts = name.split(QLatin1Char('/'));
    return std::none_of(parts.begin(), parts.end(), [](const QString &part) {
        return part.isEmpty() || part == QLatin1String(".") || part == QLatin1String("..");
    });
}

class Progress {
public:
    Progress(const Options &options, qint64 total)
        : report_(options.progress), total_(total), last_(std::chrono::steady_clock::now() - progressInterval)
    {
    }

    // The first block reports at once, later ones when enough time has passed.
    void add(qint64 bytes)
    {
        done_ += bytes;
        const auto now = std::chrono::steady_clock::now();
        if (report_ && total_ > 0 && now - last_ >= progressInterval) {
            last_ = now;
            report_(std::min(1.0, double(done_) / double(total_)));
        }
    }
    void finish()
    {
        if (report_)
            report_(1.0);
    }

private:
    const std::function<void(double)> &report_;
    qint64 total_;
    qint64 done_ = 0;
    std::chrono::steady_clock::time_point last_;
};

// The package under its hidden name beside the destination, removed unless
// it was placed whole.
class HiddenFile {
public:
    explicit HiddenFile(const QString &destination) : destination_(destination)
    {
        const QFileInfo target(destination);
        folder_ = target.absolutePath();
        name_ = QFile::encodeName(folder_ + QStringLiteral("/.") + target.fileName() + QStringLiteral(".partial-")
                                  + QUuid::createUuid().toString(QUuid::WithoutBraces));
        fd_ = ::open(name_.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd_ < 0)
            throw ReportError(writeProblem(errno));
    }
    ~HiddenFile()
    {
        ::close(fd_);
        if (!placed_)
            ::unlink(name_.constData());
    }
    HiddenFile(const HiddenFile &) = delete;
    HiddenFile &operator=(const HiddenFile &) = delete;

    int fd() const { return fd_; }

    // On the disk before it takes the destination's name: a power cut finds
    // the old file or the whole new one.
    void place()
    {
        if (::fsync(fd_) != 0)
            throw ReportError(writeProblem(errno));
        if (::rename(name_.constData(), QFile::encodeName(destination_).constData()) != 0)
            throw ReportError(writeProblem(errno));
        placed_ = true;
        const int folder = ::open(QFile::encodeName(folder_).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (folder >= 0) {
            ::fsync(folder);
            ::close(folder);
        }
    }

private:
    QString destination_;
    QString folder_;
    QByteArray name_;
    int fd_ = -1;
    bool placed_ = false;
};

// A ZIP writer on the hidden file. One that didn't finish is marked failed
// before it is freed, so that freeing it writes no end of a ZIP into a
// file about to be removed.
class Writer {
public:
    explicit Writer(int fd)
    {
        // Stored, not compressed: footage doesn't shrink, and any reader
        // finds the original bytes in place. Unbuffered: each block goes
        // straight to the file.
        if (!zip_ || archive_write_set_format_zip(zip_) != ARCHIVE_OK
            || archive_write_set_options(zip_, "zip:compression=store,zip:hdrcharset=UTF-8") != ARCHIVE_OK
            || archive_write_set_bytes_per_block(zip_, 0) != ARCHIVE_OK
            || archive_write_open_fd(zip_, fd) != ARCHIVE_OK)
            fail();
    }
    ~Writer()
    {
        if (!closed_)
            archive_write_fail(zip_);
        archive_write_free(zip_);
    }
    Writer(const Writer &) = delete;
    Writer &operator=(const Writer &) = delete;

    void header(const QString &name, qint64 size, time_t modified)
    {
        const std::unique_ptr<archive_entry, void (*)(archive_entry *)> entry(archive_entry_new(), archive_entry_free);
        archive_entry_set_pathname_utf8(entry.get(), name.toUtf8().constData());
        archive_entry_set_filetype(entry.get(), AE_IFREG);
        archive_entry_set_perm(entry.get(), 0644);
        // Known before the data: a stored entry needs it, and it is how
        // libarchive decides on ZIP64 for an entry over 4 GB.
        archive_entry_set_size(entry.get(), size);
        archive_entry_set_mtime(entry.get(), modified, 0);
        if (archive_write_header(zip_, entry.get()) != ARCHIVE_OK)
            fail();
    }
    void data(const char *bytes, qint64 size)
    {
        if (archive_write_data(zip_, bytes, size_t(size)) != size)
            fail();
    }
    void finishEntry()
    {
        if (archive_write_finish_entry(zip_) != ARCHIVE_OK)
            fail();
    }
    void close()
    {
        if (archive_write_close(zip_) != ARCHIVE_OK)
            fail();
        closed_ = true;
    }

private:
    [[noreturn]] void fail() { throw ReportError(writeProblem(zip_ ? archive_errno(zip_) : ENOMEM)); }

    archive *zip_ = archive_write_new();
    bool closed_ = false;
};

// Adds one item, read block by block under the read limit; answers the
// SHA-256 of the bytes that went into the package.
QString addItem(Writer &zip, const Item &item, const std::shared_ptr<Block> &block, Progress &progress,
                const Options &options)
{
    const QString file = QFileInfo(item.source).fileName();
    const std::shared_ptr<Source> source = openSource(item.source, file, options);
    zip.header(item.name, source->size, source->modified);
    Sha256 hash;
    qint64 count = 0;
    for (;;) {
        if (options.stop.stop_requested())
            throw CancellationError();
        // One byte past the size is asked for, to tell a file that grew.
        const qint64 want = std::min(blockSize, source->size + 1 - count);
        const ReadResult read = readBlock(source, block, want, file, options);
        if (read.error != 0)
            throw ReportError(readProblem(file, read.error));
        if (read.size == 0)
            break;
        count += read.size;
        if (count > source->size)
            break;
        hash.update(block->data(), size_t(read.size));
        zip.data(block->data(), read.size);
        progress.add(read.size);
    }
    if (count != source->size)
        throw ReportError(
            Texts::tr("%1 changed while the package was being made — the package was not made.").arg(file));
    zip.finishEntry();
    const QString digest = hash.finishHex();
    if (item.sha256 && item.sha256->compare(digest, Qt::CaseInsensitive) != 0)
        throw ReportError(Texts::tr("%1 changed since the report was made — the package was not made.").arg(file));
    return digest;
}

// Every source is looked at before anything is written: a file that is gone
// fails the package at once, and the sizes make the progress.
qint64 totalSize(const std::vector<Item> &items, const Options &options)
{
    qint64 total = 0;
    for (const Item &item : items) {
        const QString path = item.source;
        const QString file = QFileInfo(path).fileName();
        const auto info = onDrive(file, options, [path](std::stop_token) { return ReadOnlyFs::stat(path); });
        if (!info.isRegularFile)
            throw ReportError(readProblem(file, info.exists ? ReadOnlyFs::notRegularFile : info.error));
        total += info.size;
    }
    return total;
}

} // namespace

void write(const std::vector<Item> &items, const QString &destination, const Options &options)
{
    if (DriveBoundary::writesIntoDriveOf(options.events, destination))
        throw ReportError(Texts::tr("Keelhold never writes to your Tesla drive, so save the package somewhere else."));
    QSet<QString> names;
    for (const Item &item : items) {
        if (!isPlainName(item.name) || names.contains(item.name))
            throw ReportError(
                Texts::tr("%1 can't be a name inside the package — the package was not made.").arg(item.name));
        names.insert(item.name);
    }

    Progress progress(options, totalSize(items, options));
    HiddenFile hidden(destination);
    {
        Writer zip(hidden.fd());
        const auto block = std::make_shared<Block>(size_t(blockSize));
        QByteArray sums;
        std::vector<QString> digests;
        for (const Item &item : items) {
            digests.push_back(addItem(zip, item, block, progress, options));
            sums += digests.back().toLatin1() + "  " + item.name.toUtf8() + '\n';
        }
        if (options.last) {
            const Item last = options.last(digests);
            if (!isPlainName(last.name) || names.contains(last.name))
                throw ReportError(
                    Texts::tr("%1 can't be a name inside the package — the package was not made.").arg(last.name));
            sums += addItem(zip, last, block, progress, options).toLatin1() + "  " + last.name.toUtf8() + '\n';
        }
        zip.header(sumsName, sums.size(), ::time(nullptr));
        zip.data(sums.constData(), sums.size());
        zip.close();
    }
    hidden.place();
    progress.finish();
}

} // namespace EvidencePackage
