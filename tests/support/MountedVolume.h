#pragma once

#include <QString>
#include <QStringList>

// A real volume mounted under /media for the life of the object (needs
// root), as the system mounts a drive that is plugged in. "exfat" is a loop
// image through FUSE, the way a car's drive mounts here; "tmpfs" and
// "ramfs" are kernel file systems. The mount point carries the process id,
// and a count, so it never meets a drive of the same label that is
// already mounted.
class MountedVolume {
public:
    MountedVolume(const QString &type, const QString &label, qint64 imageBytes = 64 * 1024 * 1024);
    ~MountedVolume();
    MountedVolume(const MountedVolume &) = delete;
    MountedVolume &operator=(const MountedVolume &) = delete;

    bool ok() const { return mounted_; }
    const QString &path() const { return mountPoint_; }

    // Pulled out: unmounted lazily, open files or not; the image stays, so plugIn() brings the same drive back.
    void pull();
    // The same exFAT image mounted again at the same place.
    bool plugIn();
    // Pulled and gone for good.
    void unmount();

    static bool run(const QString &program, const QStringList &args, QString *out = nullptr, int timeoutMs = 60000);
    // Unmounts and removes drives of this label a dead test process left (its id is in their names); returns how many.
    static int sweepLeftovers(const QString &label);

private:
    bool mountImage();

    QString type_;
    QString label_;
    QString mountPoint_;
    QString image_;
    QString loop_;
    bool mounted_ = false;
    static inline int made_ = 0;
};
