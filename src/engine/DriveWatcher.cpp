#include "engine/DriveWatcher.h"

#include "base/ReadOnlyFs.h"
#include "drive/VolumeInfo.h"

#include <QCoreApplication>
#include <QDir>
#include <QSocketNotifier>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <fcntl.h>
#include <unistd.h>

DriveWatcher::DriveWatcher(QObject *parent) : QObject(parent)
{
    // Events are delivered on the main thread, whoever built the watcher.
    if (!parent && QCoreApplication::instance() && thread() != QCoreApplication::instance()->thread())
        moveToThread(QCoreApplication::instance()->thread());
}

DriveWatcher::~DriveWatcher() { stopWatching(); }

std::shared_ptr<DriveEventStream> DriveWatcher::events()
{
    if (stream_)
        return stream_;
    stream_ = std::make_shared<DriveEventStream>();
    if (stream_->thread() != thread())
        stream_->moveToThread(thread());
    connect(stream_.get(), &DriveEventStream::finishedStream, this, &DriveWatcher::stopWatching);
    startWatching();
    return stream_;
}

void DriveWatcher::startWatching()
{
    readerThread_ = new QThread;
    readerThread_->setObjectName(QStringLiteral("DriveWatcher"));
    readerThread_->start();
    readerContext_ = new QObject;
    readerContext_->moveToThread(readerThread_);
    // The first table is read before events() returns: whatever changes
    // after the call is reported.
    QMetaObject::invokeMethod(
        readerContext_,
        [this] {
            fd_ = ::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC);
            if (fd_ < 0)
                return;
            // Read the table before arming the notifier: a change in between
            // is flagged on the first poll and so is not lost.
            known_ = MountTable::removableMounts(MountTable::read());
            // The kernel reports a change as an exceptional condition on this file.
            notifier_ = new QSocketNotifier(fd_, QSocketNotifier::Exception, readerContext_);
            connect(notifier_, &QSocketNotifier::activated, readerContext_, [this] { tableChanged(); });
            holdTimer_ = new QTimer(readerContext_);
            holdTimer_->setSingleShot(true);
            connect(holdTimer_, &QTimer::timeout, readerContext_, [this] { releaseHeld(); });
        },
        Qt::BlockingQueuedConnection);
}

void DriveWatcher::stopWatching()
{
    if (!readerThread_)
        return;
    QMetaObject::invokeMethod(
        readerContext_,
        [this] {
            delete notifier_;
            notifier_ = nullptr;
            holdTimer_ = nullptr; // a child of the context
            if (fd_ >= 0)
                ::close(fd_);
            fd_ = -1;
            delete readerContext_;
            readerContext_ = nullptr;
        },
        Qt::BlockingQueuedConnection);
    readerThread_->quit();
    readerThread_->wait();
    delete readerThread_;
    readerThread_ = nullptr;
}

namespace {
const MountTable::Entry *entryAt(const std::vector<MountTable::Entry> &table, const QString &mountPoint)
{
    for (const MountTable::Entry &e : table)
        if (e.mountPoint == mountPoint)
            return &e;
    return nullptr;
}

// A real block device keeps its number while it is plugged in; the numbers
// of tmpfs and other virtual file systems are handed out again at once.
bool isBlockDevice(const MountTable::Entry &e)
{
    return !e.device.startsWith(QLatin1String("0:"));
}
} // namespace

void DriveWatcher::tableChanged()
{
    std::vector<MountTable::Entry> now = MountTable::removableMounts(MountTable::read());
    std::vector<MountTable::Change> changes = MountTable::diff(known_, now);
    // A change elsewhere in the table (a mount outside the removable-media
    // folders) says nothing about a drive held back: it keeps its moment.
    if (changes.empty())
        return;
    std::vector<MountTable::Change> out;

    // Held unmounts come first, in order: as renames when their device
    // arrived at another mount point, else as the unmounts they were.
    holdTimer_->stop();
    std::vector<bool> consumed(changes.size(), false);
    for (const HeldUnmount &held : held_) {
        bool renamed = false;
        for (size_t i = 0; i < changes.size() && !renamed; ++i) {
            const MountTable::Entry *arrived = entryAt(now, changes[i].mountPoint);
            if (!consumed[i] && changes[i].kind == MountTable::Change::mounted && arrived
                && arrived->mountPoint != held.entry.mountPoint && arrived->device == held.entry.device
                && arrived->root == held.entry.root) {
                consumed[i] = true;
                renamed = true;
                out.push_back({MountTable::Change::renamed, arrived->mountPoint});
            }
        }
        if (!renamed)
            out.push_back({MountTable::Change::unmounted, held.entry.mountPoint});
    }
    held_.clear();

    // Unmounting a drive to give it a new name and mounting it again under
    // that name are two changes of the table: a drive that leaves is held
    // back for a moment in case it returns elsewhere. Only when nothing else
    // of this look would have to wait behind it, so the order holds.
    std::vector<MountTable::Change> remaining;
    for (size_t i = 0; i < changes.size(); ++i)
        if (!consumed[i])
            remaining.push_back(changes[i]);
    const bool onlyUnmounts = std::all_of(remaining.begin(), remaining.end(), [](const MountTable::Change &c) {
        return c.kind == MountTable::Change::unmounted;
    });
    const bool anyBlockDevice = std::any_of(remaining.begin(), remaining.end(), [&](const MountTable::Change &c) {
        const MountTable::Entry *gone = entryAt(known_, c.mountPoint);
        return gone && isBlockDevice(*gone);
    });
    if (!remaining.empty() && onlyUnmounts && anyBlockDevice) {
        for (const MountTable::Change &c : remaining)
            held_.push_back({*entryAt(known_, c.mountPoint)});
        holdTimer_->start(renameWindow);
    } else {
        out.insert(out.end(), remaining.begin(), remaining.end());
    }
    known_ = std::move(now);
    post(std::move(out));
}

void DriveWatcher::releaseHeld()
{
    std::vector<MountTable::Change> out;
    for (const HeldUnmount &held : held_)
        out.push_back({MountTable::Change::unmounted, held.entry.mountPoint});
    held_.clear();
    post(std::move(out));
}

void DriveWatcher::post(std::vector<MountTable::Change> changes)
{
    if (changes.empty())
        return;
    // Queued calls to one receiver keep their order.
    QMetaObject::invokeMethod(
        this, [this, changes = std::move(changes)] { deliver(changes); }, Qt::QueuedConnection);
}

void DriveWatcher::deliver(const std::vector<MountTable::Change> &changes)
{
    if (!stream_ || stream_->isFinished())
        return;
    for (const MountTable::Change &change : changes) {
        switch (change.kind) {
        case MountTable::Change::unmounted:
            stream_->send(DriveEvent::makeUnmounted(change.mountPoint));
            break;
        case MountTable::Change::mounted:
            if (const auto candidate = volumeCandidate(change.mountPoint))
                stream_->send(DriveEvent::makeMounted(*candidate));
            break;
        case MountTable::Change::renamed:
            if (const auto candidate = volumeCandidate(change.mountPoint))
                stream_->send(DriveEvent::makeRenamed(*candidate));
            break;
        }
    }
}

std::optional<VolumeCandidate> DriveWatcher::volumeCandidate(const QString &mountPoint)
{
    if (!QDir::isAbsolutePath(mountPoint))
        return std::nullopt;
    VolumeCandidate candidate;
    candidate.volumeURL = QDir::cleanPath(mountPoint);
    // Only trust the figures when they describe this very mount point, not
    // the volume below it (as after a racing unmount).
    const std::optional<VolumeInfo::Info> info = VolumeInfo::query(candidate.volumeURL);
    if (info && QDir::cleanPath(info->mountPoint) == candidate.volumeURL) {
        candidate.name = info->name.value_or(QString());
        candidate.capacityBytes = info->capacityBytes;
        candidate.freeBytes = info->freeBytes;
    }
    if (candidate.name.isEmpty())
        candidate.name = candidate.volumeURL.section(QLatin1Char('/'), -1, -1, QString::SectionSkipEmpty);
    const ReadOnlyFs::PathInfo teslaCam = ReadOnlyFs::stat(candidate.volumeURL + QStringLiteral("/TeslaCam"));
    candidate.hasTeslaCamFolder = teslaCam.exists && teslaCam.isDirectory;
    return candidate;
}

void DriveWatcher::sortCandidates(std::vector<VolumeCandidate> &candidates)
{
    std::stable_sort(candidates.begin(), candidates.end(), [](const VolumeCandidate &a, const VolumeCandidate &b) {
        if (a.hasTeslaCamFolder != b.hasTeslaCamFolder)
            return a.hasTeslaCamFolder;
        return a.name < b.name;
    });
}

std::vector<VolumeCandidate> DriveWatcher::mountedTeslaCamVolumes()
{
    std::vector<VolumeCandidate> candidates;
    for (const MountTable::Entry &entry : MountTable::removableMounts(MountTable::read()))
        if (const auto candidate = volumeCandidate(entry.mountPoint))
            candidates.push_back(*candidate);
    sortCandidates(candidates);
    return candidates;
}
