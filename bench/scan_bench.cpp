// Scans a generated drive of 100,000 clip files and compares the time with
// `find ROOT -type f -printf '%s %p\n'`, which touches the same entries and
// sizes. Best of 3 each, caches warm. Usage: scan_bench [work folder]
#include "drive/TeslaCamParser.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void makeFile(const QByteArray &path, off_t size)
{
    const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0 || ::ftruncate(fd, size) != 0) {
        std::perror(path.constData());
        std::exit(1);
    }
    ::close(fd);
}

const char *cameras[] = {"front", "back", "left_repeater", "right_repeater", "left_pillar", "right_pillar"};

// ~1,500 event folders of 60 clips (10 minutes x 6 cameras) and 10,000 recent clips.
int buildDrive(const QString &root)
{
    int files = 0;
    const QByteArray json = R"({"timestamp":"2024-06-01T15:04:31","city":"Taylor","est_lat":"30.6075",)"
                            R"("est_lon":"-97.4812","reason":"sentry_aware_object_detection","camera":"0"})";
    QDateTime t(QDate(2024, 1, 1), QTime(8, 0, 0));
    for (int e = 0; e < 1500; ++e) {
        const char *kind = e % 3 == 0 ? "SavedClips" : "SentryClips";
        const QString name = t.toString("yyyy-MM-dd_HH-mm-ss");
        const QString dir = QStringLiteral("%1/%2/%3").arg(root, QLatin1String(kind), name);
        QDir().mkpath(dir);
        QFile f(dir + "/event.json");
        f.open(QIODevice::WriteOnly);
        f.write(json);
        f.close();
        makeFile(QFile::encodeName(dir + "/thumb.png"), 20000);
        for (int m = 0; m < 10; ++m) {
            const QString stamp = t.addSecs(-600 + 60 * m).toString("yyyy-MM-dd_HH-mm-ss");
            for (const char *cam : cameras) {
                makeFile(QFile::encodeName(QStringLiteral("%1/%2-%3.mp4").arg(dir, stamp, QLatin1String(cam))),
                         30'000'000 + m);
                ++files;
            }
        }
        t = t.addSecs(3600 * 3 + 17);
    }
    const QString recent = root + "/RecentClips";
    QDir().mkpath(recent);
    QDateTime r(QDate(2024, 9, 1), QTime(6, 0, 0));
    for (int m = 0; files < 100'000; ++m) {
        const QString stamp = r.addSecs(60 * m + (m / 50) * 600).toString("yyyy-MM-dd_HH-mm-ss");
        for (const char *cam : cameras) {
            if (files >= 100'000)
                break;
            makeFile(QFile::encodeName(QStringLiteral("%1/%2-%3.mp4").arg(recent, stamp, QLatin1String(cam))),
                     30'000'000);
            ++files;
        }
    }
    return files;
}

double bestOf3(const std::function<void()> &work)
{
    double best = 1e300;
    for (int i = 0; i < 3; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        best = std::min(best, double(timer.nsecsElapsed()) / 1e9);
    }
    return best;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QString base = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::tempPath();
    QTemporaryDir tmp(base + "/keelhold-scan-bench-XXXXXX");
    const QString root = tmp.path() + "/TeslaCam";

    QElapsedTimer build;
    build.start();
    const int files = buildDrive(root);
    std::printf("drive: %d clip files in %s (built in %.1f s)\n", files, qPrintable(root), build.elapsed() / 1000.0);

    auto runFind = [&] {
        QProcess p;
        p.setStandardOutputFile(QProcess::nullDevice());
        p.start("find", {root, "-type", "f", "-printf", "%s %p\\n"});
        p.waitForFinished(-1);
    };
    int events = 0, clips = 0;
    auto runScan = [&] {
        const DriveScan scan = TeslaCamParser::scan(root);
        events = int(scan.events.size());
        clips = 0;
        for (const auto &e : scan.events)
            clips += int(e.clips.size());
    };
    runFind(); // warm the caches for both
    runScan();

    const double findSeconds = bestOf3(runFind);
    const double scanSeconds = bestOf3(runScan);
    std::printf("scan: %d events, %d clips in %.3f s (%.0f clips/s)\n", events, clips, scanSeconds, clips / scanSeconds);
    std::printf("find: %.3f s\n", findSeconds);
    std::printf("scan/find=%.2f (target <= 1.5)\n", scanSeconds / findSeconds);
    return 0;
}
