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
};

// Nothing when the volume can't be queried.
std::optional<Info> query(const QString &path);

// Label and type straight from the block device (udev data, else libblkid).
struct DeviceProbe {
    std::optional<QString> type;
    std::optional<QString> label;
};
DeviceProbe probeDevice(const QString &device);

} // namespace VolumeInfo
