#pragma once

#include <QString>
#include <optional>

// What the platform knows of the volume that holds a path.
namespace VolumeInfo {

struct Info {
    QString mountPoint;
    QString device;
    std::optional<QString> name;              // label, else the mount point's last component
    std::optional<qint64> capacityBytes;
    std::optional<qint64> freeBytes;
    std::optional<QString> formatDescription; // the real file-system type, e.g. "exfat", "ext4"
    bool onSystemDisk = false;                // the computer's own disk, not a drive plugged into it
};

// Nothing when the volume can't be queried.
std::optional<Info> query(const QString &path);

// A mount point below the removable-media folders (/media, /run/media, /mnt),
// where a plugged-in drive appears.
bool isRemovableMediaPath(const QString &mountPoint);

// Label, type and UUID straight from the block device (udev data, else libblkid).
struct DeviceProbe {
    std::optional<QString> type;
    std::optional<QString> label;
    std::optional<QString> uuid;
};
DeviceProbe probeDevice(const QString &device);

} // namespace VolumeInfo
