#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

// The kernel's table of mounts as /proc/self/mountinfo gives it.
namespace MountTable {

struct Entry {
    int mountID = 0;
    QString device;      // "major:minor" of the file system
    QString root;        // the part of the file system that is mounted here
    QString mountPoint;
    QString fileSystemType;
    QString source;      // e.g. /dev/sdb1, or a name such as "tmpfs"

    bool operator==(const Entry &) const = default;
};

// Lines that don't parse are passed over.
std::vector<Entry> parse(const QByteArray &mountinfo);

// The current table; empty when it can't be read.
std::vector<Entry> read();

// The mounts that may be a removable drive: below /media, /run/media or
// /mnt, not hidden, one per mount point (the topmost when stacked), in
// table order. The root volume and the system's own mounts never qualify.
std::vector<Entry> removableMounts(const std::vector<Entry> &table);

// One step between two tables of removable mounts.
struct Change {
    enum Kind { mounted, unmounted, renamed };
    Kind kind;
    QString mountPoint; // the new one for `renamed`, the gone one for `unmounted`

    bool operator==(const Change &) const = default;
};

// What happened between two tables of removable mounts: unmounts first, then
// renames, then mounts, each in table order. A mount point whose mount was
// replaced (gone and back between two looks) counts as unmounted and mounted.
// The same file system leaving one mount point and arriving at another is a
// rename; the old point is not reported.
std::vector<Change> diff(const std::vector<Entry> &before, const std::vector<Entry> &after);

} // namespace MountTable
