#include "state/AppState.h"

#include "base/LogCategories.h"
#include "drive/DriveBoundary.h"
#include "drive/ReadableFormats.h"
#include "drive/TeslaCamParser.h"
#include "base/AsyncRun.h"
#include "base/EnginePools.h"
#include "health/HealthComputer.h"
#include "state/OnMainThread.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QSettings>
#include <QStorageInfo>
#include <QTimer>
#include <QWindow>
#include <qcoro/qcorofuture.h>

namespace {

QSettings settings()
{
    return QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold"));
}

QString parentPath(const QString &path)
{
    QString p = path;
    while (p.size() > 1 && p.endsWith(QLatin1Char('/')))
        p.chop(1);
    const qsizetype slash = p.lastIndexOf(QLatin1Char('/'));
    if (slash <= 0)
        return QStringLiteral("/");
    return p.left(slash);
}

QString lastComponent(const QString &path)
{
    QString p = path;
    while (p.size() > 1 && p.endsWith(QLatin1Char('/')))
        p.chop(1);
    return QFileInfo(p).fileName();
}

template <typename T>
QVariant optionalJson(const std::optional<T> &v)
{
    return v ? QVariant(v->toJson().toVariantMap()) : QVariant();
}

} // namespace


AppState::AppState(EngineFacade &engine, QObject *parent) : QObject(parent), engine_(engine)
{
    hasCompletedOnboarding_ = settings().value(onboardingKey, false).toBool();
    showOnboarding_ = !hasCompletedOnboarding_;
    loadTriageTask(QPointer<AppState>(this));
    // The weekly check of the Vault, for an app left open for days.
    weeklyVerification_ = new QTimer(this);
    weeklyVerification_->setInterval(std::chrono::hours(6));
    connect(weeklyVerification_, &QTimer::timeout, this, [this] { verifyVaultIfDue(); });
    weeklyVerification_->start();
    if (auto *app = QCoreApplication::instance()) {
        QPointer<AppState> self(this);
        connect(app, &QCoreApplication::aboutToQuit, this, [self] {
            if (self)
                self->endHeldAccess();
        });
    }
}

AppState::~AppState() = default;

// --- start-up and access ---------------------------------------------------

void AppState::rootViewAppeared()
{
    if (rootViewAppeared_)
        return;
    rootViewAppeared_ = true;
    setDriveVolumeCandidates(engine_.mountedTeslaCamVolumes());
    startWatchingDriveEvents();
    if (showOnboarding_)
        return;
    resolveDriveBookmark();
    resolveVaultBookmark();
}

void AppState::beginAccess(AccessSlot slot, const QString &url)
{
    std::optional<QString> &held = slot == AccessSlot::drive ? accessedDriveURL_ : accessedVaultURL_;
    // Scoped access is bookkeeping here: ending it is dropping the slot.
    held = url;
    raiseResourceAccessEpoch();
}

void AppState::endHeldAccess()
{
    accessedDriveURL_.reset();
    accessedVaultURL_.reset();
}

// --- focus mode --------------------------------------------------------------

void AppState::setFocusWindow(FocusWindow *window)
{
    if (focusWindow_)
        disconnect(focusWindow_, nullptr, this, nullptr);
    focusWindow_ = window;
    if (window)
        connect(window, &FocusWindow::willExitFullScreen, this, &AppState::onWindowWillExitFullScreen);
}

void AppState::attachWindow(QObject *quickWindow)
{
    if (auto *w = qobject_cast<QWindow *>(quickWindow))
        setFocusWindow(FocusWindow::forWindow(w, this));
}

void AppState::toggleFocusMode()
{
    setIsFocusMode(!isFocusMode_);
    setColumnVisibility(isFocusMode_ ? ColumnVisibility::detailOnly : ColumnVisibility::all);
    if (focusWindow_)
        focusWindow_->toggleFullScreen();
}

void AppState::exitFocusMode(bool alsoExitFullScreen)
{
    if (!isFocusMode_)
        return;
    setIsFocusMode(false);
    setColumnVisibility(ColumnVisibility::all);
    if (alsoExitFullScreen && focusWindow_ && focusWindow_->isFullScreen())
        focusWindow_->toggleFullScreen();
}

void AppState::onWindowWillExitFullScreen()
{
    if (!isFocusMode_)
        return;
    setIsFocusMode(false);
    setColumnVisibility(ColumnVisibility::all);
}

// --- drive lifecycle ---------------------------------------------------------

QString AppState::scanCacheKey(const QString &root)
{
    QStorageInfo info(root);
    QString volume = info.isValid() ? info.rootPath() : root;
    if (volume.isEmpty())
        volume = root;
    QString name = info.isValid() ? info.name() : QString();
    if (name.isEmpty())
        name = lastComponent(volume);
    const qint64 capacity = info.isValid() && info.bytesTotal() > 0 ? info.bytesTotal() : -1;
    return name + QLatin1Char('|') + QString::number(capacity);
}

void AppState::beginScan(const QString &root)
{
    setIsSampleMode(false);
    beginDriveAccess(root);
    setDriveRootURL(root);
    setCurrentFailure(std::nullopt);
    setIsScanning(true);
    setIsRevalidatingScan(false);
    setScanProgress(ScanProgress{gettingStartedPhase, 0, 0, 0});
    scanTask(QPointer<AppState>(this), root, ++scanRun_);
}

QCoro::Task<void> AppState::scanTask(QPointer<AppState> self, QString root, quint64 run)
{
    EngineFacade &engine = self->engine_;
    // The key asks the drive for its size, and a failing drive can take
    // minutes to answer that: never on this thread.
    QFuture<QString> keyFuture =
        AsyncRun::onPool(EnginePools::driveRuns(), [root] { return scanCacheKey(root); });
    const QString key = co_await keyFuture;
    if (!scanIsCurrent(self, run))
        co_return;
    std::optional<DriveScan> cached;
    try {
        auto lookingUp = engine.cachedScan(key);
        cached = co_await lookingUp;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
    }
    if (!scanIsCurrent(self, run))
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

    auto progress = onMainThread<ScanProgress>(self, [](AppState &state, const ScanProgress &p) {
        if (!state.isRevalidatingScan_)
            state.setScanProgress(p);
    });

    DriveScan scan;
    try {
        auto scanning = engine.scanDrive(root, progress);
        scan = co_await scanning;
    } catch (const TeslaCamParser::ScanError &) {
        if (scanIsCurrent(self, run)) {
            self->setIsScanning(false);
            self->setIsRevalidatingScan(false);
            self->setCurrentFailure(DriveFailure::staleBookmark(BookmarkKey::teslaDrive));
        }
        co_return;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        if (scanIsCurrent(self, run)) {
            self->setIsScanning(false);
            self->setIsRevalidatingScan(false);
            self->setCurrentFailure(DriveFailure::noTeslaCamFolder(lastComponent(root)));
        }
        co_return;
    }
    if (!scanIsCurrent(self, run))
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
    if (!scanIsCurrent(self, run))
        co_return;
    self->setDriveScan(scan);
    self->setDriveIsConnected(true);
    self->setIsScanning(false);
    self->setIsRevalidatingScan(false);
    self->evaluateForFailure(scan);

    std::vector<TeslaEvent> probed;
    try {
        auto probing = engine.probeAll(scan.events);
        probed = co_await probing;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        co_return;
    }
    if (!scanIsCurrent(self, run) || !self->driveScan_)
        co_return;
    DriveScan updated = *self->driveScan_;
    updated.events = std::move(probed);
    self->setDriveScan(updated);
    self->setHealthReport(HealthComputer::compute(updated, self->vaultIndex_));
    // With its health, so the next start shows what this probe found. No
    // one waits for it; a later store of the same drive queues behind it.
    engine.storeScanInCache(updated, key);
}

void AppState::evaluateForFailure(const DriveScan &scan)
{
    const VolumeFormat &format = scan.format;
    // The bundled footage is ours, wherever the computer keeps it: the disk
    // it lies on is never the car's drive to be judged.
    if (isSampleMode_) {
        recomputeHealth();
        return;
    }
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
    recomputeHealth();
}

void AppState::resolveDriveBookmark()
{
    resolveBookmark(BookmarkKey::teslaDrive, &AppState::beginScan);
}

// A saved folder opens; a stale one says so; a missing one is no news.
void AppState::resolveBookmark(BookmarkKey key, void (AppState::*open)(const QString &))
{
    const BookmarkResult r = engine_.resolveBookmark(key);
    if (const QString *url = std::get_if<QString>(&r)) {
        (this->*open)(*url);
    } else if (std::get<BookmarkError>(r).errorCase() == BookmarkError::stale) {
        setCurrentFailure(DriveFailure::staleBookmark(key));
    }
}

void AppState::refreshVolumeCandidates() { setDriveVolumeCandidates(engine_.mountedTeslaCamVolumes()); }

void AppState::startWatchingDriveEvents()
{
    if (driveWatchTaskStarted_)
        return;
    driveWatchTaskStarted_ = true;
    watchTask(QPointer<AppState>(this));
}

QCoro::Task<void> AppState::watchTask(QPointer<AppState> self)
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

void AppState::handleDriveEvent(const DriveEvent &event)
{
    const auto dropPath = [this](const QString &path) {
        std::vector<VolumeCandidate> list = driveVolumeCandidates_;
        std::erase_if(list, [&](const VolumeCandidate &c) { return c.volumeURL == path; });
        setDriveVolumeCandidates(std::move(list));
    };
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
        noteMountForKeep(c.volumeURL);
        if (!currentFailure_ || currentFailure_->kind() != DriveFailure::DriveDisconnected)
            return;
        if (!driveRootURL_)
            return;
        if (parentPath(*driveRootURL_) != c.volumeURL)
            return;
        setDriveIsConnected(true);
        resolveDriveBookmark();
        return;
    }
    case DriveEvent::unmounted: {
        const QString &path = event.volumePath();
        dropPath(path);
        if (!driveRootURL_)
            return;
        // A plain text prefix on purpose, with no path-component boundary.
        if (!driveRootURL_->startsWith(path))
            return;
        setDriveIsConnected(false);
        setCurrentFailure(DriveFailure::driveDisconnected());
        accessedDriveURL_.reset();
        return;
    }
    }
}

void AppState::recomputeHealth()
{
    if (driveScan_)
        setHealthReport(HealthComputer::compute(*driveScan_, vaultIndex_));
}

std::optional<QString> AppState::sampleFootageURL()
{
    const QByteArray env = qgetenv(sampleFootageEnv);
    QStringList candidates;
    if (!env.isEmpty())
        candidates << QString::fromLocal8Bit(env);
    const QString appDir = QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QString();
    if (!appDir.isEmpty()) {
        // Installed: <prefix>/bin/keelhold and <prefix>/share/keelhold/...
        candidates << appDir + QStringLiteral("/../share/keelhold/SampleTeslaCam/TeslaCam");
        // Build tree: the executable lies somewhere under build/.
        QDir d(appDir);
        for (int up = 0; up < 4; ++up) {
            candidates << d.absoluteFilePath(QStringLiteral("resources/SampleTeslaCam/TeslaCam"));
            if (!d.cdUp())
                break;
        }
    }
    for (const QString &c : std::as_const(candidates)) {
        const QFileInfo fi(c);
        if (fi.isDir())
            return QDir::cleanPath(fi.absoluteFilePath());
    }
    return std::nullopt;
}

void AppState::loadSampleFootage()
{
    const std::optional<QString> url = sampleFootageURL();
    if (!url)
        return;
    setShowOnboarding(false);
    setIsSampleMode(true);
    setDriveRootURL(*url);
    setCurrentFailure(std::nullopt);
    setIsScanning(true);
    setIsRevalidatingScan(false);
    setScanProgress(ScanProgress{loadingSamplePhase, 0, 0, 0});
    setSelectedSection(SidebarSection::drive);
    setSelectedEventID(std::nullopt);
    sampleTask(QPointer<AppState>(this), *url, ++scanRun_);
}

QCoro::Task<void> AppState::sampleTask(QPointer<AppState> self, QString root, quint64 run)
{
    EngineFacade &engine = self->engine_;
    auto progress = onMainThread<ScanProgress>(self, [](AppState &state, const ScanProgress &p) { state.setScanProgress(p); });
    DriveScan scan;
    try {
        auto scanning = engine.scanDrive(root, progress);
        scan = co_await scanning;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        if (scanIsCurrent(self, run)) {
            self->setIsScanning(false);
            self->setIsSampleMode(false);
            self->setScanProgress(std::nullopt);
        }
        co_return;
    }
    if (!scanIsCurrent(self, run))
        co_return;
    self->setDriveScan(scan);
    self->setDriveIsConnected(true);
    self->setIsScanning(false);
    self->evaluateForFailure(scan);
    std::vector<TeslaEvent> probed;
    try {
        auto probing = engine.probeAll(scan.events);
        probed = co_await probing;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        co_return;
    }
    if (!scanIsCurrent(self, run))
        co_return;
    if (self->driveScan_) {
        DriveScan updated = *self->driveScan_;
        updated.events = std::move(probed);
        self->setDriveScan(updated);
    }
    self->recomputeHealth();
}

void AppState::exitSampleMode()
{
    if (!isSampleMode_)
        return;
    setIsSampleMode(false);
    ++scanRun_;
    setDriveScan(std::nullopt);
    setDriveRootURL(std::nullopt);
    setDriveIsConnected(false);
    setCurrentFailure(std::nullopt);
    setSelectedEventID(std::nullopt);
    setIsScanning(false);
    setScanProgress(std::nullopt);
    setHealthReport(std::nullopt);
    resolveDriveBookmark();
}

// --- keeping, triage and the Vault ------------------------------------------

QCoro::Task<void> AppState::loadTriageTask(QPointer<AppState> self)
{
    EngineFacade::TriageStates loaded;
    try {
        auto loading = self->engine_.loadAllTriageStates();
        loaded = co_await loading;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        co_return;
    }
    if (!self)
        co_return;
    bool changed = false;
    for (auto it = loaded.cbegin(); it != loaded.cend(); ++it) {
        // A mark made while the load ran wins over the stored one.
        if (!self->triageStates_.contains(it.key())) {
            self->triageStates_.insert(it.key(), it.value());
            changed = true;
        }
    }
    if (changed) {
        Q_EMIT self->triageStatesChanged();
        Q_EMIT self->visibleInboxEventsChanged();
    }
}

TriageState AppState::triageState(const TeslaEvent &event) const
{
    const auto it = triageStates_.constFind(event.id());
    if (it != triageStates_.cend())
        return it.value();
    return engine_.triageState(event.id());
}

QString AppState::triageStateFor(const QString &eventID) const
{
    const auto it = triageStates_.constFind(eventID);
    return (it != triageStates_.cend() ? it.value() : engine_.triageState(eventID)).rawValue();
}

void AppState::setTriage(TriageState state, const TeslaEvent &event)
{
    setTriageStateEntry(event.id(), state);
    engine_.setTriageState(state, event.id());
}

void AppState::setTriage(const QString &state, const QString &eventID)
{
    const std::optional<TriageState> s = TriageState::fromRawValue(state);
    if (!s)
        return;
    setTriageStateEntry(eventID, *s);
    engine_.setTriageState(*s, eventID);
}

void AppState::dismiss(const std::vector<TeslaEvent> &events)
{
    for (const TeslaEvent &e : events) {
        setTriageStateEntry(e.id(), TriageState::dismissed);
        engine_.setTriageState(TriageState::dismissed, e.id());
    }
}

std::vector<TeslaEvent> AppState::visibleInboxEvents() const
{
    std::vector<TeslaEvent> out;
    if (!driveScan_)
        return out;
    for (const TeslaEvent &e : driveScan_->events) {
        const TriageState t = triageState(e);
        if (filterState_ && t != *filterState_)
            continue;
        if (filterReason_ && e.reason.category != *filterReason_)
            continue;
        if (filterKind_ && e.kind != *filterKind_)
            continue;
        if (!filterState_ && t == TriageState::dismissed)
            continue;
        out.push_back(e);
    }
    return out;
}

void AppState::setVaultURL(const QString &url)
{
    beginVaultAccess(url);
    setVaultURLField(url);
    // The failure that asked for a Vault folder has its answer.
    if (currentFailure_ && *currentFailure_ == DriveFailure::staleBookmark(BookmarkKey::vaultFolder))
        setCurrentFailure(std::nullopt);
    try {
        engine_.saveBookmark(url, BookmarkKey::vaultFolder);
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
    }
    // A check of the Vault before belongs to that Vault: it ends unheard.
    if (currentVerification_) {
        currentVerification_->request_stop();
        currentVerification_.reset();
        verificationProgress_.reset();
        Q_EMIT verificationProgressChanged();
        Q_EMIT verificationChanged();
    }
    struct Loaded {
        VaultIndex index;
        VerificationLog log;
    };
    auto loaded = onMainThread<Loaded>(QPointer<AppState>(this), [url](AppState &self, const Loaded &l) {
        if (self.vaultURL_ != url)
            return;
        self.setVaultIndex(l.index);
        self.setVerificationLog(l.log);
        // A first keep that waited for this folder goes on, planned
        // against what the folder already holds.
        if (!self.keepAwaitingVault_.empty() && !self.isArchiving_)
            self.keep(std::exchange(self.keepAwaitingVault_, {}));
        else
            self.verifyVaultIfDue();
    });
    EngineFacade *engine = &engine_;
    // Detached, but waited for when the state goes: the load uses its engine.
    detachedLoads_.addFuture(AsyncRun::onPool(EnginePools::quick(), [engine, url, loaded] {
        loaded(Loaded{engine->loadVaultIndex(url), engine->loadVerificationLog(url)});
    }));
    loadVaultEvents();
}

void AppState::resolveVaultBookmark()
{
    resolveBookmark(BookmarkKey::vaultFolder, &AppState::setVaultURL);
}

void AppState::loadVaultEvents()
{
    if (!vaultURL_)
        return;
    vaultEventsTask(QPointer<AppState>(this), *vaultURL_);
}

QCoro::Task<void> AppState::vaultEventsTask(QPointer<AppState> self, QString vaultURL)
{
    std::vector<TeslaEvent> events;
    try {
        auto reading = self->engine_.scanVault(vaultURL);
        events = co_await reading;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        co_return;
    }
    if (self)
        self->setVaultEvents(std::move(events));
}

void AppState::removeFromVault(const TeslaEvent &given)
{
    // A copy: the caller's event is often an element of vaultEvents_, which
    // this replaces below.
    const TeslaEvent event = given;
    if (!vaultURL_)
        return;
    pauseActivePlayer();
    if (selectedVaultEventID_ == event.id())
        setSelectedVaultEventID(std::nullopt);
    try {
        (void)engine_.removeFromVault(event.id(), *vaultURL_);
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        setLastArchiveReport(std::nullopt);
        return;
    }
    // Every record of it: a part keep and a whole one may both stand.
    VaultIndex index = vaultIndex_;
    if (std::erase_if(index.events, [&](const ArchivedEvent &a) { return a.eventID == event.id(); }) > 0)
        setVaultIndex(std::move(index));
    std::vector<TeslaEvent> events = vaultEvents_;
    std::erase_if(events, [&](const TeslaEvent &e) { return e.id() == event.id(); });
    setVaultEvents(std::move(events));
    const auto t = triageStates_.constFind(event.id());
    if (t != triageStates_.cend() && t.value() == TriageState::kept)
        setTriage(TriageState::reviewed, event);
}

void AppState::removeFromVault(const QString &eventID)
{
    for (const TeslaEvent &e : vaultEvents_)
        if (e.id() == eventID) {
            // A copy: the removal replaces the list that e lives in.
            const TeslaEvent event = e;
            removeFromVault(event);
            return;
        }
}

std::optional<TeslaEvent> AppState::findEvent(const QString &id) const
{
    if (driveScan_)
        for (const TeslaEvent &e : driveScan_->events)
            if (e.id() == id)
                return e;
    return std::nullopt;
}

std::optional<TeslaEvent> AppState::findVaultEvent(const QString &id) const
{
    for (const TeslaEvent &e : vaultEvents_)
        if (e.id() == id)
            return e;
    return std::nullopt;
}

std::vector<TeslaEvent> AppState::eventsForIDs(const QStringList &ids) const
{
    std::vector<TeslaEvent> out;
    for (const QString &id : ids) {
        if (auto e = findEvent(id))
            out.push_back(*e);
        else if (auto kept = findVaultEvent(id))
            out.push_back(*kept);
    }
    return out;
}

void AppState::requestKeep(const std::vector<TeslaEvent> &events)
{
    if (isArchiving_)
        return;
    std::vector<TeslaEvent> toCopy;
    int alreadyKept = 0;
    for (const TeslaEvent &e : events) {
        // The drive's own files are what a keep copies, never the Vault's.
        if (auto onDrive = findEvent(e.id()))
            toCopy.push_back(*onDrive);
        else if (findVaultEvent(e.id()))
            ++alreadyKept;
        else
            toCopy.push_back(e);
    }
    if (toCopy.empty() && alreadyKept > 0) {
        ArchiveReport report;
        report.skippedDuplicates = alreadyKept;
        setLastArchiveReport(report);
        setShowArchiveReport(true);
        return;
    }
    keep(toCopy);
}

void AppState::keepIDs(const QStringList &eventIDs) { requestKeep(eventsForIDs(eventIDs)); }
void AppState::dismissIDs(const QStringList &eventIDs) { dismiss(eventsForIDs(eventIDs)); }

void AppState::toggleBulkSelection(const QString &eventID)
{
    QSet<QString> ids = selectedEventIDsForBulk_;
    if (!ids.remove(eventID))
        ids.insert(eventID);
    setSelectedEventIDsForBulk(std::move(ids));
}

void AppState::takeBulkSelection(bool keepThem)
{
    // The ticks wait for the running keep rather than being dropped.
    if (keepThem && isArchiving_)
        return;
    std::vector<TeslaEvent> chosen;
    for (const TeslaEvent &e : visibleInboxEvents())
        if (selectedEventIDsForBulk_.contains(e.id()))
            chosen.push_back(e);
    if (keepThem)
        requestKeep(chosen);
    else
        dismiss(chosen);
    setSelectedEventIDsForBulk({});
}

void AppState::keepBulkSelection() { takeBulkSelection(true); }
void AppState::dismissBulkSelection() { takeBulkSelection(false); }

// --- setters: each signals only on a real change ---------------------------

#define KH_SET(field, value, signal)                                                                                  \
    do {                                                                                                              \
        if (field == value)                                                                                           \
            return;                                                                                                   \
        field = std::move(value);                                                                                     \
        Q_EMIT signal();                                                                                              \
    } while (0)

void AppState::setHasCompletedOnboarding(bool v)
{
    if (hasCompletedOnboarding_ == v)
        return;
    hasCompletedOnboarding_ = v;
    settings().setValue(onboardingKey, v);
    Q_EMIT hasCompletedOnboardingChanged();
}
void AppState::setShowOnboarding(bool v) { KH_SET(showOnboarding_, v, showOnboardingChanged); }
void AppState::setSelectedSection(SidebarSection s)
{
    if (selectedSection_.value() == s.value())
        return;
    selectedSection_ = s;
    Q_EMIT selectedSectionChanged();
}
void AppState::setSelectedEventID(std::optional<QString> id) { KH_SET(selectedEventID_, id, selectedEventIDChanged); }
void AppState::setSelectedVaultEventID(std::optional<QString> id)
{
    KH_SET(selectedVaultEventID_, id, selectedVaultEventIDChanged);
}
void AppState::setSelectedEventIDForQml(const QString &id)
{
    setSelectedEventID(id.isEmpty() ? std::nullopt : std::optional<QString>(id));
}
void AppState::setSelectedVaultEventIDForQml(const QString &id)
{
    setSelectedVaultEventID(id.isEmpty() ? std::nullopt : std::optional<QString>(id));
}
void AppState::setColumnVisibility(ColumnVisibility v) { KH_SET(columnVisibility_, v, columnVisibilityChanged); }
void AppState::setIsFocusMode(bool v) { KH_SET(isFocusMode_, v, isFocusModeChanged); }

void AppState::pauseActivePlayer()
{
    // By name, through its meta-object: the state needs nothing of playback.
    if (QObject *player = activePlayerController_.data())
        QMetaObject::invokeMethod(player, "pause", Qt::DirectConnection);
}

void AppState::raiseResourceAccessEpoch()
{
    ++resourceAccessEpoch_;
    Q_EMIT resourceAccessEpochChanged();
}

void AppState::setDriveScan(std::optional<DriveScan> v)
{
    if (driveScan_ == v)
        return;
    driveScan_ = std::move(v);
    Q_EMIT driveScanChanged();
    Q_EMIT visibleInboxEventsChanged();
    refreshKeyCoverage();
}
void AppState::setScanProgress(std::optional<ScanProgress> v) { KH_SET(scanProgress_, v, scanProgressChanged); }
void AppState::setIsScanning(bool v) { KH_SET(isScanning_, v, isScanningChanged); }
void AppState::setIsRevalidatingScan(bool v) { KH_SET(isRevalidatingScan_, v, isRevalidatingScanChanged); }
void AppState::setDriveVolumeCandidates(std::vector<VolumeCandidate> v)
{
    KH_SET(driveVolumeCandidates_, v, driveVolumeCandidatesChanged);
}
void AppState::setDriveIsConnected(bool v) { KH_SET(driveIsConnected_, v, driveIsConnectedChanged); }
void AppState::setCurrentFailure(std::optional<DriveFailure> v) { KH_SET(currentFailure_, v, currentFailureChanged); }
void AppState::setDriveRootURL(std::optional<QString> v) { KH_SET(driveRootURL_, v, driveRootURLChanged); }
void AppState::setIsSampleMode(bool v) { KH_SET(isSampleMode_, v, isSampleModeChanged); }
void AppState::setShowEncryptionGuide(bool v) { KH_SET(showEncryptionGuide_, v, showEncryptionGuideChanged); }
void AppState::setVaultURLField(std::optional<QString> v) { KH_SET(vaultURL_, v, vaultURLChanged); }
void AppState::setVaultIndex(VaultIndex v) { KH_SET(vaultIndex_, v, vaultIndexChanged); }
void AppState::setVaultEvents(std::vector<TeslaEvent> v)
{
    if (vaultEvents_ == v)
        return;
    vaultEvents_ = std::move(v);
    Q_EMIT vaultEventsChanged();
    refreshKeyCoverage();
}
void AppState::setTriageStateEntry(const QString &id, TriageState s)
{
    const auto it = triageStates_.constFind(id);
    if (it != triageStates_.cend() && it.value() == s)
        return;
    triageStates_.insert(id, s);
    Q_EMIT triageStatesChanged();
    Q_EMIT visibleInboxEventsChanged();
}
void AppState::setIsArchiving(bool v) { KH_SET(isArchiving_, v, isArchivingChanged); }
void AppState::setArchiveProgress(std::optional<ArchiveProgress> v) { KH_SET(archiveProgress_, v, archiveProgressChanged); }
void AppState::setLastArchiveReport(std::optional<ArchiveReport> v)
{
    KH_SET(lastArchiveReport_, v, lastArchiveReportChanged);
}
void AppState::setVerificationLog(VerificationLog v) { KH_SET(verificationLog_, v, verificationLogChanged); }
void AppState::setShowArchiveReport(bool v) { KH_SET(showArchiveReport_, v, showArchiveReportChanged); }
void AppState::setHealthReport(std::optional<HealthReport> v) { KH_SET(healthReport_, v, healthReportChanged); }
void AppState::setFilterState(std::optional<TriageState> v)
{
    if (filterState_.has_value() == v.has_value() && (!v || filterState_->value() == v->value()))
        return;
    filterState_ = v;
    Q_EMIT filterStateChanged();
    Q_EMIT visibleInboxEventsChanged();
}
void AppState::setFilterReason(std::optional<ReasonCategory> v)
{
    if (filterReason_ == v)
        return;
    filterReason_ = v;
    Q_EMIT filterReasonChanged();
    Q_EMIT visibleInboxEventsChanged();
}
void AppState::setFilterKind(std::optional<EventKind> v)
{
    if (filterKind_ == v)
        return;
    filterKind_ = v;
    Q_EMIT filterKindChanged();
    Q_EMIT visibleInboxEventsChanged();
}
void AppState::setFilterStateForQml(const QString &raw) { setFilterState(TriageState::fromRawValue(raw)); }
void AppState::setFilterReasonForQml(const QString &raw) { setFilterReason(ReasonCategory::fromRawValue(raw)); }
void AppState::setFilterKindForQml(const QString &raw) { setFilterKind(EventKind::fromRawValue(raw)); }
void AppState::setSelectedEventIDsForBulk(QSet<QString> ids)
{
    KH_SET(selectedEventIDsForBulk_, ids, selectedEventIDsForBulkChanged);
}
QStringList AppState::selectedEventIDsForBulkForQml() const
{
    QStringList out(selectedEventIDsForBulk_.cbegin(), selectedEventIDsForBulk_.cend());
    out.sort();
    return out;
}
void AppState::setSelectedEventIDsForBulkForQml(const QStringList &ids)
{
    setSelectedEventIDsForBulk(QSet<QString>(ids.cbegin(), ids.cend()));
}

#undef KH_SET

// --- QML faces ---------------------------------------------------------------

QVariant AppState::driveScanForQml() const { return optionalJson(driveScan_); }
QVariantList AppState::driveEventsForQml() const
{
    return driveScan_ ? EventItem::listFor(driveScan_->events) : QVariantList();
}
QVariant AppState::scanProgressForQml() const
{
    if (!scanProgress_)
        return {};
    return QVariantMap{{QStringLiteral("phase"), scanProgress_->phase},
                       {QStringLiteral("foldersScanned"), scanProgress_->foldersScanned},
                       {QStringLiteral("eventsFound"), scanProgress_->eventsFound},
                       {QStringLiteral("clipsFound"), scanProgress_->clipsFound}};
}
QVariantList AppState::driveVolumeCandidatesForQml() const
{
    QVariantList out;
    for (const VolumeCandidate &c : driveVolumeCandidates_) {
        QVariantMap m{{QStringLiteral("id"), c.id()},
                      {QStringLiteral("volumeURL"), c.volumeURL},
                      {QStringLiteral("name"), c.name},
                      {QStringLiteral("hasTeslaCamFolder"), c.hasTeslaCamFolder}};
        m.insert(QStringLiteral("capacityBytes"), c.capacityBytes ? QVariant(double(*c.capacityBytes)) : QVariant());
        m.insert(QStringLiteral("freeBytes"), c.freeBytes ? QVariant(double(*c.freeBytes)) : QVariant());
        out.append(m);
    }
    return out;
}
QVariant AppState::currentFailureForQml() const
{
    return currentFailure_ ? QVariant::fromValue(*currentFailure_) : QVariant();
}
QVariantMap AppState::triageStatesForQml() const
{
    QVariantMap out;
    for (auto it = triageStates_.cbegin(); it != triageStates_.cend(); ++it)
        out.insert(it.key(), it.value().rawValue());
    return out;
}
QVariant AppState::archiveProgressForQml() const
{
    if (!archiveProgress_)
        return {};
    const ArchiveProgress &p = *archiveProgress_;
    return QVariantMap{{QStringLiteral("bytesCopied"), double(p.bytesCopied)},
                       {QStringLiteral("totalBytes"), double(p.totalBytes)},
                       {QStringLiteral("eventsCompleted"), p.eventsCompleted},
                       {QStringLiteral("totalEvents"), p.totalEvents},
                       {QStringLiteral("currentFileName"), p.currentFileName ? QVariant(*p.currentFileName) : QVariant()}};
}
QVariant AppState::lastArchiveReportForQml() const { return optionalJson(lastArchiveReport_); }
QVariant AppState::healthReportForQml() const { return optionalJson(healthReport_); }
