#include "model/TeslaEvent.h"

#include "model/JsonCoding.h"

#include <QHashFunctions>
#include <algorithm>

qint64 TeslaEvent::totalBytes() const
{
    qint64 sum = 0;
    for (const auto &c : clips)
        sum += c.fileSize;
    return sum;
}

std::optional<QString> TeslaEvent::placeName() const
{
    const auto given = [](const std::optional<QString> &s) { return s && !s->trimmed().isEmpty(); };
    if (given(street) && given(city))
        return street->trimmed() + QStringLiteral(", ") + city->trimmed();
    if (given(city))
        return city->trimmed();
    if (given(street))
        return street->trimmed();
    return std::nullopt;
}

int TeslaEvent::corruptClipCount() const
{
    return int(std::count_if(clips.begin(), clips.end(), [](const ClipRef &c) { return c.health.isDamaged(); }));
}

std::vector<Camera> TeslaEvent::cameras() const
{
    std::vector<Camera> result;
    for (const Camera cam : Camera::allCases())
        if (std::any_of(clips.begin(), clips.end(), [cam](const ClipRef &c) { return c.camera == cam; }))
            result.push_back(cam);
    std::stable_sort(result.begin(), result.end(), [](Camera a, Camera b) { return a.gridOrder() < b.gridOrder(); });
    return result;
}

std::optional<Date> TeslaEvent::earliestClipDate() const
{
    if (clips.empty())
        return std::nullopt;
    return std::min_element(clips.begin(), clips.end(), [](const ClipRef &a, const ClipRef &b) {
               return a.startDate < b.startDate;
           })->startDate;
}

std::optional<Date> TeslaEvent::latestClipDate() const
{
    if (clips.empty())
        return std::nullopt;
    return std::max_element(clips.begin(), clips.end(), [](const ClipRef &a, const ClipRef &b) {
               return a.startDate < b.startDate;
           })->startDate;
}

double TeslaEvent::approximateDuration() const
{
    if (clips.empty())
        return 0.0;
    return latestClipDate()->timeIntervalSince(*earliestClipDate()) + 60.0;
}

double TeslaEvent::timelineOffset(const ClipRef &clip) const
{
    const auto origin = earliestClipDate();
    return origin ? std::max(0.0, clip.startDate.timeIntervalSince(*origin)) : 0.0;
}

QJsonObject TeslaEvent::toJson() const
{
    using namespace JsonCoding;
    QJsonObject o;
    o.insert(QStringLiteral("kind"), kind.toJson());
    o.insert(QStringLiteral("folderURL"), encodeURL(folderURL));
    o.insert(QStringLiteral("folderName"), folderName);
    o.insert(QStringLiteral("timestamp"), encodeDate(timestamp));
    insertOptional(o, "city", city);
    insertOptional(o, "street", street);
    insertOptional(o, "latitude", latitude);
    insertOptional(o, "longitude", longitude);
    insertOptional(o, "reasonRaw", reasonRaw);
    o.insert(QStringLiteral("reason"), reason.toJson());
    insertOptional(o, "triggerCameraRaw", triggerCameraRaw);
    o.insert(QStringLiteral("clips"), encodeArray(clips));
    if (thumbURL)
        o.insert(QStringLiteral("thumbURL"), encodeURL(*thumbURL));
    o.insert(QStringLiteral("missingEventJSON"), missingEventJSON);
    // Left out when false, so a clear event's form stays as it always was.
    if (encrypted)
        o.insert(QStringLiteral("encrypted"), true);
    return o;
}

TeslaEvent TeslaEvent::fromJson(const QJsonValue &value)
{
    using namespace JsonCoding;
    const QJsonObject o = requireObject(value, "TeslaEvent");
    TeslaEvent e;
    e.kind = EventKind::fromJson(require(o, "kind"));
    e.folderURL = decodeURL(require(o, "folderURL"), "folderURL");
    e.folderName = requireString(o, "folderName");
    e.timestamp = decodeDate(require(o, "timestamp"), "timestamp");
    e.city = optionalString(o, "city");
    e.street = optionalString(o, "street");
    e.latitude = optionalDouble(o, "latitude");
    e.longitude = optionalDouble(o, "longitude");
    e.reasonRaw = optionalString(o, "reasonRaw");
    e.reason = PlainReason::fromJson(require(o, "reason"));
    e.triggerCameraRaw = optionalString(o, "triggerCameraRaw");
    e.clips = decodeArray<ClipRef>(requireArray(o, "clips"));
    e.thumbURL = optionalURL(o, "thumbURL");
    e.missingEventJSON = requireBool(o, "missingEventJSON");
    e.encrypted = o.contains(QLatin1String("encrypted")) && requireBool(o, "encrypted");
    return e;
}

size_t qHash(const TeslaEvent &e, size_t seed) noexcept
{
    size_t h = qHashMulti(seed, e.kind, e.folderURL, e.folderName, e.timestamp, e.city.value_or(QString()),
                          e.reasonRaw.value_or(QString()), e.reason, e.missingEventJSON, e.encrypted);
    for (const auto &c : e.clips)
        h = qHashMulti(h, c);
    return h;
}

namespace EventOrder {

void sortNewestFirst(std::vector<TeslaEvent> &events)
{
    std::stable_sort(events.begin(), events.end(),
                     [](const TeslaEvent &a, const TeslaEvent &b) { return a.timestamp > b.timestamp; });
}

} // namespace EventOrder
