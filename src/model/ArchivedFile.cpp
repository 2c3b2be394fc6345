#include "model/ArchivedFile.h"

#include "model/JsonCoding.h"

#include <QHashFunctions>

QJsonObject ArchivedFile::toJson() const
{
    QJsonObject o;
    o.insert(QStringLiteral("name"), name);
    o.insert(QStringLiteral("size"), size);
    o.insert(QStringLiteral("sha256"), sha256);
    return o;
}

ArchivedFile ArchivedFile::fromJson(const QJsonValue &value)
{
    const QJsonObject o = JsonCoding::requireObject(value, "ArchivedFile");
    ArchivedFile f;
    f.name = JsonCoding::requireString(o, "name");
    f.size = JsonCoding::requireInt64(o, "size");
    f.sha256 = JsonCoding::requireString(o, "sha256");
    return f;
}

size_t qHash(const ArchivedFile &f, size_t seed) noexcept
{
    return qHashMulti(seed, f.name, f.size, f.sha256);
}
