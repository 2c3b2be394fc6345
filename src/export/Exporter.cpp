#include "export/Exporter.h"

#include "export/ExportComposition.h"
#include "export/ExportSession.h"

#include <algorithm>
#include <vector>

namespace Exporter {

QString suggestedFileName(const TeslaEvent &event, Camera camera)
{
    // A point instead of a colon, so the name is a valid file name everywhere.
    const QString date = event.timestamp.formatLocal(QStringLiteral("yyyy-MM-dd h.mm AP"));
    return QStringLiteral("Tesla %1 %2 \u2014 %3.mp4").arg(event.kind.displayName(), date, camera.displayName());
}

void exportFootage(Camera camera, const TeslaEvent &event, std::optional<std::pair<double, double>> range,
                   const QString &destination, std::function<void(double)> progress, std::stop_token stop)
{
    std::vector<ClipRef> clips;
    for (const ClipRef &clip : event.clips)
        if (clip.camera == camera)
            clips.push_back(clip);
    if (clips.empty())
        throw ExportError(ExportError::noClipsForCamera);
    std::stable_sort(clips.begin(), clips.end(),
                     [](const ClipRef &a, const ClipRef &b) { return a.startDate < b.startDate; });

    const ExportComposition composition = ExportComposition::build(clips, stop);
    if (composition.duration <= 0.0)
        throw ExportError(ExportError::noClipsForCamera);

    double lower = 0.0;
    double upper = composition.duration;
    if (range) {
        lower = std::max(0.0, range->first);
        upper = std::min(range->second, composition.duration);
    }
    if (!(upper > lower))
        throw ExportError::failed(QStringLiteral("The chosen stretch lies outside this camera's footage."));

    ExportSession session(composition, lower, upper, destination, std::move(progress), stop);
    session.run();
}

} // namespace Exporter
