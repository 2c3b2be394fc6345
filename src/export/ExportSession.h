#pragma once

#include "export/ExportComposition.h"

#include <QString>
#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>

class Mp4Writer;
class VideoReencoder;
struct AVPacket;

// Writes a composition, or a stretch of it, into one new MP4 file: by stream
// copy when the clips allow it, by re-encoding the video otherwise.
class ExportSession {
public:
    // lower/upper: the stretch of the joined footage to write, in seconds,
    // already clamped to the footage. readLimit: how long one read of a clip
    // may take before the rest of that clip is given up.
    ExportSession(const ExportComposition &composition, double lower, double upper, const QString &destination,
                  std::function<void(double)> progress, std::stop_token stop, std::chrono::milliseconds readLimit);
    ~ExportSession();

    // Throws ExportError: exportSessionUnavailable before the file is made,
    // cancelled or exportFailed after.
    void run();

private:
    struct OutputStream;
    void copyClip(const ExportSegment &segment);
    void report(double fraction, bool force = false);
    [[noreturn]] void cancel() const;

    const ExportComposition &composition_;
    double lower_;
    double upper_;
    QString destination_;
    std::function<void(double)> progress_;
    std::stop_token stop_;
    std::chrono::milliseconds readLimit_;

    std::unique_ptr<Mp4Writer> writer_;
    std::unique_ptr<VideoReencoder> reencoder_;
    std::unique_ptr<OutputStream> video_;
    std::unique_ptr<OutputStream> audio_;
    std::chrono::steady_clock::time_point lastReport_{};
    double lastFraction_ = -1.0;
    double closedUp_ = 0.0; // seconds of the joined footage that clips didn't fill
    bool videoWritten_ = false;
};
