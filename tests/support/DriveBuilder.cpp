#include "support/DriveBuilder.h"

#include "drive/TeslaCamParser.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QRandomGenerator>
#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>

DriveBuilder::DriveBuilder(const QString &teslaCamRoot) : fixture_(teslaCamRoot) {}

QStringList DriveBuilder::clipNames(const QString &folderName, int clips)
{
    static const char *const cameras[] = {"front", "back", "left_repeater", "right_repeater", "left_pillar",
                                          "right_pillar"};
    const QDateTime stamp = QDateTime::fromString(folderName, QStringLiteral("yyyy-MM-dd_HH-mm-ss"));
    if (!stamp.isValid())
        throw std::invalid_argument("event folder name must be a timestamp");
    QStringList names;
    for (int i = 0; i < clips; ++i) {
        const QDateTime minute = stamp.addSecs(-60 * (1 + i / 6));
        names << minute.toString(QStringLiteral("yyyy-MM-dd_HH-mm-ss")) + QLatin1Char('-')
                + QLatin1String(cameras[i % 6]) + QStringLiteral(".mp4");
    }
    return names;
}

QString DriveBuilder::addEvent(const QString &kindFolder, const QString &folderName, int clips, qint64 clipSize)
{
    QString iso = folderName;
    iso[10] = QLatin1Char('T');
    iso.replace(13, 1, QStringLiteral(":"));
    iso.replace(16, 1, QStringLiteral(":"));
    const QString dir = fixture_.addEvent(kindFolder, folderName,
                                          TeslaCamFixture::eventJson(iso, QStringLiteral("sentry_aware_object_detection"),
                                                                     QStringLiteral("Taylor")));
    for (const QString &name : clipNames(folderName, clips))
        TeslaCamFixture::writeFile(dir + QLatin1Char('/') + name, randomBytes(clipSize, seed_++));
    return dir;
}

std::vector<TeslaEvent> DriveBuilder::scan() const
{
    return TeslaCamParser::scan(fixture_.root()).events;
}

QByteArray DriveBuilder::randomBytes(qint64 size, quint32 seed)
{
    QByteArray bytes(size, Qt::Uninitialized);
    QRandomGenerator generator(seed);
    const qint64 words = size / 4;
    generator.fillRange(reinterpret_cast<quint32 *>(bytes.data()), words);
    for (qint64 i = words * 4; i < size; ++i)
        bytes[i] = char(generator.generate());
    return bytes;
}

QString DriveBuilder::sha256Hex(const QByteArray &bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

QByteArray DriveBuilder::readQuietly(const QString &path)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOATIME | O_CLOEXEC);
    if (fd < 0)
        return {};
    QFile file;
    if (!file.open(fd, QIODevice::ReadOnly, QFile::AutoCloseHandle)) {
        ::close(fd);
        return {};
    }
    return file.readAll();
}

QString DriveBuilder::sha256Hex(const QString &path)
{
    return sha256Hex(readQuietly(path));
}

QStringList DriveBuilder::temporaryFiles(const QString &folder)
{
    QStringList found;
    QDirIterator it(folder, {QStringLiteral(".tmp-*")}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        found << it.next();
    return found;
}
