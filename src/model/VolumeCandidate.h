#pragma once

#include <QString>
#include <optional>

// A mounted volume that could hold the car's footage.
struct VolumeCandidate {
    QString volumeURL; // the mount point
    QString name;
    bool hasTeslaCamFolder = false;
    std::optional<qint64> capacityBytes;
    std::optional<qint64> freeBytes;

    // The mount point: the same volume mounted elsewhere is another candidate.
    QString id() const { return volumeURL; }

    bool operator==(const VolumeCandidate &) const = default;
};

size_t qHash(const VolumeCandidate &c, size_t seed = 0) noexcept;
