#include "BenchFootage.h"

#include "media/MediaClip.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <algorithm>
#include <sys/resource.h>
#include <unistd.h>
#include <cstdio>

namespace BenchFootage {

namespace {

// A finished minute is a few megabytes at least; anything less is a stump.
constexpr qint64 smallestMinute = 1'000'000;

// The peak memory of a running process, from its own accounts; a child's
// rusage would count the parent's pages it was forked with.
double peakOf(qint64 pid)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(pid));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').value(0).toDouble() / 1024.0;
    return 0;
}

std::unique_ptr<MediaClip> opened(const QString &path)
{
    MediaClip::Options options;
    options.mp4Only = false;
    options.streamInfo = MediaClip::StreamInfo::always;
    return MediaClip::open(path, {}, options);
}

} // namespace

bool runFfmpeg(const QStringList &arguments, QString *error, double *peakMb)
{
    QProcess process;
    process.start(QStringLiteral("ffmpeg"),
                  QStringList{QStringLiteral("-hide_banner"), QStringLiteral("-loglevel"), QStringLiteral("error"),
                              QStringLiteral("-nostdin"), QStringLiteral("-y")}
                      + arguments);
    const qint64 pid = process.processId();
    while (!process.waitForFinished(200) && process.state() == QProcess::Running)
        if (peakMb)
            *peakMb = std::max(*peakMb, peakOf(pid));
    const bool ok = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (!ok && error)
        *error = QString::fromUtf8(process.readAllStandardError());
    return ok;
}

QString minute(const Minute &m)
{
    const QString dir = QDir::tempPath() + QLatin1Char('/') + m.folder;
    QDir().mkpath(dir);
    const QString path = dir + QLatin1Char('/') + m.name;
    if (QFileInfo(path).size() > smallestMinute)
        return path;
    std::fprintf(stderr, "making one minute of %s at %dx%d (once)...\n", qPrintable(m.name), m.width, m.height);
    const QString rate = QStringLiteral("%1M").arg(m.megabits);
    QString error;
    if (!runFfmpeg({QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                    QStringLiteral("testsrc2=size=%1x%2:rate=36").arg(m.width).arg(m.height)
                        + (m.filter.isEmpty() ? QString() : QLatin1Char(',') + m.filter),
                    QStringLiteral("-t"), QStringLiteral("60"), QStringLiteral("-c:v"), QStringLiteral("libx264"),
                    QStringLiteral("-preset"), QStringLiteral("ultrafast"), QStringLiteral("-pix_fmt"),
                    QStringLiteral("yuvj420p"), QStringLiteral("-g"), QStringLiteral("36"), QStringLiteral("-b:v"), rate,
                    QStringLiteral("-maxrate"), rate, QStringLiteral("-bufsize"),
                    QStringLiteral("%1M").arg(2 * m.megabits), QStringLiteral("-an"), path + QStringLiteral(".part.mp4")},
                   &error)) {
        std::fprintf(stderr, "ffmpeg failed: %s\n", qPrintable(error));
        return QString();
    }
    QFile::remove(path);
    QFile::rename(path + QStringLiteral(".part.mp4"), path);
    return path;
}

double durationOf(const QString &path)
{
    const auto clip = opened(path);
    const AVFormatContext *format = clip->context();
    return format && format->duration != AV_NOPTS_VALUE ? double(format->duration) / AV_TIME_BASE : -1.0;
}

int framesOf(const QString &path)
{
    const auto clip = opened(path);
    return clip->isOpened() ? int(clip->video()->nb_frames) : -1;
}

const std::vector<Hw4Camera> &hw4Cameras()
{
    static const std::vector<Hw4Camera> cameras{
        {Camera::front, 2896, 1876, 0},          {Camera::leftPillar, 1448, 938, 60},
        {Camera::rightPillar, 1448, 938, 120},   {Camera::leftRepeater, 1448, 938, 180},
        {Camera::rightRepeater, 1448, 938, 240}, {Camera::back, 1448, 938, 300},
    };
    return cameras;
}

QString hw4Minute(const Hw4Camera &camera)
{
    return minute({QStringLiteral("keelhold-combined-bench"), QStringLiteral("minute-%1.mp4").arg(camera.camera.rawValue()),
                   camera.width, camera.height, camera.width > 2000 ? 10 : 4, QStringLiteral("hue=h=%1").arg(camera.hue)});
}

bool place(const QString &source, const QString &dest)
{
    return ::link(QFile::encodeName(source).constData(), QFile::encodeName(dest).constData()) == 0
        || QFile::copy(source, dest);
}

double peakRssMb()
{
    struct rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024.0;
}

} // namespace BenchFootage
