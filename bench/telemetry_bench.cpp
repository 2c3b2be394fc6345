// The driving data of a 10-minute front-camera event (ten one-minute HW3
// clips, a record before every frame): how long reading it takes against
// decoding the same video, and the memory it needs.
// Usage: telemetry_bench [clip-folder]   (a folder keeps the clips for the next run)

#include "BenchFootage.h"
#include "playback/MediaSource.h"
#include "timeline/TelemetryTimeline.h"
#include "support/TelemetryClipWriter.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int fps = 36;
constexpr int minutes = 10;

void require(bool ok, const char *what)
{
    if (!ok) {
        std::fprintf(stderr, "telemetry_bench: %s\n", what);
        std::exit(1);
    }
}

// A minute of HW3 front camera at about the car's 30 MB, with a record of
// a car driving down a road before every frame. x264's fastest preset
// decodes faster than the car's own footage, so the ratio errs against the
// reader.
QString generate(const QString &dir)
{
    const QString plain = dir + "/hw3-plain.mp4";
    const QString withRecords = dir + "/hw3-records.mp4";
    if (QFile::exists(withRecords))
        return withRecords;
    QProcess p;
    p.start("ffmpeg", {"-hide_banner", "-loglevel", "error", "-y", "-f", "lavfi", "-i",
                       QString("testsrc2=size=1280x960:rate=%1").arg(fps), "-t", "60", "-c:v", "libx264", "-preset",
                       "ultrafast", "-b:v", "4M", "-maxrate", "4M", "-bufsize", "8M", "-pix_fmt", "yuvj420p", "-g", "36",
                       "-an", plain});
    require(p.waitForFinished(1200000) && p.exitCode() == 0, "ffmpeg could not make the clip");
    TelemetryClipWriter::remux(plain, withRecords, [](int frame, double time) {
        TelemetryClipWriter::Message m;
        m.set_version(1);
        m.set_gear_state(TelemetryClipWriter::Message::GEAR_DRIVE);
        m.set_frame_seq_no(quint64(frame));
        m.set_vehicle_speed_mps(float(20.0 + 5.0 * std::sin(time / 10.0)));
        m.set_accelerator_pedal_position(0.2f);
        m.set_steering_wheel_angle(float(3.0 * std::sin(time)));
        m.set_autopilot_state(TelemetryClipWriter::Message::AUTOSTEER);
        m.set_latitude_deg(30.2672 + time * 1.8e-4);
        m.set_longitude_deg(-97.7431);
        m.set_heading_deg(0.5);
        m.set_linear_acceleration_mps2_x(0.1);
        m.set_linear_acceleration_mps2_y(0.02);
        m.set_linear_acceleration_mps2_z(9.81);
        return TelemetryClipWriter::FrameRecord{m};
    });
    QFile::remove(plain);
    return withRecords;
}

TeslaEvent makeEvent(const QString &dir, const QString &clip)
{
    const Date origin(800000000.0);
    TeslaEvent e;
    e.kind = EventKind::recent;
    e.folderURL = dir;
    e.folderName = "bench";
    e.timestamp = origin;
    for (int m = 0; m < minutes; ++m) {
        ClipRef c;
        c.url = dir + QString("/2026-05-10_12-%1-00-front.mp4").arg(m, 2, 10, QLatin1Char('0'));
        c.camera = Camera::front;
        c.startDate = origin.addingTimeInterval(60.0 * m);
        require(BenchFootage::place(clip, c.url), "could not place the clips");
        e.clips.push_back(c);
    }
    return e;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    const QString clipDir = argc > 1 ? QString::fromLocal8Bit(argv[1]) : dir.path();
    QDir().mkpath(clipDir);
    std::printf("generating a minute of 1280x960 front camera with records...\n");
    std::fflush(stdout);
    const QString clip = generate(clipDir);
    QDir().mkpath(dir.path() + "/event");
    const TeslaEvent event = makeEvent(dir.path() + "/event", clip);

    const double rssBefore = BenchFootage::peakRssMb();
    // Read once to bring the files into the page cache for both contenders.
    TelemetryTimeline::load(event, Camera::front);
    QElapsedTimer timer;
    timer.start();
    const EventTelemetry telemetry = TelemetryTimeline::load(event, Camera::front);
    const double readSeconds = timer.nsecsElapsed() / 1e9;
    const size_t frames = telemetry.frames().size();
    size_t records = 0;
    for (const TelemetryTrack &t : telemetry.tracks)
        records += t.records.size();
    require(records == frames && frames > size_t(minutes * 60 * fps * 0.99), "the track lost records");
    std::printf("telemetry: %zu frames, %zu records in %.3f s (%.0f frames/s)\n", frames, records, readSeconds,
                frames / readSeconds);
    std::printf("peak RSS while reading the track %.0f MB (%.0f MB before it)\n", BenchFootage::peakRssMb(), rssBefore);

    timer.restart();
    size_t decoded = 0;
    for (const ClipRef &c : event.clips) {
        MediaSource source(c.url, {}, 1);
        double t = 0;
        while (source.nextFrame(&t))
            ++decoded;
    }
    const double decodeSeconds = timer.nsecsElapsed() / 1e9;
    std::printf("decode (one thread, as the player): %zu frames in %.1f s (%.0f frames/s)\n", decoded, decodeSeconds,
                decoded / decodeSeconds);
    std::printf("peak RSS %.0f MB\n", BenchFootage::peakRssMb());
    std::printf("telemetry/decode=%.4f\n", readSeconds / decodeSeconds);
    return 0;
}
