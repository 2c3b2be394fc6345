#pragma once

// What the export benchmarks share: the ffmpeg tool as the competitor, and
// minutes of footage made like the car's, once, and kept between runs.

#include <QString>
#include <QStringList>

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

// The movie's length in seconds, and its video's frame count; -1 when it
// can't be read.
double durationOf(const QString &path);
int framesOf(const QString &path);

} // namespace BenchFootage
