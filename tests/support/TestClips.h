#pragma once

#include <QString>

// Real movie files for tests, made with the ffmpeg tool and cached per parameter set for the process's life.
namespace TestClips {

struct ClipOptions {
    double seconds = 2.0;
    int width = 320;
    int height = 240;
    int fps = 36;
    QString codec = QStringLiteral("libx264"); // or "libx265"
    QString pixelFormat = QStringLiteral("yuvj420p");
    bool audio = false;
    int gop = 36;
    QString pattern = QStringLiteral("testsrc2"); // lavfi source
    QString filter = {};   // video filters after the source, e.g. "geq=lum='N'"
    bool lossless = false; // H.264 at qp 0, so pixel values survive exactly
    bool faststart = false; // the index (moov) before the samples (mdat)
    int bFrames = 0;        // H.264: frames stored out of presentation order
};

// Path of a generated clip matching options (do not modify it; copy it).
QString clip(const ClipOptions &options = ClipOptions());
bool ffmpegAvailable();

// Appends a "free" box up to this size: a clip smaller than a real one is taken for cut short and never opened.
void padTo(const QString &path, qint64 size = 100 * 1024);

// Where the top-level box of a type starts in a movie file's bytes; -1 if none.
qint64 topLevelBoxOffset(const QByteArray &file, const char *type);

} // namespace TestClips
