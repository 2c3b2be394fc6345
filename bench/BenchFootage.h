#pragma once

// What the export benchmarks share: the ffmpeg tool as the competitor, and
// minutes of footage made like the car's, once, and kept between runs.

#include "model/Camera.h"

#include <QString>
#include <QStringList>
#include <vector>

namespace BenchFootage {

// Runs `ffmpeg -hide_banner -loglevel error -nostdin -y` with the arguments;
// false, with the tool's words in error, when it fails. peakMb: the most
// memory the tool held while it ran.
bool runFfmpeg(const QStringList &arguments, QString *error = nullptr, double *peakMb = nullptr);

struct Minute {
    QString folder;   // under the temporary folder, kept between runs
    QString name;     // the file's name there
    int width = 1280;
    int height = 960;
    int megabits = 4; // about the car's rate at this size
    QString filter;   // after the test pattern, e.g. "hue=h=60"
};
// One minute of H.264 as the car writes it: full-range 4:2:0 at 36 fps, a
// key frame a second. Made once and kept; empty when ffmpeg fails.
QString minute(const Minute &minute);

// A newer car's six cameras: the front 2896x1876, the others 1448x938,
// each its own picture (a hue of the test pattern).
struct Hw4Camera {
    Camera camera;
    int width;
    int height;
    int hue;
};
const std::vector<Hw4Camera> &hw4Cameras();
// One minute of a camera at about the car's bitrate, kept between runs.
QString hw4Minute(const Hw4Camera &camera);

// Puts a clip at dest as a hard link (the drive reader follows no symbolic
// link), else as a copy; false when neither works.
bool place(const QString &source, const QString &dest);
// The most memory this process has held, in MB.
double peakRssMb();

// The movie's length in seconds, and its video's frame count; -1 when it
// can't be read.
double durationOf(const QString &path);
int framesOf(const QString &path);

} // namespace BenchFootage
