#pragma once

#include "export/CombinedExportOptions.h"
#include "export/CombinedExportProgress.h"
#include "model/Camera.h"
#include "model/TeslaEvent.h"
#include "report/IncidentReport.h"

#include <QFuture>
#include <QString>
#include <functional>
#include <optional>
#include <utility>

// The engine's part that writes movies out of an event: all an export
// sheet needs of it.
class ExportAccess {
public:
    using SecondsRange = std::pair<double, double>; // closed, in seconds
    using FractionCallback = std::function<void(double)>;

    virtual ~ExportAccess() = default;

    // One camera of one event as one movie file at `to`; progress from 0 to 1.
    virtual QFuture<void> exportFootage(Camera camera, const TeslaEvent &event, std::optional<SecondsRange> range,
                                        const QString &to, FractionCallback progress) = 0;
    // The event's cameras put together into one new movie at `to`, with
    // what the options draw over them. Errors: CancellationError, or
    // Exporter::ExportError; a stopped or failed one leaves no file.
    // The event's incident report, or its evidence package, at `to`; the
    // engine adds the stop and its read limit to the options. Errors:
    // CancellationError, or ReportError; either leaves no file.
    virtual QFuture<void> makeReport(const TeslaEvent &event, const IncidentReport::Options &options, const QString &to,
                                     FractionCallback progress) = 0;
    virtual QFuture<void> exportCombined(const TeslaEvent &event, const CombinedExportOptions &options,
                                         const QString &to, CombinedExportProgressCallback progress) = 0;
};
