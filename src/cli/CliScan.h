#pragma once

#include "model/DriveScan.h"

#include <QString>
#include <chrono>
#include <optional>

// Reading a TeslaCam folder for the commands that print what it holds:
// the scan, optionally every clip probed, progress on stderr.
namespace CliScan {

// Without probeTimeout the clips are not opened. On failure the plain reason
// has already been printed and nothing is returned.
std::optional<DriveScan> read(const QString &root, std::optional<std::chrono::milliseconds> probeTimeout);

} // namespace CliScan
