#include "support/HeldClip.h"

#include "support/FaultyFs.h"
#include "support/TestClips.h"

#include <QFile>
#include <stdexcept>

namespace HeldClip {

QByteArray indexFirst(double seconds, int framesPerSecond)
{
    TestClips::ClipOptions options;
    options.seconds = seconds;
    options.width = 640;
    options.height = 480;
    options.fps = framesPerSecond;
    options.gop = framesPerSecond;
    options.faststart = true;
    QFile clip(TestClips::clip(options));
    if (!clip.open(QIODevice::ReadOnly))
        throw std::runtime_error("could not read a test clip");
    return clip.readAll();
}

QString add(FaultyFs &drive, const QString &name, const QByteArray &bytes, qint64 heldFrom)
{
    drive.addFile(name, bytes);
    drive.hangReadsFrom(name, heldFrom);
    return drive.mountPoint() + QLatin1Char('/') + name;
}

} // namespace HeldClip
