#include "model/VolumeFormat.h"

#include "model/JsonCoding.h"

#include <QCoreApplication>
#include <QHashFunctions>

namespace {
const char *caseKey(VolumeFormat::Kind k)
{
    switch (k) {
    case VolumeFormat::exFAT: return "exFAT";
    case VolumeFormat::fat32: return "fat32";
    case VolumeFormat::apfs: return "apfs";
    case VolumeFormat::other: return "other";
    case VolumeFormat::unknown: return "unknown";
    }
    return "unknown";
}
} // namespace

QString VolumeFormat::displayName() const
{
    switch (kind_) {
    case exFAT: return QStringLiteral("exFAT");
    //: Name of a drive format
    case fat32: return QCoreApplication::translate("VolumeFormat", "FAT32 (MS-DOS)");
    case apfs: return QStringLiteral("APFS");
    case other: return name_;
    case unknown: break;
    }
    //: Name of a drive format that could not be read
    return QCoreApplication::translate("VolumeFormat", "Unknown");
}

QJsonObject VolumeFormat::toJson() const
{
    QJsonObject payload;
    if (kind_ == other)
        payload.insert(QStringLiteral("_0"), name_);
    QJsonObject o;
    o.insert(QLatin1String(caseKey(kind_)), payload);
    return o;
}

VolumeFormat VolumeFormat::fromJson(const QJsonValue &value)
{
    using JsonCoding::DecodingError;
    const QJsonObject o = JsonCoding::requireObject(value, "VolumeFormat");
    if (o.size() != 1)
        throw DecodingError(QStringLiteral("Invalid number of keys found, expected one."));
    const QString key = o.begin().key();
    const QJsonObject payload = JsonCoding::requireObject(o.begin().value(), "VolumeFormat");
    for (Kind k : {exFAT, fat32, apfs, unknown})
        if (key == QLatin1String(caseKey(k)))
            return VolumeFormat(k);
    if (key == QLatin1String("other"))
        return makeOther(JsonCoding::requireString(payload, "_0"));
    throw DecodingError(QStringLiteral("Cannot initialize VolumeFormat from invalid key %1").arg(key));
}

size_t qHash(const VolumeFormat &f, size_t seed) noexcept
{
    return qHashMulti(seed, int(f.kind()), f.otherName());
}
