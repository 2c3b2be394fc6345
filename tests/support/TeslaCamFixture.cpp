#include "support/TeslaCamFixture.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <stdexcept>

TeslaCamFixture::TeslaCamFixture(const QString &root) : root_(QDir::cleanPath(root))
{
    makeDir(root_);
}

QString TeslaCamFixture::path(const QString &relative) const
{
    return root_ + QLatin1Char('/') + relative;
}

QString TeslaCamFixture::addEventFolder(const QString &folder, const QString &name)
{
    const QString dir = path(folder + QLatin1Char('/') + name);
    makeDir(dir);
    return dir;
}

QString TeslaCamFixture::addEvent(const QString &folder, const QString &name, const std::optional<QByteArray> &json,
                                  bool withThumb)
{
    const QString dir = addEventFolder(folder, name);
    if (json)
        writeFile(dir + QStringLiteral("/event.json"), *json);
    if (withThumb)
        writeFile(dir + QStringLiteral("/thumb.png"), pngBytes());
    return dir;
}

QString TeslaCamFixture::addClip(const QString &dir, const QString &stamp, const QString &suffix, qint64 size,
                                 const QString &source)
{
    makeDir(dir);
    const QString file = dir + QLatin1Char('/') + stamp + QLatin1Char('-') + suffix + QStringLiteral(".mp4");
    if (source.isEmpty()) {
        makeSparseFile(file, size);
    } else {
        QFile::remove(file);
        if (!QFile::copy(source, file))
            throw std::runtime_error("cannot copy fixture clip");
    }
    return file;
}

QString TeslaCamFixture::addRecentClip(const QString &stamp, const QString &suffix, qint64 size, const QString &source)
{
    return addClip(path(QStringLiteral("RecentClips")), stamp, suffix, size, source);
}

QByteArray TeslaCamFixture::eventJson(const QString &timestamp, const QString &reason, const QString &city,
                                      const QString &lat, const QString &lon, const QString &camera)
{
    // The car writes every value as a string.
    QJsonObject o;
    if (!timestamp.isNull())
        o.insert(QStringLiteral("timestamp"), timestamp);
    if (!city.isNull())
        o.insert(QStringLiteral("city"), city);
    if (!lat.isNull())
        o.insert(QStringLiteral("est_lat"), lat);
    if (!lon.isNull())
        o.insert(QStringLiteral("est_lon"), lon);
    if (!reason.isNull())
        o.insert(QStringLiteral("reason"), reason);
    if (!camera.isNull())
        o.insert(QStringLiteral("camera"), camera);
    return QJsonDocument(o).toJson(QJsonDocument::Compact);
}

void TeslaCamFixture::writeFile(const QString &path, const QByteArray &bytes)
{
    makeDir(QFileInfo(path).absolutePath());
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size())
        throw std::runtime_error(("cannot write fixture file " + path).toStdString());
}

void TeslaCamFixture::makeSparseFile(const QString &path, qint64 size)
{
    makeDir(QFileInfo(path).absolutePath());
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || !f.resize(size))
        throw std::runtime_error(("cannot make sparse file " + path).toStdString());
}

void TeslaCamFixture::makeDir(const QString &path)
{
    if (!QDir().mkpath(path))
        throw std::runtime_error(("cannot make folder " + path).toStdString());
}

QByteArray TeslaCamFixture::flatPng(QSize size, const QColor &colour)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return data;
}

QByteArray TeslaCamFixture::pngBytes()
{
    static const QByteArray bytes = flatPng(QSize(64, 48), QColor(30, 90, 160));
    return bytes;
}
