#include "model/EventKind.h"

#include "model/JsonCoding.h"

namespace {
constexpr std::array<const char *, 3> raws{"sentry", "saved", "recent"};
constexpr std::array<const char *, 3> displays{"Sentry", "Saved", "Recent Driving"};
} // namespace

const std::array<EventKind, 3> &EventKind::allCases()
{
    static const std::array<EventKind, 3> all{sentry, saved, recent};
    return all;
}

QString EventKind::rawValue() const { return QLatin1String(raws[size_t(value_)]); }
QString EventKind::displayName() const { return QLatin1String(displays[size_t(value_)]); }

std::optional<EventKind> EventKind::fromRawValue(QStringView raw)
{
    for (const EventKind k : allCases())
        if (raw == QLatin1String(raws[size_t(k.value())]))
            return k;
    return std::nullopt;
}

EventKind EventKind::fromJson(const QJsonValue &value)
{
    return JsonCoding::decodeRawEnum<EventKind>(value, "EventKind");
}
