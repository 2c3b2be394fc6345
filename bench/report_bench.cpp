// The incident report of a one-minute event of a newer car's six cameras
// (front 2896x1876, the others 1448x938, 36 fps, the car's record with a GPS
// fix on every front frame): how long the PDF takes, and how long the
// evidence package takes against copying the same originals with `cp` and
// hashing them with `sha256sum`, in the same run on warm files. The footage
// is made once and kept, shared with the combined export's benchmark.
// Usage: report_bench [rounds]
#include "BenchFootage.h"
#include "report/IncidentReport.h"
#include "support/TelemetryClipWriter.h"

extern "C" {
#include <libavutil/log.h>
}

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <unistd.h>

namespace {

// The front minute with a moving car's record, GPS fix included, on every frame.
QString withRecords(const QString &minute)
{
    const QString path = QString(minute).replace(QStringLiteral(".mp4"), QStringLiteral("-route.mp4"));
    if (QFileInfo(path).size() > 1'000'000)
        return path;
    TelemetryClipWriter::remux(minute, path, [](int frame, double time) {
        TelemetryClipWriter::FrameRecord record;
        record.message.set_version(1);
        record.message.set_gear_state(TelemetryClipWriter::Message::GEAR_DRIVE);
        record.message.set_frame_seq_no(quint64(frame));
        record.message.set_vehicle_speed_mps(float(15.0 + 5.0 * std::sin(time / 7.0)));
        record.message.set_accelerator_pedal_position(float(20.0 + 15.0 * std::sin(time / 3.0)));
        record.message.set_steering_wheel_angle(float(30.0 * std::sin(time / 5.0)));
        record.message.set_brake_applied(int(time) % 9 == 0);
        record.message.set_autopilot_state(TelemetryClipWriter::Message::AUTOSTEER);
        record.message.set_latitude_deg(30.6075 + 1e-4 * time);
        record.message.set_longitude_deg(-97.4812 + 5e-5 * time);
        return std::optional(record);
    }, false, QStringLiteral("2024-06-01T20:00:00Z"));
    return path;
}

double seconds(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e9;
}

bool runTool(const QString &program, const QStringList &arguments)
{
    QProcess p;
    p.setStandardOutputFile(QProcess::nullDevice());
    p.start(program, arguments);
    return p.waitForFinished(600000) && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    av_log_set_level(AV_LOG_QUIET);
    int rounds = 3;
    for (const QString &argument : app.arguments().mid(1))
        if (argument.toInt() > 0)
            rounds = argument.toInt();

    QTemporaryDir work(QDir::tempPath() + QStringLiteral("/keelhold-report-bench-XXXXXX"));
    const QString name = QStringLiteral("2024-06-01_15-00-00");
    const QString folder = work.path() + QStringLiteral("/TeslaCam/SavedClips/") + name;
    QDir().mkpath(folder);
    QFile json(folder + QStringLiteral("/event.json"));
    if (!json.open(QIODevice::WriteOnly))
        return 1;
    json.write(R"({"timestamp":"2024-06-01T15:00:30","city":"Taylor","street":"Main Street","est_lat":"30.6105","est_lon":"-97.4797","reason":"user_interaction_honk","camera":"0"})");
    json.close();

    TeslaEvent event;
    event.kind = EventKind::saved;
    event.folderName = name;
    event.folderURL = folder;
    const Date start = Date::fromQDateTime(QDateTime(QDate(2024, 6, 1), QTime(15, 0), Qt::LocalTime));
    event.timestamp = start.addingTimeInterval(30);
    event.city = QStringLiteral("Taylor");
    event.street = QStringLiteral("Main Street");
    event.latitude = 30.6105;
    event.longitude = -97.4797;
    event.reasonRaw = QStringLiteral("user_interaction_honk");
    event.missingEventJSON = false;
    QStringList originals;
    qint64 bytes = 0;
    for (const BenchFootage::Hw4Camera &cam : BenchFootage::hw4Cameras()) {
        QString minute = BenchFootage::hw4Minute(cam);
        if (!minute.isEmpty() && cam.camera == Camera::front)
            minute = withRecords(minute);
        if (minute.isEmpty())
            return 1;
        const QString path = folder + QStringLiteral("/%1-%2.mp4").arg(name, cam.camera.rawValue());
        // A hard link: the drive reader takes regular files only.
        if (::link(QFile::encodeName(minute).constData(), QFile::encodeName(path).constData()) != 0)
            return 1;
        ClipRef clip;
        clip.url = path;
        clip.camera = cam.camera;
        clip.startDate = start;
        clip.fileSize = QFileInfo(path).size();
        event.clips.push_back(clip);
        originals << path;
        bytes += clip.fileSize;
    }
    std::printf("event: one minute, %zu cameras, %.1f MB of originals\n", BenchFootage::hw4Cameras().size(), double(bytes) / 1e6);
    // Warm: every run reads from memory, as the second look at a drive does.
    runTool(QStringLiteral("sha256sum"), originals);

    IncidentReport::Options options;
    options.version = QStringLiteral("bench");
    std::vector<double> reports, packages, copies;
    for (int round = 0; round < rounds; ++round) {
        const QString out = work.path() + QStringLiteral("/out-%1").arg(round);
        QDir().mkpath(out);
        reports.push_back(seconds([&] { IncidentReport::make(event, out + QStringLiteral("/report.pdf"), options); }));
        IncidentReport::Options packed = options;
        packed.package = true;
        packages.push_back(seconds([&] { IncidentReport::make(event, out + QStringLiteral("/package.zip"), packed); }));
        const QString copied = out + QStringLiteral("/copied");
        QDir().mkpath(copied);
        copies.push_back(seconds([&] {
            runTool(QStringLiteral("cp"), QStringList(originals) << copied);
            QStringList inCopy;
            for (const QString &o : originals)
                inCopy << copied + QLatin1Char('/') + QFileInfo(o).fileName();
            runTool(QStringLiteral("sha256sum"), inCopy);
        }));
        std::printf("round %d: report %.2f s, package %.2f s, cp + sha256sum %.2f s (%.0f KB report, %.1f MB package)\n",
                    round + 1, reports.back(), packages.back(), copies.back(),
                    double(QFileInfo(out + QStringLiteral("/report.pdf")).size()) / 1e3,
                    double(QFileInfo(out + QStringLiteral("/package.zip")).size()) / 1e6);
        std::fflush(stdout);
        QDir(out).removeRecursively();
    }
    const double report = *std::min_element(reports.begin(), reports.end());
    const double package = *std::min_element(packages.begin(), packages.end());
    const double copy = *std::min_element(copies.begin(), copies.end());
    std::printf("best: report %.2f s (target 3), package %.2f s, cp + sha256sum %.2f s\n", report, package, copy);
    std::printf("report_s=%.2f package_per_copy=%.2f\n", report, package / copy);
    return 0;
}
