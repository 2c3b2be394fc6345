#pragma once

#include <QImage>
#include <QString>
#include <chrono>
#include <optional>
#include <stop_token>

// One picture of a clip at a time in it, at the camera's full size, for the
// report's stills: decoded from the key frame before the time up to the
// frame showing then, in software (one picture; the hardware's set-up costs
// more than it saves).
namespace CameraStill {

// Null when the clip can't be opened or decoded that far. Throws
// IOWatchdog::TimedOut when a read takes longer than readLimit.
std::optional<QImage> grab(const QString &clip, double seconds, std::chrono::milliseconds readLimit,
                           std::stop_token stop = {});

} // namespace CameraStill
