#include "model/TriageState.h"

#include "model/JsonCoding.h"

namespace {
constexpr std::array<const char *, 4> raws{"new", "reviewed", "kept", "dismissed"};
constexpr std::array<const char *, 4> displays{"New", "Reviewed", "In Vault", "Dismissed"};
} // namespace

const std::array<TriageState, 4> &TriageState::allCases()
{
    static const std::array<TriageState, 4> all{new_, reviewed, kept, dismissed};
    return all;
}

QString TriageState::rawValue() const { return QLatin1String(raws[size_t(value_)]); }
QString TriageState::displayName() const { return QLatin1String(displays[size_t(value_)]); }

std::optional<TriageState> TriageState::fromRawValue(QStringView raw)
{
    for (const TriageState s : allCases())
        if (raw == QLatin1String(raws[size_t(s.value())]))
            return s;
    return std::nullopt;
}

TriageState TriageState::fromJson(const QJsonValue &value)
{
    return JsonCoding::decodeRawEnum<TriageState>(value, "TriageState");
}
