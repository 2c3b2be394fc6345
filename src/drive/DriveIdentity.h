#pragma once

#include <QString>
#include <optional>

// Which physical drive a mounted volume is, the same whichever path it is
// mounted at: its file system's UUID where it has one, else its name and
// capacity. What tells a drive that comes back from another one plugged in.
struct DriveIdentity {
    std::optional<QString> uuid;
    QString name;
    std::optional<qint64> capacityBytes;

    // The drive that holds path, and the point it is mounted at. Blocking:
    // asks the volume and reads its block device's superblock; nothing when
    // the volume can't be asked.
    struct Mounted;
    static std::optional<Mounted> of(const QString &path);

    // Two file systems with UUIDs are the same drive when the UUIDs are; one
    // with and one without never are; two without, when name and size agree.
    bool isSameDrive(const DriveIdentity &other) const;
    // The same rule as one string, for a list in the settings: "uuid:<uuid>",
    // else "name:<name>|<bytes>". Two keys are equal exactly when isSameDrive.
    QString key() const;

    bool operator==(const DriveIdentity &) const = default;
};

struct DriveIdentity::Mounted {
    DriveIdentity drive;
    QString mountPoint;
};
