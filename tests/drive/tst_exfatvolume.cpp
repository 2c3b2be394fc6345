#include "drive/DriveIdentity.h"
#include "drive/TeslaCamParser.h"
#include "support/MountedVolume.h"
#include "support/ProgramRun.h"
#include "support/TeslaCamFixture.h"

#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>
#include <unistd.h>

namespace {
QString run(const QString &program, const QStringList &args, int *exitCode = nullptr)
{
    const ProgramRun::Result r = ProgramRun::run(program, args);
    if (exitCode)
        *exitCode = r.exitCode;
    return QString::fromUtf8(r.out).trimmed();
}
} // namespace

// A loop image made by mkfs.exfat, mounted through exfat-fuse, which the kernel reports only as "fuseblk".
class ExfatVolumeTest : public QObject {
    Q_OBJECT

    QTemporaryDir tmp_;
    QString loop_;
    QString mountPoint_;
    bool mounted_ = false;

private Q_SLOTS:
    void initTestCase()
    {
        if (::geteuid() != 0)
            QSKIP("needs root to attach a loop device and mount it");
        for (const char *tool : {"mkfs.exfat", "mount.exfat-fuse", "losetup", "umount"})
            if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty())
                QSKIP(qPrintable(QStringLiteral("needs %1 (packages exfatprogs, exfat-fuse, util-linux)").arg(tool)));
        if (!QFile::exists("/dev/fuse"))
            QSKIP("needs /dev/fuse");

        const QString image = tmp_.path() + "/drive.img";
        int code = 0;
        run("truncate", {"-s", "96M", image}, &code);
        QCOMPARE(code, 0);
        run("mkfs.exfat", {"-L", "TESLA CAM", image}, &code);
        QCOMPARE(code, 0);
        loop_ = run("losetup", {"-f", "--show", image}, &code);
        if (code != 0 || loop_.isEmpty())
            QSKIP("no free loop device here");
        mountPoint_ = tmp_.path() + "/mnt";
        QDir().mkpath(mountPoint_);
        run("mount.exfat-fuse", {loop_, mountPoint_}, &code);
        if (code != 0)
            QSKIP("exfat-fuse could not mount the image");
        mounted_ = true;
    }

    void cleanupTestCase()
    {
        if (mounted_)
            run("umount", {mountPoint_});
        if (!loop_.isEmpty())
            run("losetup", {"-d", loop_});
    }

    void formatLabelAndCapacity()
    {
        TeslaCamFixture fx(mountPoint_ + "/TeslaCam");
        const QString e = fx.addEvent("SentryClips", "2024-06-01_15-05-00",
                                      TeslaCamFixture::eventJson("2024-06-01T15:04:31", "sentry_panic_mode"));
        fx.addClip(e, "2024-06-01_15-04-00", "front", 200'000);
        fx.addRecentClip("2024-06-01_14-00-00", "back", 100'000);

        const DriveScan scan = TeslaCamParser::scan(fx.root());
        QCOMPARE(std::tuple(scan.format, scan.format.displayName(), scan.volumeName),
                 std::tuple(VolumeFormat(VolumeFormat::exFAT), QStringLiteral("exFAT"), QStringLiteral("TESLA CAM")));
        QVERIFY(scan.capacityBytes);
        // The volume's size, within the file system's own overhead.
        QVERIFY2(*scan.capacityBytes > 90LL * 1024 * 1024 && *scan.capacityBytes <= 96LL * 1024 * 1024,
                 qPrintable(QString::number(*scan.capacityBytes)));
        QVERIFY(scan.freeBytes && *scan.freeBytes < *scan.capacityBytes);
        QCOMPARE(scan.events.size(), size_t(2));
        QCOMPARE(scan.events[0].clips.at(0).fileSize, qint64(200'000));
    }

    // Known again at another mount point by its UUID; another drive of the same label and size is not it.
    void driveIdentityFollowsTheFileSystemNotTheMountPoint()
    {
        const auto first = DriveIdentity::of(mountPoint_ + "/TeslaCam");
        QVERIFY(first);
        QCOMPARE(std::pair(first->mountPoint, first->drive.name), std::pair(mountPoint_, QStringLiteral("TESLA CAM")));
        QVERIFY(first->drive.uuid && !first->drive.uuid->isEmpty());

        int code = 0;
        run("umount", {mountPoint_}, &code);
        QCOMPARE(code, 0);
        mounted_ = false;
        mountPoint_ = tmp_.path() + "/elsewhere";
        QDir().mkpath(mountPoint_);
        run("mount.exfat-fuse", {loop_, mountPoint_}, &code);
        QCOMPARE(code, 0);
        mounted_ = true;
        const auto again = DriveIdentity::of(mountPoint_);
        QVERIFY(again);
        QCOMPARE(again->mountPoint, mountPoint_);
        QVERIFY(again->drive.isSameDrive(first->drive));

        const MountedVolume otherDrive(QStringLiteral("exfat"), QStringLiteral("TESLA CAM"), 96LL * 1024 * 1024);
        if (!otherDrive.ok())
            QSKIP("no second exFAT drive could be mounted here");
        const auto other = DriveIdentity::of(otherDrive.path());
        QVERIFY(other);
        QCOMPARE(std::pair(other->drive.name, other->drive.capacityBytes),
                 std::pair(first->drive.name, first->drive.capacityBytes));
        QVERIFY(other->drive.uuid != first->drive.uuid);
        QVERIFY(!other->drive.isSameDrive(first->drive));
    }
};

QTEST_GUILESS_MAIN(ExfatVolumeTest)
#include "tst_exfatvolume.moc"
