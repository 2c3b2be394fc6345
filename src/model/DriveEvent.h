#pragma once

#include "model/VolumeCandidate.h"

#include <QMetaType>
#include <QString>

// A change of the mounted volumes.
class DriveEvent {
public:
    enum Kind : quint8 { mounted, unmounted, renamed };

    DriveEvent() = default;
    static DriveEvent makeMounted(const VolumeCandidate &candidate) { return DriveEvent(mounted, candidate, {}); }
    // Only the path: nothing can be asked of a volume that is gone.
    static DriveEvent makeUnmounted(const QString &volumePath) { return DriveEvent(unmounted, {}, volumePath); }
    static DriveEvent makeRenamed(const VolumeCandidate &candidate) { return DriveEvent(renamed, candidate, {}); }

    Kind kind() const { return kind_; }
    // The volume of `mounted` and `renamed`; an empty value for `unmounted`.
    const VolumeCandidate &candidate() const { return candidate_; }
    // The mount point of `unmounted`; empty for the other cases.
    const QString &volumePath() const { return volumePath_; }

    bool operator==(const DriveEvent &) const = default;

private:
    DriveEvent(Kind k, VolumeCandidate c, QString path)
        : kind_(k), candidate_(std::move(c)), volumePath_(std::move(path))
    {
    }
    Kind kind_ = unmounted;
    VolumeCandidate candidate_;
    QString volumePath_;
};

Q_DECLARE_METATYPE(DriveEvent)
