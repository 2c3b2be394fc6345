#include "model/ClipRef.h"

#include "model/JsonCoding.h"

#include <QHashFunctions>
#include <algorithm>

QString ClipRef::fileName() const
{
    const qsizetype slash = url.lastIndexOf(QLatin1Char('/'));
    return slash < 0 ? url : url.mid(slash + 1);
}

QJsonObject ClipRef::toJson() const
{
    QJsonObject o;
    o.insert(QStringLiteral("url"), JsonCoding::encodeURL(url));
    o.insert(QStringLiteral("camera"), camera.toJson());
    o.insert(QStringLiteral("startDate"), JsonCoding::encodeDate(startDate));
    o.insert(QStringLiteral("fileSize"), fileSize);
    JsonCoding::insertOptional(o, "duration", duration);
    o.insert(QStringLiteral("health"), health.toJson());
    return o;
}

ClipRef ClipRef::fromJson(const QJsonValue &value)
{
    const QJsonObject o = JsonCoding::requireObject(value, "ClipRef");
    ClipRef c;
    c.url = JsonCoding::decodeURL(JsonCoding::require(o, "url"), "url");
    c.camera = Camera::fromJson(JsonCoding::require(o, "camera"));
    c.startDate = JsonCoding::decodeDate(JsonCoding::require(o, "startDate"), "startDate");
    c.fileSize = JsonCoding::requireInt64(o, "fileSize");
    c.duration = JsonCoding::optionalDouble(o, "duration");
    c.health = ClipHealth::fromJson(JsonCoding::require(o, "health"));
    return c;
}

size_t qHash(const ClipRef &c, size_t seed) noexcept
{
    return qHashMulti(seed, c.url, c.camera, c.startDate, c.fileSize, c.duration.value_or(-1.0), c.health);
}

namespace ClipOrder {

bool lessThan(const ClipRef &a, const ClipRef &b)
{
    if (a.startDate != b.startDate)
        return a.startDate < b.startDate;
    return a.camera.gridOrder() < b.camera.gridOrder();
}

void sort(std::vector<ClipRef> &clips)
{
    std::stable_sort(clips.begin(), clips.end(), lessThan);
}

} // namespace ClipOrder
