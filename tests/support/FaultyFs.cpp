// FUSE 3.12: older interfaces read the loop's config in an older layout, leaving no idle worker once requests are held.
#define FUSE_USE_VERSION 312
#include "support/FaultyFs.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cerrno>
#include <cstring>
#include <fuse.h>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <sys/sysmacros.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <thread>
#include <unistd.h>

struct FaultyFs::State {
    QString mountPoint;
    fuse *handle = nullptr;
    std::thread loop;
    bool mounted = false;
    int connection = -1; // the kernel's number for the mount, for aborting it

    std::mutex mutex;
    struct File {
        QByteArray content;
        qint64 failFrom = -1;
        qint64 hangFrom = -1;
    };
    std::condition_variable released;
    bool releasing = false;
    std::atomic<int> hanging{0}; // requests held right now
    std::atomic<int> mostHeld{0};
    std::condition_variable held; // a request began to be held
    bool hangStatfs = false;
    qint64 capacity = 0;
    std::map<std::string, File> files; // "/TeslaCam/…"
    std::set<std::string> folders{"/"};
    struct FolderFault {
        int error = 0;
        bool lookupsToo = false;
    };
    std::map<std::string, FolderFault> failingFolders;
    std::atomic<qint64> served{0};
    std::atomic<qint64> vanishAfter{-1};
    std::atomic<bool> vanished{false};
    std::atomic<qint64> readRate{0};
    std::mutex rateMutex;
    std::chrono::steady_clock::time_point nextFree; // when the drive's last granted read is through
};

namespace {

FaultyFs::State &state()
{
    return *static_cast<FaultyFs::State *>(fuse_get_context()->private_data);
}

// Waits while the test holds the drive still; false if it vanished meanwhile.
bool waitWhileHeld(FaultyFs::State &s, std::unique_lock<std::mutex> &lock)
{
    const int now = ++s.hanging;
    if (now > s.mostHeld)
        s.mostHeld = now;
    s.held.notify_all();
    s.released.wait(lock, [&] { return s.releasing; });
    --s.hanging;
    return !s.vanished;
}

void *onInit(fuse_conn_info *, fuse_config *config)
{
    // No caching anywhere: every read and lookup must reach us, so a fault set mid-test takes effect at once.
    config->entry_timeout = 0;
    config->attr_timeout = 0;
    config->negative_timeout = 0;
    config->direct_io = 1;
    config->kernel_cache = 0;
    return fuse_get_context()->private_data;
}

int onGetattr(const char *path, struct stat *st, fuse_file_info *)
{
    auto &s = state();
    std::memset(st, 0, sizeof *st);
    std::lock_guard lock(s.mutex);
    if (s.vanished && std::strcmp(path, "/") != 0)
        return -ENOENT;
    if (const auto fault = s.failingFolders.find(path); fault != s.failingFolders.end() && fault->second.lookupsToo)
        return -fault->second.error;
    if (s.folders.count(path)) {
        st->st_mode = S_IFDIR | 0755;
        st->st_nlink = 2;
        return 0;
    }
    const auto it = s.files.find(path);
    if (it == s.files.end())
        return -ENOENT;
    st->st_mode = S_IFREG | 0444;
    st->st_nlink = 1;
    st->st_size = it->second.content.size();
    return 0;
}

int onReaddir(const char *path, void *buffer, fuse_fill_dir_t fill, off_t, fuse_file_info *, fuse_readdir_flags)
{
    auto &s = state();
    std::lock_guard lock(s.mutex);
    if (s.vanished)
        return std::strcmp(path, "/") == 0 ? 0 : -ENOENT;
    if (!s.folders.count(path))
        return -ENOENT;
    fill(buffer, ".", nullptr, 0, fuse_fill_dir_flags(0));
    fill(buffer, "..", nullptr, 0, fuse_fill_dir_flags(0));
    std::string prefix = path;
    if (prefix != "/")
        prefix += '/';
    std::set<std::string> names;
    auto collect = [&](const std::string &p) {
        if (p.size() > prefix.size() && p.compare(0, prefix.size(), prefix) == 0) {
            const std::string rest = p.substr(prefix.size());
            if (rest.find('/') == std::string::npos)
                names.insert(rest);
        }
    };
    for (const auto &f : s.folders)
        collect(f);
    for (const auto &[p, file] : s.files)
        collect(p);
    for (const auto &n : names)
        fill(buffer, n.c_str(), nullptr, 0, fuse_fill_dir_flags(0));
    return 0;
}

int onOpendir(const char *path, fuse_file_info *)
{
    auto &s = state();
    std::lock_guard lock(s.mutex);
    if (const auto fault = s.failingFolders.find(path); fault != s.failingFolders.end())
        return -fault->second.error;
    return 0;
}

int onOpen(const char *path, fuse_file_info *info)
{
    auto &s = state();
    std::lock_guard lock(s.mutex);
    if (s.vanished || !s.files.count(path))
        return -ENOENT;
    if ((info->flags & O_ACCMODE) != O_RDONLY)
        return -EROFS;
    info->direct_io = 1;
    return 0;
}

int onRead(const char *path, char *buffer, size_t size, off_t offset, fuse_file_info *)
{
    auto &s = state();
    std::unique_lock lock(s.mutex);
    if (s.vanished)
        return -EIO;
    auto it = s.files.find(path);
    if (it == s.files.end())
        return -EIO;
    if (it->second.hangFrom >= 0 && offset + qint64(size) > it->second.hangFrom && !s.releasing) {
        const bool present = waitWhileHeld(s, lock);
        it = s.files.find(path);
        if (!present || it == s.files.end())
            return -EIO;
    }
    const auto &file = it->second;
    if (file.failFrom >= 0 && offset + qint64(size) > file.failFrom)
        return -EIO;
    const qint64 length = file.content.size();
    if (offset >= length)
        return 0;
    const size_t n = size_t(std::min<qint64>(qint64(size), length - offset));
    std::memcpy(buffer, file.content.constData() + offset, n);
    const qint64 total = s.served += qint64(n);
    const qint64 limit = s.vanishAfter.load();
    if (limit >= 0 && total >= limit)
        s.vanished = true;
    lock.unlock();
    if (const qint64 rate = s.readRate.load(); rate > 0) {
        // One read at a time through the drive's bandwidth: each waits for those granted before it.
        std::chrono::steady_clock::time_point done;
        {
            std::lock_guard rateLock(s.rateMutex);
            const auto start = std::max(std::chrono::steady_clock::now(), s.nextFree);
            done = start + std::chrono::nanoseconds(qint64(n) * 1'000'000'000 / rate);
            s.nextFree = done;
        }
        std::this_thread::sleep_until(done);
    }
    return int(n);
}

int onStatfs(const char *, struct statvfs *out)
{
    auto &s = state();
    std::unique_lock lock(s.mutex);
    if (s.hangStatfs && !s.releasing && !waitWhileHeld(s, lock))
        return -EIO;
    // What libfuse answers when a file system has no statfs of its own, unless the test gave the drive a size.
    std::memset(out, 0, sizeof *out);
    out->f_namemax = 255;
    out->f_bsize = 512;
    out->f_frsize = 512;
    out->f_blocks = fsblkcnt_t(s.capacity / 512);
    return 0;
}

const fuse_operations &operations()
{
    static const fuse_operations ops = [] {
        fuse_operations o{};
        o.init = onInit;
        o.getattr = onGetattr;
        o.readdir = onReaddir;
        o.opendir = onOpendir;
        o.open = onOpen;
        o.read = onRead;
        o.statfs = onStatfs;
        return o;
    }();
    return ops;
}

std::string key(const QString &relativePath)
{
    return (QLatin1Char('/') + QDir::cleanPath(relativePath)).toStdString();
}

// Every folder above path; the caller holds the lock.
void addParentFolders(FaultyFs::State &s, const std::string &path)
{
    for (size_t slash = path.find('/', 1); slash != std::string::npos; slash = path.find('/', slash + 1))
        s.folders.insert(path.substr(0, slash));
}

} // namespace

bool FaultyFs::available()
{
    return ::geteuid() == 0 && ::access("/dev/fuse", R_OK | W_OK) == 0;
}

FaultyFs::FaultyFs(const QString &mountPoint) : state_(std::make_unique<State>())
{
    state_->mountPoint = mountPoint;
    if (!available())
        return;
    // The kernel's FUSE control folder, through which teardown can abort the connection; mounted once if not yet.
    {
        QFile mounts(QStringLiteral("/proc/self/mounts"));
        if (mounts.open(QIODevice::ReadOnly) && !mounts.readAll().contains(" fusectl "))
            ::mount("none", "/sys/fs/fuse/connections", "fusectl", 0, nullptr);
    }
    // It stands for a car's drive, so it mounts as exFAT ("fuse.exfat").
    char name[] = "faultyfs";
    char option[] = "-o";
    char subtype[] = "subtype=exfat";
    char *argv[] = {name, option, subtype, nullptr};
    fuse_args args = FUSE_ARGS_INIT(3, argv);
    state_->handle = fuse_new(&args, &operations(), sizeof(fuse_operations), state_.get());
    fuse_opt_free_args(&args);
    if (!state_->handle)
        return;
    if (fuse_mount(state_->handle, QFile::encodeName(mountPoint).constData()) != 0) {
        fuse_destroy(state_->handle);
        state_->handle = nullptr;
        return;
    }
    state_->mounted = true;
    // From the mount table, not the file system itself, which may not answer by the time the test ends.
    QFile mountInfo(QStringLiteral("/proc/self/mountinfo"));
    if (mountInfo.open(QIODevice::ReadOnly))
        for (const QByteArray &line : mountInfo.readAll().split('\n')) {
            const QList<QByteArray> fields = line.split(' ');
            if (fields.size() > 4 && fields[4] == QFile::encodeName(mountPoint)) {
                const QList<QByteArray> device = fields[2].split(':');
                if (device.size() == 2)
                    state_->connection = device[1].toInt();
            }
        }
    // Several threads, so several held reads wait at once while the rest of the drive still answers.
    state_->loop = std::thread([h = state_->handle] {
        fuse_loop_config *config = fuse_loop_cfg_create();
        fuse_loop_cfg_set_max_threads(config, 64);
        // Idle workers stay, so one is always reading while others hold.
        fuse_loop_cfg_set_idle_threads(config, 16);
        fuse_loop_mt(h, config);
        fuse_loop_cfg_destroy(config);
    });
}

FaultyFs::~FaultyFs()
{
    if (!state_->handle)
        return;
    // A hung read must answer before the file system can go.
    release();
    // Unmounting ends the loop (its /dev/fuse read fails once the kernel drops the connection); a file the test still
    // holds open would keep the connection up, so it is aborted then.
    fuse_exit(state_->handle);
    fuse_unmount(state_->handle);
    if (state_->connection >= 0) {
        const QString abort = QStringLiteral("/sys/fs/fuse/connections/%1/abort").arg(state_->connection);
        QFile control(abort);
        if (control.open(QIODevice::WriteOnly))
            control.write("1");
    }
    if (state_->loop.joinable())
        state_->loop.join();
    fuse_destroy(state_->handle);
}

void FaultyFs::limitReadRate(qint64 bytesPerSecond)
{
    state_->readRate = bytesPerSecond;
}

bool FaultyFs::isMounted() const
{
    return state_->mounted;
}

const QString &FaultyFs::mountPoint() const
{
    return state_->mountPoint;
}

void FaultyFs::addFile(const QString &relativePath, const QByteArray &content)
{
    std::lock_guard lock(state_->mutex);
    const std::string path = key(relativePath);
    state_->files[path].content = content;
    addParentFolders(*state_, path);
}

void FaultyFs::appendToFile(const QString &relativePath, const QByteArray &more)
{
    std::lock_guard lock(state_->mutex);
    state_->files[key(relativePath)].content += more;
}

void FaultyFs::failFolder(const QString &relativePath, int error, bool lookupsToo)
{
    std::lock_guard lock(state_->mutex);
    const std::string path = key(relativePath);
    addParentFolders(*state_, path);
    state_->folders.insert(path);
    state_->failingFolders[path] = {error, lookupsToo};
}

void FaultyFs::failReadsFrom(const QString &relativePath, qint64 offset)
{
    std::lock_guard lock(state_->mutex);
    state_->files[key(relativePath)].failFrom = offset;
}

void FaultyFs::vanishAfterBytes(qint64 bytes)
{
    state_->vanishAfter = bytes;
    if (bytes <= state_->served)
        state_->vanished = true;
}

qint64 FaultyFs::bytesServed() const
{
    return state_->served;
}

void FaultyFs::hangReadsFrom(const QString &relativePath, qint64 offset)
{
    std::lock_guard lock(state_->mutex);
    state_->files[key(relativePath)].hangFrom = offset;
    state_->releasing = false;
}

QString FaultyFs::addHeldFile(const QString &relativePath, const QByteArray &content)
{
    addFile(relativePath, content);
    hangReadsFrom(relativePath, 0);
    return state_->mountPoint + QLatin1Char('/') + relativePath;
}

void FaultyFs::hangStatfs()
{
    std::lock_guard lock(state_->mutex);
    state_->hangStatfs = true;
    state_->releasing = false;
}

void FaultyFs::setCapacity(qint64 bytes)
{
    std::lock_guard lock(state_->mutex);
    state_->capacity = bytes;
}

void FaultyFs::release()
{
    {
        std::lock_guard lock(state_->mutex);
        state_->releasing = true;
    }
    state_->released.notify_all();
    state_->held.notify_all();
}

int FaultyFs::heldRequests() const
{
    return state_->hanging;
}

int FaultyFs::mostHeldRequests() const
{
    return state_->mostHeld;
}

bool FaultyFs::waitUntilHeld(int count, std::chrono::milliseconds limit)
{
    std::unique_lock lock(state_->mutex);
    // A release ends the wait too: nothing more will be held.
    state_->held.wait_for(lock, limit, [&] { return state_->hanging >= count || state_->releasing; });
    return state_->hanging >= count;
}

bool FaultyFs::isHanging() const
{
    return state_->hanging > 0;
}
