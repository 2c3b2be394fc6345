#include "state/DriveSession.h"

#include "base/LogCategories.h"
#include "drive/ReadableFormats.h"
#include "drive/TeslaCamParser.h"
#include "state/ChangeSignal.h"
#include "state/OnMainThread.h"

#include <qcoro/qcorofuture.h>

namespace {

QString withoutTrailingSlashes(QString path)
{
    while (path.size() > 1 && path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return path;
}

QString parentPath(const QString &path)
{
    const QString p = withoutTrailingSlashes(path);
    const qsizetype slash = p.lastIndexOf(QLatin1Char('/'));
    return slash <= 0 ? QStringLiteral("/") : p.left(slash);
}

QString lastComponent(const QString &path)
{
    const QString p = withoutTrailingSlashes(path);
    return p.mid(p.lastIndexOf(QLatin1Char('/')) + 1);
}

} // namespace

DriveSession::DriveSession(DriveAccess &drive, BookmarkAccess &bookmarks, QObject *parent)
    : QObject(parent), engine_(drive), bookmarks_(bookmarks)
{
}

void DriveSession::startRun(const QString &root, const QString &phase)
{
    setDriveRootURL(root);
    setCurrentFailure(std::nullopt);
    setIsScanning(true);
    setIsRevalidatingScan(false);
    setScanProgress(ScanProgress{phase, 0, 0, 0});
}

void DriveSession::beginScan(const QString &root)
{
    setIsSampleMode(false);
    // Scoped access is bookkeeping here: ending it is dropping the slot.
    accessedURL_ = root;
    Q_EMIT accessBegan();
    startRun(root, tr(gettingStartedPhase.toUtf8().constData()));
    scanTask(QPointer<DriveSession>(this), root, ++run_);
}

QCoro::Task<void> DriveSession::scanTask(QPointer<DriveSession> self, QString root, quint64 run)
{
    DriveAccess &engine = self->engine_;
    QString key;
    try {
        auto keying = engine.scanCacheKey(root);
        key = co_await keying;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
    }
    if (!isCurrent(self, run))
        co_return;
    std::optional<DriveScan> cached;
    try {
        auto lookingUp = engine.cachedScan(key);
        cached = co_await lookingUp;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
    }
    if (!isCurrent(self, run))
        co_return;
    if (cached) {
        // The same drive mounted elsewhere, or another folder of its name and size.
        cached = cached->rebased(root);
        self->setDriveScan(*cached);
        self->setDriveIsConnected(true);
        self->setIsScanning(false);
        self->setIsRevalidatingScan(true);
        self->evaluateForFailure(*cached);
    }

    auto progress = onMainThread<ScanProgress>(self, [](DriveSession &session, const ScanProgress &p) {
        if (!session.isRevalidatingScan_)
            session.setScanProgress(p);
    });

    DriveScan scan;
    try {
        auto scanning = engine.scanDrive(root, progress);
        scan = co_await scanning;
    } catch (const TeslaCamParser::ScanError &) {
        if (isCurrent(self, run)) {
            self->setIsScanning(false);
            self->setIsRevalidatingScan(false);
            self->setCurrentFailure(DriveFailure::staleBookmark(BookmarkKey::teslaDrive));
        }
        co_return;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        if (isCurrent(self, run)) {
            self->setIsScanning(false);
            self->setIsRevalidatingScan(false);
            self->setCurrentFailure(DriveFailure::noTeslaCamFolder(lastComponent(root)));
        }
        co_return;
    }
    if (!isCurrent(self, run))
        co_return;
    // A fresh scan knows no health: the marks of the cached answer stay on
    // what didn't change rather than vanish until the probe ends.
    if (cached)
        scan = scan.withProbeResultsFrom(*cached);
    try {
        auto storing = engine.storeScanInCache(scan, key);
        co_await storing;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
    }
    if (!isCurrent(self, run))
        co_return;
    self->setDriveScan(scan);
    self->setDriveIsConnected(true);
    self->setIsScanning(false);
    self->setIsRevalidatingScan(false);
    self->evaluateForFailure(scan);

    QCoro::Task<bool> probing = probeTask(self, scan.events, run);
    const bool probed = co_await probing;
    // With its health, so the next start shows what this probe found. No
    // one waits for it; a later store of the same drive queues behind it.
    if (probed)
        engine.storeScanInCache(*self->driveScan_, key);
}

QCoro::Task<bool> DriveSession::probeTask(QPointer<DriveSession> self, std::vector<TeslaEvent> events, quint64 run)
{
    std::vector<TeslaEvent> probed;
    try {
        auto probing = self->engine_.probeAll(events);
        probed = co_await probing;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        co_return false;
    }
    if (!isCurrent(self, run) || !self->driveScan_)
        co_return false;
    DriveScan updated = *self->driveScan_;
    updated.events = std::move(probed);
    self->setDriveScan(std::move(updated));
    if (self)
        Q_EMIT self->probeFinished();
    co_return true;
}

void DriveSession::evaluateForFailure(const DriveScan &scan)
{
    // The bundled footage is ours, wherever the computer keeps it: the disk
    // it lies on is never the car's drive to be judged.
    if (isSampleMode_)
        return;
    const VolumeFormat &format = scan.format;
    if (!ReadableFormats::isReadable(format)) {
        setCurrentFailure(DriveFailure::unreadableFormat(format));
    } else if (scan.events.empty()) {
        setCurrentFailure(scan.encryptedClipsPresent ? DriveFailure::encryptedClipsOnly() : DriveFailure::emptyDrive());
    } else if (currentFailure_) {
        switch (currentFailure_->kind()) {
        case DriveFailure::EmptyDrive:
        case DriveFailure::EncryptedClipsOnly:
            setCurrentFailure(std::nullopt);
            break;
        case DriveFailure::UnreadableFormat:
            // The computer's own disk doesn't disprove it; only the car's formats do.
            if (!ReadableFormats::isComputerDisk(format))
                setCurrentFailure(std::nullopt);
            break;
        default:
            break;
        }
    }
}

void DriveSession::resolveBookmark()
{
    const BookmarkResult r = bookmarks_.resolveBookmark(BookmarkKey::teslaDrive);
    if (const QString *url = std::get_if<QString>(&r))
        beginScan(*url);
    else if (std::get<BookmarkError>(r).errorCase() == BookmarkError::stale)
        setCurrentFailure(DriveFailure::staleBookmark(BookmarkKey::teslaDrive));
}

void DriveSession::refreshVolumeCandidates() { setDriveVolumeCandidates(engine_.mountedTeslaCamVolumes()); }

void DriveSession::startWatchingDriveEvents()
{
    if (watching_)
        return;
    watching_ = true;
    watchTask(QPointer<DriveSession>(this));
}

QCoro::Task<void> DriveSession::watchTask(QPointer<DriveSession> self)
{
    std::shared_ptr<DriveEventStream> stream = self->engine_.driveEvents();
    if (!stream)
        co_return;
    for (;;) {
        std::optional<DriveEvent> event;
        try {
            auto nextEvent = stream->next();
            event = co_await nextEvent;
        } catch (...) {
            KEELHOLD_LOG_CAUGHT(lcState);
            co_return;
        }
        if (!self || !event)
            co_return;
        self->handleDriveEvent(*event);
    }
}

void DriveSession::handleDriveEvent(const DriveEvent &event)
{
    switch (event.kind()) {
    case DriveEvent::mounted:
    case DriveEvent::renamed: {
        const VolumeCandidate &c = event.candidate();
        std::vector<VolumeCandidate> list = driveVolumeCandidates_;
        std::erase_if(list, [&](const VolumeCandidate &o) { return o.volumeURL == c.volumeURL; });
        list.push_back(c);
        setDriveVolumeCandidates(std::move(list));
        if (event.kind() == DriveEvent::renamed)
            return;
        Q_EMIT volumeMounted(c.volumeURL);
        if (!currentFailure_ || currentFailure_->kind() != DriveFailure::DriveDisconnected || !driveRootURL_)
            return;
        if (parentPath(*driveRootURL_) != c.volumeURL)
            return;
        setDriveIsConnected(true);
        resolveBookmark();
        return;
    }
    case DriveEvent::unmounted: {
        const QString &path = event.volumePath();
        std::vector<VolumeCandidate> list = driveVolumeCandidates_;
        std::erase_if(list, [&](const VolumeCandidate &c) { return c.volumeURL == path; });
        setDriveVolumeCandidates(std::move(list));
        // A plain text prefix on purpose, with no path-component boundary.
        if (!driveRootURL_ || !driveRootURL_->startsWith(path))
            return;
        setDriveIsConnected(false);
        setCurrentFailure(DriveFailure::driveDisconnected());
        accessedURL_.reset();
        return;
    }
    }
}

void DriveSession::loadSample(const QString &root)
{
    setIsSampleMode(true);
    startRun(root, tr(loadingSamplePhase.toUtf8().constData()));
    sampleTask(QPointer<DriveSession>(this), root, ++run_);
}

QCoro::Task<void> DriveSession::sampleTask(QPointer<DriveSession> self, QString root, quint64 run)
{
    auto progress =
        onMainThread<ScanProgress>(self, [](DriveSession &session, const ScanProgress &p) { session.setScanProgress(p); });
    DriveScan scan;
    try {
        auto scanning = self->engine_.scanDrive(root, progress);
        scan = co_await scanning;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        if (isCurrent(self, run)) {
            self->setIsScanning(false);
            self->setIsSampleMode(false);
            self->setScanProgress(std::nullopt);
        }
        co_return;
    }
    if (!isCurrent(self, run))
        co_return;
    self->setDriveScan(scan);
    self->setDriveIsConnected(true);
    self->setIsScanning(false);
    QCoro::Task<bool> probing = probeTask(self, scan.events, run);
    co_await probing;
}

void DriveSession::exitSample()
{
    if (!isSampleMode_)
        return;
    setIsSampleMode(false);
    ++run_;
    setDriveScan(std::nullopt);
    setDriveRootURL(std::nullopt);
    setDriveIsConnected(false);
    setCurrentFailure(std::nullopt);
    setIsScanning(false);
    setScanProgress(std::nullopt);
    resolveBookmark();
}

void DriveSession::setDriveScan(std::optional<DriveScan> v)
{
    setAndSignal(this, driveScan_, std::move(v), &DriveSession::driveScanChanged);
}
void DriveSession::setScanProgress(std::optional<ScanProgress> v)
{
    setAndSignal(this, scanProgress_, std::move(v), &DriveSession::scanProgressChanged);
}
void DriveSession::setIsScanning(bool v) { setAndSignal(this, isScanning_, v, &DriveSession::isScanningChanged); }
void DriveSession::setIsRevalidatingScan(bool v)
{
    setAndSignal(this, isRevalidatingScan_, v, &DriveSession::isRevalidatingScanChanged);
}
void DriveSession::setDriveVolumeCandidates(std::vector<VolumeCandidate> v)
{
    setAndSignal(this, driveVolumeCandidates_, std::move(v), &DriveSession::driveVolumeCandidatesChanged);
}
void DriveSession::setDriveIsConnected(bool v)
{
    setAndSignal(this, driveIsConnected_, v, &DriveSession::driveIsConnectedChanged);
}
void DriveSession::setCurrentFailure(std::optional<DriveFailure> v)
{
    setAndSignal(this, currentFailure_, std::move(v), &DriveSession::currentFailureChanged);
}
void DriveSession::setDriveRootURL(std::optional<QString> v)
{
    setAndSignal(this, driveRootURL_, std::move(v), &DriveSession::driveRootURLChanged);
}
void DriveSession::setIsSampleMode(bool v) { setAndSignal(this, isSampleMode_, v, &DriveSession::isSampleModeChanged); }
