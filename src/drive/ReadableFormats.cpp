#include "drive/ReadableFormats.h"

#include <QStringList>

namespace ReadableFormats {

bool isComputerFileSystem(const QString &type)
{
    static const QStringList hostTypes{"ext2", "ext3", "ext4", "btrfs", "xfs", "f2fs", "zfs", "bcachefs", "tmpfs",
                                       "overlay", "overlayfs"};
    return hostTypes.contains(type.trimmed().toLower());
}

bool isComputerDisk(const VolumeFormat &format)
{
    if (format.kind() == VolumeFormat::apfs)
        return true;
    return format.kind() == VolumeFormat::other && isComputerFileSystem(format.otherName());
}

bool carCanRecordTo(const VolumeFormat &format)
{
    if (format.kind() == VolumeFormat::exFAT || format.kind() == VolumeFormat::fat32)
        return true;
    const QString name = format.kind() == VolumeFormat::other ? format.otherName().trimmed().toLower() : QString();
    return name == QLatin1String("ext3") || name == QLatin1String("ext4");
}

bool isReadable(const VolumeFormat &format)
{
    return format.kind() == VolumeFormat::exFAT || format.kind() == VolumeFormat::fat32 || isComputerDisk(format);
}

QString computerDiskName(const VolumeFormat &format)
{
    return format.kind() == VolumeFormat::apfs ? QStringLiteral("APFS") : format.otherName();
}

} // namespace ReadableFormats
