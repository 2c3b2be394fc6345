#include "drive/VolumeInfo.h"

#include "drive/ReadableFormats.h"

#include <QDir>
#include <QFile>
#include <QStorageInfo>
#include <blkid/blkid.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace VolumeInfo {

namespace {

DeviceProbe fromUdev(const QString &device)
{
    DeviceProbe result;
    struct stat st {};
    if (::stat(QFile::encodeName(device).constData(), &st) != 0 || !S_ISBLK(st.st_mode))
        return result;
    QFile data(QStringLiteral("/run/udev/data/b%1:%2").arg(major(st.st_rdev)).arg(minor(st.st_rdev)));
    if (!data.open(QIODevice::ReadOnly))
        return result;
    for (const QByteArray &line : data.readAll().split('\n')) {
        if (line.startsWith("E:ID_FS_TYPE="))
            result.type = QString::fromUtf8(line.mid(13));
        else if (line.startsWith("E:ID_FS_LABEL="))
            result.label = QString::fromUtf8(line.mid(14));
        else if (line.startsWith("E:ID_FS_UUID="))
            result.uuid = QString::fromUtf8(line.mid(13));
    }
    for (std::optional<QString> *value : {&result.type, &result.label, &result.uuid})
        if (*value && (*value)->isEmpty())
            value->reset();
    return result;
}

DeviceProbe fromBlkid(const QString &device)
{
    DeviceProbe result;
    blkid_probe probe = blkid_new_probe_from_filename(QFile::encodeName(device).constData());
    if (!probe)
        return result;
    blkid_probe_enable_superblocks(probe, 1);
    blkid_probe_set_superblocks_flags(probe, BLKID_SUBLKS_LABEL | BLKID_SUBLKS_TYPE | BLKID_SUBLKS_UUID);
    if (blkid_do_safeprobe(probe) == 0) {
        const char *value = nullptr;
        size_t length = 0;
        if (blkid_probe_lookup_value(probe, "TYPE", &value, &length) == 0 && value && *value)
            result.type = QString::fromUtf8(value);
        if (blkid_probe_lookup_value(probe, "LABEL", &value, &length) == 0 && value && *value)
            result.label = QString::fromUtf8(value);
        if (blkid_probe_lookup_value(probe, "UUID", &value, &length) == 0 && value && *value)
            result.uuid = QString::fromUtf8(value);
    }
    blkid_free_probe(probe);
    return result;
}

bool isBelow(const QString &path, QLatin1String folder)
{
    return path.size() > folder.size() + 1 && path.startsWith(folder) && path[folder.size()] == QLatin1Char('/');
}

bool sameDevice(const struct stat &st, const QString &other)
{
    struct stat o {};
    return ::stat(QFile::encodeName(other).constData(), &o) == 0 && o.st_dev == st.st_dev;
}

// The disk the system or the user's home lives on, or a file system only a
// computer uses (a second internal disk, a sandbox's tmpfs) mounted where
// no plugged-in drive would be.
bool isSystemDisk(const QString &path, const QString &mountPoint, const QString &type)
{
    struct stat st {};
    if (::stat(QFile::encodeName(path).constData(), &st) != 0)
        return false;
    if (sameDevice(st, QStringLiteral("/")) || sameDevice(st, QDir::homePath()))
        return true;
    return !isRemovableMediaPath(mountPoint) && ReadableFormats::isComputerFileSystem(type);
}

} // namespace

bool isRemovableMediaPath(const QString &mountPoint)
{
    return isBelow(mountPoint, QLatin1String("/media")) || isBelow(mountPoint, QLatin1String("/run/media"))
        || isBelow(mountPoint, QLatin1String("/mnt"));
}

DeviceProbe probeDevice(const QString &device)
{
    if (!device.startsWith(QLatin1String("/dev/")))
        return {};
    DeviceProbe probe = fromUdev(device);
    if (!probe.type || !probe.label || !probe.uuid) {
        const DeviceProbe direct = fromBlkid(device);
        if (!probe.type)
            probe.type = direct.type;
        if (!probe.label)
            probe.label = direct.label;
        if (!probe.uuid)
            probe.uuid = direct.uuid;
    }
    return probe;
}

std::optional<Info> query(const QString &path)
{
    QStorageInfo storage(path);
    if (!storage.isValid())
        return std::nullopt;
    Info info;
    info.mountPoint = storage.rootPath();
    info.device = QString::fromUtf8(storage.device());
    const qint64 total = storage.bytesTotal();
    const qint64 available = storage.bytesAvailable();
    if (total >= 0)
        info.capacityBytes = total;
    if (available >= 0)
        info.freeBytes = available;

    QString type = QString::fromUtf8(storage.fileSystemType());
    QString label = storage.name();
    // Through FUSE the kernel only says "fuseblk"; without udev there is no label.
    if (type == QLatin1String("fuseblk") || label.isEmpty()) {
        const DeviceProbe probe = probeDevice(info.device);
        if (probe.type && (type == QLatin1String("fuseblk") || type.isEmpty()))
            type = *probe.type;
        if (label.isEmpty() && probe.label)
            label = *probe.label;
    }
    if (!type.isEmpty())
        info.formatDescription = type;
    info.onSystemDisk = isSystemDisk(path, info.mountPoint, type);
    if (!label.isEmpty()) {
        info.name = label;
    } else {
        const QString last = info.mountPoint.section(QLatin1Char('/'), -1, -1, QString::SectionSkipEmpty);
        if (!last.isEmpty())
            info.name = last;
    }
    return info;
}

} // namespace VolumeInfo
