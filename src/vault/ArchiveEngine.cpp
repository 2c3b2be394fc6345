#include "vault/ArchiveEngine.h"

#include "base/CancellationError.h"
#include "base/IOWatchdog.h"
#include "base/LogCategories.h"
#include "base/ReadOnlyFs.h"
#include "crypt/KeyStore.h"
#include "drive/DriveBoundary.h"
#include "drive/VolumeInfo.h"
#include "vault/Sha256.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QStorageInfo>
#include <QUuid>

#include <algorithm>

#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <semaphore>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace ArchiveEngine {

// what() is for the log; a person reads friendlyReason().
ArchiveEngineError::ArchiveEngineError(Case c, const QString &path) : case_(c), path_(path)
{
    QString text;
    switch (c) {
    case sizeMismatch: text = QStringLiteral("Size changed while copying: %1"); break;
    case cannotCreateFile: text = QStringLiteral("Couldn't create the file %1"); break;
    case vaultFull: text = QStringLiteral("No space left for %1"); break;
    case vaultUnavailable: text = QStringLiteral("The Vault folder has gone: %1"); break;
    case notRegularFile: text = QStringLiteral("Not a regular file: %1"); break;
    }
    text_ = text.arg(path).toStdString();
}

namespace {

// One of the Reason sentences in the loaded language.
QString sentence(const char16_t *reason)
{
    return QCoreApplication::translate("ArchiveEngine", QString::fromUtf16(reason).toUtf8().constData());
}

QString lastPathComponent(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    return slash < 0 ? path : path.mid(slash + 1);
}

QString parentPath(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    return slash <= 0 ? QStringLiteral("/") : path.left(slash);
}

[[noreturn]] void raiseErrno(const char *what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

// Closes on every way out; errors from that close are dropped.
class Fd {
public:
    explicit Fd(int fd) : fd_(fd) {}
    ~Fd()
    {
        if (fd_ >= 0)
            ::close(fd_);
    }
    Fd(const Fd &) = delete;
    Fd &operator=(const Fd &) = delete;
    int get() const { return fd_; }
    int release() { return std::exchange(fd_, -1); }

private:
    int fd_;
};

// Hashes a block on a second thread while the caller writes the same block,
// so that the digest costs no extra pass and little extra time.
class BlockHasher {
public:
    explicit BlockHasher(Sha256 &hash) : hash_(hash) {}
    ~BlockHasher()
    {
        if (!thread_.joinable())
            return;
        wait();
        quit_ = true;
        start_.release();
        thread_.join();
    }
    BlockHasher(const BlockHasher &) = delete;
    BlockHasher &operator=(const BlockHasher &) = delete;

    void begin(const char *data, size_t size)
    {
        // Small blocks (event.json, thumbnails) aren't worth a thread.
        if (size < 64 * 1024) {
            hash_.update(data, size);
            return;
        }
        if (!thread_.joinable())
            thread_ = std::thread([this] { loop(); });
        data_ = data;
        size_ = size;
        pending_ = true;
        start_.release();
    }
    void wait()
    {
        if (pending_) {
            done_.acquire();
            pending_ = false;
        }
    }

private:
    void loop()
    {
        for (;;) {
            start_.acquire();
            if (quit_)
                return;
            hash_.update(data_, size_);
            done_.release();
        }
    }

    Sha256 &hash_;
    std::thread thread_;
    std::binary_semaphore start_{0};
    std::binary_semaphore done_{0};
    const char *data_ = nullptr;
    size_t size_ = 0;
    bool pending_ = false;
    bool quit_ = false;
};

// A failure on the Vault's side, named for what the user can do about it.
[[noreturn]] void raiseVaultError(int error, const QString &path)
{
    // EFBIG: past the largest file the Vault's disk (or a quota) allows.
    if (error == ENOSPC || error == EDQUOT || error == EFBIG)
        throw ArchiveEngineError(ArchiveEngineError::vaultFull, path);
    if (!QFileInfo(parentPath(path)).isDir())
        throw ArchiveEngineError(ArchiveEngineError::vaultUnavailable, path);
    throw ArchiveEngineError(ArchiveEngineError::cannotCreateFile, path);
}

void writeAll(int fd, const char *data, size_t size, const QString &path)
{
    while (size > 0) {
        const ssize_t n = ::write(fd, data, size);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            raiseVaultError(errno, path);
        }
        data += n;
        size -= size_t(n);
    }
}

bool syncFolder(const QString &folder)
{
    const int fd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool ok = ::fsync(fd) == 0;
    ::close(fd);
    return ok;
}

// The steps for one file, run under the watchdog. Only the temporary file
// and the final destination are ever written; the source is only read. A
// copy that fails on the Vault's side, or because the file changed, leaves
// no temporary file; one cut off by the drive keeps what arrived under its
// hidden name (from a failing drive, part of a clip may be all there is).
// A kept copy that was there before stays until the new one replaces it whole.
ArchivedFile copySteps(const QString &from, const QString &to, const std::stop_token &stop)
{
    if (stop.stop_requested())
        throw CancellationError();

    Fd source(ReadOnlyFs::openRead(from));
    if (source.get() < 0) {
        if (errno == ReadOnlyFs::notRegularFile)
            throw ArchiveEngineError(ArchiveEngineError::notRegularFile, from);
        raiseErrno("open");
    }
    struct stat sourceInfo {};
    if (::fstat(source.get(), &sourceInfo) != 0)
        raiseErrno("stat");
    // Read no further than one byte past the size seen: enough to tell that
    // the file grew, never a runaway copy.
    const qint64 expectedSize = qint64(sourceInfo.st_size);
    ::posix_fadvise(source.get(), 0, 0, POSIX_FADV_SEQUENTIAL);

    const QString name = lastPathComponent(to);
    const QString folder = parentPath(to);
    const QString tempPath = folder + QStringLiteral("/.tmp-")
        + QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper() + QLatin1Char('-') + name;
    const QByteArray temp = QFile::encodeName(tempPath);
    Fd out(::open(temp.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644));
    if (out.get() < 0)
        raiseVaultError(errno, tempPath);
    bool placed = false;
    bool cutOffByDrive = false;
    const auto removeTemp = qScopeGuard([&] {
        if (!placed && !cutOffByDrive)
            ::unlink(temp.constData());
    });

    Sha256 hash;
    qint64 count = 0;
    // Two blocks: the next one is read while the hasher is still on the last,
    // so reading costs no time of its own. The hasher is declared after
    // them, so it is done with a block before the blocks go.
    const std::unique_ptr<char[]> blocks(new char[size_t(chunkSize) * 2]);
    qint64 readSoFar = 0;
    const auto readBlock = [&](char *into) -> size_t {
        const qint64 room = expectedSize + 1 - readSoFar;
        if (room <= 0)
            return 0;
        for (;;) {
            if (stop.stop_requested()) {
                cutOffByDrive = true; // a stop, or the watchdog giving up on the drive
                throw CancellationError();
            }
            const ssize_t n = ::read(source.get(), into, size_t(std::min<qint64>(chunkSize, room)));
            if (n >= 0) {
                readSoFar += n;
                return size_t(n);
            }
            if (errno != EINTR) {
                cutOffByDrive = true;
                raiseErrno("read");
            }
        }
    };
    {
        BlockHasher hasher(hash);
        char *current = blocks.get();
        char *next = blocks.get() + chunkSize;
        size_t n = readBlock(current);
        while (n > 0) {
            hasher.begin(current, n);
            writeAll(out.get(), current, n, tempPath);
            count += qint64(n);
            const size_t following = readBlock(next);
            hasher.wait();
            std::swap(current, next);
            n = following;
        }
    }
    if (count != expectedSize)
        throw ArchiveEngineError(ArchiveEngineError::sizeMismatch, from);
    // On the disk before it counts as kept: a power cut after the record
    // must find these bytes.
    if (::fsync(out.get()) != 0)
        raiseVaultError(errno, tempPath);
    if (::close(out.release()) != 0)
        raiseVaultError(errno, tempPath);

    // Over the old copy in one step: there is never a moment without one.
    if (::rename(temp.constData(), QFile::encodeName(to).constData()) != 0)
        raiseVaultError(errno, to);
    placed = true;
    if (!syncFolder(folder))
        raiseVaultError(errno, to);

    return ArchivedFile{name, count, hash.finishHex()};
}

double clockSeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// Asked when the event begins, while its drive is surely there, and under a
// short limit: a drive that doesn't answer is an unknown one.
QString volumeName(const QString &folder)
{
    try {
        return IOWatchdog::run(std::chrono::seconds(2), [folder](std::stop_token) {
            const auto info = VolumeInfo::query(folder);
            if (info && info->name && !info->name->isEmpty())
                return *info->name;
            return ArchivedEvent::unknownDrive;
        });
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcVault);
        return ArchivedEvent::unknownDrive;
    }
}

// The device that holds a folder of the drive; nothing when it can't be
// seen. Asked under a short limit: a drive that stops answering is no
// answer, not a reason to wait.
struct FolderLook {
    bool answered = false;
    int error = 0;
    dev_t device = 0;
};

FolderLook lookAtFolder(const QString &folder)
{
    try {
        return IOWatchdog::run(std::chrono::seconds(2), [folder](std::stop_token) {
            FolderLook look;
            struct stat st {};
            look.answered = true;
            if (::stat(QFile::encodeName(folder).constData(), &st) != 0)
                look.error = errno;
            else
                look.device = st.st_dev;
            return look;
        });
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcVault);
        return {};
    }
}

// A folder of the drive as it was last seen there.
struct SeenFolder {
    QString path;
    dev_t device = 0;
};

// Whether the drive that held a folder seen earlier has gone: pulled out or
// unmounted, so the folder is no longer there, or another file system now
// stands in its place. A drive that is there but failing is not gone.
bool driveLeft(const SeenFolder &seen)
{
    const FolderLook now = lookAtFolder(seen.path);
    if (!now.answered)
        return false;
    switch (now.error) {
    case 0: return now.device != seen.device;
    case ENOENT:
    case ENOTDIR:
    case ENOTCONN:
    case ENODEV:
    case ENXIO: return true;
    default: return false;
    }
}

// A file an earlier, cut-off run already placed, still whole in the Vault
// and still the same size on the drive: there is nothing to copy again.
std::optional<ArchivedFile> stillKept(const std::vector<ArchivedFile> &kept, const QString &source, const QString &to)
{
    const QString name = lastPathComponent(to);
    const auto it = std::find_if(kept.begin(), kept.end(), [&](const ArchivedFile &f) { return f.name == name; });
    if (it == kept.end())
        return std::nullopt;
    const ReadOnlyFs::PathInfo onDrive = ReadOnlyFs::stat(source);
    const ReadOnlyFs::PathInfo inVault = ReadOnlyFs::stat(to);
    if (!onDrive.isRegularFile || !inVault.isRegularFile || onDrive.size != it->size || inVault.size != it->size)
        return std::nullopt;
    return *it;
}

// What a commit cut off earlier (a kill, a power cut) left beside the
// manifest. Partial copies from a failing drive stay: they may be all there is.
void removeLeftovers(const QString &vaultURL)
{
    QDir root(vaultURL);
    for (const QString &name : root.entryList({QStringLiteral("manifest.json.*")}, QDir::Files | QDir::Hidden))
        root.remove(name);
}

} // namespace

std::vector<QString> sourceFiles(const TeslaEvent &event)
{
    std::vector<QString> urls;
    urls.reserve(event.clips.size() + 2);
    for (const auto &clip : event.clips)
        urls.push_back(clip.url);
    if (!event.missingEventJSON) {
        const QString eventJson = event.folderURL + QStringLiteral("/event.json");
        if (ReadOnlyFs::stat(eventJson).exists)
            urls.push_back(eventJson);
    }
    if (event.thumbURL && ReadOnlyFs::stat(*event.thumbURL).exists)
        urls.push_back(*event.thumbURL);
    return urls;
}

QString relativePath(const TeslaEvent &event)
{
    const int year = event.timestamp.toLocalDateTime().date().year();
    return QStringLiteral("%1/%2/%3")
        .arg(year, 4, 10, QLatin1Char('0'))
        .arg(event.kind.rawValue(), event.folderName);
}

ArchivePlan plan(const std::vector<TeslaEvent> &events, const VaultIndex &vault)
{
    const QSet<QString> keys = vault.dedupeKeySet();
    ArchivePlan result;
    result.items.reserve(events.size());
    for (const auto &event : events) {
        ArchivedEvent candidate;
        candidate.eventID = event.id();
        candidate.kind = event.kind;
        candidate.folderName = event.folderName;
        std::vector<QString> sources = sourceFiles(event);
        for (const QString &url : sources) {
            // A file that is gone counts as 0 bytes, so the key misses.
            const ReadOnlyFs::PathInfo info = ReadOnlyFs::stat(url);
            candidate.files.push_back(ArchivedFile{lastPathComponent(url), info.exists ? info.size : 0, QString()});
        }
        const bool duplicate = keys.contains(candidate.dedupeKey());
        result.items.push_back({event, duplicate, std::move(sources), {}});
    }
    return result;
}

ArchivedFile copyFileWithHash(const QString &from, const QString &to, std::chrono::milliseconds timeout,
                              std::stop_token stop)
{
    return IOWatchdog::run(
        timeout, [from, to](std::stop_token workStop) { return copySteps(from, to, workStop); }, stop);
}

QString friendlyReason(const std::exception_ptr &error)
{
    try {
        std::rethrow_exception(error);
    } catch (const IOWatchdog::TimedOut &) {
        return sentence(Reason::timedOut);
    } catch (const ArchiveEngineError &e) {
        switch (e.errorCase()) {
        case ArchiveEngineError::cannotCreateFile: return sentence(Reason::cannotCreateFile);
        case ArchiveEngineError::sizeMismatch: return sentence(Reason::sizeMismatch);
        case ArchiveEngineError::vaultFull: return sentence(Reason::vaultFull);
        case ArchiveEngineError::vaultUnavailable: return sentence(Reason::vaultUnavailable);
        case ArchiveEngineError::notRegularFile: return sentence(Reason::notRegularFile);
        }
        return sentence(Reason::unreadable);
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcVault);
        return sentence(Reason::unreadable);
    }
}

ArchiveReport run(const ArchivePlan &plan, const QString &vaultURL, const ArchiveProgressCallback &progress,
                  std::chrono::milliseconds timeoutPerFile, std::stop_token stop)
{
    const std::vector<ArchivePlan::Item> items = plan.newItems();
    const qint64 totalBytes = plan.totalNewBytes();
    const int totalEvents = int(items.size());

    ArchiveReport report;
    report.skippedDuplicates = int(plan.items.size() - items.size());
    report.plannedEvents = totalEvents;
    // Refused here too, whatever the caller checked: the car's drive is never written.
    std::vector<TeslaEvent> events;
    for (const ArchivePlan::Item &item : items)
        events.push_back(item.event);
    if (DriveBoundary::writesIntoDriveOf(events, vaultURL)) {
        report.failedFiles.push_back({vaultURL, DriveBoundary::vaultRefusalText()});
        return report;
    }
    double lastEmit = 0.0;
    // Files a cut-off run had placed and this one takes as they are: done
    // as far as the progress goes, though not copied by this run.
    qint64 bytesTaken = 0;

    auto emitProgress = [&](int eventsCompleted, std::optional<QString> fileName) {
        if (progress)
            progress(ArchiveProgress{report.bytesCopied + bytesTaken, totalBytes, eventsCompleted, totalEvents,
                                     std::move(fileName)});
    };
    // Per-file emits share one throttle across the run; the run's last file always emits.
    auto maybeEmit = [&](int i, bool isLastFile, const QString &fileName) {
        const double now = clockSeconds();
        if (isLastFile || now - lastEmit >= progressThrottleSeconds) {
            emitProgress(i, fileName);
            lastEmit = now;
        }
    };

    // A failure shows up below as a failure of each event's folder.
    QDir().mkpath(vaultURL);
    removeLeftovers(vaultURL);
    // An index before the first copy: a run cut off before its end (a kill,
    // a power cut) leaves kept folders beside an index that vouches for what
    // it lists, never kept folders with no index at all.
    if (QFileInfo(vaultURL).isDir() && !QFileInfo::exists(VaultIndex::manifestPath(vaultURL))) {
        try {
            VaultIndex().save(vaultURL);
        } catch (const VaultIndex::FileError &) {
            // Said by the merge at the end, which tries again.
        }
    }

    std::optional<SeenFolder> driveSeen;
    for (int i = 0; i < totalEvents && !report.cancelled && !report.stoppedBecause; ++i) {
        if (stop.stop_requested()) {
            report.cancelled = true;
            break;
        }
        const ArchivePlan::Item &item = items[size_t(i)];
        const TeslaEvent &event = item.event;
        const QString relative = relativePath(event);
        const QString folder = QDir(vaultURL).filePath(relative);
        // A Vault that has gone (an unplugged drive) is never made again on
        // the computer's own disk in its place.
        if (!QFileInfo(vaultURL).isDir()) {
            report.failedFiles.push_back({folder, sentence(Reason::vaultUnavailable)});
            continue;
        }
        if (!QDir().mkpath(folder)) {
            const int error = errno;
            report.failedFiles.push_back(
                {folder, friendlyReason(std::make_exception_ptr(ArchiveEngineError(
                             error == ENOSPC || error == EDQUOT ? ArchiveEngineError::vaultFull
                                                                : ArchiveEngineError::cannotCreateFile,
                             folder)))});
            continue;
        }

        // As planned: a file that has gone since is a failure of this event,
        // not one fewer file to keep.
        const std::vector<QString> sources = item.sources.empty() ? sourceFiles(event) : item.sources;
        // The drive as this event begins. An event whose folder is already
        // gone is judged by the drive of the event before.
        if (const FolderLook look = lookAtFolder(event.folderURL); look.answered && look.error == 0)
            driveSeen = SeenFolder{event.folderURL, look.device};
        const QString sourceVolume = volumeName(event.folderURL);
        std::vector<ArchivedFile> files;
        for (size_t j = 0; j < sources.size(); ++j) {
            if (stop.stop_requested()) {
                report.cancelled = true;
                break;
            }
            const QString &source = sources[j];
            const QString name = lastPathComponent(source);
            const QString destination = folder + QLatin1Char('/') + name;
            const bool isLastFile = i == totalEvents - 1 && j == sources.size() - 1;
            maybeEmit(i, isLastFile, name);
            if (const auto kept = stillKept(item.alreadyKept, source, destination)) {
                files.push_back(*kept);
                bytesTaken += kept->size;
                maybeEmit(i, isLastFile, name);
                continue;
            }
            try {
                const ArchivedFile copied = copyFileWithHash(source, destination, timeoutPerFile, stop);
                files.push_back(copied);
                report.bytesCopied += copied.size;
                maybeEmit(i, isLastFile, name);
            } catch (const CancellationError &) {
                report.cancelled = true;
                break;
            } catch (...) {
                KEELHOLD_LOG_CAUGHT(lcVault);
                report.failedFiles.push_back({source, friendlyReason(std::current_exception())});
                // Every file left would fail the same way: the run stops
                // here and says why, and what arrived is recorded as such.
                if (driveSeen && driveLeft(*driveSeen)) {
                    report.stoppedBecause = ArchiveReport::StopReason::driveDisconnected;
                    break;
                }
            }
        }
        // A cancelled event keeps its files on disk but gets no record.
        if (report.cancelled || files.empty())
            continue;

        ArchivedEvent record;
        record.eventID = event.id();
        record.kind = event.kind;
        record.folderName = event.folderName;
        record.timestamp = event.timestamp;
        record.files = std::move(files);
        record.archivedAt = Date::now();
        record.sourceVolume = sourceVolume;
        record.relativePath = relative;
        record.expectedFileCount = int(sources.size());
        record.encrypted = event.encrypted;
        // Keys already fetched go beside the copies, so the kept event plays
        // offline and on any computer the Vault is taken to.
        if (event.encrypted) {
            std::vector<QString> copies;
            for (const ArchivedFile &f : record.files)
                copies.push_back(folder + QLatin1Char('/') + f.name);
            KeyRing::storeBeside(folder, copies);
        }
        report.archivedEvents.push_back(std::move(record));
        emitProgress(i + 1, std::nullopt);
    }

    // Always merged, also after a cancel or when nothing was copied. An
    // unreadable manifest counts as empty and is replaced. A failed write
    // means nothing of this run is on record: the report says so, and no
    // event of it counts as kept.
    VaultIndex merged = VaultIndex::loadOrEmpty(vaultURL);
    merged.events.insert(merged.events.end(), report.archivedEvents.begin(), report.archivedEvents.end());
    QString failure;
    if (!QFileInfo(vaultURL).isDir()) {
        failure = sentence(Reason::vaultUnavailable);
    } else {
        try {
            merged.save(vaultURL);
        } catch (...) {
            KEELHOLD_LOG_CAUGHT(lcVault);
            const qint64 free = QStorageInfo(vaultURL).bytesAvailable();
            failure = sentence(free >= 0 && free < 64 * 1024 ? Reason::vaultFull : Reason::indexNotSaved);
        }
    }
    if (!failure.isEmpty() && !report.archivedEvents.empty()) {
        report.failedFiles.push_back({VaultIndex::manifestPath(vaultURL), failure});
        report.archivedEvents.clear();
    }
    return report;
}

} // namespace ArchiveEngine
