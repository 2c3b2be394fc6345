#pragma once

// Clips whose every frame tells which frame, clip and camera it is, and events built from them.

#include "model/TeslaEvent.h"
#include "timeline/Composition.h"
#include "support/TestClips.h"

#include <QDir>
#include <QFile>
#include <QVideoFrame>
#include <cmath>
#include <optional>

namespace PlaybackClips {

constexpr int fps = 36;
constexpr double clipSeconds = 3.0;

// Lossless flat frames: luma = 20 + 2 × frame index, Cb by clip, Cr by camera.
inline QString frameClip(int camera, int clip, double seconds = clipSeconds, int width = 160, int height = 120)
{
    return TestClips::clip({.seconds = seconds, .width = width, .height = height, .fps = fps,
                            .pixelFormat = QStringLiteral("yuv420p"), .gop = fps, .pattern = QStringLiteral("nullsrc"),
                            .filter = QStringLiteral("format=yuv420p,geq=lum='min(20+2*N,234)':cb=%1:cr=%2")
                                          .arg(50 + 30 * clip)
                                          .arg(60 + 25 * camera),
                            .lossless = true});
}

struct FrameId {
    int index = -1;
    int clip = -1;
    int camera = -1;
    bool operator==(const FrameId &) const = default;
};

inline std::optional<FrameId> identify(QVideoFrame frame)
{
    if (!frame.isValid() || !frame.map(QVideoFrame::ReadOnly))
        return std::nullopt;
    const int x = frame.width() / 2;
    const int y = frame.height() / 2;
    const int luma = frame.bits(0)[y * frame.bytesPerLine(0) + x];
    const int cb = frame.bits(1)[(y / 2) * frame.bytesPerLine(1) + x / 2];
    const int cr = frame.bits(2)[(y / 2) * frame.bytesPerLine(2) + x / 2];
    frame.unmap();
    return FrameId{int(std::lround((luma - 20) / 2.0)), int(std::lround((cb - 50) / 30.0)),
                   int(std::lround((cr - 60) / 25.0))};
}

// "clip/frame" of a picture, for failure messages; "-1/-1" for none.
inline QString describe(const std::optional<FrameId> &id)
{
    return QStringLiteral("%1/%2").arg(id ? id->clip : -1).arg(id ? id->index : -1);
}

// The frame due on screen at timeline time t for a camera whose clip k starts at starts[k]; none in a gap.
inline std::optional<FrameId> expectedAt(double t, int camera, const std::vector<double> &starts,
                                         const std::vector<int> &clipIds)
{
    for (size_t k = starts.size(); k-- > 0;) {
        if (t + 1e-9 < starts[k])
            continue;
        const double into = t - starts[k];
        const int frames = int(std::lround(clipSeconds * fps));
        if (into >= clipSeconds && k + 1 < starts.size())
            return std::nullopt; // between clips
        const int index = std::min(frames - 1, int(std::floor(into * fps + 1e-6)));
        return FrameId{index, clipIds[k], camera};
    }
    return std::nullopt;
}

// Copies a generated clip into dir under a car-like name.
inline QString place(const QString &source, const QString &dir, const QString &name)
{
    QDir().mkpath(dir);
    const QString dest = dir + QLatin1Char('/') + name;
    QFile::remove(dest);
    QFile::copy(source, dest);
    return dest;
}

inline ClipRef clipRef(const QString &path, Camera camera, Date start, ClipHealth health = ClipHealth::ok)
{
    ClipRef c;
    c.url = path;
    c.camera = camera;
    c.startDate = start;
    c.fileSize = QFileInfo(path).size();
    c.health = health;
    return c;
}

// A one-track composition of a single clip, `at` seconds in.
inline Composition oneClip(const QString &path, double seconds, double at = 0)
{
    Composition c;
    c.addMutableTrack();
    c.track(0).insertTimeRange(path, MediaTime::zero(), MediaTime::fromSeconds(seconds), MediaTime::fromSeconds(at));
    return c;
}

} // namespace PlaybackClips
