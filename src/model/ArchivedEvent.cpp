#include "model/ArchivedEvent.h"

#include "model/JsonCoding.h"

#include <QCoreApplication>
#include <QHashFunctions>
#include <QStringList>
#include <algorithm>
#include <limits>

QString ArchivedEvent::sourceVolumeText() const
{
    if (sourceVolume != unknownDrive)
        return sourceVolume;
    return QCoreApplication::translate("ArchivedEvent", unknownDrive.toUtf8().constData());
}

qint64 ArchivedEvent::totalBytes() const
{
    qint64 sum = 0;
    for (const auto &f : files)
        sum += f.size;
    return sum;
}

QString ArchivedEvent::dedupeKey() const
{
    QStringList names;
    names.reserve(qsizetype(files.size()));
    for (const auto &f : files)
        names.append(f.name);
    // Plain code-unit order, the same on every machine and locale.
    names.sort(Qt::CaseSensitive);
    const QChar bar = QLatin1Char('|');
    return kind.rawValue() + bar + folderName + bar + QString::number(files.size()) + bar
        + QString::number(totalBytes()) + bar + names.join(QLatin1Char(','));
}

QJsonObject ArchivedEvent::toJson() const
{
    using namespace JsonCoding;
    QJsonObject o;
    o.insert(QStringLiteral("eventID"), eventID);
    o.insert(QStringLiteral("kind"), kind.toJson());
    o.insert(QStringLiteral("folderName"), folderName);
    o.insert(QStringLiteral("timestamp"), encodeDate(timestamp));
    o.insert(QStringLiteral("files"), encodeArray(files));
    o.insert(QStringLiteral("archivedAt"), encodeDate(archivedAt));
    o.insert(QStringLiteral("sourceVolume"), sourceVolume);
    o.insert(QStringLiteral("relativePath"), relativePath);
    if (expectedFileCount)
        o.insert(QStringLiteral("expectedFileCount"), *expectedFileCount);
    if (encrypted)
        o.insert(QStringLiteral("encrypted"), true);
    return o;
}

ArchivedEvent ArchivedEvent::fromJson(const QJsonValue &value)
{
    using namespace JsonCoding;
    const QJsonObject o = requireObject(value, "ArchivedEvent");
    ArchivedEvent e;
    e.eventID = requireString(o, "eventID");
    e.kind = EventKind::fromJson(require(o, "kind"));
    e.folderName = requireString(o, "folderName");
    e.timestamp = decodeDate(require(o, "timestamp"), "timestamp");
    e.files = decodeArray<ArchivedFile>(requireArray(o, "files"));
    e.archivedAt = decodeDate(require(o, "archivedAt"), "archivedAt");
    e.sourceVolume = requireString(o, "sourceVolume");
    e.relativePath = requireString(o, "relativePath");
    // Absent in manifests written before it existed.
    if (const auto expected = optionalInt64(o, "expectedFileCount"))
        e.expectedFileCount = int(std::clamp<qint64>(*expected, 0, std::numeric_limits<int>::max()));
    e.encrypted = o.contains(QLatin1String("encrypted")) && requireBool(o, "encrypted");
    return e;
}

size_t qHash(const ArchivedEvent &e, size_t seed) noexcept
{
    size_t h = qHashMulti(seed, e.eventID, e.kind, e.folderName, e.timestamp, e.archivedAt, e.sourceVolume,
                          e.relativePath, e.expectedFileCount.value_or(-1), e.encrypted);
    for (const auto &f : e.files)
        h = qHash(f, h);
    return h;
}
