#pragma once

#include "health/HealthReport.h"
#include "model/DriveScan.h"
#include "model/VolumeFormat.h"
#include "vault/VaultIndex.h"

#include <QString>

// Turns a scan and the Vault's index into a health report. Pure: no disk,
// no state, callable from any thread. A full Tesla drive is normal and is
// said to be; a few damaged clips are no worry.
namespace HealthComputer {

HealthReport compute(const DriveScan &scan, const VaultIndex &vaultIndex);

// The one sentence on a drive's format. A folder on the computer's own disk
// is no car drive: it gets no advice to reformat.
QString formatVerdict(const VolumeFormat &format, bool onSystemDisk = false);

// A fraction as a whole percentage, halves away from zero: 0.8504 gives "85".
QString percentText(double fraction);

} // namespace HealthComputer
