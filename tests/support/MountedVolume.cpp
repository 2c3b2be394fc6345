#include "MountedVolume.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QCoreApplication>
#include <QProcess>

#include <unistd.h>

MountedVolume::MountedVolume(const QString &type, const QString &label, qint64 imageBytes)
    : type_(type), label_(label.left(11)),
      mountPoint_(QStringLiteral("/media/%1-%2-%3").arg(label).arg(QCoreApplication::applicationPid()).arg(++made_))
{
    if (geteuid() != 0 || QFileInfo::exists(mountPoint_) || !QDir().mkpath(mountPoint_))
        return;
    if (type == QLatin1String("exfat")) {
        image_ = QDir::temp().filePath(QFileInfo(mountPoint_).fileName() + QStringLiteral(".img"));
        QFile f(image_);
        if (!f.open(QIODevice::WriteOnly) || !f.resize(imageBytes))
            return;
        f.close();
        if (!run(QStringLiteral("mkfs.exfat"), {QStringLiteral("-L"), label_, image_}))
            return;
        mounted_ = mountImage();
    } else {
        mounted_ = run(QStringLiteral("mount"), {QStringLiteral("-t"), type, type, mountPoint_});
    }
}

MountedVolume::~MountedVolume()
{
    unmount();
    QDir().rmdir(mountPoint_);
}

bool MountedVolume::mountImage()
{
    return run(QStringLiteral("losetup"), {QStringLiteral("-f"), QStringLiteral("--show"), image_}, &loop_)
        && run(QStringLiteral("mount.exfat-fuse"), {loop_, mountPoint_});
}

void MountedVolume::pull()
{
    if (mounted_)
        run(QStringLiteral("umount"), {QStringLiteral("-l"), mountPoint_});
    mounted_ = false;
    if (!loop_.isEmpty())
        run(QStringLiteral("losetup"), {QStringLiteral("-d"), loop_});
    loop_.clear();
}

bool MountedVolume::plugIn()
{
    if (mounted_ || image_.isEmpty())
        return mounted_;
    mounted_ = mountImage();
    return mounted_;
}

void MountedVolume::unmount()
{
    pull();
    if (!image_.isEmpty())
        QFile::remove(image_);
    image_.clear();
}

bool MountedVolume::run(const QString &program, const QStringList &args, QString *out, int timeoutMs)
{
    QProcess p;
    p.start(program, args);
    if (!p.waitForFinished(timeoutMs) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0)
        return false;
    if (out)
        *out = QString::fromLocal8Bit(p.readAllStandardOutput()).trimmed();
    return true;
}
