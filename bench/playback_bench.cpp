// Synchronised playback of a 2-minute, 6-camera event, once on an idle
// machine and once beside two busy threads: how fast the cameras play
// together as a multiple of real time, the skew between the frames handed to
// the sinks at 1x and 4x, how soon a seek shows a picture and its exact
// frame, and peak memory; and how fast the same HW4 event plays when the
// car encrypted it and its keys are held. Nothing is drawn.

#include "BenchLoop.h"
#include "crypt/DecryptingClipReader.h"
#include "crypt/KeyStore.h"
#include "support/EcryptfsWriter.h"
#include "playback/HostClock.h"
#include "playback/SyncPlayerController.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QEventLoop>
#include <QVideoFrame>
#include <QVideoSink>

#include <algorithm>
#include <atomic>
#include <thread>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <sys/resource.h>
#include <unistd.h>

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

using BenchLoop::waitFor;

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
            // Hard links: a symbolic link is not followed on a drive.
            const QString source = cam == Camera::front ? frontClip : sideClip;
            if (::link(QFile::encodeName(source).constData(), QFile::encodeName(path).constData()) != 0)
                QFile::copy(source, path);
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

// The same event as the car writes it encrypted, its keys kept beside it:
// every picture goes through the decrypting reader.
TeslaEvent makeUnlockedEvent(const QString &dir, const QString &frontClip, const QString &sideClip)
{
    const QString front = dir + "/sealed-front.bin";
    const QString side = dir + "/sealed-side.bin";
    EcryptfsWriter::encryptFile(frontClip, front, EcryptfsWriter::fileKey(1), EcryptfsWriter::keyBlock(1));
    EcryptfsWriter::encryptFile(sideClip, side, EcryptfsWriter::fileKey(2), EcryptfsWriter::keyBlock(2));
    TeslaEvent e = makeEvent(dir, front, side);
    e.encrypted = true;
    std::vector<KeyEntry> keys;
    for (ClipRef &c : e.clips) {
        c.health = ClipHealth::encrypted;
        const Ecryptfs::Header header = Ecryptfs::read(c.url);
        const QByteArray key = EcryptfsWriter::fileKey(c.camera == Camera::front ? 1 : 2);
        keys.push_back({QFileInfo(c.url).fileName(), header.keyBlock.keyId, header.keyBlock.vin, key,
                        header.keyBlock.fingerprint()});
    }
    if (!VaultKeys::write(dir, keys)) {
        std::fprintf(stderr, "the keys could not be written\n");
        std::exit(1);
    }
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

// What each camera hands to its sink: skew is read from these frames, not from clocks.
struct Sinks {
    std::vector<std::unique_ptr<QVideoSink>> sinks;
    std::vector<quint64> changes;
    explicit Sinks(const std::vector<TrackPlayer *> &ps) : changes(ps.size(), 0)
    {
        for (size_t i = 0; i < ps.size(); ++i) {
            sinks.push_back(std::make_unique<QVideoSink>());
            QObject::connect(sinks.back().get(), &QVideoSink::videoFrameChanged, [this, i] { ++changes[i]; });
            ps[i]->setVideoSink(sinks.back().get());
        }
    }
    // Largest minus smallest frame time on the sinks, in frames; -1 when one has none.
    double skewFrames() const
    {
        double lo = 1e300, hi = -1e300;
        for (const auto &s : sinks) {
            const QVideoFrame f = s->videoFrame();
            if (!f.isValid())
                return -1;
            lo = std::min(lo, f.startTime() / 1e6);
            hi = std::max(hi, f.startTime() / 1e6);
        }
        return (hi - lo) * fps;
    }
};

// Two threads of other work at normal priority, as on a busy laptop.
class BusyLoad {
public:
    void start()
    {
        stop_ = false;
        for (int i = 0; i < 2; ++i)
            threads_.emplace_back([this] {
                volatile double x = 1;
                while (!stop_.load(std::memory_order_relaxed))
                    x = x * 1.0000001 + 1e-9;
            });
    }
    void stop()
    {
        stop_ = true;
        for (auto &t : threads_)
            t.join();
        threads_.clear();
    }

private:
    std::atomic<bool> stop_{false};
    std::vector<std::thread> threads_;
};

// How fast the cameras can play together, as a multiple of real time: the
// shared clock waits for the slowest camera, so its advance is the answer.
double realtime(const std::vector<TrackPlayer *> &ps, double seconds)
{
    for (auto *p : ps)
        p->seek(MediaTime::fromSeconds(0));
    waitFor([&] { return settled(ps); }, 10000);
    QElapsedTimer t;
    t.start();
    startAll(ps, 8.0f, 0.0);
    wait(int(seconds * 1000));
    const double media = ps.front()->currentSeconds();
    const double wall = t.elapsed() / 1000.0 - SyncPlayerController::startLead;
    for (auto *p : ps)
        p->pause();
    return media / wall;
}

// Plays at rate across the minute boundary; the largest skew seen on the sinks.
double skew(const std::vector<TrackPlayer *> &ps, const Sinks &sinks, float rate, double seconds, const char *label)
{
    const double from = rate > 1.0f ? 20.0 : 52.0;
    for (auto *p : ps)
        p->seek(MediaTime::fromSeconds(from));
    waitFor([&] { return settled(ps); }, 10000);
    startAll(ps, rate, from);
    double maxSkew = 0;
    quint64 samples = 0;
    QTimer sampler;
    sampler.setTimerType(Qt::PreciseTimer);
    QObject::connect(&sampler, &QTimer::timeout, [&] {
        const double s = sinks.skewFrames();
        if (s < 0)
            return;
        maxSkew = std::max(maxSkew, s);
        ++samples;
    });
    sampler.start(3);
    const double start = ps.front()->currentSeconds();
    wait(int(seconds * 1000));
    sampler.stop();
    const double advanced = ps.front()->currentSeconds() - start;
    for (auto *p : ps)
        p->pause();
    std::printf("%s %.0fx for %.0f s: max skew %.2f frames over %llu samples, played %.1f s of footage (load %.1f)\n",
                label, double(rate), seconds, maxSkew, static_cast<unsigned long long>(samples), advanced,
                loadAverage());
    std::fflush(stdout);
    return maxSkew;
}

struct SeekTimes {
    double firstP50 = 0; // until every camera shows a picture for the seek
    double exactP50 = 0; // until every camera shows the exact frame
};

// Random exact seeks, paused.
SeekTimes seeks(const std::vector<TrackPlayer *> &ps, Sinks &sinks, const char *label)
{
    std::mt19937 rng(42);
    std::uniform_int_distribution<qint64> ticks(0, qint64(2 * minute * MediaTime::timescale) - 1);
    std::vector<double> first, exact;
    for (int i = 0; i < 30; ++i) {
        const MediaTime target = MediaTime::fromTicks(ticks(rng));
        const std::vector<quint64> before = sinks.changes;
        QElapsedTimer s;
        s.start();
        for (auto *p : ps)
            p->seek(target);
        waitFor(
            [&] {
                for (size_t k = 0; k < before.size(); ++k)
                    if (sinks.changes[k] == before[k])
                        return false;
                return true;
            },
            10000);
        first.push_back(s.nsecsElapsed() / 1e6);
        waitFor([&] { return settled(ps); }, 10000);
        exact.push_back(s.nsecsElapsed() / 1e6);
    }
    std::sort(first.begin(), first.end());
    std::sort(exact.begin(), exact.end());
    std::printf("%s seek, 6 cameras: first picture p50 %.1f ms, exact frame p50 %.1f ms, worst %.1f ms\n", label,
                first[first.size() / 2], exact[exact.size() / 2], exact.back());
    std::fflush(stdout);
    return {first[first.size() / 2], exact[exact.size() / 2]};
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
    DecryptingClipReader::install();

    struct Figures {
        double hw4Realtime = 0, hw3Realtime = 0, skew1 = 0, skew4 = 0;
        SeekTimes seek;
    };
    auto c4 = load(hw4Event);
    auto c3 = load(hw3Event);
    const auto ps4 = players(*c4);
    const auto ps3 = players(*c3);
    Sinks sinks4(ps4);
    Sinks sinks3(ps3);
    const auto measure = [&](const char *label) {
        Figures f;
        f.hw3Realtime = realtime(ps3, 6);
        f.hw4Realtime = realtime(ps4, 6);
        std::printf("%s: together the cameras play at %.2fx real time (hw3 6x1280x960) and %.2fx (hw4 2896x1876 + "
                    "5x1448x938) (load %.1f)\n",
                    label, f.hw3Realtime, f.hw4Realtime, loadAverage());
        f.skew1 = skew(ps4, sinks4, 1.0f, 15, label);
        f.skew4 = skew(ps4, sinks4, 4.0f, 10, label);
        f.seek = seeks(ps4, sinks4, label);
        return f;
    };
    const Figures idle = measure("idle");
    BusyLoad busy;
    busy.start();
    const Figures loaded = measure("loaded");
    busy.stop();

    struct rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    std::printf("peak RSS %.0f MB\n", usage.ru_maxrss / 1024.0);
    // Last, so that encrypting its clips (in memory) doesn't count in the
    // player's peak memory.
    QDir().mkpath(dir.path() + "/hw4sealed");
    const TeslaEvent unlockedEvent = makeUnlockedEvent(dir.path() + "/hw4sealed", hw4Front, hw4Side);
    // Clear and unlocked in turn, twice, so both meet the same machine.
    double unlockedRealtime = 0;
    double clearBeside = 0;
    {
        auto cu = load(unlockedEvent);
        const auto psu = players(*cu);
        for (int round = 0; round < 2; ++round) {
            unlockedRealtime = std::max(unlockedRealtime, realtime(psu, 6));
            clearBeside = std::max(clearBeside, realtime(ps4, 6));
        }
        std::printf("idle: the unlocked hw4 event plays at %.2fx real time, the clear one beside it at %.2fx (load "
                    "%.1f)\n",
                    unlockedRealtime, clearBeside, loadAverage());
    }
    std::printf("loaded: hw4_realtime=%.2f hw3_realtime=%.2f max_skew_frames=%.2f seek_first_ms_p50=%.1f "
                "seek_exact_ms_p50=%.1f rate4_max_skew_frames=%.2f\n",
                loaded.hw4Realtime, loaded.hw3Realtime, loaded.skew1, loaded.seek.firstP50, loaded.seek.exactP50,
                loaded.skew4);
    std::printf("hw4_realtime=%.2f unlocked_hw4_realtime=%.2f unlocked/clear=%.2f hw3_realtime=%.2f "
                "max_skew_frames=%.2f loaded_max_skew_frames=%.2f seek_first_ms_p50=%.1f seek_exact_ms_p50=%.1f "
                "rate4_max_skew_frames=%.2f\n",
                idle.hw4Realtime, unlockedRealtime, unlockedRealtime / std::max(0.01, clearBeside),
                idle.hw3Realtime, idle.skew1, loaded.skew1, idle.seek.firstP50, idle.seek.exactP50,
                std::max(idle.skew4, loaded.skew4));
    return 0;
}
