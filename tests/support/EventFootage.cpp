#include "support/EventFootage.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

EventFootage::EventFootage() : base_(Date::fromQDateTime(QDateTime(QDate(2024, 6, 1), QTime(15, 0), Qt::UTC)))
{
    QDir().mkpath(folder());
    QDir().mkpath(outputs());
    event.kind = EventKind::sentry;
    event.folderName = QStringLiteral("2024-06-01_15-05-00");
    event.folderURL = folder();
    event.timestamp = base_.addingTimeInterval(2);
    event.missingEventJSON = false;
    event.city = QStringLiteral("Taylor");
}

QString EventFootage::root() const { return dir_.path() + QStringLiteral("/TeslaCam"); }
QString EventFootage::folder() const { return root() + QStringLiteral("/SentryClips/2024-06-01_15-05-00"); }
QString EventFootage::outputs() const { return dir_.path() + QStringLiteral("/out"); }
QString EventFootage::output(const QString &name) const { return outputs() + QLatin1Char('/') + name; }

QString EventFootage::add(Camera camera, const QString &source, double startSecond)
{
    const QString path = pathFor(camera, startSecond);
    QFile::remove(path);
    if (!QFile::copy(source, path))
        qFatal("could not copy a test clip");
    place(camera, path, startSecond);
    return path;
}

QString EventFootage::addBytes(Camera camera, const QByteArray &bytes, double startSecond)
{
    const QString path = pathFor(camera, startSecond);
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size())
        qFatal("could not write a test file");
    f.close();
    place(camera, path, startSecond);
    return path;
}

void EventFootage::addMissing(Camera camera, double startSecond) { place(camera, pathFor(camera, startSecond), startSecond); }

void EventFootage::place(Camera camera, const QString &path, double startSecond)
{
    ClipRef clip;
    clip.url = path;
    clip.camera = camera;
    clip.startDate = base_.addingTimeInterval(startSecond);
    clip.fileSize = QFileInfo(path).size();
    event.clips.push_back(clip);
}

QString EventFootage::pathFor(Camera camera, double startSecond) const
{
    const int second = int(startSecond);
    return folder() + QStringLiteral("/2024-06-01_15-%1-%2-%3.mp4")
                          .arg(second / 60, 2, 10, QLatin1Char('0'))
                          .arg(second % 60, 2, 10, QLatin1Char('0'))
                          .arg(camera.rawValue());
}
