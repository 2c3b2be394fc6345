#pragma once

#include "model/VolumeFormat.h"

// Which drive formats this program reads. The computer's own file systems
// (ext4, btrfs, xfs, a sandbox's tmpfs or overlay, …) play the part that the
// Mac's own disk plays elsewhere: footage copied off the car, and the bundled
// sample footage. They stay `other(name)` in the model.
namespace ReadableFormats {

// apfs, or `other` naming one of the computer's own file systems.
bool isComputerDisk(const VolumeFormat &format);
// A kernel file-system type ("ext4", "btrfs", "tmpfs", …) of the computer's own disks.
bool isComputerFileSystem(const QString &type);
// exFAT, FAT32, ext3 and ext4: what the car itself records to.
bool carCanRecordTo(const VolumeFormat &format);
// exFAT, FAT32, or the computer's own disk.
bool isReadable(const VolumeFormat &format);
// The name to show for a computer-disk format ("APFS", "ext4", …).
QString computerDiskName(const VolumeFormat &format);

} // namespace ReadableFormats
