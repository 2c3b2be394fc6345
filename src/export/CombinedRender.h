#pragma once

#include "export/CombinedExportOptions.h"
#include "export/CombinedExportProgress.h"
#include "model/Date.h"
#include "model/EventTelemetry.h"
#include "timeline/EventTimeline.h"

#include <QString>
#include <chrono>
#include <memory>
#include <stop_token>
#include <vector>

// Writes one combined movie into a new file: each camera's pictures along
// the event's axis, put together, drawn over and encoded as H.264 in MP4
// with the index at the front. Blocking; the caller names the file and
// decides what becomes of it.
class CombinedRender {
public:
    struct Footage {
        std::vector<EventTimeline::CameraTrack> cameras; // in the order they are shown
        std::vector<ClipRef> clips;                      // the event's, for their start dates
        Date origin;                                     // the moment the axis starts at
        double from = 0;                                 // the stretch of the axis, in seconds
        double to = 0;
        QString reasonLine;
        // The front camera's driving data on the same axis, for the panel.
        std::shared_ptr<const EventTelemetry> telemetry;
    };

    CombinedRender(Footage footage, CombinedExportOptions options, std::chrono::milliseconds clipLimit);

    // Throws CancellationError when stopped before the file was made,
    // Exporter::ExportError otherwise (cancelled when stopped after).
    // Whatever was written stays for the caller.
    void run(const QString &path, const CombinedExportProgressCallback &progress, std::stop_token stop);

    // Whether the last run used the graphics hardware's encoder.
    bool usedHardware() const { return usedHardware_; }

private:
    struct HardwareUnusable {};
    void attempt(const QString &path, bool hardware, const CombinedExportProgressCallback &progress,
                 std::stop_token stop);

    Footage footage_;
    CombinedExportOptions options_;
    std::chrono::milliseconds clipLimit_;
    bool usedHardware_ = false;
};
