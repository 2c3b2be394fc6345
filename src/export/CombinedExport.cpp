#include "export/CombinedExport.h"

#include "drive/DriveBoundary.h"
#include "export/CombinedRender.h"
#include "export/ExportError.h"
#include "export/Exporter.h"
#include "export/OverlayText.h"
#include "export/ProgressRelay.h"
#include "base/CancellationError.h"
#include "base/IOWatchdog.h"
#include "timeline/EventTimeline.h"
#include "timeline/TelemetryTimeline.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

using Exporter::ExportError;
using Layout = CombinedExportOptions::Layout;

namespace CombinedExport {

namespace {

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

QString alreadyThere()
{
    //: %1 is the movie's full path
    return QCoreApplication::translate("CombinedExport", "There is already a file at \u201c%1\u201d.");
}

// Takes the finished movie's name, never over a file that came meanwhile.
bool moveIntoPlace(const QString &from, const QString &to)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno == EEXIST)
        return false;
    // File systems that can't promise it: a hard link can't replace either.
    if (::link(source.constData(), target.constData()) == 0) {
        ::unlink(source.constData());
        return true;
    }
    if (errno == EEXIST || QFileInfo::exists(to))
        return false;
    return ::rename(source.constData(), target.constData()) == 0;
}

// The cameras to show, in the order the layout places them.
std::vector<EventTimeline::CameraTrack> chooseCameras(std::vector<EventTimeline::CameraTrack> tracks,
                                                      const CombinedExportOptions &options)
{
    if (options.layout == Layout::single) {
        const auto chosen = std::find_if(tracks.begin(), tracks.end(), [&](const EventTimeline::CameraTrack &t) {
            return options.camera ? t.camera == *options.camera : bool(t.composition);
        });
        if (chosen == tracks.end() || !chosen->composition)
            throw ExportError(ExportError::noClipsForCamera);
        return {*chosen};
    }
    if (options.layout == Layout::frontAndSides)
        std::stable_partition(tracks.begin(), tracks.end(),
                              [](const EventTimeline::CameraTrack &t) { return t.camera == Camera::front; });
    if (std::none_of(tracks.begin(), tracks.end(), [](const EventTimeline::CameraTrack &t) { return bool(t.composition); }))
        throw ExportError::failed(
            QCoreApplication::translate("CombinedExport", "None of this event's cameras has playable footage."));
    return tracks;
}

} // namespace

// A file name: in English whatever the language shown, like the name it
// is made from.
QString suggestedFileName(const TeslaEvent &event, const CombinedExportOptions &options)
{
    QString what;
    switch (options.layout) {
    case Layout::grid:
        what = QStringLiteral("All Cameras");
        break;
    case Layout::frontAndSides:
        what = QStringLiteral("Front and Sides");
        break;
    case Layout::single:
        what = options.camera.value_or(Camera::front).englishName() + QStringLiteral(" with Overlay");
        break;
    }
    // The single-camera name with another word where the camera's stands.
    const QString base = Exporter::suggestedFileName(event, Camera::front);
    const qsizetype cut = base.lastIndexOf(QStringLiteral(" \u2014 "));
    return base.left(cut) + QStringLiteral(" \u2014 ") + what + QStringLiteral(".mp4");
}

void exportMovie(const TeslaEvent &event, const CombinedExportOptions &options, const QString &destination,
                 CombinedExportProgressCallback progress, std::stop_token stop, std::chrono::milliseconds clipLimit)
{
    const QFileInfo target(destination);
    if (target.exists() || target.isSymLink())
        throw ExportError::failed(alreadyThere().arg(shown(destination)));
    if (!target.absoluteDir().exists())
        //: %1 is a folder's full path
        throw ExportError::failed(
            QCoreApplication::translate("CombinedExport", "The folder \u201c%1\u201d doesn't exist.")
                .arg(shown(target.absolutePath())));
    if (DriveBoundary::writesIntoDriveOf({event}, destination))
        throw ExportError::failed(DriveBoundary::exportRefusalText());

    const auto origin = event.earliestClipDate();
    if (!origin)
        throw ExportError(ExportError::noClipsForCamera);
    std::vector<EventTimeline::CameraTrack> tracks = EventTimeline::build(event, clipLimit, stop);
    if (stop.stop_requested())
        throw CancellationError();
    double length = 0;
    for (const EventTimeline::CameraTrack &track : tracks)
        length = std::max(length, track.contentEnd);
    tracks = chooseCameras(std::move(tracks), options);

    CombinedRender::Footage footage;
    footage.cameras = std::move(tracks);
    footage.clips = event.clips;
    footage.origin = *origin;
    footage.from = 0;
    footage.to = length;
    if (options.range) {
        footage.from = std::max(0.0, options.range->first);
        footage.to = std::min(options.range->second, length);
    }
    if (!(footage.to > footage.from))
        throw ExportError::failed(
            QCoreApplication::translate("CombinedExport", "The chosen stretch lies outside this event's footage."));
    footage.reasonLine = OverlayText::reasonLine(event);
    if (options.overlay.telemetry) {
        // The front camera's, as the player shows; each clip is read whole,
        // so its limit is the reader's own where that is longer.
        footage.telemetry = std::make_shared<const EventTelemetry>(TelemetryTimeline::load(
            event, Camera::front, stop, std::max(clipLimit, TelemetryTimeline::defaultClipTimeout)));
        if (stop.stop_requested())
            throw CancellationError();
    }
    auto render = std::make_shared<CombinedRender>(std::move(footage), options, clipLimit);

    // Hidden beside the destination, so that taking its name is a rename.
    const QString temporary = target.absoluteDir().filePath(
        QStringLiteral(".%1.part-%2").arg(target.fileName(), QUuid::createUuid().toString(QUuid::Id128).left(12)));
    const auto removeTemporary = qScopeGuard([temporary] { QFile::remove(temporary); });

    // A read stuck in the kernel must not hold a stopped export: the work
    // runs on a thread of its own, left behind if it can't end when asked.
    // It owns what it uses, and its progress goes quiet once it is left.
    const auto relay = ProgressRelay<CombinedExportProgress>::make(std::move(progress));
    const auto silence = qScopeGuard([relay] { relay->silence(); });
    try {
        IOWatchdog::runUntilStopped(
            [render, temporary, relay](std::stop_token workStop) {
                // Whatever becomes of the caller, a movie that isn't whole goes.
                auto cleanUp = qScopeGuard([temporary] { QFile::remove(temporary); });
                render->run(
                    temporary, [relay](const CombinedExportProgress &p) { relay->report(p); }, workStop);
                cleanUp.dismiss();
                return true;
            },
            stop);
    } catch (const CancellationError &) {
        // Once the file was begun (its first report comes then), a stop is
        // the export's own.
        if (relay->hasReported())
            throw ExportError(ExportError::cancelled);
        throw;
    }
    if (stop.stop_requested())
        throw ExportError(ExportError::cancelled);
    if (!moveIntoPlace(temporary, destination)) {
        if (QFileInfo::exists(destination))
            throw ExportError::failed(alreadyThere().arg(shown(destination)));
        //: %1 is the movie's full path
        throw ExportError::failed(
            QCoreApplication::translate("CombinedExport", "The movie couldn't be given its name \u201c%1\u201d.")
                .arg(shown(destination)));
    }
}

} // namespace CombinedExport
