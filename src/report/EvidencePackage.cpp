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
#include <QScopeGuard>
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

QString tr(const char *text)
{
    return QCoreApplication::translate("EvidencePackage", text);
}

QString readProblem(const QString &file, int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR: return tr("Couldn't read %1 from the drive — it is no longer there.").arg(file);
    case ReadOnlyFs::notRegularFile: return tr("Couldn't read %1 from the drive — it isn't an ordinary file.").arg(file);
    case EACCES:
    case EPERM: return tr("Couldn't read %1 from the drive — the system refused to open it.").arg(file);
    default: return tr("Couldn't read %1 from the drive — the drive reported an error.").arg(file);
    }
}

QString writeProblem(int error)
{
    switch (error) {
    case ENOSPC:
    case EDQUOT: return tr("Couldn't write the package there — the disk is full.");
    case EACCES:
    case EPERM:
    case EROFS: return tr("Couldn't write the package there — that folder can't be written to.");
    case ENOENT:
    case ENOTDIR: return tr("Couldn't write the package there — that folder doesn't exist.");
    case EISDIR: return tr("Couldn't write the package there — a folder already has that name.");
    default: return tr("Couldn't write the package there — the disk reported an error.");
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
        throw ReportError(tr("Couldn't read %1 from the drive — it stopped answering.").arg(file));
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
    Progress(const Options &options, qint64 total) : report_(options.progress), total_(total) {}

    // The first block reports at once, later ones when enough time has passed.
    void add(qint64 bytes)
    {
        done_ += bytes;
        const auto now = std::chrono::steady_clock::now();
        if (report_ && total_ > 0 && (!reported_ || now - last_ >= progressInterval)) {
            reported_ = true;
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
    bool reported_ = false;
    std::chrono::steady_clock::time_point last_;
};

// A writer that didn't finish is marked failed before it is freed, so that
// freeing it doesn't write the end of a ZIP into a file about to be removed.
struct Writer {
    archive *zip = archive_write_new();
    bool closed = false;
    ~Writer()
    {
        if (!closed)
            archive_write_fail(zip);
        archive_write_free(zip);
    }
};

struct EntryFree {
    void operator()(archive_entry *entry) const { archive_entry_free(entry); }
};

void writeHeader(archive *zip, const QString &name, qint64 size, time_t modified)
{
    const std::unique_ptr<archive_entry, EntryFree> entry(archive_entry_new());
    archive_entry_set_pathname_utf8(entry.get(), name.toUtf8().constData());
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), 0644);
    // Known before the data: a stored entry needs it, and it is how
    // libarchive decides on ZIP64 for an entry over 4 GB.
    archive_entry_set_size(entry.get(), size);
    archive_entry_set_mtime(entry.get(), modified, 0);
    if (archive_write_header(zip, entry.get()) != ARCHIVE_OK)
        throw ReportError(writeProblem(archive_errno(zip)));
}

void writeData(archive *zip, const char *data, qint64 size)
{
    if (archive_write_data(zip, data, size_t(size)) != size)
        throw ReportError(writeProblem(archive_errno(zip)));
}

void syncFolder(const QString &folder)
{
    const int fd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
}

} // namespace

void write(const std::vector<Item> &items, const QString &destination, const Options &options)
{
    if (DriveBoundary::writesIntoDriveOf(options.events, destination))
        throw ReportError(tr("Keelhold never writes to your Tesla drive, so save the package somewhere else."));

    QSet<QString> names;
    for (const Item &item : items) {
        if (!isPlainName(item.name) || names.contains(item.name))
            throw ReportError(tr("%1 can't be a name inside the package — the package was not made.").arg(item.name));
        names.insert(item.name);
    }

    // Every source is looked at before anything is written: a file that is
    // gone fails the package at once, and the sizes make the progress.
    qint64 total = 0;
    for (const Item &item : items) {
        const QString path = item.source;
        const auto info = onDrive(QFileInfo(path).fileName(), options,
                                  [path](std::stop_token) { return ReadOnlyFs::stat(path); });
        if (!info.isRegularFile)
            throw ReportError(readProblem(QFileInfo(path).fileName(),
                                          info.exists ? ReadOnlyFs::notRegularFile : info.error));
        total += info.size;
    }

    const QFileInfo target(destination);
    const QString folder = target.absolutePath();
    const QString partial = folder + QStringLiteral("/.") + target.fileName() + QStringLiteral(".partial-")
        + QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QByteArray partialName = QFile::encodeName(partial);
    const int out = ::open(partialName.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (out < 0)
        throw ReportError(writeProblem(errno));
    bool placed = false;
    const auto cleanUp = qScopeGuard([&] {
        if (out >= 0)
            ::close(out);
        if (!placed)
            ::unlink(partialName.constData());
    });

    Progress progress(options, total);
    {
        Writer writer;
        archive *zip = writer.zip;
        // Stored, not compressed: footage doesn't shrink, and any reader
        // sees the original bytes in place. Unbuffered: each block goes
        // straight to the file.
        if (archive_write_set_format_zip(zip) != ARCHIVE_OK
            || archive_write_set_options(zip, "zip:compression=store,zip:hdrcharset=UTF-8") != ARCHIVE_OK
            || archive_write_set_bytes_per_block(zip, 0) != ARCHIVE_OK || archive_write_open_fd(zip, out) != ARCHIVE_OK)
            throw ReportError(writeProblem(archive_errno(zip)));

        const auto block = std::make_shared<Block>(size_t(blockSize));
        QByteArray sums;
        for (const Item &item : items) {
            const QString file = QFileInfo(item.source).fileName();
            const QString changed = tr("%1 changed while the package was being made — the package was not made.").arg(file);
            const std::shared_ptr<Source> source = openSource(item.source, file, options);
            writeHeader(zip, item.name, source->size, source->modified);
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
                    throw ReportError(changed);
                hash.update(block->data(), size_t(read.size));
                writeData(zip, block->data(), read.size);
                progress.add(read.size);
            }
            if (count != source->size)
                throw ReportError(changed);
            if (archive_write_finish_entry(zip) != ARCHIVE_OK)
                throw ReportError(writeProblem(archive_errno(zip)));
            const QString digest = hash.finishHex();
            if (item.sha256 && item.sha256->compare(digest, Qt::CaseInsensitive) != 0)
                throw ReportError(tr("%1 changed since the report was made — the package was not made.").arg(file));
            sums += digest.toLatin1() + "  " + item.name.toUtf8() + '\n';
        }

        writeHeader(zip, sumsName, sums.size(), ::time(nullptr));
        writeData(zip, sums.constData(), sums.size());
        if (archive_write_close(zip) != ARCHIVE_OK)
            throw ReportError(writeProblem(archive_errno(zip)));
        writer.closed = true;
    }

    // On the disk before it takes the destination's name: a power cut must
    // find the old file or the whole new one.
    if (::fsync(out) != 0)
        throw ReportError(writeProblem(errno));
    if (::rename(partialName.constData(), QFile::encodeName(destination).constData()) != 0)
        throw ReportError(writeProblem(errno));
    placed = true;
    syncFolder(folder);
    progress.finish();
}

} // namespace EvidencePackage
