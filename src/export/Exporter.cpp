#include "export/Exporter.h"

#include "drive/DriveBoundary.h"

#include "export/ExportComposition.h"
#include "export/ExportSession.h"

#include <QCoreApplication>
#include <QFile>
#include "media/ClipReader.h"
#include "media/MediaClip.h"
#include "export/ProgressRelay.h"
#include "base/CancellationError.h"
#include "base/IOWatchdog.h"

#include <QScopeGuard>

#include <algorithm>
#include <memory>
#include <vector>

namespace Exporter {

QString suggestedStem(const TeslaEvent &event)
{
    // A point instead of a colon, so the name is a valid file name everywhere.
    const QString date = event.timestamp.formatLocal(QStringLiteral("yyyy-MM-dd h.mm AP"));
    // A file name: in English whatever the language shown.
    return QStringLiteral("Tesla %1 %2").arg(event.kind.englishName(), date);
}

QString suggestedFileName(const TeslaEvent &event, Camera camera)
{
    return QStringLiteral("%1 \u2014 %2.mp4").arg(suggestedStem(event), camera.englishName());
}

void exportFootage(Camera camera, const TeslaEvent &event, std::optional<std::pair<double, double>> range,
                   const QString &destination, std::function<void(double)> progress, std::stop_token stop,
                   std::chrono::milliseconds readLimit)
{
    // Refused here too, whatever the caller checked: the car's drive is never written.
    if (DriveBoundary::writesIntoDriveOf({event}, destination))
        throw ExportError::failed(DriveBoundary::exportRefusalText());
    std::vector<ClipRef> clips;
    for (const ClipRef &clip : event.clips)
        if (clip.camera == camera)
            clips.push_back(clip);
    if (clips.empty())
        throw ExportError(ExportError::noClipsForCamera);
    std::stable_sort(clips.begin(), clips.end(),
                     [](const ClipRef &a, const ClipRef &b) { return a.startDate < b.startDate; });

    auto composition = std::make_shared<const ExportComposition>(ExportComposition::build(clips, stop, readLimit));
    if (composition->duration <= 0.0)
        throw ExportError(ExportError::noClipsForCamera);

    double lower = 0.0;
    double upper = composition->duration;
    if (range) {
        lower = std::max(0.0, range->first);
        upper = std::min(range->second, composition->duration);
    }
    if (!(upper > lower))
        throw ExportError::failed(
            QCoreApplication::translate("Exporter", "The chosen stretch lies outside this camera's footage."));

    // A read stuck in the kernel must not hold a stopped export: the session
    // runs on a thread of its own, left behind if it can't end when asked.
    // It owns what it uses, and its progress goes quiet once it is left.
    if (stop.stop_requested())
        throw CancellationError();
    const auto relay = ProgressRelay<double>::make(std::move(progress));
    const auto silence = qScopeGuard([relay] { relay->silence(); });
    try {
        IOWatchdog::runUntilStopped(
            [composition, lower, upper, destination, relay, readLimit](std::stop_token sessionStop) {
                const auto report = [relay](double fraction) { relay->report(fraction); };
                ExportSession session(*composition, lower, upper, destination, report, sessionStop, readLimit);
                session.run();
                return true;
            },
            stop);
    } catch (const CancellationError &) {
        throw ExportError(ExportError::cancelled);
    }
    // What is handed over must hold up: a movie whose own header its data
    // contradict (a damaged clip's time table slipping through) is not given out.
    MediaClip::Options options;
    options.streamInfo = MediaClip::StreamInfo::always;
    options.checkHeader = true;
    options.reader = &ClipReaders::openFile;
    const auto written = MediaClip::open(destination, stop, options);
    if (!written->isOpened() || written->facts().verdict != HeaderCheck::ClipFacts::Verdict::sound) {
        QFile::remove(destination);
        throw ExportError::failed(QCoreApplication::translate(
            "Exporter", "This camera's clips are too damaged to make a movie that keeps its own timing."));
    }
}

} // namespace Exporter
