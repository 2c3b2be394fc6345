#pragma once

#include <QString>
#include <optional>

// Where the car's drive ends. Nothing of ours is ever written inside it: not
// the Vault, not an exported movie. A folder reached through a link, or on
// the same drive but outside TeslaCam, is still the drive.
namespace DriveBoundary {

inline const QString vaultRefusal = QStringLiteral(
    "Keelhold never writes to your Tesla drive, so your Vault has to be a folder somewhere else.");
inline const QString exportRefusal =
    QStringLiteral("Keelhold never writes to your Tesla drive, so save the movie somewhere else.");

// Whether writing at `destination` (a file or folder, there yet or not)
// would land on the drive whose TeslaCam folder is `driveRoot`. A TeslaCam
// folder on the computer's own disk (where the system, home or temporary
// folder is) protects only itself. Answers within a
// few seconds even when a disk stops answering: nullopt when it couldn't tell.
std::optional<bool> writesInto(const QString &driveRoot, const QString &destination);

} // namespace DriveBoundary
