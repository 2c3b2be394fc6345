#pragma once

#include "engine/BookmarkAccess.h"
#include "engine/DriveAccess.h"
#include "model/DriveScan.h"
#include "model/ScanProgress.h"
#include "model/VolumeCandidate.h"
#include "state/DriveFailure.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <optional>
#include <qcoro/qcorotask.h>
#include <vector>

// The car's drive as the window sees it: the drives mounted, the one opened
// and its scan (a cached answer first, then a fresh one, then its clips'
// health), what is wrong with it, and the sample footage standing in for it.
// Signals only on a real change.
class DriveSession : public QObject {
    Q_OBJECT
public:
    // The first progress texts in English, as sources of the translation: a
    // run reports them translated.
    static inline const QString gettingStartedPhase =
        QString::fromUtf8(QT_TRANSLATE_NOOP("DriveSession", "Getting started…"));
    static inline const QString loadingSamplePhase =
        QString::fromUtf8(QT_TRANSLATE_NOOP("DriveSession", "Loading sample footage…"));

    // The engine's parts must outlive the session.
    DriveSession(DriveAccess &drive, BookmarkAccess &bookmarks, QObject *parent = nullptr);

    void beginScan(const QString &root);
    // The saved drive folder opens; a stale one says so; none is no news.
    void resolveBookmark();
    void refreshVolumeCandidates();
    void startWatchingDriveEvents();
    void loadSample(const QString &root);
    // Back to the saved drive, if any.
    void exitSample();
    void endHeldAccess() { accessedURL_.reset(); }

    const std::optional<DriveScan> &driveScan() const { return driveScan_; }
    const std::optional<ScanProgress> &scanProgress() const { return scanProgress_; }
    bool isScanning() const { return isScanning_; }
    bool isRevalidatingScan() const { return isRevalidatingScan_; }
    const std::vector<VolumeCandidate> &driveVolumeCandidates() const { return driveVolumeCandidates_; }
    bool driveIsConnected() const { return driveIsConnected_; }
    const std::optional<DriveFailure> &currentFailure() const { return currentFailure_; }
    void setCurrentFailure(std::optional<DriveFailure> v);
    const std::optional<QString> &driveRootURL() const { return driveRootURL_; }
    bool isSampleMode() const { return isSampleMode_; }

Q_SIGNALS:
    void driveScanChanged();
    void scanProgressChanged();
    void isScanningChanged();
    void isRevalidatingScanChanged();
    void driveVolumeCandidatesChanged();
    void driveIsConnectedChanged();
    void currentFailureChanged();
    void driveRootURLChanged();
    void isSampleModeChanged();
    // A folder of the drive was opened for reading.
    void accessBegan();
    // The probe of the drive on screen ended and its health is in the scan.
    void probeFinished();
    // Any volume mounted, the drive's or another.
    void volumeMounted(const QString &mountPoint);

private:
    void startRun(const QString &root, const QString &phase);
    void evaluateForFailure(const DriveScan &scan);
    void handleDriveEvent(const DriveEvent &event);
    // True while the scan started as `run` is still the one on screen.
    static bool isCurrent(const QPointer<DriveSession> &self, quint64 run) { return self && self->run_ == run; }
    static QCoro::Task<void> scanTask(QPointer<DriveSession> self, QString root, quint64 run);
    static QCoro::Task<void> sampleTask(QPointer<DriveSession> self, QString root, quint64 run);
    // The probe's answer, on the scan it started from.
    static QCoro::Task<bool> probeTask(QPointer<DriveSession> self, std::vector<TeslaEvent> events, quint64 run);
    static QCoro::Task<void> watchTask(QPointer<DriveSession> self);

    void setDriveScan(std::optional<DriveScan> v);
    void setScanProgress(std::optional<ScanProgress> v);
    void setIsScanning(bool v);
    void setIsRevalidatingScan(bool v);
    void setDriveVolumeCandidates(std::vector<VolumeCandidate> v);
    void setDriveIsConnected(bool v);
    void setDriveRootURL(std::optional<QString> v);
    void setIsSampleMode(bool v);

    DriveAccess &engine_;
    BookmarkAccess &bookmarks_;
    std::optional<DriveScan> driveScan_;
    std::optional<ScanProgress> scanProgress_;
    bool isScanning_ = false;
    bool isRevalidatingScan_ = false;
    std::vector<VolumeCandidate> driveVolumeCandidates_;
    bool driveIsConnected_ = false;
    std::optional<DriveFailure> currentFailure_;
    std::optional<QString> driveRootURL_;
    bool isSampleMode_ = false;
    std::optional<QString> accessedURL_;
    // Raised by every new scan, sample load and sample exit, so a late
    // answer from an earlier one never lands on the drive now shown.
    quint64 run_ = 0;
    bool watching_ = false;
};
