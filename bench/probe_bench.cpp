// Probe pass over a drive of 2,000 real one-minute clips against a shell loop
// of ffprobe over the same files, and the cost of hanging clips.
//
//   build/bench/probe_bench            (KEELHOLD_BENCH_CLIPS overrides 2000)

#include "drive/ClipProber.h"
#include "drive/TeslaCamParser.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimeZone>

#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

extern "C" {
#include <libavutil/log.h>
}

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

constexpr int rounds = 3;

[[noreturn]] void fail(const QString &why)
{
    std::fprintf(stderr, "probe_bench: %s\n", qPrintable(why));
    std::exit(1);
}

double seconds(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

int countOk(const std::vector<TeslaEvent> &events)
{
    int ok = 0;
    for (const auto &event : events)
        for (const auto &clip : event.clips)
            ok += clip.health == ClipHealth::ok ? 1 : 0;
    return ok;
}

// A real one-minute clip with a real moov, small in resolution.
void makeClip(const QString &dest)
{
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"),
                 {QStringLiteral("-hide_banner"), QStringLiteral("-loglevel"), QStringLiteral("error"),
                  QStringLiteral("-y"), QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                  QStringLiteral("testsrc2=size=160x120:rate=36"), QStringLiteral("-t"), QStringLiteral("60"),
                  QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-preset"),
                  QStringLiteral("ultrafast"), QStringLiteral("-pix_fmt"), QStringLiteral("yuvj420p"),
                  QStringLiteral("-g"), QStringLiteral("36"), QStringLiteral("-b:v"), QStringLiteral("30k"),
                  QStringLiteral("-an"), dest});
    if (!ffmpeg.waitForFinished(300000) || ffmpeg.exitCode() != 0)
        fail(QStringLiteral("ffmpeg could not make the clip: ") + QString::fromUtf8(ffmpeg.readAllStandardError()));
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    av_log_set_level(AV_LOG_QUIET);
    const int clipCount = qEnvironmentVariableIsSet("KEELHOLD_BENCH_CLIPS")
                              ? qEnvironmentVariableIntValue("KEELHOLD_BENCH_CLIPS")
                              : 2000;

    QTemporaryDir dir(QDir::tempPath() + QStringLiteral("/keelhold-probe-bench-XXXXXX"));
    if (!dir.isValid())
        fail(QStringLiteral("no temporary folder"));
    const QString source = dir.filePath(QStringLiteral("source.mp4"));
    makeClip(source);

    // Four cameras a minute, as the car writes recent driving.
    const QString recent = dir.filePath(QStringLiteral("TeslaCam/RecentClips"));
    QDir().mkpath(recent);
    const QStringList cameras{QStringLiteral("front"), QStringLiteral("back"), QStringLiteral("left_repeater"),
                              QStringLiteral("right_repeater")};
    const QDateTime first(QDate(2026, 7, 21), QTime(8, 0), QTimeZone::utc());
    QStringList files;
    for (int i = 0; i < clipCount; ++i) {
        const QString stamp = first.addSecs(60 * (i / 4)).toString(QStringLiteral("yyyy-MM-dd_HH-mm-ss"));
        const QString path = recent + QLatin1Char('/') + stamp + QLatin1Char('-') + cameras[i % 4]
                             + QStringLiteral(".mp4");
        if (!QFile::copy(source, path))
            fail(QStringLiteral("cannot copy the clip"));
        files << path;
    }
    const DriveScan scan = TeslaCamParser::scan(dir.filePath(QStringLiteral("TeslaCam")));
    int scanned = 0;
    for (const auto &event : scan.events)
        scanned += int(event.clips.size());
    if (scanned != clipCount)
        fail(QStringLiteral("the scan found %1 clips, not %2").arg(scanned).arg(clipCount));
    std::printf("clips=%d clip_bytes=%lld events=%d\n", clipCount, QFile(source).size(), int(scan.events.size()));

    double bestProbe = 1e300;
    for (int round = 0; round < rounds; ++round) {
        const auto start = Clock::now();
        const auto probed = ClipProber::probeAll(scan.events, ClipProber::defaultTimeout, 4);
        const double took = seconds(start);
        if (countOk(probed) != clipCount)
            fail(QStringLiteral("only %1 of %2 clips probed ok").arg(countOk(probed)).arg(clipCount));
        bestProbe = std::min(bestProbe, took);
        std::printf("probeAll round %d: %.3f s\n", round + 1, took);
        std::fflush(stdout);
    }

    const QString list = dir.filePath(QStringLiteral("files.txt"));
    {
        QFile out(list);
        if (!out.open(QIODevice::WriteOnly))
            fail(QStringLiteral("cannot write the file list"));
        out.write(files.join(QLatin1Char('\n')).toUtf8() + '\n');
    }
    double bestFfprobe = 1e300;
    for (int round = 0; round < rounds; ++round) {
        QProcess shell;
        shell.setStandardOutputFile(QProcess::nullDevice());
        const auto start = Clock::now();
        shell.start(QStringLiteral("sh"),
                    {QStringLiteral("-c"),
                     QStringLiteral("while IFS= read -r f; do ffprobe -v error -show_entries format=duration "
                                    "-of csv=p=0 \"$f\"; done < \"$1\""),
                     QStringLiteral("sh"), list});
        if (!shell.waitForFinished(-1) || shell.exitCode() != 0)
            fail(QStringLiteral("the ffprobe loop failed"));
        const double took = seconds(start);
        bestFfprobe = std::min(bestFfprobe, took);
        std::printf("ffprobe loop round %d: %.3f s\n", round + 1, took);
        std::fflush(stdout);
    }

    // Eight hanging clips (FIFOs), 1 s each, four at a time. The watchdog
    // waits for stuck work to end, so a releaser plays the dead drive that
    // answers late: just after each limit, waiting opens get a writer that
    // closes at once.
    QStringList fifos;
    std::vector<ClipRef> hanging;
    for (int i = 0; i < 8; ++i) {
        const QString path = dir.filePath(QStringLiteral("2026-07-21_09-00-0%1-front.mp4").arg(i));
        if (::mkfifo(QFile::encodeName(path).constData(), 0644) != 0)
            fail(QStringLiteral("mkfifo failed"));
        fifos << path;
        ClipRef clip;
        clip.url = path;
        clip.fileSize = 30'000'000;
        hanging.push_back(clip);
    }
    TeslaEvent stuck;
    stuck.folderName = QStringLiteral("2026-07-21_09-00-00");
    stuck.clips = hanging;
    double hangSeconds = 0;
    int timedOut = 0;
    {
        std::jthread releaser([fifos](std::stop_token stop) {
            auto tick = Clock::now() + 1100ms;
            while (!stop.stop_requested()) {
                while (Clock::now() < tick && !stop.stop_requested())
                    std::this_thread::sleep_for(5ms);
                for (const QString &fifo : fifos) {
                    const int fd = ::open(QFile::encodeName(fifo).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
                    if (fd >= 0)
                        ::close(fd);
                }
                tick += 1100ms;
            }
        });
        const auto start = Clock::now();
        const auto probed = ClipProber::probeAll({stuck}, 1s, 4);
        hangSeconds = seconds(start);
        for (const auto &clip : probed[0].clips)
            timedOut += clip.health == ClipHealth::timedOut ? 1 : 0;
    }

    std::printf("probeAll best of %d: %.3f s, %.1f clips/s\n", rounds, bestProbe, clipCount / bestProbe);
    std::printf("ffprobe loop best of %d: %.3f s, %.1f clips/s\n", rounds, bestFfprobe, clipCount / bestFfprobe);
    std::printf("8 hanging clips, 1 s limit, cap 4: %.3f s (%d timed out; released 0.1 s after each limit)\n",
                hangSeconds, timedOut);
    std::printf("probe/ffprobe_speedup=%.1f\n", bestFfprobe / bestProbe);
    return 0;
}
