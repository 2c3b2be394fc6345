#pragma once

#include "engine/DriveEventStream.h"
#include "crypt/KeyCoverage.h"
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

    virtual std::vector<VolumeCandidate> mountedTeslaCamVolumes() = 0;
    // Every call gives the same stream; read it on the main thread.
    virtual std::shared_ptr<DriveEventStream> driveEvents() = 0;
};
