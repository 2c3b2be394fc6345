#pragma once

#include "model/DriveScan.h"

#include <QString>
#include <chrono>
#include <optional>

// Reading a TeslaCam folder for the commands that print what it holds:
// the scan, optionally every clip probed, progress on stderr.
namespace CliScan {

// The TeslaCam folder a path given on the command line stands for: itself,
// or, for a drive's root (any folder without the car's own folders in it),
// the TeslaCam folder inside it.
QString teslaCamRoot(const QString &given);

// Without probeTimeout the clips are not opened. On failure the plain reason
// has already been printed and nothing is returned.
std::optional<DriveScan> read(const QString &root, std::optional<std::chrono::milliseconds> probeTimeout);

} // namespace CliScan
