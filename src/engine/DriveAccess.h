#pragma once

#include "engine/DriveEventStream.h"
#include "crypt/KeyCoverage.h"
#include "drive/DriveIdentity.h"
#include "model/DriveScan.h"
#include "model/ScanProgress.h"
#include "model/TeslaEvent.h"
#include "model/VolumeCandidate.h"

#include <QFuture>
#include <QHash>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

// The engine's part that reads the car's drive and watches volumes come
// and go. Threads, errors and cancelling as EngineFacade says.
class DriveAccess {
public:
    virtual ~DriveAccess() = default;

    // root: the TeslaCam folder itself. Raises the scanner's errors.
    virtual QFuture<DriveScan> scanDrive(const QString &root, ScanProgressCallback progress) = 0;
    virtual QFuture<std::optional<DriveScan>> cachedScan(const QString &key) = 0;
    virtual QFuture<void> storeScanInCache(const DriveScan &scan, const QString &key) = 0;
    // The events with clip health (and durations) filled in.
    virtual QFuture<std::vector<TeslaEvent>> probeAll(const std::vector<TeslaEvent> &events) = 0;
    // For the encrypted events among these, by id: which clips can be
    // watched here with the keys held now.
    virtual QFuture<QHash<QString, KeyCoverage>> keyCoverage(const std::vector<TeslaEvent> &events) = 0;

    // Which cached scan a TeslaCam folder answers to: its volume's name and
    // size, which a failing drive can take minutes to tell.
    virtual QFuture<QString> scanCacheKey(const QString &root) = 0;
    // The drive a folder lies on and where it is mounted; none when the
    // folder isn't there or the drive doesn't answer within a few seconds.
    virtual QFuture<std::optional<DriveIdentity::Mounted>> identifyDrive(const QString &folder) = 0;
    // Whether writing into `destination` would write onto the drive whose
    // TeslaCam folder is `driveRoot`; none when that can't be told.
    virtual QFuture<std::optional<bool>> writesIntoDrive(const QString &driveRoot, const QString &destination) = 0;

    virtual std::vector<VolumeCandidate> mountedTeslaCamVolumes() = 0;
    // Every call gives the same stream; read it on the main thread.
    virtual std::shared_ptr<DriveEventStream> driveEvents() = 0;
};
