// CombinedExport::exportMovie against the ffmpeg tool on the same footage: a
// two-minute event of a newer car's six cameras (front 2896x1876, the others
// 1448x938, 36 fps, one file per camera per minute) into a 1080p grid with
// the time drawn on it. Both use x264 with the same settings and the same
// pictures: each camera scaled into its cell, padded, stacked with xstack,
// the time drawn with drawtext. Rounds alternate; the best of each counts,
// and so does the median of the rounds' ratios.
// With --telemetry the front camera's clips carry the car's record on every
// frame and the export draws the driving-data panel too; the ffmpeg tool
// still draws the time only, so the ratio shows what the panel costs.
// Usage: combined_export_bench [rounds] [--telemetry]
#include "BenchFootage.h"
#include "export/CombinedExport.h"
#include "export/CombinedLayout.h"
#include "export/H264Encoder.h"
#include "support/TelemetryClipWriter.h"

extern "C" {
#include <libavutil/log.h>
}

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

namespace {

using BenchFootage::framesOf;
using BenchFootage::runFfmpeg;

constexpr int framesPerSecond = 36;
constexpr int minutes = 2;

// The front minute with a record on every frame, as a moving car writes it.
QString withRecords(const QString &minute)
{
    const QString path = QString(minute).replace(QStringLiteral(".mp4"), QStringLiteral("-records.mp4"));
    if (QFileInfo(path).size() > 1'000'000)
        return path;
    try {
        TelemetryClipWriter::remux(minute, path, [](int frame, double time) {
            TelemetryClipWriter::FrameRecord record;
            record.message.set_version(1);
            record.message.set_gear_state(TelemetryClipWriter::Message::GEAR_DRIVE);
            record.message.set_frame_seq_no(quint64(frame));
            record.message.set_vehicle_speed_mps(float(15.0 + 5.0 * std::sin(time / 7.0)));
            record.message.set_accelerator_pedal_position(float(20.0 + 15.0 * std::sin(time / 3.0)));
            record.message.set_steering_wheel_angle(float(30.0 * std::sin(time / 5.0)));
            record.message.set_blinker_on_left(int(time) % 4 == 0);
            record.message.set_brake_applied(int(time) % 9 == 0);
            record.message.set_autopilot_state(TelemetryClipWriter::Message::AUTOSTEER);
            return std::optional(record);
        });
    } catch (const std::exception &e) {
        std::fprintf(stderr, "records couldn't be written: %s\n", e.what());
        return QString();
    }
    return path;
}

double medianOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    av_log_set_level(AV_LOG_QUIET);
    const QStringList arguments = app.arguments().mid(1);
    const bool telemetry = arguments.contains(QStringLiteral("--telemetry"));
    int rounds = 1;
    for (const QString &argument : arguments)
        if (argument.toInt() > 0)
            rounds = argument.toInt();

    QTemporaryDir work(QDir::tempPath() + QStringLiteral("/keelhold-combined-bench-XXXXXX"));
    const QString folder = work.path() + QStringLiteral("/TeslaCam/SavedClips/2024-06-01_15-02-00");
    QDir().mkpath(folder);
    TeslaEvent event;
    event.kind = EventKind::saved;
    event.folderName = QStringLiteral("2024-06-01_15-02-00");
    event.folderURL = folder;
    const Date start = Date::fromQDateTime(QDateTime(QDate(2024, 6, 1), QTime(15, 0), Qt::UTC));
    event.timestamp = start.addingTimeInterval(60.0 * minutes);
    event.missingEventJSON = false;

    // The ffmpeg tool reads each camera's minutes joined by its concat demuxer.
    QStringList inputs;
    std::vector<CombinedLayout::Source> sources;
    for (const BenchFootage::Hw4Camera &cam : BenchFootage::hw4Cameras()) {
        QString minuteFile = BenchFootage::hw4Minute(cam);
        if (telemetry && cam.camera == Camera::front && !minuteFile.isEmpty())
            minuteFile = withRecords(minuteFile);
        if (minuteFile.isEmpty())
            return 1;
        QString list;
        for (int minute = 0; minute < minutes; ++minute) {
            const QString path = folder + QStringLiteral("/2024-06-01_15-%1-00-%2.mp4")
                                              .arg(minute, 2, 10, QLatin1Char('0'))
                                              .arg(cam.camera.rawValue());
            // A hard link: the drive reader takes regular files only.
            if (::link(QFile::encodeName(minuteFile).constData(), QFile::encodeName(path).constData()) != 0)
                return 1;
            ClipRef clip;
            clip.url = path;
            clip.camera = cam.camera;
            clip.startDate = start.addingTimeInterval(60.0 * minute);
            clip.fileSize = QFileInfo(minuteFile).size();
            event.clips.push_back(clip);
            list += QStringLiteral("file '%1'\n").arg(path);
        }
        const QString listPath = work.path() + QStringLiteral("/%1.txt").arg(cam.camera.rawValue());
        QFile f(listPath);
        if (!f.open(QIODevice::WriteOnly))
            return 1;
        f.write(list.toUtf8());
        inputs << QStringLiteral("-f") << QStringLiteral("concat") << QStringLiteral("-safe") << QStringLiteral("0")
               << QStringLiteral("-i") << listPath;
        sources.push_back({cam.camera, cam.width, cam.height});
    }

    CombinedExportOptions options;
    options.layout = CombinedExportOptions::Layout::grid;
    options.size = CombinedExportOptions::Size::p1080;
    options.overlay = {true, false, false, telemetry};
    options.encoder = CombinedExportOptions::Encoder::software;

    // The same pictures through the ffmpeg tool's filter graph.
    const CombinedLayout layout = CombinedLayout::make(options.layout, sources, options.size);
    QStringList graph;
    QString stacked;
    QStringList places;
    for (size_t i = 0; i < layout.cells().size(); ++i) {
        const CombinedLayout::Cell &cell = layout.cells()[i];
        graph << QStringLiteral("[%1:v]fps=%2,scale=w=%3:h=%4:flags=bicubic,format=yuv420p,"
                                "pad=width=%5:height=%6:x=%7:y=%8:color=black[c%1]")
                     .arg(i)
                     .arg(framesPerSecond)
                     .arg(cell.picture.width)
                     .arg(cell.picture.height)
                     .arg(cell.area.width)
                     .arg(cell.area.height)
                     .arg(cell.picture.x)
                     .arg(cell.picture.y);
        stacked += QStringLiteral("[c%1]").arg(i);
        places << QStringLiteral("%1_%2").arg(cell.area.x).arg(cell.area.y);
    }
    const int margin = layout.margin();
    const int size = layout.timeTextSize();
    graph << stacked
            + QStringLiteral("xstack=inputs=%1:layout=%2:fill=black,"
                             "drawtext=font='DejaVu Sans':fontsize=%3:fontcolor=white:box=1:boxcolor=black@0.6:"
                             "boxborderw=%4:x=%5:y=%5:text='%{pts\\:localtime\\:%6}'[v]")
                  .arg(layout.cells().size())
                  .arg(places.join(QLatin1Char('|')))
                  .arg(size)
                  .arg(std::max(2, size / 5))
                  .arg(margin)
                  .arg(qint64(start.unixSeconds()));
    const QStringList encoding{QStringLiteral("-c:v"),   QStringLiteral("libx264"),
                               QStringLiteral("-preset"), QString::fromLatin1(H264Encoder::x264Preset),
                               QStringLiteral("-crf"),    QString::number(H264Encoder::x264Quality),
                               QStringLiteral("-g"),      QString::number(2 * framesPerSecond),
                               QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"),
                               QStringLiteral("-movflags"), QStringLiteral("+faststart")};

    double bestOurs = 1e9;
    double bestTheirs = 1e9;
    std::vector<double> ratios;
    int ourFrames = 0;
    int theirFrames = 0;
    double theirPeakMb = 0;
    for (int round = 1; round <= rounds; ++round) {
        const QString ours = work.path() + QStringLiteral("/ours.mp4");
        const QString theirs = work.path() + QStringLiteral("/theirs.mp4");
        QFile::remove(ours);
        QFile::remove(theirs);

        QElapsedTimer timer;
        timer.start();
        CombinedExport::exportMovie(event, options, ours, {});
        const double ourSeconds = timer.nsecsElapsed() / 1e9;

        timer.restart();
        QString error;
        if (!runFfmpeg(inputs
                           + QStringList{QStringLiteral("-filter_complex"), graph.join(QLatin1Char(';')),
                                         QStringLiteral("-map"), QStringLiteral("[v]")}
                           + encoding + QStringList{theirs},
                       &error, &theirPeakMb)) {
            std::fprintf(stderr, "ffmpeg failed: %s\n", qPrintable(error));
            return 1;
        }
        const double theirSeconds = timer.nsecsElapsed() / 1e9;
        ourFrames = framesOf(ours);
        theirFrames = framesOf(theirs);
        std::printf("round %d: combined export %.2f s, ffmpeg %.2f s\n", round, ourSeconds, theirSeconds);
        std::fflush(stdout);
        ratios.push_back(ourSeconds / theirSeconds);
        bestOurs = std::min(bestOurs, ourSeconds);
        bestTheirs = std::min(bestTheirs, theirSeconds);
    }
    struct rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("frames: combined export %d, ffmpeg %d; 1080p grid of six cameras, %d s at %d fps\n", ourFrames,
                theirFrames, 60 * minutes, framesPerSecond);
    std::printf("peak memory: combined export %.0f MB (the whole bench process), ffmpeg %.0f MB\n",
                double(usage.ru_maxrss) / 1024.0, theirPeakMb);
    std::printf("combined/ffmpeg=%.2f median=%.2f fps=%.1f%s\n", bestOurs / bestTheirs, medianOf(ratios),
                double(ourFrames) / bestOurs,
                telemetry ? " (with the driving-data panel; ffmpeg draws the time only)" : "");
    return 0;
}
