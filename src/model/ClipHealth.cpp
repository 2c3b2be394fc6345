#include "model/ClipHealth.h"

#include "model/JsonCoding.h"

namespace {
constexpr std::array<const char *, 7> raws{"unknown", "ok", "zeroByte", "truncated", "unreadable", "timedOut", "encrypted"};
}

const std::array<ClipHealth, 7> &ClipHealth::allCases()
{
    static const std::array<ClipHealth, 7> all{unknown, ok, zeroByte, truncated, unreadable, timedOut, encrypted};
    return all;
}

QString ClipHealth::rawValue() const { return QLatin1String(raws[size_t(value_)]); }

std::optional<ClipHealth> ClipHealth::fromRawValue(QStringView raw)
{
    for (const ClipHealth h : allCases())
        if (raw == QLatin1String(raws[size_t(h.value())]))
            return h;
    return std::nullopt;
}

ClipHealth ClipHealth::fromJson(const QJsonValue &value)
{
    return JsonCoding::decodeRawEnum<ClipHealth>(value, "ClipHealth");
}
