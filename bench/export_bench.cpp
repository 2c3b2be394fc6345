// Exporter::exportFootage against `ffmpeg -f concat -c copy -movflags +faststart`
// on the same ten one-minute 1280x960 H.264 clips (~30 MB each). Best of 3.
#include "BenchFootage.h"
#include "export/Exporter.h"

extern "C" {
#include <libavutil/log.h>
}

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>
#include <cstdio>

namespace {
using BenchFootage::durationOf;
using BenchFootage::runFfmpeg;
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    av_log_set_level(AV_LOG_QUIET);
    // One minute as the car writes it: 1280x960, about 4 Mbit/s.
    const QString source = BenchFootage::minute({QStringLiteral("keelhold-export-bench"),
                                                 QStringLiteral("minute-1280x960.mp4"), 1280, 960, 4, QString()});
    if (source.isEmpty())
        return 1;

    QTemporaryDir work(QDir::tempPath() + QStringLiteral("/keelhold-export-bench-XXXXXX"));
    const QString folder = work.path() + QStringLiteral("/TeslaCam/SavedClips/2024-06-01_15-10-00");
    QDir().mkpath(folder);
    TeslaEvent event;
    event.kind = EventKind::saved;
    event.folderName = QStringLiteral("2024-06-01_15-10-00");
    event.folderURL = folder;
    const Date start = Date::fromQDateTime(QDateTime(QDate(2024, 6, 1), QTime(15, 0), Qt::UTC));
    event.timestamp = start.addingTimeInterval(600);
    QString list;
    qint64 totalBytes = 0;
    for (int minute = 0; minute < 10; ++minute) {
        const QString path = folder + QStringLiteral("/2024-06-01_15-%1-00-front.mp4").arg(minute, 2, 10, QLatin1Char('0'));
        if (!QFile::copy(source, path))
            return 1;
        ClipRef clip;
        clip.url = path;
        clip.camera = Camera::front;
        clip.startDate = start.addingTimeInterval(60.0 * minute);
        clip.fileSize = QFileInfo(path).size();
        totalBytes += clip.fileSize;
        event.clips.push_back(clip);
        list += QStringLiteral("file '%1'\n").arg(path);
    }
    const QString listPath = work.path() + QStringLiteral("/list.txt");
    {
        QFile f(listPath);
        if (!f.open(QIODevice::WriteOnly))
            return 1;
        f.write(list.toUtf8());
    }

    double bestExport = 1e9;
    double bestFfmpeg = 1e9;
    qint64 exportBytes = 0;
    qint64 ffmpegBytes = 0;
    double exportLength = 0;
    double ffmpegLength = 0;
    for (int round = 1; round <= 3; ++round) {
        const QString ours = work.path() + QStringLiteral("/ours.mp4");
        const QString theirs = work.path() + QStringLiteral("/theirs.mp4");
        QFile::remove(ours);
        QFile::remove(theirs);

        QElapsedTimer timer;
        timer.start();
        int reports = 0;
        Exporter::exportFootage(Camera::front, event, std::nullopt, ours, [&](double) { ++reports; });
        const double exportSeconds = timer.nsecsElapsed() / 1e9;

        timer.restart();
        if (!runFfmpeg({QStringLiteral("-f"), QStringLiteral("concat"), QStringLiteral("-safe"), QStringLiteral("0"),
                        QStringLiteral("-i"), listPath, QStringLiteral("-c"), QStringLiteral("copy"),
                        QStringLiteral("-movflags"), QStringLiteral("+faststart"), theirs}))
            return 1;
        const double ffmpegSeconds = timer.nsecsElapsed() / 1e9;

        exportBytes = QFileInfo(ours).size();
        ffmpegBytes = QFileInfo(theirs).size();
        exportLength = durationOf(ours);
        ffmpegLength = durationOf(theirs);
        std::printf("round %d: export %.3f s (%d progress reports), ffmpeg copy %.3f s\n", round, exportSeconds,
                    reports, ffmpegSeconds);
        bestExport = std::min(bestExport, exportSeconds);
        bestFfmpeg = std::min(bestFfmpeg, ffmpegSeconds);
    }
    const double mb = double(totalBytes) / 1e6;
    std::printf("sources: 10 clips, %.1f MB; outputs: export %.1f MB %.2f s, ffmpeg %.1f MB %.2f s\n", mb,
                exportBytes / 1e6, exportLength, ffmpegBytes / 1e6, ffmpegLength);
    std::printf("best export %.3f s (%.0f MB/s), best ffmpeg copy %.3f s (%.0f MB/s)\n", bestExport, mb / bestExport,
                bestFfmpeg, mb / bestFfmpeg);
    std::printf("export/ffmpeg_copy=%.2f\n", bestExport / bestFfmpeg);
    return 0;
}
