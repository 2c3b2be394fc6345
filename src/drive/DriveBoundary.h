#pragma once

#include "model/TeslaEvent.h"

#include <QString>
#include <optional>
#include <vector>

// Where the car's drive ends. Nothing of ours is ever written inside it: not
// the Vault, not an exported movie. A folder reached through a link, or on
// the same drive but outside TeslaCam, is still the drive.
namespace DriveBoundary {

// The refusals in English, as sources of the translation (context
// "DriveBoundary"): what a person reads is vaultRefusalText() and
// exportRefusalText(), in the loaded language.
inline const QString vaultRefusal = QString::fromUtf8(QT_TRANSLATE_NOOP(
    "DriveBoundary", "Keelhold never writes to your Tesla drive, so your Vault has to be a folder somewhere else."));
inline const QString exportRefusal = QString::fromUtf8(
    QT_TRANSLATE_NOOP("DriveBoundary", "Keelhold never writes to your Tesla drive, so save the movie somewhere else."));
QString vaultRefusalText();
QString exportRefusalText();

// Whether writing at `destination` (a file or folder, there yet or not)
// would land on the drive whose TeslaCam folder is `driveRoot`. A TeslaCam
// folder on the computer's own disk (where the system, home or temporary
// folder is) protects only itself. Answers within a
// few seconds even when a disk stops answering: nullopt when it couldn't tell.
std::optional<bool> writesInto(const QString &driveRoot, const QString &destination);

// The TeslaCam folder an event's footage lies in, when it lies in one.
std::optional<QString> teslaCamFolderOf(const TeslaEvent &event);
// Whether writing at destination would land on the drive of one of these
// events. Every writer asks it in its own write path, whatever its caller
// checked before; a drive that can't tell in time is taken as not.
bool writesIntoDriveOf(const std::vector<TeslaEvent> &events, const QString &destination);

} // namespace DriveBoundary
