// Synchronised playback of a 2-minute, 6-camera event: decode throughput as
// a multiple of real time, camera skew while playing at 1x, exact-seek
// latency and peak memory. Frames are presented to no sink (nothing drawn).

#include "playback/HostClock.h"
#include "playback/SyncPlayerController.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QEventLoop>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <sys/resource.h>

namespace {
constexpr int fps = 36;
constexpr double minute = 60.0;

QString generate(const QString &dir, const QString &name, int w, int h)
{
    const QString path = dir + "/" + name;
    if (QFile::exists(path))
        return path;
    QProcess p;
    p.start("ffmpeg", {"-hide_banner", "-loglevel", "error", "-y", "-f", "lavfi", "-i",
                       QString("testsrc2=size=%1x%2:rate=%3").arg(w).arg(h).arg(fps), "-t", QString::number(minute),
                       "-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuvj420p", "-g", "36", "-an", path});
    if (!p.waitForFinished(600000) || p.exitCode() != 0) {
        std::fprintf(stderr, "ffmpeg failed: %s\n", p.readAllStandardError().constData());
        std::exit(1);
    }
    return path;
}

// Waits in a real event loop: a busy loop would take a core from the decoders.
void wait(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

template <typename Pred>
bool waitFor(Pred pred, int ms)
{
    if (pred())
        return true;
    QEventLoop loop;
    QTimer poll;
    poll.setTimerType(Qt::PreciseTimer);
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (pred())
            loop.quit();
    });
    poll.start(1);
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
    return pred();
}

// Six cameras, two one-minute clips each (the same file serves both minutes).
TeslaEvent makeEvent(const QString &dir, const QString &frontClip, const QString &sideClip)
{
    const Date origin(800000000.0);
    TeslaEvent e;
    e.kind = EventKind::sentry;
    e.folderName = "bench";
    e.timestamp = origin.addingTimeInterval(30);
    e.missingEventJSON = false;
    const Camera cams[] = {Camera::front, Camera::back, Camera::leftRepeater, Camera::rightRepeater,
                           Camera::leftPillar, Camera::rightPillar};
    for (Camera cam : cams) {
        for (int m = 0; m < 2; ++m) {
            const QString path = QString("%1/%2-%3.mp4").arg(dir).arg(m).arg(cam.rawValue());
            QFile::link(cam == Camera::front ? frontClip : sideClip, path);
            ClipRef c;
            c.url = path;
            c.camera = cam;
            c.startDate = origin.addingTimeInterval(m * minute);
            c.health = ClipHealth::ok;
            e.clips.push_back(c);
        }
    }
    ClipOrder::sort(e.clips);
    return e;
}

// Other work on the machine skews every figure; say how much there was.
double loadAverage()
{
    double l[1] = {0};
    return getloadavg(l, 1) == 1 ? l[0] : 0.0;
}

std::vector<TrackPlayer *> players(const SyncPlayerController &c)
{
    std::vector<TrackPlayer *> out;
    for (const auto &t : c.tiles())
        if (t.player)
            out.push_back(t.player.get());
    return out;
}

void startAll(const std::vector<TrackPlayer *> &ps, float rate, double at)
{
    const double instant = HostClock::now() + SyncPlayerController::startLead;
    for (auto *p : ps)
        p->setRate(rate, MediaTime::fromSeconds(at), instant);
}

bool settled(const std::vector<TrackPlayer *> &ps)
{
    return std::none_of(ps.begin(), ps.end(), [](TrackPlayer *p) { return p->isSeeking(); });
}

double cpuSeconds()
{
    struct rusage u;
    getrusage(RUSAGE_SELF, &u);
    return double(u.ru_utime.tv_sec + u.ru_stime.tv_sec) + double(u.ru_utime.tv_usec + u.ru_stime.tv_usec) / 1e6;
}

struct Throughput {
    double wall = 0; // media seconds decoded per wall second, all cameras
    double cpu = 0;  // the same per CPU second, times the machine's two cores
};

// Decoding flat out (far faster than it can keep up with), in real-time multiples.
Throughput throughput(SyncPlayerController &c, int seconds)
{
    auto ps = players(c);
    for (auto *p : ps)
        p->pause();
    TrackPlayer::setCatchUpEnabled(false);
    quint64 before = 0;
    for (auto *p : ps)
        before += p->decodedFrameCount();
    QElapsedTimer t;
    t.start();
    const double cpu0 = cpuSeconds();
    startAll(ps, 32.0f, 0.0);
    wait(seconds * 1000);
    quint64 after = 0;
    for (auto *p : ps)
        after += p->decodedFrameCount();
    const double wall = t.elapsed() / 1000.0;
    const double cpu = cpuSeconds() - cpu0;
    for (auto *p : ps)
        p->pause();
    TrackPlayer::setCatchUpEnabled(true);
    const double media = double(after - before) / (double(ps.size()) * fps);
    return {media / wall, media / (cpu / 2.0)};
}

// Plays at 1x for 30 s across the minute boundary; the largest skew seen.
double skewAt1x(const std::vector<TrackPlayer *> &ps, const char *label)
{
    for (auto *p : ps)
        p->seek(MediaTime::fromSeconds(45));
    waitFor([&] { return settled(ps); }, 5000);
    startAll(ps, 1.0f, 45.0);
    wait(500); // the common start and the first frames
    double maxSkew = 0;
    quint64 samples = 0;
    quint64 overOne = 0;
    quint64 presentedBefore = 0;
    for (auto *p : ps)
        presentedBefore += p->presentedFrameCount();
    double lagSum = 0;
    QTimer sampler;
    sampler.setTimerType(Qt::PreciseTimer);
    QObject::connect(&sampler, &QTimer::timeout, [&] {
        double lo = 1e300, hi = -1e300;
        for (auto *p : ps) {
            const auto shown = p->presentedTime();
            if (!shown)
                continue;
            lo = std::min(lo, *shown);
            hi = std::max(hi, *shown);
        }
        if (hi >= lo) {
            maxSkew = std::max(maxSkew, (hi - lo) * fps);
            overOne += (hi - lo) * fps > 1.01 ? 1 : 0;
            lagSum += (ps.front()->currentSeconds() - lo) * fps;
            ++samples;
        }
    });
    sampler.start(3);
    wait(30000);
    sampler.stop();
    quint64 presentedAfter = 0;
    for (auto *p : ps)
        presentedAfter += p->presentedFrameCount();
    const double presentedRate = double(presentedAfter - presentedBefore) / (ps.size() * 30.0);
    std::printf("%s 1x for 30 s: max skew %.2f frames, %.2f%% of %llu samples over 1 frame, mean lag of the "
                "slowest camera %.2f frames, %.1f frames/s presented per camera (load %.1f)\n",
                label, maxSkew, samples ? 100.0 * double(overOne) / double(samples) : 0.0,
                static_cast<unsigned long long>(samples), samples ? lagSum / double(samples) : 0.0, presentedRate,
                loadAverage());
    for (auto *p : ps)
        p->pause();

    return maxSkew;
}

std::unique_ptr<SyncPlayerController> load(const TeslaEvent &e)
{
    auto c = std::make_unique<SyncPlayerController>(e);
    if (!waitFor([&] { return !c->isLoadingTiles(); }, 60000) || players(*c).size() != 6) {
        std::fprintf(stderr, "the event did not load\n");
        std::exit(1);
    }
    waitFor([&] { return c->isPlaying(); }, 10000);
    c->pause();
    return c;
}
} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QTemporaryDir dir;
    // playback_bench [clip-folder [decoder-threads]]
    if (argc > 2)
        TrackPlayer::setDecoderThreads(std::atoi(argv[2]));
    // An optional folder keeps the generated clips for the next run.
    const QString clipDir = argc > 1 ? QString::fromLocal8Bit(argv[1]) : dir.path();
    QDir().mkpath(clipDir);
    std::printf("generating clips (one minute each)...\n");
    std::fflush(stdout);
    const QString hw4Front = generate(clipDir, "hw4front.mp4", 2896, 1876);
    const QString hw4Side = generate(clipDir, "hw4side.mp4", 1448, 938);
    const QString hw3 = generate(clipDir, "hw3.mp4", 1280, 960);
    QDir().mkpath(dir.path() + "/hw4");
    QDir().mkpath(dir.path() + "/hw3");
    const TeslaEvent hw4Event = makeEvent(dir.path() + "/hw4", hw4Front, hw4Side);
    const TeslaEvent hw3Event = makeEvent(dir.path() + "/hw3", hw3, hw3);

    double hw3Realtime = 0;
    {
        auto c = load(hw3Event);
        const Throughput r = throughput(*c, 8);
        hw3Realtime = r.wall;
        std::printf("hw3 6x1280x960: decode %.2fx real time (%.2fx per 2 CPU-seconds used; load %.1f)\n", r.wall,
                    r.cpu, loadAverage());
    }

    auto c = load(hw4Event);
    const Throughput r4 = throughput(*c, 8);
    const double hw4Realtime = r4.wall;
    std::printf("hw4 2896x1876 + 5x1448x938: decode %.2fx real time (%.2fx per 2 CPU-seconds used; load %.1f)\n",
                r4.wall, r4.cpu, loadAverage());
    std::fflush(stdout);

    // Skew at 1x over 30 s, across the minute boundary.
    auto ps = players(*c);
    const double maxSkew = skewAt1x(ps, "hw4");
    {
        auto c3 = load(hw3Event);
        skewAt1x(players(*c3), "hw3");
    }

    // Exact seeks to random times: until every camera shows its frame.
    std::mt19937 rng(42);
    std::uniform_int_distribution<qint64> ticks(0, qint64(2 * minute * MediaTime::timescale) - 1);
    std::vector<double> ms;
    for (int i = 0; i < 30; ++i) {
        const MediaTime target = MediaTime::fromTicks(ticks(rng));
        QElapsedTimer s;
        s.start();
        for (auto *p : ps)
            p->seek(target);
        waitFor([&] { return settled(ps); }, 10000);
        ms.push_back(s.nsecsElapsed() / 1e6);
    }
    std::sort(ms.begin(), ms.end());
    const double p50 = ms[ms.size() / 2];
    std::printf("exact seek, 6 cameras: p50 %.1f ms, worst %.1f ms\n", p50, ms.back());

    struct rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    std::printf("peak RSS %.0f MB\n", usage.ru_maxrss / 1024.0);
    std::printf("hw4_realtime=%.2f hw3_realtime=%.2f max_skew_frames=%.2f seek_ms_p50=%.1f\n", hw4Realtime,
                hw3Realtime, maxSkew, p50);
    return 0;
}
