#pragma once

#include <QThreadPool>

// Background work, split by what it waits on, so that a long wait of one
// kind never starves another: a probe pass and a keep stuck on a dead drive
// leave the Vault listing, the player and exports free to answer. Every
// pool is bounded; drive reads inside the work are under the I/O watchdog.
namespace EnginePools {

// Long runs over the car's drive: scans, probe passes, keeps, exports.
QThreadPool &driveRuns();
// Short reads for what the user is looking at: building a player, thumbnails.
QThreadPool &media();
// Quick work away from the car's drive: the Vault listing and its index,
// settings, copying a finished export.
QThreadPool &quick();

} // namespace EnginePools
