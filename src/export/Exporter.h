#pragma once

#include "export/ExportError.h"
#include "model/Camera.h"
#include "model/TeslaEvent.h"

#include <QString>
#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>
#include <utility>

// Writes the footage of one camera of one event into a single MP4 file,
// copying the samples as they are wherever the clips allow it. The source
// files are only ever read.
namespace Exporter {

// "Tesla Sentry 2024-06-01 3.05 PM — Front.mp4": valid as a file name.
QString suggestedFileName(const TeslaEvent &event, Camera camera);
// The part every name made of the event shares: "Tesla Sentry 2024-06-01 3.05 PM".
QString suggestedStem(const TeslaEvent &event);

// Blocking; call it off the main thread. The camera's clips are joined back
// to back, whatever their start dates say. range: seconds of the joined
// footage, clamped to it. destination: a new file in an existing folder.
// progress: 0 to 1, from the thread doing the writing.
// Throws CancellationError when stopped before writing began, ExportError
// otherwise (cancelled when stopped while writing, within a second even when
// a read is stuck). A partial file is left for the caller.
// readLimit: a clip whose read doesn't answer within it loses the rest of its
// footage, as a damaged one does, and the export goes on.
inline constexpr std::chrono::milliseconds defaultReadLimit{10000};
void exportFootage(Camera camera, const TeslaEvent &event, std::optional<std::pair<double, double>> range,
                   const QString &destination, std::function<void(double)> progress, std::stop_token stop = {},
                   std::chrono::milliseconds readLimit = defaultReadLimit);

} // namespace Exporter
