// Opening a ten-minute, six-camera HW4 Sentry event in the player: how long
// until every camera shows the intended first picture (ten seconds before
// the moment), cold from a drive that serves 30 MB/s with nothing cached
// (a FUSE drive with direct I/O and a rate limit, like a USB stick) and warm
// from the page cache; how long until the screen answers the click at all;
// and the ffmpeg tool decoding the first picture of each of the six clips
// of that minute in turn, from the same slow drive. Needs root for the
// drive; nothing is drawn.

#include "BenchLoop.h"
#include "BenchFootage.h"
#include "support/FaultyFs.h"

#include "drive/TeslaCamParser.h"
#include "playback/SyncPlayerController.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>
#include <vector>

namespace {

constexpr qint64 driveRate = 30'000'000; // bytes a second
constexpr int minutes = 10;
constexpr int momentSecond = 40; // into the last minute
const char *const folder = "2026-05-14_21-40-00";
const char *const cameras[] = {"front", "back", "left_repeater", "right_repeater", "left_pillar", "right_pillar"};

QString clipName(int minute, const char *camera)
{
    return QStringLiteral("2026-05-14_21-%1-00-%2.mp4").arg(30 + minute).arg(QLatin1String(camera));
}

QByteArray eventJson()
{
    return QStringLiteral(R"({"timestamp":"2026-05-14T21:%1:%2","city":"Oslo","est_lat":"59.91","est_lon":"10.75",)"
                          R"("reason":"sentry_aware_object_detection","camera":"0"})")
        .arg(30 + minutes - 1)
        .arg(momentSecond)
        .toUtf8();
}

QByteArray contentOf(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "can't read %s\n", qPrintable(path));
        std::exit(1);
    }
    return f.readAll();
}

using BenchLoop::waitFor;

TeslaEvent scanned(const QString &teslaCam)
{
    const DriveScan scan = TeslaCamParser::scan(teslaCam);
    if (scan.events.size() != 1 || scan.events.front().clips.size() != size_t(6 * minutes)) {
        std::fprintf(stderr, "the event was not found on %s\n", qPrintable(teslaCam));
        std::exit(1);
    }
    return scan.events.front();
}

struct Opening {
    double feedbackMs = -1; // until every camera's tile is on screen, saying what it waits for
    double openMs = -1;     // until every camera shows the intended first picture
    double firstPictureLatest = 0; // the latest of the cameras' first pictures, in event seconds
    double firstPictureEarliest = 0;
    double target = 0;
    double laidOutMs = -1; // until the cameras' clips are placed on the timeline
};

Opening open(const TeslaEvent &event, const FaultyFs *drive = nullptr)
{
    Opening o;
    qint64 servedAtStart = drive ? drive->bytesServed() : 0;
    QElapsedTimer clock;
    clock.start();
    SyncPlayerController c(event);
    std::vector<std::optional<double>> first(6);
    std::vector<QMetaObject::Connection> watched;
    const auto watch = [&] {
        for (QMetaObject::Connection &w : watched)
            QObject::disconnect(w);
        watched.clear();
        size_t i = 0;
        for (const auto &t : c.tiles()) {
            if (t.player && i < first.size()) {
                TrackPlayer *p = t.player.get();
                watched.push_back(QObject::connect(p, &TrackPlayer::framePresented, [&first, i, p] {
                    if (!first[i] && p->presentedTime())
                        first[i] = p->presentedTime();
                }));
            }
            ++i;
        }
    };
    QObject::connect(&c, &SyncPlayerController::isLoadingTilesChanged, [&] {
        if (c.isLoadingTiles() || o.laidOutMs >= 0)
            return;
        o.laidOutMs = clock.nsecsElapsed() / 1e6;
        if (drive)
            std::printf("  laid out after %.0f ms, having read %.1f MB\n", o.laidOutMs,
                        (drive->bytesServed() - servedAtStart) / 1e6);
    });
    QObject::connect(&c, &SyncPlayerController::tilesChanged, [&] {
        if (o.feedbackMs < 0 && c.tiles().size() == 6)
            o.feedbackMs = clock.nsecsElapsed() / 1e6;
        watch();
    });
    watch();
    if (o.feedbackMs < 0 && c.tiles().size() == 6)
        o.feedbackMs = clock.nsecsElapsed() / 1e6;
    o.target = std::max(0.0, c.triggerOffset().value_or(0) - 10.0);
    const bool landed = waitFor(
        [&] {
            const auto &tiles = c.tiles();
            return tiles.size() == 6 && std::all_of(tiles.begin(), tiles.end(), [&](const auto &t) {
                       return t.player && t.player->hasPicture() && !t.player->isShowingPreview()
                           && std::abs(*t.player->presentedTime() - o.target) < 0.1;
                   });
        },
        60000);
    if (!landed) {
        std::fprintf(stderr, "the cameras did not show the intended start within a minute\n");
        std::exit(1);
    }
    o.openMs = clock.nsecsElapsed() / 1e6;
    o.firstPictureEarliest = 1e9;
    for (const auto &f : first) {
        const double t = f.value_or(-1);
        o.firstPictureLatest = std::max(o.firstPictureLatest, t);
        o.firstPictureEarliest = std::min(o.firstPictureEarliest, t);
    }
    return o;
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

// ffmpeg decoding the first picture of each camera's clip of the intended
// start's minute, one after another.
double ffmpegFirstPictures(const QString &eventFolder)
{
    QElapsedTimer clock;
    clock.start();
    for (const char *camera : cameras) {
        QString error;
        if (!BenchFootage::runFfmpeg({QStringLiteral("-i"), eventFolder + QLatin1Char('/') + clipName(minutes - 1, camera),
                                      QStringLiteral("-frames:v"), QStringLiteral("1"), QStringLiteral("-f"),
                                      QStringLiteral("null"), QStringLiteral("-")},
                                     &error)) {
            std::fprintf(stderr, "ffmpeg failed: %s\n", qPrintable(error));
            std::exit(1);
        }
    }
    return clock.nsecsElapsed() / 1e6;
}

void report(const char *label, const Opening &o)
{
    std::printf("%s: tiles answer after %.0f ms, every camera at the intended start (%.2f s) after %.0f ms; first "
                "pictures between %.2f s and %.2f s\n",
                label, o.feedbackMs, o.target, o.openMs, o.firstPictureEarliest, o.firstPictureLatest);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (!FaultyFs::available()) {
        std::fprintf(stderr, "open_bench needs root and /dev/fuse for its slow drive\n");
        return 1;
    }
    const QString front = BenchFootage::minute({QStringLiteral("keelhold-bench"), QStringLiteral("hw4-front-8M.mp4"),
                                                2896, 1876, 8, QString()});
    const QString side = BenchFootage::minute({QStringLiteral("keelhold-bench"), QStringLiteral("hw4-side-4M.mp4"),
                                               1448, 938, 4, QStringLiteral("hue=h=60")});
    if (front.isEmpty() || side.isEmpty())
        return 1;
    const QByteArray frontBytes = contentOf(front);
    const QByteArray sideBytes = contentOf(side);

    // The same event on the slow drive and in a local folder.
    QTemporaryDir home;
    const QString mountPoint = home.path() + QStringLiteral("/drive");
    QDir().mkpath(mountPoint);
    FaultyFs drive(mountPoint);
    if (!drive.isMounted()) {
        std::fprintf(stderr, "the slow drive could not be mounted\n");
        return 1;
    }
    const QString eventPath = QStringLiteral("TeslaCam/SentryClips/") + QLatin1String(folder);
    const QString localEvent = home.path() + QStringLiteral("/local/") + eventPath;
    QDir().mkpath(localEvent);
    for (int m = 0; m < minutes; ++m)
        for (const char *camera : cameras) {
            const QByteArray &bytes = QLatin1String(camera) == QLatin1String("front") ? frontBytes : sideBytes;
            drive.addFile(eventPath + QLatin1Char('/') + clipName(m, camera), bytes);
            const QString local = localEvent + QLatin1Char('/') + clipName(m, camera);
            const QString source = QLatin1String(camera) == QLatin1String("front") ? front : side;
            // Hard links: the same bytes, cached once.
            if (::link(QFile::encodeName(source).constData(), QFile::encodeName(local).constData()) != 0)
                QFile::copy(source, local);
        }
    drive.addFile(eventPath + QStringLiteral("/event.json"), eventJson());
    QFile json(localEvent + QStringLiteral("/event.json"));
    if (!json.open(QIODevice::WriteOnly) || json.write(eventJson()) < 0)
        return 1;
    json.close();

    const TeslaEvent slowEvent = scanned(mountPoint + QStringLiteral("/TeslaCam"));
    const TeslaEvent localEventScanned = scanned(home.path() + QStringLiteral("/local/TeslaCam"));
    drive.limitReadRate(driveRate);

    std::printf("a %d-minute, 6-camera HW4 event (%.0f MB a minute for the front camera, %.0f MB for the others); "
                "the drive serves %.0f MB/s\n",
                minutes, frontBytes.size() / 1e6, sideBytes.size() / 1e6, driveRate / 1e6);
    std::fflush(stdout);

    // Cold: every read goes to the drive. Three rounds, the middle one counts.
    std::vector<double> cold, coldFeedback, warm, warmFeedback, tool;
    for (int round = 0; round < 3; ++round) {
        const qint64 before = drive.bytesServed();
        const Opening o = open(slowEvent, &drive);
        report("cold", o);
        std::printf("  read %.1f MB from the drive\n", (drive.bytesServed() - before) / 1e6);
        cold.push_back(o.openMs);
        coldFeedback.push_back(o.feedbackMs);
        tool.push_back(ffmpegFirstPictures(mountPoint + QLatin1Char('/') + eventPath));
        std::printf("  ffmpeg, first picture of the 6 clips in turn: %.0f ms\n", tool.back());
        std::fflush(stdout);
    }
    // Warm: the local copies, read once so that they are in the page cache.
    for (const QString &path : {front, side})
        contentOf(path);
    open(localEventScanned);
    for (int round = 0; round < 3; ++round) {
        const Opening o = open(localEventScanned);
        report("warm", o);
        warm.push_back(o.openMs);
        warmFeedback.push_back(o.feedbackMs);
    }
    const double feedback = std::max(median(coldFeedback), median(warmFeedback));
    std::printf("open_cold_ms=%.0f open_warm_ms=%.0f feedback_ms=%.0f open/ffmpeg=%.2f\n", median(cold), median(warm),
                feedback, median(cold) / median(tool));
    return 0;
}
