#include "MountedVolume.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QCoreApplication>
#include <QProcess>

#include <cerrno>
#include <csignal>
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

int MountedVolume::sweepLeftovers(const QString &label)
{
    if (geteuid() != 0)
        return 0;
    int swept = 0;
    const QString prefix = label.left(11) + QLatin1Char('-');
    const auto died = [](const QString &name) {
        const qint64 pid = name.section(QLatin1Char('-'), 1, 1).toLongLong();
        return pid > 0 && ::kill(pid_t(pid), 0) != 0 && errno == ESRCH;
    };
    for (const QString &name : QDir(QStringLiteral("/media")).entryList({prefix + QLatin1Char('*')}, QDir::Dirs)) {
        if (!died(name))
            continue;
        run(QStringLiteral("umount"), {QStringLiteral("-l"), QStringLiteral("/media/") + name});
        QDir().rmdir(QStringLiteral("/media/") + name);
        ++swept;
    }
    const QDir temp = QDir::temp();
    for (const QString &name : temp.entryList({prefix + QStringLiteral("*.img")}, QDir::Files)) {
        if (!died(name))
            continue;
        QString loops;
        if (run(QStringLiteral("losetup"), {QStringLiteral("-j"), temp.filePath(name)}, &loops))
            for (const QString &line : loops.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
                run(QStringLiteral("losetup"), {QStringLiteral("-d"), line.section(QLatin1Char(':'), 0, 0)});
        QFile::remove(temp.filePath(name));
    }
    return swept;
}
