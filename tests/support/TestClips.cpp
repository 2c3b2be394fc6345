#include "support/TestClips.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>
#include <stdexcept>

namespace TestClips {

namespace {
QString cacheDir()
{
    static QTemporaryDir dir(QDir::tempPath() + QStringLiteral("/keelhold-clips-XXXXXX"));
    return dir.path();
}

QString key(const ClipOptions &s)
{
    const QString text = QStringLiteral("%1|%2|%3|%4|%5|%6|%7|%8|%9")
                             .arg(s.seconds)
                             .arg(s.width)
                             .arg(s.height)
                             .arg(s.fps)
                             .arg(s.codec, s.pixelFormat)
                             .arg(s.audio)
                             .arg(s.gop)
                             .arg(s.pattern)
        + QStringLiteral("|%1|%2|%3|%4").arg(s.filter).arg(s.lossless).arg(s.faststart).arg(s.bFrames);
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Md5).toHex());
}

void generate(const ClipOptions &s, const QString &dest)
{
    QStringList args{QStringLiteral("-hide_banner"), QStringLiteral("-loglevel"), QStringLiteral("error"),
                     QStringLiteral("-y"), QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                     QStringLiteral("%1=size=%2x%3:rate=%4").arg(s.pattern).arg(s.width).arg(s.height).arg(s.fps)
                         + (s.filter.isEmpty() ? QString() : QLatin1Char(',') + s.filter)};
    if (s.audio)
        args << QStringLiteral("-f") << QStringLiteral("lavfi") << QStringLiteral("-i")
             << QStringLiteral("sine=frequency=440:sample_rate=48000");
    args << QStringLiteral("-t") << QString::number(s.seconds) << QStringLiteral("-c:v") << s.codec
         << QStringLiteral("-pix_fmt") << s.pixelFormat << QStringLiteral("-g") << QString::number(s.gop);
    if (s.codec == QLatin1String("libx264"))
        args << QStringLiteral("-preset") << QStringLiteral("ultrafast");
    if (s.bFrames > 0 && s.codec == QLatin1String("libx264"))
        args << QStringLiteral("-bf") << QString::number(s.bFrames);
    if (s.lossless && s.codec == QLatin1String("libx264"))
        args << QStringLiteral("-qp") << QStringLiteral("0");
    if (s.codec == QLatin1String("libx265"))
        args << QStringLiteral("-preset") << QStringLiteral("ultrafast") << QStringLiteral("-x265-params")
             << QStringLiteral("log-level=error") << QStringLiteral("-tag:v") << QStringLiteral("hvc1");
    if (s.audio)
        args << QStringLiteral("-c:a") << QStringLiteral("aac") << QStringLiteral("-shortest");
    else
        args << QStringLiteral("-an");
    if (s.faststart)
        args << QStringLiteral("-movflags") << QStringLiteral("+faststart");
    args << dest;
    QProcess p;
    p.start(QStringLiteral("ffmpeg"), args);
    if (!p.waitForFinished(120000) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0)
        throw std::runtime_error(("ffmpeg failed: " + QString::fromUtf8(p.readAllStandardError())).toStdString());
}

} // namespace

bool ffmpegAvailable()
{
    return !QStandardPaths::findExecutable(QStringLiteral("ffmpeg")).isEmpty();
}

QString clip(const ClipOptions &options)
{
    const QString path = cacheDir() + QLatin1Char('/') + key(options) + QStringLiteral(".mp4");
    if (!QFile::exists(path))
        generate(options, path);
    return path;
}

qint64 topLevelBoxOffset(const QByteArray &file, const char *type)
{
    qint64 at = 0;
    while (at + 8 <= file.size()) {
        quint64 size = quint32(quint8(file[at]) << 24 | quint8(file[at + 1]) << 16 | quint8(file[at + 2]) << 8
                               | quint8(file[at + 3]));
        if (file.mid(at + 4, 4) == type)
            return at;
        if (size == 1) {
            size = 0;
            for (int i = 0; i < 8; ++i)
                size = size << 8 | quint8(file[at + 8 + i]);
        }
        if (size < 8)
            return -1;
        at += qint64(size);
    }
    return -1;
}

void padTo(const QString &path, qint64 size)
{
    QFile file(path);
    if (!file.open(QIODevice::Append))
        return;
    const qint64 missing = size - file.size();
    if (missing <= 0)
        return;
    const qint64 box = std::max<qint64>(missing, 8);
    QByteArray bytes(int(box), '\0');
    for (int i = 0; i < 4; ++i)
        bytes[i] = char((quint32(box) >> (24 - 8 * i)) & 0xFF);
    bytes.replace(4, 4, "free");
    file.write(bytes);
}

} // namespace TestClips
