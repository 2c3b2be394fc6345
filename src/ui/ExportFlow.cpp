#include "ExportFlow.h"

#include "state/OnMainThread.h"

#include "DrivingDataPreferences.h"
#include "FileChooser.h"
#include "TileSource.h"

#include "base/Awaiting.h"
#include "base/LogCategories.h"
#include "base/AsyncRun.h"
#include "export/CombinedExport.h"
#include "export/Exporter.h"
#include "report/IncidentReport.h"
#include "report/ReportError.h"
#include "report/TileFetch.h"
#include "base/CancellationError.h"
#include "model/PlatformWords.h"
#include "drive/DriveBoundary.h"
#include "base/EnginePools.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QPointer>
#include <QStandardPaths>
#include <QUrl>
#include <QUuid>
#include <QVariantMap>
#include <algorithm>
#include <cmath>
#include <cstdio>

ExportFlow::ExportFlow(ExportAccess &engine, const TeslaEvent &event, QObject *parent)
    : QObject(parent), engine_(engine), event_(event), cameras_(event.cameras())
{
    std::sort(cameras_.begin(), cameras_.end(),
              [](Camera a, Camera b) { return a.gridOrder() < b.gridOrder(); });
    if (!cameras_.empty())
        selectedCamera_ = cameras_.front();
    overlay_.telemetry = true; // shown wherever the clips carry it
}

ExportFlow::~ExportFlow()
{
    // The export's answer finds this flow gone and is dropped.
    if (running_.isRunning())
        running_.cancel();
}

ExportFlow::State ExportFlow::state() const
{
    if (exportedPath_)
        return State::ready;
    return isExporting_ ? State::exporting : State::choosing;
}

QString ExportFlow::stateName() const
{
    switch (state()) {
    case State::choosing: return QStringLiteral("choosing");
    case State::exporting: return QStringLiteral("exporting");
    case State::ready: return QStringLiteral("ready");
    }
    return {};
}

bool ExportFlow::canExport() const
{
    if (isExporting_ || (needsCamera() && !selectedCamera_))
        return false;
    return !isCombined() || rangeProblem().isEmpty();
}

void ExportFlow::setTimelineLength(std::optional<double> seconds)
{
    if (seconds && !(*seconds > 0))
        seconds.reset();
    timelineLength_ = seconds;
    // The custom part starts out as the moment's, else the whole timeline.
    const auto start = momentRange().value_or(std::make_pair(0.0, timelineLength_.value_or(0.0)));
    customStart_ = start.first;
    customEnd_ = start.second;
    if ((range_ == Range::moment && !momentOffered()) || (range_ == Range::custom && !customOffered()))
        range_ = Range::whole;
    Q_EMIT changed();
}

void ExportFlow::setDrivingData(DrivingData data)
{
    drivingData_ = data;
    Q_EMIT changed();
}

void ExportFlow::setLayout(std::optional<CombinedExportOptions::Layout> layout)
{
    if (isExporting_ || (layout == layout_ && product_ == Product::movie))
        return;
    layout_ = layout;
    product_ = Product::movie;
    Q_EMIT changed();
}

void ExportFlow::setProduct(Product product)
{
    if (isExporting_ || product == product_)
        return;
    product_ = product;
    Q_EMIT changed();
}

void ExportFlow::setIncludeKeys(bool on)
{
    if (isExporting_ || on == includeKeys_)
        return;
    includeKeys_ = on;
    Q_EMIT changed();
}

QString ExportFlow::explanationText() const
{
    if (!isReport())
        return tr(explanation);
    return tr("Put together what an insurer, the police or a lawyer asks for: when and where it happened, what "
              "each camera saw, how the car was driven, and every original file with a way to check it.");
}

QString ExportFlow::layoutWord() const
{
    switch (product_) {
    case Product::report: return QStringLiteral("report");
    case Product::package: return QStringLiteral("package");
    case Product::movie: break;
    }
    return layout_ ? CombinedExportOptions::word(*layout_) : QStringLiteral("original");
}

void ExportFlow::setLayoutWord(const QString &word)
{
    if (word == u"original")
        setLayout(std::nullopt);
    else if (word == u"report")
        setProduct(Product::report);
    else if (word == u"package")
        setProduct(Product::package);
    else if (const auto layout = CombinedExportOptions::layoutFromWord(word))
        setLayout(*layout);
}

QVariantList ExportFlow::layoutsForQml() const
{
    const QVariantMap t = texts();
    QVariantList list;
    for (const char *key : {"original", "grid", "front-sides", "single", "report", "package"})
        list.append(QVariantMap{{QStringLiteral("value"), QString::fromLatin1(key)},
                                {QStringLiteral("name"), t.value(QStringLiteral("layout_") + QString::fromLatin1(key))}});
    return list;
}

void ExportFlow::setOverlayPart(bool CombinedExportOptions::Overlay::*part, bool on)
{
    if (isExporting_ || overlay_.*part == on)
        return;
    overlay_.*part = on;
    Q_EMIT changed();
}

void ExportFlow::setSize(CombinedExportOptions::Size size)
{
    if (isExporting_ || size == size_)
        return;
    size_ = size;
    Q_EMIT changed();
}

QString ExportFlow::sizeWord() const
{
    switch (size_) {
    case CombinedExportOptions::Size::p720: return QStringLiteral("720");
    case CombinedExportOptions::Size::p1080: return QStringLiteral("1080");
    case CombinedExportOptions::Size::full: return QStringLiteral("full");
    }
    return {};
}

void ExportFlow::setSizeWord(const QString &word)
{
    if (const auto size = CombinedExportOptions::sizeFromWord(word))
        setSize(*size);
}

void ExportFlow::setRange(Range range)
{
    if (isExporting_ || range == range_ || (range == Range::moment && !momentOffered())
        || (range == Range::custom && !customOffered()))
        return;
    range_ = range;
    Q_EMIT changed();
}

QString ExportFlow::rangeWord() const
{
    switch (range_) {
    case Range::whole: return QStringLiteral("whole");
    case Range::moment: return QStringLiteral("moment");
    case Range::custom: return QStringLiteral("custom");
    }
    return {};
}

void ExportFlow::setRangeWord(const QString &word)
{
    if (word == u"whole")
        setRange(Range::whole);
    else if (word == u"moment")
        setRange(Range::moment);
    else if (word == u"custom")
        setRange(Range::custom);
}

void ExportFlow::setCustomStart(double seconds)
{
    if (isExporting_ || !std::isfinite(seconds))
        return;
    seconds = std::clamp(seconds, 0.0, timelineLength_.value_or(0.0));
    if (seconds == customStart_)
        return;
    customStart_ = seconds;
    Q_EMIT changed();
}

void ExportFlow::setCustomEnd(double seconds)
{
    if (isExporting_ || !std::isfinite(seconds))
        return;
    seconds = std::clamp(seconds, 0.0, timelineLength_.value_or(0.0));
    if (seconds == customEnd_)
        return;
    customEnd_ = seconds;
    Q_EMIT changed();
}

QString ExportFlow::rangeProblem() const
{
    if (range_ == Range::custom && customEnd_ <= customStart_)
        return texts().value(QStringLiteral("rangeBackwards")).toString();
    return {};
}

std::optional<std::pair<double, double>> ExportFlow::momentRange() const
{
    return timelineLength_ ? CombinedExportOptions::momentRange(event_, *timelineLength_) : std::nullopt;
}

std::optional<std::pair<double, double>> ExportFlow::chosenRange() const
{
    switch (range_) {
    case Range::whole: return std::nullopt;
    case Range::moment: return momentRange();
    case Range::custom: return std::make_pair(customStart_, customEnd_);
    }
    return std::nullopt;
}

CombinedExportOptions ExportFlow::combinedOptions() const
{
    CombinedExportOptions options;
    options.layout = layout_.value_or(CombinedExportOptions::Layout::grid);
    if (options.layout == CombinedExportOptions::Layout::single)
        options.camera = selectedCamera_;
    options.overlay = overlay_;
    options.overlay.telemetry = showDrivingData();
    // The unit the player shows, as the user last chose it.
    options.speedInMiles = DrivingDataPreferences::shared()->useMiles();
    options.size = size_;
    options.range = chosenRange();
    return options;
}

QString ExportFlow::timeLeftText(double seconds)
{
    if (seconds < 10)
        return tr("a few seconds left");
    // Rounded to ten seconds and to whole minutes, neither count is ever one.
    if (seconds < 55)
        return tr("about %n seconds left", nullptr, int(std::lround(seconds / 10.0)) * 10);
    if (seconds < 90)
        return tr("about a minute left");
    if (seconds < 90 * 60)
        return tr("about %n minutes left", nullptr, int(std::lround(seconds / 60.0)));
    //: %1 is a number of hours with one decimal, e.g. 1.5
    return tr("about %1 hours left").arg(QLocale().toString(seconds / 3600.0, 'f', 1));
}

QString ExportFlow::progressText() const
{
    if (isExporting_ && isReport())
        return texts().value(QStringLiteral("making")).toString();
    if (!isExporting_ || !combinedProgress_)
        return {};
    const CombinedExportProgress &p = *combinedProgress_;
    if (p.finishing || p.complete)
        return texts().value(QStringLiteral("finishing")).toString();
    const QLocale locale;
    QStringList parts{tr("%1 of %2 frames").arg(locale.toString(p.framesDone), locale.toString(p.framesTotal))};
    // The movie's own seconds per second of work: its frames per second of
    // footage follow from the part's length.
    const double span = exportingRange_ ? exportingRange_->second - exportingRange_->first : timelineLength_.value_or(0.0);
    if (p.framesPerSecond > 0 && span > 0 && p.framesTotal > 0) {
        const double speed = p.framesPerSecond * span / double(p.framesTotal);
        //: How fast the movie is made: 1.8× real time
        parts << tr("%1× real time").arg(locale.toString(speed, 'f', speed < 10 ? 1 : 0));
    }
    if (p.secondsLeft)
        parts << timeLeftText(*p.secondsLeft);
    return parts.join(QStringLiteral(" · "));
}

void ExportFlow::setSelectedCamera(std::optional<Camera> camera)
{
    if (isExporting_ || camera == selectedCamera_)
        return;
    selectedCamera_ = camera;
    Q_EMIT changed();
}

void ExportFlow::setSelectedCameraRaw(const QString &raw)
{
    for (Camera c : cameras_)
        if (c.rawValue() == raw)
            return setSelectedCamera(c);
}

QVariantList ExportFlow::camerasForQml() const
{
    QVariantList list;
    for (Camera c : cameras_)
        list.append(QVariantMap{{QStringLiteral("raw"), c.rawValue()}, {QStringLiteral("name"), c.displayName()}});
    return list;
}

QString ExportFlow::readyText() const
{
    //: %1 is the exported file's name
    return exportedPath_ ? tr("Ready: %1").arg(QFileInfo(*exportedPath_).fileName()) : QString();
}

QString ExportFlow::savedText() const
{
    //: %1 is the saved file's name
    return savedFileName_ ? tr("Saved as %1").arg(*savedFileName_) : QString();
}

QString ExportFlow::suggestedSaveFolder()
{
    const QString videos = QStandardPaths::writableLocation(QStandardPaths::MoviesLocation);
    if (!videos.isEmpty() && QFileInfo(videos).isDir())
        return videos;
    return QDir::homePath();
}

QString ExportFlow::exportedFileName() const
{
    return exportedPath_ ? QFileInfo(*exportedPath_).fileName() : QString();
}


void ExportFlow::presentSavePanel()
{
    if (!exportedPath_ || isSaving_)
        return;
    FileChooser::Request request;
    request.mode = FileChooser::Mode::saveFile;
    request.title = texts().value(QStringLiteral("saveTo")).toString();
    request.startFolder = suggestedSaveFolder();
    request.suggestedName = QDir(request.startFolder).filePath(exportedFileName());
    const QString filter = product_ == Product::report    ? QStringLiteral("reportFilter")
                           : product_ == Product::package ? QStringLiteral("packageFilter")
                                                          : QStringLiteral("movieFilter");
    request.nameFilters = {texts().value(filter).toString()};
    request.defaultSuffix = QFileInfo(exportedFileName()).suffix();
    QPointer<ExportFlow> self(this);
    FileChooser::open(request, [self](std::optional<QString> chosen) {
        if (self && chosen)
            self->saveTo(*chosen);
    });
}

QVariantMap ExportFlow::texts()
{
    return {{QStringLiteral("title"), tr(title)},
            {QStringLiteral("explanation"), tr(explanation)},
            //: Label of the camera picker
            {QStringLiteral("cameraLabel"), tr("Camera")},
            {QStringLiteral("layoutLabel"), tr("Export as")},
            {QStringLiteral("layout_original"), tr("One camera (original quality)")},
            {QStringLiteral("layout_grid"), tr("Grid of every camera")},
            {QStringLiteral("layout_front-sides"), tr("Front and sides")},
            {QStringLiteral("layout_single"), tr("One camera with overlay")},
            //: Label over the overlay choices: which details the movie shows over the video
            {QStringLiteral("overlayLabel"), tr("Show")},
            {QStringLiteral("overlayTime"), tr("Date and time")},
            {QStringLiteral("overlayNames"), tr("Camera names")},
            {QStringLiteral("overlayReason"), tr("Reason and place")},
            {QStringLiteral("overlayDrivingData"), tr("Driving data")},
            {QStringLiteral("noDrivingData"), tr("No driving data in these clips")},
            //: Label over the movie's picture size choices
            {QStringLiteral("sizeLabel"), tr("Size")},
            //: Picture size: 720 lines high
            {QStringLiteral("size720"), tr("720p")},
            //: Picture size: 1080 lines high
            {QStringLiteral("size1080"), tr("1080p")},
            {QStringLiteral("sizeFull"), tr("Full resolution")},
            //: Label over the choices of which part of the event to export
            {QStringLiteral("rangeLabel"), tr("Length")},
            {QStringLiteral("rangeWhole"), tr("Whole event")},
            {QStringLiteral("rangeMoment"), tr("From the moment")},
            {QStringLiteral("rangeMomentTip"), tr("From 10 seconds before the moment it happened to 20 seconds after.")},
            //: A part of the event the user sets by start and end
            {QStringLiteral("rangeCustom"), tr("Custom")},
            //: Reads "From [0:10] to [0:40] into the event"
            {QStringLiteral("rangeFrom"), tr("From")},
            //: Reads "From [0:10] to [0:40] into the event"
            {QStringLiteral("rangeTo"), tr("to")},
            //: Reads "From [0:10] to [0:40] into the event"
            {QStringLiteral("rangeUnit"), tr("into the event")},
            {QStringLiteral("rangeBackwards"), tr("The end has to come after the start.")},
            {QStringLiteral("finishing"), tr("Finishing the file…")},
            {QStringLiteral("exporting"), tr("Exporting…")},
            {QStringLiteral("saving"), tr("Saving a copy…")},
            {QStringLiteral("cancel"), tr("Cancel")},
            //: Button that starts the export
            {QStringLiteral("export"), tr("Export")},
            //: Button that stops a running export
            {QStringLiteral("stop"), tr("Stop")},
            {QStringLiteral("stopTip"), tr(stopTooltip)},
            //: Button that closes the finished export dialog
            {QStringLiteral("done"), tr("Done")},
            {QStringLiteral("showInFolder"), tr("Show in Folder")},
            {QStringLiteral("showInFolderTip"), tr("Opens the folder that holds the file, with the file selected.")},
            {QStringLiteral("email"), tr("Email…")},
            {QStringLiteral("emailTip"), tr("Starts a new email with the file attached.")},
            {QStringLiteral("saveTo"), tr("Save to…")},
            //: %1 is the user's machine, e.g. "computer"
            {QStringLiteral("saveToTip"), tr("Choose exactly where on your %1 to save this file.").arg(PlatformWords::computer())},
            //: File type filter of the save dialog; keep "(*.mp4)" as it is
            {QStringLiteral("movieFilter"), tr("MPEG-4 movie (*.mp4)")},
            {QStringLiteral("layout_report"), tr("Incident Report (PDF)")},
            {QStringLiteral("layout_package"), tr("Evidence Package (ZIP)")},
            {QStringLiteral("reportAbout"),
             tr("When and where, each camera at the moment, the driving data, and every original file with its "
                "SHA-256, ready for an insurer or the police.")},
            {QStringLiteral("packageAbout"),
             //: SHA256SUMS is a file name; keep it as it is
             tr("The report, every original file exactly as the car wrote it, and a SHA256SUMS file anyone can "
                "check them with, in one ZIP.")},
            {QStringLiteral("includeKeys"), tr("Include unlock keys")},
            {QStringLiteral("includeKeysTip"),
             tr("Lets whoever receives the package play the encrypted footage. Anyone with the keys can watch it.")},
            {QStringLiteral("making"), tr("Making the report…")},
            //: File type filter of the save dialog; keep "(*.pdf)" as it is
            {QStringLiteral("reportFilter"), tr("PDF document (*.pdf)")},
            //: File type filter of the save dialog; keep "(*.zip)" as it is
            {QStringLiteral("packageFilter"), tr("ZIP archive (*.zip)")}};
}

void ExportFlow::startExport()
{
    if (!canExport())
        return;
    const QString folder = QDir(QDir::tempPath()).filePath(QUuid::createUuid().toString(QUuid::WithoutBraces));
    scratchFolder_ = folder;
    isExporting_ = true;
    runClock_.start();
    sessionBegan_ = false;
    stopRequested_ = false;
    combinedProgress_.reset();
    errorMessage_.reset();
    Q_EMIT changed();

    if (!QDir().mkpath(folder)) {
        isExporting_ = false;
        errorMessage_ = tr(failureMessage);
        Q_EMIT changed();
        return;
    }
    if (isCombined())
        return startCombined(folder);
    if (isReport())
        return startReport(folder);
    const QString output = QDir(folder).filePath(Exporter::suggestedFileName(event_, *selectedCamera_));
    auto progress = onMainThread<double>(QPointer<ExportFlow>(this), [](ExportFlow &self, double fraction) {
        if (!self.isExporting_)
            return;
        self.sessionBegan_ = true;
        self.progress_ = fraction;
        Q_EMIT self.changed();
    });
    running_ = engine_.exportFootage(*selectedCamera_, event_, std::nullopt, output, progress);
    Awaiting::whenFinished(this, running_, [this, output](const QFuture<void> &done) { finish(done, output); });
}

void ExportFlow::startCombined(const QString &folder)
{
    const CombinedExportOptions options = combinedOptions();
    exportingRange_ = options.range;
    if (exportingRange_ && timelineLength_)
        exportingRange_->second = std::min(exportingRange_->second, *timelineLength_);
    const QString output = QDir(folder).filePath(CombinedExport::suggestedFileName(event_, options));
    auto progress = onMainThread<CombinedExportProgress>(
        QPointer<ExportFlow>(this), [](ExportFlow &self, const CombinedExportProgress &report) {
            if (!self.isExporting_)
                return;
            self.sessionBegan_ = true;
            self.combinedProgress_ = report;
            self.progress_ = report.fraction();
            Q_EMIT self.changed();
        });
    progress_ = 0;
    running_ = engine_.exportCombined(event_, options, output, progress);
    Awaiting::whenFinished(this, running_, [this, output](const QFuture<void> &done) { finish(done, output); });
}

void ExportFlow::startReport(const QString &folder)
{
    IncidentReport::Options options;
    options.vaultURL = vaultURL_;
    options.package = product_ == Product::package;
    options.includeKeys = includeKeys();
    options.miles = DrivingDataPreferences::shared()->useMiles();
    options.version = QCoreApplication::applicationVersion();
    options.tiles = TileFetch::fetcher({TileSource::shared()->urlTemplate(), TileSource::userAgent()});
    const QString output = QDir(folder).filePath(options.package ? IncidentReport::suggestedPackageName(event_)
                                                                 : IncidentReport::suggestedFileName(event_));
    auto progress = onMainThread<double>(QPointer<ExportFlow>(this), [](ExportFlow &self, double fraction) {
        if (!self.isExporting_)
            return;
        self.progress_ = fraction;
        Q_EMIT self.changed();
    });
    progress_ = 0;
    running_ = engine_.makeReport(event_, options, output, progress);
    Awaiting::whenFinished(this, running_, [this, output](const QFuture<void> &done) { finish(done, output); });
}

void ExportFlow::finish(const QFuture<void> &future, const QString &output)
{
    isExporting_ = false;
    // A future that ends in an exception also reads as cancelled, so the
    // stored exception decides first.
    try {
        QFuture<void>(future).waitForFinished();
        if (!future.isCanceled())
            exportedPath_ = output;
        else if (sessionBegan_ && !(isCombined() && stopRequested_))
            errorMessage_ = tr(failureMessage); // stopped while the session was writing
    } catch (const CancellationError &) {
        // Stopped before the session began: back to choosing, quietly.
    } catch (const ReportError &e) {
        errorMessage_ = e.message(); // says what couldn't be done, in a sentence
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcUi);
        // A new movie the user stopped is simply not made; the copy keeps
        // its old word for a stop while writing.
        if (!(isCombined() && stopRequested_))
            errorMessage_ = tr(failureMessage);
    }
    // The scratch folder is ours alone; whatever a stopped or failed export
    // left in it goes with it.
    if (!exportedPath_ && !scratchFolder_.isEmpty())
        QDir(scratchFolder_).removeRecursively();
    combinedProgress_.reset();
    Q_EMIT changed();
    Q_EMIT exportFinished();
}

void ExportFlow::stop()
{
    if (isExporting_) {
        stopRequested_ = true;
        running_.cancel();
    }
}

bool ExportFlow::saveTo(const QString &destination)
{
    if (!exportedPath_ || destination.isEmpty() || isSaving_)
        return false;
    const QUrl url(destination);
    const QString path = url.isLocalFile() ? url.toLocalFile() : destination;
    isSaving_ = true;
    Q_EMIT changed();
    const QString source = *exportedPath_;
    // The failure's sentence; empty when the copy is in place.
    const QString failed = tr(saveFailureMessage);
    const QFuture<QString> copy = AsyncRun::onPool(EnginePools::quick(), [source, path, failed, drive = driveRoot_] {
        if (drive && DriveBoundary::writesInto(*drive, path).value_or(false))
            return DriveBoundary::exportRefusalText();
        return copyReplacing(source, path) ? QString() : failed;
    });
    Awaiting::whenFinished(this, copy, [this, path, failed](QFuture<QString> done) {
        const QString failure = Awaiting::take(done).value_or(failed);
        const bool ok = failure.isEmpty();
        isSaving_ = false;
        if (ok)
            savedFileName_ = QFileInfo(path).fileName();
        else
            saveErrorMessage_ = failure;
        Q_EMIT changed();
        Q_EMIT saveFinished(ok);
    });
    return true;
}

bool ExportFlow::copyReplacing(const QString &source, const QString &destination)
{
    const QFileInfo target(destination);
    if (target.fileName().isEmpty() || (target.exists() && target.isDir() && !target.isSymLink()))
        return false;
    const QString part = target.dir().filePath(QStringLiteral(".") + target.fileName() + QStringLiteral(".part-") +
                                               QUuid::createUuid().toString(QUuid::Id128).left(8));
    // QFile::copy writes into a temporary file of its own and renames it
    // into place only once every byte is written.
    if (!QFile::copy(source, part)) {
        QFile::remove(part);
        return false;
    }
    // rename(2) swaps the new file in for whatever was there in one step.
    if (::rename(QFile::encodeName(part).constData(), QFile::encodeName(destination).constData()) != 0) {
        QFile::remove(part);
        return false;
    }
    return true;
}
