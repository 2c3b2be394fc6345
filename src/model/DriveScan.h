#pragma once

#include "model/Date.h"
#include "model/ScanIssue.h"
#include "model/TeslaEvent.h"
#include "model/VolumeFormat.h"

#include <QJsonObject>
#include <QString>
#include <optional>
#include <vector>

// The whole result of reading one drive.
struct DriveScan {
    QString teslaCamURL;
    QString volumeName;
    VolumeFormat format;
    std::optional<qint64> capacityBytes;
    std::optional<qint64> freeBytes;
    // The folder lies on the computer's own disk (the sample footage, footage
    // copied off the car), not on a drive the car records to.
    bool onSystemDisk = false;
    std::vector<TeslaEvent> events; // newest first
    bool encryptedClipsPresent = false;
    std::vector<ScanIssue> issues; // in order of discovery
    Date scannedAt;

    // The same scan with every path moved from teslaCamURL to root: a cached
    // scan is keyed by the drive, not by where it is mounted or found.
    DriveScan rebased(const QString &root) const;
    // The same scan with what an earlier probe of this drive found (health,
    // duration) on every unprobed clip still at the same path with the same
    // size: same bytes, same verdict, until a new probe says otherwise.
    DriveScan withProbeResultsFrom(const DriveScan &earlier) const;

    int unknownFileCount() const;
    int unknownCameraSuffixCount() const;

    bool operator==(const DriveScan &) const = default;

    QJsonObject toJson() const;
    static DriveScan fromJson(const QJsonValue &value);
};
