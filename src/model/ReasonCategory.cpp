#include "model/ReasonCategory.h"

#include "model/JsonCoding.h"

namespace {
constexpr std::array<const char *, 7> raws{"approach", "impact", "honk", "manualSave", "panic", "recentDrive", "unknown"};
}

const std::array<ReasonCategory, 7> &ReasonCategory::allCases()
{
    static const std::array<ReasonCategory, 7> all{approach, impact, honk, manualSave, panic, recentDrive, unknown};
    return all;
}

QString ReasonCategory::rawValue() const { return QLatin1String(raws[size_t(value_)]); }

std::optional<ReasonCategory> ReasonCategory::fromRawValue(QStringView raw)
{
    for (const ReasonCategory c : allCases())
        if (raw == QLatin1String(raws[size_t(c.value())]))
            return c;
    return std::nullopt;
}

ReasonCategory ReasonCategory::fromJson(const QJsonValue &value)
{
    return JsonCoding::decodeRawEnum<ReasonCategory>(value, "ReasonCategory");
}
