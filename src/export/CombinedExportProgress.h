#pragma once

#include <QtGlobal>
#include <algorithm>
#include <functional>
#include <optional>

// How far a combined export has got.
struct CombinedExportProgress {
    qint64 framesDone = 0;
    qint64 framesTotal = 0;
    double framesPerSecond = 0;        // of work done, since the first frame
    std::optional<double> secondsLeft; // once the speed is known
    bool finishing = false;            // every frame is in; the file is being completed
    bool complete = false;             // the movie is written

    // 0 to 1; the last few hundredths are the file's completion.
    double fraction() const
    {
        if (complete)
            return 1.0;
        if (finishing)
            return 0.98;
        return framesTotal > 0 ? 0.98 * std::clamp(double(framesDone) / double(framesTotal), 0.0, 1.0) : 0.0;
    }
    bool operator==(const CombinedExportProgress &) const = default;
};

using CombinedExportProgressCallback = std::function<void(const CombinedExportProgress &)>;
