#include "drive/DriveIdentity.h"

#include "drive/VolumeInfo.h"

std::optional<DriveIdentity::Mounted> DriveIdentity::of(const QString &path)
{
    const std::optional<VolumeInfo::Info> info = VolumeInfo::query(path);
    if (!info)
        return std::nullopt;
    Mounted mounted;
    mounted.mountPoint = info->mountPoint;
    mounted.drive.name = info->name.value_or(QString());
    mounted.drive.capacityBytes = info->capacityBytes;
    mounted.drive.uuid = VolumeInfo::probeDevice(info->device).uuid;
    return mounted;
}

bool DriveIdentity::isSameDrive(const DriveIdentity &other) const
{
    if (uuid || other.uuid)
        return uuid == other.uuid;
    return name == other.name && capacityBytes == other.capacityBytes;
}

QString DriveIdentity::key() const
{
    if (uuid)
        return QStringLiteral("uuid:") + *uuid;
    return QStringLiteral("name:%1|%2").arg(name, capacityBytes ? QString::number(*capacityBytes) : QString());
}
