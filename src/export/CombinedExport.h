#pragma once

#include "export/CombinedExportOptions.h"
#include "export/CombinedExportProgress.h"
#include "model/TeslaEvent.h"

#include <QString>
#include <chrono>
#include <stop_token>

// One movie of an event with every angle at once (or one angle), the date
// and time of each frame and the cameras' names drawn on it: decoded,
// composed and encoded anew. The car's files are only ever read.
namespace CombinedExport {

inline constexpr std::chrono::milliseconds defaultClipLimit{10000};

// "Tesla Sentry 2024-06-01 3.05 PM — All Cameras.mp4", or the camera's name
// for the single layout.
QString suggestedFileName(const TeslaEvent &event, const CombinedExportOptions &options);

// Blocking; call it off the main thread. destination: a new file in an
// existing folder, not on the car's drive. The movie is written under a
// hidden name beside it and takes its name only once it is whole, so a
// stopped or failed export leaves nothing behind. A clip that is damaged,
// or whose read the drive doesn't answer within clipLimit, costs the rest
// of its own minute, which stays black with the camera's name.
// Throws CancellationError when stopped before writing began,
// Exporter::ExportError otherwise (cancelled when stopped while writing,
// within a second even when a read is stuck).
void exportMovie(const TeslaEvent &event, const CombinedExportOptions &options, const QString &destination,
                 CombinedExportProgressCallback progress, std::stop_token stop = {},
                 std::chrono::milliseconds clipLimit = defaultClipLimit);

} // namespace CombinedExport
