#include "ExportFlow.h"

#include "FileChooser.h"

#include "engine/AsyncRun.h"
#include "export/Exporter.h"
#include "model/CancellationError.h"
#include "model/PlatformWords.h"
#include "drive/DriveBoundary.h"
#include "engine/EnginePools.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>
#include <QUrl>
#include <QUuid>
#include <QVariantMap>
#include <algorithm>
#include <cstdio>

ExportFlow::ExportFlow(EngineFacade &engine, const TeslaEvent &event, QObject *parent)
    : QObject(parent), engine_(engine), event_(event), cameras_(event.cameras())
{
    std::sort(cameras_.begin(), cameras_.end(),
              [](Camera a, Camera b) { return a.gridOrder() < b.gridOrder(); });
    if (!cameras_.empty())
        selectedCamera_ = cameras_.front();
}

ExportFlow::~ExportFlow()
{
    if (watcher_) {
        watcher_->disconnect(this);
        watcher_->future().cancel();
    }
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
    return exportedPath_ ? QStringLiteral("Ready: ") + QFileInfo(*exportedPath_).fileName() : QString();
}

QString ExportFlow::savedText() const
{
    return savedFileName_ ? QStringLiteral("Saved as ") + *savedFileName_ : QString();
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
    request.nameFilters = {texts().value(QStringLiteral("movieFilter")).toString()};
    request.defaultSuffix = QStringLiteral("mp4");
    QPointer<ExportFlow> self(this);
    FileChooser::open(request, [self](std::optional<QString> chosen) {
        if (self && chosen)
            self->saveTo(*chosen);
    });
}

QVariantMap ExportFlow::texts()
{
    return {{QStringLiteral("title"), title},
            {QStringLiteral("explanation"), explanation},
            {QStringLiteral("cameraLabel"), QStringLiteral("Camera")},
            {QStringLiteral("note"), combinedNote},
            {QStringLiteral("exporting"), QStringLiteral("Exporting…")},
            {QStringLiteral("saving"), QStringLiteral("Saving a copy…")},
            {QStringLiteral("cancel"), QStringLiteral("Cancel")},
            {QStringLiteral("export"), QStringLiteral("Export")},
            {QStringLiteral("stop"), QStringLiteral("Stop")},
            {QStringLiteral("stopTip"), stopTooltip},
            {QStringLiteral("done"), QStringLiteral("Done")},
            {QStringLiteral("showInFolder"), QStringLiteral("Show in Folder")},
            {QStringLiteral("showInFolderTip"), QStringLiteral("Opens the folder that holds the file, with the file selected.")},
            {QStringLiteral("email"), QStringLiteral("Email…")},
            {QStringLiteral("emailTip"), QStringLiteral("Starts a new email with the file attached.")},
            {QStringLiteral("saveTo"), QStringLiteral("Save to…")},
            {QStringLiteral("saveToTip"), QStringLiteral("Choose exactly where on your ") + PlatformWords::computer() + QStringLiteral(" to save this file.")},
            {QStringLiteral("movieFilter"), QStringLiteral("MPEG-4 movie (*.mp4)")}};
}

void ExportFlow::startExport()
{
    if (!selectedCamera_ || isExporting_)
        return;
    const QString folder = QDir(QDir::tempPath()).filePath(QUuid::createUuid().toString(QUuid::WithoutBraces));
    const QString output = QDir(folder).filePath(Exporter::suggestedFileName(event_, *selectedCamera_));
    isExporting_ = true;
    sessionBegan_ = false;
    errorMessage_.reset();
    Q_EMIT changed();

    if (!QDir().mkpath(folder)) {
        isExporting_ = false;
        errorMessage_ = failureMessage;
        Q_EMIT changed();
        return;
    }
    QPointer<ExportFlow> self = this;
    auto progress = [self](double fraction) {
        QMetaObject::invokeMethod(
            qApp,
            [self, fraction] {
                if (!self || !self->isExporting_)
                    return;
                self->sessionBegan_ = true;
                self->progress_ = fraction;
                Q_EMIT self->changed();
            },
            Qt::QueuedConnection);
    };
    watcher_ = std::make_unique<QFutureWatcher<void>>();
    const QFuture<void> future = engine_.exportFootage(*selectedCamera_, event_, std::nullopt, output, progress);
    connect(watcher_.get(), &QFutureWatcher<void>::finished, this, [this, future, output] { finish(future, output); });
    watcher_->setFuture(future);
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
        else if (sessionBegan_)
            errorMessage_ = failureMessage; // stopped while the session was writing
    } catch (const CancellationError &) {
        // Stopped before the session began: back to choosing, quietly.
    } catch (...) {
        errorMessage_ = failureMessage;
    }
    Q_EMIT changed();
    Q_EMIT exportFinished();
}

void ExportFlow::stop()
{
    if (watcher_ && isExporting_)
        watcher_->future().cancel();
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
    const QFuture<QString> copy = AsyncRun::onPool(EnginePools::quick(), [source, path, drive = driveRoot_] {
        if (drive && DriveBoundary::writesInto(*drive, path).value_or(false))
            return DriveBoundary::exportRefusal;
        return copyReplacing(source, path) ? QString() : saveFailureMessage;
    });
    auto *watcher = new QFutureWatcher<QString>(this);
    connect(watcher, &QFutureWatcher<QString>::finished, this, [this, watcher, path] {
        watcher->deleteLater();
        const QString failure = watcher->future().result();
        const bool ok = failure.isEmpty();
        isSaving_ = false;
        if (ok)
            savedFileName_ = QFileInfo(path).fileName();
        else
            saveErrorMessage_ = failure;
        Q_EMIT changed();
        Q_EMIT saveFinished(ok);
    });
    watcher->setFuture(copy);
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
