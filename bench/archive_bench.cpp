// Archive throughput against the plain tools on the same data and disk:
// ArchiveEngine::run, `cp -r`, and `cp -r` followed by `sha256sum`.
// Usage: archive_bench [work folder] (default: the temporary folder).

#include "drive/TeslaCamParser.h"
#include "vault/ArchiveEngine.h"
#include "vault/VaultIndex.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <unistd.h>

namespace {

constexpr qint64 clipSize = 30'000'000;
constexpr int eventCount = 6;
constexpr int camerasPerEvent = 6;
constexpr int rounds = 3;

qint64 statusKiB(const char *field)
{
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : f.readAll().split('\n'))
        if (line.startsWith(field))
            return line.mid(qsizetype(qstrlen(field))).trimmed().split(' ').first().toLongLong();
    return -1;
}

void resetPeakRss()
{
    QFile f(QStringLiteral("/proc/self/clear_refs"));
    if (f.open(QIODevice::WriteOnly))
        f.write("5");
}

// Random bytes, written a block at a time so that making the drive doesn't
// raise the process's memory either.
qint64 makeDrive(const QString &root)
{
    static const char *const cameras[] = {"front", "back", "left_repeater", "right_repeater", "left_pillar",
                                          "right_pillar"};
    QRandomGenerator generator(20260718);
    QByteArray block(1 << 20, Qt::Uninitialized);
    qint64 total = 0;
    const QDateTime first = QDateTime::fromString(QStringLiteral("2026-07-10_09-15-32"),
                                                  QStringLiteral("yyyy-MM-dd_HH-mm-ss"));
    for (int e = 0; e < eventCount; ++e) {
        const QDateTime stamp = first.addDays(e);
        const QString folder = root + QStringLiteral("/SentryClips/") + stamp.toString("yyyy-MM-dd_HH-mm-ss");
        QDir().mkpath(folder);
        for (int c = 0; c < camerasPerEvent; ++c) {
            QFile file(folder + QLatin1Char('/') + stamp.addSecs(-60).toString("yyyy-MM-dd_HH-mm-ss")
                       + QLatin1Char('-') + QLatin1String(cameras[c]) + QStringLiteral(".mp4"));
            if (!file.open(QIODevice::WriteOnly))
                return -1;
            for (qint64 left = clipSize; left > 0;) {
                generator.fillRange(reinterpret_cast<quint32 *>(block.data()), block.size() / 4);
                const qint64 n = std::min<qint64>(left, block.size());
                file.write(block.constData(), n);
                left -= n;
            }
            total += clipSize;
        }
    }
    return total;
}

bool runTool(const QString &program, const QStringList &arguments, const QString &workingDir = {})
{
    QProcess p;
    p.setWorkingDirectory(workingDir);
    p.setStandardOutputFile(QProcess::nullDevice());
    p.start(program, arguments);
    return p.waitForFinished(-1) && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}

// Best of `rounds`, each on a clean destination with earlier writes settled.
double bestSeconds(const QString &destination, const std::function<bool()> &work)
{
    double best = 1e300;
    for (int i = 0; i < rounds; ++i) {
        QDir(destination).removeRecursively();
        ::sync();
        QElapsedTimer timer;
        timer.start();
        if (!work()) {
            std::fprintf(stderr, "a run failed\n");
            return -1;
        }
        best = std::min(best, double(timer.nsecsElapsed()) / 1e9);
    }
    QDir(destination).removeRecursively();
    ::sync();
    return best;
}

QStringList filesUnder(const QString &folder)
{
    QStringList files;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << it.next();
    files.sort();
    return files;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QString base = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::tempPath();
    QTemporaryDir work(base + QStringLiteral("/archive_bench-XXXXXX"));
    if (!work.isValid()) {
        std::fprintf(stderr, "cannot make a work folder in %s\n", qPrintable(base));
        return 1;
    }
    const QString drive = work.filePath(QStringLiteral("TeslaCam"));
    const QString destination = work.filePath(QStringLiteral("out"));

    const qint64 idleKiB = statusKiB("VmRSS:");
    const qint64 total = makeDrive(drive);
    if (total <= 0)
        return 1;
    const double megabytes = double(total) / 1e6;
    std::printf("drive: %d files of %lld bytes, %.1f MB in %s\n", eventCount * camerasPerEvent,
                static_cast<long long>(clipSize), megabytes, qPrintable(work.path()));

    const auto events = TeslaCamParser::scan(drive).events;
    const ArchivePlan plan = ArchiveEngine::plan(events, VaultIndex{});
    resetPeakRss();
    const qint64 beforeRunsKiB = statusKiB("VmRSS:");
    bool complete = true;
    const double archive = bestSeconds(destination, [&] {
        const ArchiveReport report = ArchiveEngine::run(plan, destination);
        complete = complete && report.failedFiles.empty() && report.archivedEvents.size() == events.size();
        return complete;
    });
    const qint64 peakKiB = statusKiB("VmHWM:");

    const double cp = bestSeconds(destination, [&] {
        return runTool(QStringLiteral("cp"), {QStringLiteral("-r"), drive, destination});
    });
    const double cpSha = bestSeconds(destination, [&] {
        if (!runTool(QStringLiteral("cp"), {QStringLiteral("-r"), drive, destination}))
            return false;
        return runTool(QStringLiteral("sha256sum"), filesUnder(destination));
    });
    if (archive <= 0 || cp <= 0 || cpSha <= 0)
        return 1;

    std::printf("ArchiveEngine::run     %8.1f MB/s  (%.3f s, best of %d)\n", megabytes / archive, archive, rounds);
    std::printf("cp -r                  %8.1f MB/s  (%.3f s, best of %d)\n", megabytes / cp, cp, rounds);
    std::printf("cp -r + sha256sum      %8.1f MB/s  (%.3f s, best of %d)\n", megabytes / cpSha, cpSha, rounds);
    std::printf("memory: idle %.1f MiB, before runs %.1f MiB, peak during runs %.1f MiB (%.1f MiB above idle)\n",
                double(idleKiB) / 1024, double(beforeRunsKiB) / 1024, double(peakKiB) / 1024,
                double(peakKiB - idleKiB) / 1024);
    // Time ratios: below 1 means the archive run is the faster.
    std::printf("archive/cp=%.2f archive/(cp+sha256sum)=%.2f\n", archive / cp, archive / cpSha);
    return 0;
}
