// The drive watcher: the mount-table reader on recorded text, and the event
// stream against real mounts under the removable-media folder (root only).

#include "engine/DriveWatcher.h"
#include "engine/MountTable.h"
#include "support/ProgramRun.h"
#include "support/TeslaCamFixture.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <cerrno>
#include <sys/mount.h>
#include <unistd.h>

namespace {

// Recorded from a desktop machine, with a few hand-made oddities.
const QByteArray recordedTable = R"(22 27 0:21 / /proc rw,relatime - proc proc rw
27 1 254:0 / / rw,relatime shared:1 - ext4 /dev/vda rw,discard
30 27 8:1 / /boot rw,relatime shared:7 - vfat /dev/sda1 rw,fmask=0022
41 27 0:38 / /run/user/1000 rw,nosuid shared:20 - tmpfs tmpfs rw,size=1620000k
88 27 8:17 / /media/anna/TESLA\040DRIVE rw,nosuid,nodev,relatime shared:40 - fuseblk /dev/sdb1 rw,user_id=0
90 27 8:33 / /run/media/anna/BACKUP rw,nosuid shared:41 master:2 - ext4 /dev/sdc1 rw
91 27 0:50 / /mnt/scratch rw,relatime - tmpfs tmpfs rw,size=8192k
92 27 0:51 / /media rw,relatime - tmpfs tmpfs rw
93 27 0:52 / /media/.hidden rw,relatime - tmpfs tmpfs rw
94 27 0:53 / /mediafiles/x rw,relatime - tmpfs tmpfs rw
95 91 0:54 / /mnt/scratch rw,relatime - tmpfs tmpfs rw,size=4096k
this line is not a mount
96 27 0:55 / /srv/data rw - xfs /dev/sdd1 rw
)";

MountTable::Entry entry(int id, const QString &device, const QString &mountPoint, const QString &root = "/")
{
    MountTable::Entry e;
    e.mountID = id;
    e.device = device;
    e.root = root;
    e.mountPoint = mountPoint;
    e.fileSystemType = QStringLiteral("tmpfs");
    e.source = QStringLiteral("tmpfs");
    return e;
}

// Runs a tool quietly; its exit code, or -1 if it didn't run.
int run(const QString &program, const QStringList &arguments)
{
    return ProgramRun::run(program, arguments, QProcessEnvironment::systemEnvironment(), 30000).exitCode;
}

QStringList names(const std::vector<VolumeCandidate> &candidates)
{
    QStringList out;
    for (const auto &c : candidates)
        out << c.name;
    return out;
}

// Events in words to compare whole: kind, mount point, name (an unmount carries only its mount point).
QStringList said(const std::vector<DriveEvent> &events)
{
    const QStringList kinds{QStringLiteral("mounted"), QStringLiteral("unmounted"), QStringLiteral("renamed")};
    QStringList out;
    for (const DriveEvent &e : events)
        out << kinds.at(e.kind()) + QLatin1Char(' ')
                + (e.kind() == DriveEvent::unmounted ? e.volumePath()
                                                    : e.candidate().volumeURL + QLatin1Char(' ') + e.candidate().name);
    return out;
}

// Collects events below prefix until count came or the time is up, then waits a little longer to catch extras.
std::vector<DriveEvent> collect(DriveEventStream &stream, const QString &prefix, size_t count, int ms = 20000)
{
    std::vector<DriveEvent> got;
    const auto take = [&] {
        while (const auto e = stream.takeNext()) {
            const QString path = e->kind() == DriveEvent::unmounted ? e->volumePath() : e->candidate().volumeURL;
            if (path.startsWith(prefix))
                got.push_back(*e);
        }
    };
    QDeadlineTimer deadline(ms);
    while (got.size() < count && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        take();
    }
    QDeadlineTimer settle(300);
    while (!settle.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        take();
    }
    return got;
}
} // namespace

class TestDriveWatcher : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        base_ = QStringLiteral("/media/keelhold-test-%1").arg(QCoreApplication::applicationPid());
        if (::geteuid() != 0 || !QDir().mkpath(base_))
            return;
        const QString probe = base_ + QStringLiteral("/probe");
        QDir().mkpath(probe);
        canMount_ = ::mount("tmpfs", QFile::encodeName(probe).constData(), "tmpfs", 0, "size=1m") == 0;
        if (canMount_)
            ::umount2(QFile::encodeName(probe).constData(), MNT_DETACH);
        QDir(probe).removeRecursively();
    }
    void cleanup()
    {
        for (auto it = mounted_.crbegin(); it != mounted_.crend(); ++it)
            ::umount2(QFile::encodeName(*it).constData(), MNT_DETACH);
        mounted_.clear();
        for (const QString &loop : std::as_const(loopDevices_))
            run(QStringLiteral("losetup"), {QStringLiteral("-d"), loop});
        loopDevices_.clear();
        if (!base_.isEmpty())
            QDir(base_).removeRecursively();
    }

    void parsesRecordedMountinfo()
    {
        const std::vector<MountTable::Entry> table = MountTable::parse(recordedTable);
        QCOMPARE(table.size(), size_t(12));
        const MountTable::Entry &drive = table[4];
        QCOMPARE(QStringList({QString::number(drive.mountID), drive.device, drive.mountPoint, drive.fileSystemType,
                              drive.source}),
                 QStringList({"88", "8:17", "/media/anna/TESLA DRIVE", "fuseblk", "/dev/sdb1"}));
        // Optional fields (shared:, master:) don't shift the fields after "-".
        QCOMPARE(QStringList({table[5].fileSystemType, table[5].source}), QStringList({"ext4", "/dev/sdc1"}));
        QCOMPARE(table[1].mountPoint, QStringLiteral("/"));

        QVERIFY(MountTable::parse(QByteArray()).empty());
        QVERIFY(MountTable::parse("garbage\n1 2 3\n- - -\n").empty());

        // Removable mounts are only those below the media folders.
        const std::vector<MountTable::Entry> removable = MountTable::removableMounts(table);
        QStringList points;
        for (const auto &e : removable)
            points << e.mountPoint;
        QCOMPARE(points, (QStringList{QStringLiteral("/media/anna/TESLA DRIVE"), QStringLiteral("/run/media/anna/BACKUP"),
                                      QStringLiteral("/mnt/scratch")}));
        // A later mount over the same point is the one that shows.
        QCOMPARE(removable[2].mountID, 95);

        // With only the system's own mounts there is nothing to offer.
        const QByteArray systemOnly = "22 27 0:21 / /proc rw - proc proc rw\n27 1 254:0 / / rw - ext4 /dev/vda rw\n";
        QVERIFY(MountTable::removableMounts(MountTable::parse(systemOnly)).empty());
    }
    void diffOrdersChangesAndTellsVolumesApart()
    {
        using C = MountTable::Change;
        const auto a = entry(1, "0:40", "/media/A");
        const auto b = entry(2, "0:41", "/media/B");
        const auto c = entry(3, "0:42", "/media/C");
        // Unmounts come first, then mounts.
        QCOMPARE(MountTable::diff({a}, {b, c}),
                 (std::vector<C>{{C::unmounted, "/media/A"}, {C::mounted, "/media/B"}, {C::mounted, "/media/C"}}));
        // Gone and back between two looks: both are reported, each once.
        const auto aAgain = entry(7, "0:43", "/media/A");
        QCOMPARE(MountTable::diff({a}, {aAgain}), (std::vector<C>{{C::unmounted, "/media/A"}, {C::mounted, "/media/A"}}));
        // Another part of the same device is not the same volume (mount, move, relabel: the real mounts below).
        const auto otherRoot = entry(10, "0:40", "/media/Z", "/sub");
        QCOMPARE(MountTable::diff({a}, {otherRoot}),
                 (std::vector<C>{{C::unmounted, "/media/A"}, {C::mounted, "/media/Z"}}));
    }
    void candidateOfAFolderThatIsNoMountPoint()
    {
        // A folder that isn't a mount of its own: its figures stay unknown, and it is still a candidate.
        const QString folder = scratch_.filePath(QStringLiteral("PLAIN"));
        TeslaCamFixture::writeFile(folder + QStringLiteral("/TeslaCam"), {});
        const auto c = DriveWatcher::volumeCandidate(folder);
        // A file named TeslaCam is not the folder.
        QCOMPARE(c, std::optional(VolumeCandidate{folder, QStringLiteral("PLAIN"), false, {}, {}}));
        QCOMPARE(c->id(), folder);

        QVERIFY(QFile::remove(folder + QStringLiteral("/TeslaCam")));
        QVERIFY(QDir().mkpath(folder + QStringLiteral("/TeslaCam")));
        QVERIFY(DriveWatcher::volumeCandidate(folder)->hasTeslaCamFolder);
        QVERIFY(!DriveWatcher::volumeCandidate(QStringLiteral("relative/path")).has_value());
    }

    void realMountUnmountAndReturn()
    {
        if (!canMount_)
            QSKIP("Needs root to mount a tmpfs below /media.");
        DriveWatcher watcher;
        const auto stream = watcher.events();
        // A reader that waits before anything happens gets the first event.
        QFuture<std::optional<DriveEvent>> first = stream->next();

        const QString path = mountTmpfs(QStringLiteral("USBSTICK"));
        QVERIFY(!path.isEmpty());
        QTRY_VERIFY_WITH_TIMEOUT(first.isFinished(), 5000);
        const std::optional<DriveEvent> mounted = first.result();
        QVERIFY(mounted.has_value());
        QCOMPARE(said({*mounted}), QStringList{"mounted " + path + " USBSTICK"});
        QCOMPARE(mounted->candidate().capacityBytes, std::optional<qint64>(8 * 1024 * 1024));
        QVERIFY(mounted->candidate().freeBytes.value_or(0) > 7 * 1024 * 1024);
        QVERIFY(!mounted->candidate().hasTeslaCamFolder);

        // It is listed among the mounted volumes.
        QVERIFY(names(DriveWatcher::mountedTeslaCamVolumes()).contains(QStringLiteral("USBSTICK")));

        // Away and back while the main loop is busy: each reported once, in order. Only the watcher's calls pass; the
        // drive returns once the reader saw it leave (back at once, it may get the same ids and look unchanged).
        QVERIFY(unmount(path));
        std::vector<DriveEvent> away;
        const QDeadlineTimer seen(20000);
        while (away.empty() && !seen.hasExpired()) {
            QThread::yieldCurrentThread(); // busy here, the event loop not running
            QCoreApplication::sendPostedEvents(&watcher, QEvent::MetaCall);
            while (const auto e = stream->takeNext())
                if (e->kind() == DriveEvent::unmounted && e->volumePath().startsWith(base_))
                    away.push_back(*e);
        }
        QCOMPARE(said(away), QStringList{"unmounted " + path});
        QVERIFY(!mountTmpfs(QStringLiteral("USBSTICK"), QStringLiteral("4m")).isEmpty());
        const std::vector<DriveEvent> back = collect(*stream, base_, 1);
        QCOMPARE(said(back), QStringList{"mounted " + path + " USBSTICK"});
        QCOMPARE(back[0].candidate().capacityBytes, std::optional<qint64>(4 * 1024 * 1024));

        // Away with the loop running.
        QVERIFY(unmount(path));
        QCOMPARE(said(collect(*stream, base_, 1)), QStringList{"unmounted " + path});
        QVERIFY(!names(DriveWatcher::mountedTeslaCamVolumes()).contains(QStringLiteral("USBSTICK")));
    }
    void realMoveIsARename()
    {
        if (!canMount_)
            QSKIP("Needs root to mount a tmpfs below /media.");
        const QString oldPath = mountTmpfs(QStringLiteral("OLDNAME"));
        QVERIFY(!oldPath.isEmpty());
        DriveWatcher watcher;
        const auto stream = watcher.events();
        QThread *deliveredOn = nullptr;
        connect(stream.get(), &DriveEventStream::available, this, [&] { deliveredOn = QThread::currentThread(); });

        const QString newPath = base_ + QStringLiteral("/NEWNAME");
        QDir().mkpath(newPath);
        QCOMPARE(::mount(QFile::encodeName(oldPath).constData(), QFile::encodeName(newPath).constData(), nullptr,
                         MS_MOVE, nullptr),
                 0);
        mounted_.removeAll(oldPath);
        mounted_ << newPath;
        QCOMPARE(said(collect(*stream, base_, 1)), QStringList{"renamed " + newPath + " NEWNAME"});
        QCOMPARE(deliveredOn, QCoreApplication::instance()->thread());
    }
    void realTeslaCamVolumeIsListedFirst()
    {
        if (!canMount_)
            QSKIP("Needs root to mount a tmpfs below /media.");
        QVERIFY(!mountTmpfs(QStringLiteral("aaa-plain")).isEmpty());
        QVERIFY(!mountTmpfs(QStringLiteral("BBB-plain")).isEmpty());
        for (const QString &name : {QStringLiteral("zzz-car"), QStringLiteral("CAR")}) {
            const QString car = mountTmpfs(name);
            QVERIFY(!car.isEmpty() && QDir().mkpath(car + QStringLiteral("/TeslaCam")));
        }
        TeslaCamFixture::writeFile(mountTmpfs(QStringLiteral("yyy-file")) + QStringLiteral("/TeslaCam"), {});

        QStringList ours;
        for (const VolumeCandidate &c : DriveWatcher::mountedTeslaCamVolumes())
            if (c.volumeURL.startsWith(base_))
                ours << c.name + (c.hasTeslaCamFolder ? QStringLiteral("+") : QString());
        // TeslaCam drives first, then plain text order: upper case sorts before lower case.
        QCOMPARE(ours, (QStringList{"CAR+", "zzz-car+", "BBB-plain", "aaa-plain", "yyy-file"}));
    }
    void realExfatLabelAndRelabel()
    {
        if (!canMount_)
            QSKIP("Needs root to mount below /media.");
        const QString mkfs = QStandardPaths::findExecutable(QStringLiteral("mkfs.exfat"));
        const QString fuse = QStandardPaths::findExecutable(QStringLiteral("mount.exfat-fuse"));
        if (mkfs.isEmpty() || fuse.isEmpty() || !QFile::exists(QStringLiteral("/dev/fuse")))
            QSKIP("Needs exfatprogs, exfat-fuse and /dev/fuse.");
        const QString image = scratch_.filePath(QStringLiteral("drive.img"));
        TeslaCamFixture::makeSparseFile(image, 16 * 1024 * 1024);
        const ProgramRun::Result losetup =
            ProgramRun::run(QStringLiteral("losetup"), {QStringLiteral("-f"), QStringLiteral("--show"), image});
        const QString loop = QString::fromUtf8(losetup.out).trimmed();
        if (losetup.exitCode != 0 || loop.isEmpty())
            QSKIP("No loop device available.");
        loopDevices_ << loop;
        QCOMPARE(run(mkfs, {QStringLiteral("-L"), QStringLiteral("TESLADRIVE"), loop}), 0);

        DriveWatcher watcher;
        const auto stream = watcher.events();
        const QString path = base_ + QStringLiteral("/sdb1");
        QDir().mkpath(path);
        QCOMPARE(run(fuse, {loop, path}), 0);
        mounted_ << path;
        const std::vector<DriveEvent> events = collect(*stream, base_, 1);
        QCOMPARE(said(events), QStringList{"mounted " + path + " TESLADRIVE"});
        QVERIFY(events[0].candidate().capacityBytes.has_value());

        // Relabelled and remounted under its new name, as a desktop does: a rename; the old mount point never shows.
        QVERIFY(unmount(path));
        QCOMPARE(run(QStringLiteral("exfatlabel"), {loop, QStringLiteral("DASHCAM")}), 0);
        const QString renamedPath = base_ + QStringLiteral("/DASHCAM");
        QDir().mkpath(renamedPath);
        QCOMPARE(run(fuse, {loop, renamedPath}), 0);
        mounted_ << renamedPath;
        QCOMPARE(said(collect(*stream, base_, 1)), QStringList{"renamed " + renamedPath + " DASHCAM"});

        // Pulled for good: the unmount comes once the drive had its chance to return, and nothing follows.
        QElapsedTimer clock;
        clock.start();
        QVERIFY(unmount(renamedPath));
        // Mounts outside the removable-media folders meanwhile don't cut its moment short.
        {
            QTemporaryDir elsewhere;
            if (::mount("tmpfs", QFile::encodeName(elsewhere.path()).constData(), "tmpfs", 0, "size=1m") == 0)
                QVERIFY(unmount(elsewhere.path()));
        }
        QCOMPARE(said(collect(*stream, base_, 1)), QStringList{"unmounted " + renamedPath});
        QVERIFY(clock.elapsed() >= DriveWatcher::renameWindow.count() - 100);

        // Another drive arriving while one is held back: both, in order.
        QCOMPARE(run(fuse, {loop, renamedPath}), 0);
        mounted_ << renamedPath;
        QCOMPARE(collect(*stream, base_, 1).size(), size_t(1));
        QVERIFY(unmount(renamedPath));
        const QString other = mountTmpfs(QStringLiteral("OTHER"));
        QVERIFY(!other.isEmpty());
        QCOMPARE(said(collect(*stream, base_, 2)),
                 QStringList({"unmounted " + renamedPath, "mounted " + other + " OTHER"}));
    }
    void finishedStreamStopsWatching()
    {
        if (!canMount_)
            QSKIP("Needs root to mount a tmpfs below /media.");
        DriveWatcher watcher;
        const auto stream = watcher.events();
        QFuture<std::optional<DriveEvent>> waiting = stream->next();
        stream->finish();
        QVERIFY(waiting.isFinished());
        QVERIFY(!waiting.result().has_value());
        // A second watcher sees the next mount; the first, if still watching, would have queued its report here before.
        DriveWatcher other;
        const auto otherStream = other.events();
        QFuture<std::optional<DriveEvent>> seen = otherStream->next();
        QVERIFY(!mountTmpfs(QStringLiteral("AFTER")).isEmpty());
        QTRY_VERIFY_WITH_TIMEOUT(seen.isFinished(), 20000);
        QCOMPARE(seen.result()->kind(), DriveEvent::mounted);
        QCOMPARE(stream->pendingCount(), 0);
        // One stream per watcher, finished or not, and it keeps being answered.
        QCOMPARE(watcher.events(), stream);
        QVERIFY(!stream->next().result().has_value());
    }

private:
    // Detached at once, as a pulled drive goes: the watcher's brief statvfs/blkid would make a plain unmount EBUSY.
    bool unmount(const QString &path)
    {
        mounted_.removeAll(path);
        return ::umount2(QFile::encodeName(path).constData(), MNT_DETACH) == 0;
    }
    // Mounts a small tmpfs at a fresh folder below /media; empty if not allowed.
    QString mountTmpfs(const QString &name, const QString &size = QStringLiteral("8m"))
    {
        const QString path = base_ + QLatin1Char('/') + name;
        QDir().mkpath(path);
        const QByteArray options = "size=" + size.toLatin1();
        if (::mount("tmpfs", QFile::encodeName(path).constData(), "tmpfs", 0, options.constData()) != 0)
            return {};
        mounted_ << path;
        return path;
    }
    bool canMount_ = false;
    QString base_;
    QStringList mounted_;
    QStringList loopDevices_;
    QTemporaryDir scratch_;
};

QTEST_GUILESS_MAIN(TestDriveWatcher)
#include "tst_drivewatcher.moc"
