// Where to look in a ten-minute event of a newer car's six cameras (front
// 2896x1876, the others 1448x938, 36 fps, a key frame a second): how long
// its activity (every camera) and hard moments (the front camera's driving
// data) take against decoding the same clips with the ffmpeg tool on one
// thread, in the same run on warm files. The decoding is timed on one
// minute of each camera and counted ten times (the ten minutes are the same
// file); the activity and moments are timed over all ten.
// Usage: moments_bench [rounds]
#include "BenchFootage.h"
#include "moments/ActivityReader.h"
#include "timeline/HardMoments.h"
#include "timeline/TelemetryTimeline.h"

extern "C" {
#include <libavutil/log.h>
}

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int minutes = 10;

void require(bool ok, const char *what)
{
    if (!ok) {
        std::fprintf(stderr, "moments_bench: %s\n", what);
        std::exit(1);
    }
}

TeslaEvent makeEvent(const QString &dir)
{
    const Date origin(800000000.0);
    TeslaEvent e;
    e.kind = EventKind::sentry;
    e.folderURL = dir;
    e.folderName = QStringLiteral("bench");
    e.timestamp = origin.addingTimeInterval(300);
    for (const BenchFootage::Hw4Camera &camera : BenchFootage::hw4Cameras()) {
        const QString minute = BenchFootage::hw4Minute(camera);
        require(!minute.isEmpty(), "ffmpeg could not make the footage");
        for (int m = 0; m < minutes; ++m) {
            ClipRef c;
            c.url = dir + QStringLiteral("/1995-05-10_12-%1-00-%2.mp4").arg(m, 2, 10, QLatin1Char('0')).arg(camera.camera.rawValue());
            c.camera = camera.camera;
            c.startDate = origin.addingTimeInterval(60.0 * m);
            c.fileSize = QFileInfo(minute).size();
            require(BenchFootage::place(minute, c.url), "could not place the clips");
            e.clips.push_back(c);
        }
    }
    return e;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    av_log_set_level(AV_LOG_QUIET);
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 3;
    QTemporaryDir dir;
    const TeslaEvent event = makeEvent(dir.path());

    // Once to warm the files for both contenders.
    ActivityReader::load(event, {});
    double best = 1e9, bestActivity = 1e9, bestMoments = 1e9;
    EventActivity activity;
    std::vector<HardMoment> moments;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        activity = ActivityReader::load(event, {});
        const double activitySeconds = timer.nsecsElapsed() / 1e9;
        const EventTelemetry telemetry = TelemetryTimeline::load(event, Camera::front);
        moments = HardMoments::find(telemetry, event, activity.duration);
        const double all = timer.nsecsElapsed() / 1e9;
        best = std::min(best, all);
        bestActivity = std::min(bestActivity, activitySeconds);
        bestMoments = std::min(bestMoments, all - activitySeconds);
    }
    require(activity.cameras.size() == 6 && activity.duration > minutes * 60 - 2, "the activity missed footage");
    std::printf("activity and moments of %d minutes x 6 cameras: %.2f s (best of %d; activity %.2f s, moments %.2f s), "
                "%zu bursts, %zu moments, peak RSS %.0f MB\n",
                minutes, best, rounds, bestActivity, bestMoments, activity.bursts.size(), moments.size(),
                BenchFootage::peakRssMb());

    double decodeMinute = 0;
    for (const BenchFootage::Hw4Camera &camera : BenchFootage::hw4Cameras()) {
        double fastest = 1e9;
        for (int round = 0; round < std::min(rounds, 2); ++round) {
            QElapsedTimer timer;
            timer.start();
            QString error;
            require(BenchFootage::runFfmpeg({QStringLiteral("-threads"), QStringLiteral("1"), QStringLiteral("-i"),
                                             BenchFootage::hw4Minute(camera), QStringLiteral("-f"), QStringLiteral("null"),
                                             QStringLiteral("-")},
                                            &error),
                    "ffmpeg could not decode");
            fastest = std::min(fastest, timer.nsecsElapsed() / 1e9);
        }
        std::printf("ffmpeg -threads 1 decodes a minute of %s in %.2f s\n", qPrintable(camera.camera.rawValue()), fastest);
        decodeMinute += fastest;
    }
    const double decode = decodeMinute * minutes;
    std::printf("decoding %d minutes x 6 cameras: %.1f s (one minute of each, times %d)\n", minutes, decode, minutes);
    std::printf("moments/decode=%.4f\n", best / decode);
    return 0;
}
