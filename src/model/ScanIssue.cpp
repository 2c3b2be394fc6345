#include "model/ScanIssue.h"

#include "model/JsonCoding.h"

#include <QHashFunctions>

namespace {
constexpr std::array<const char *, 4> raws{"unknownFile", "unknownCameraSuffix", "unreadableFolder", "badEventJSON"};
}

const std::array<ScanIssue::Kind, 4> &ScanIssue::Kind::allCases()
{
    static const std::array<Kind, 4> all{unknownFile, unknownCameraSuffix, unreadableFolder, badEventJSON};
    return all;
}

QString ScanIssue::Kind::rawValue() const { return QLatin1String(raws[size_t(value_)]); }

std::optional<ScanIssue::Kind> ScanIssue::Kind::fromRawValue(QStringView raw)
{
    for (const Kind k : allCases())
        if (raw == QLatin1String(raws[size_t(k.value())]))
            return k;
    return std::nullopt;
}

ScanIssue::Kind ScanIssue::Kind::fromJson(const QJsonValue &value)
{
    return JsonCoding::decodeRawEnum<Kind>(value, "ScanIssue.Kind");
}

QJsonObject ScanIssue::toJson() const
{
    QJsonObject o;
    o.insert(QStringLiteral("kind"), kind.toJson());
    o.insert(QStringLiteral("path"), path);
    return o;
}

ScanIssue ScanIssue::fromJson(const QJsonValue &value)
{
    const QJsonObject o = JsonCoding::requireObject(value, "ScanIssue");
    ScanIssue i;
    i.kind = Kind::fromJson(JsonCoding::require(o, "kind"));
    i.path = JsonCoding::requireString(o, "path");
    return i;
}

size_t qHash(const ScanIssue &i, size_t seed) noexcept
{
    return qHashMulti(seed, int(i.kind.value()), i.path);
}
