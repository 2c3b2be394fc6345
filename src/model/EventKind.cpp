#include "model/EventKind.h"

#include "model/JsonCoding.h"

#include <QCoreApplication>

namespace {
constexpr std::array<const char *, 3> raws{"sentry", "saved", "recent"};
// Looked up in the translation when read.
constexpr std::array<const char *, 3> displays{
    //: Kind of event: footage Sentry Mode kept while the car was parked
    QT_TRANSLATE_NOOP("EventKind", "Sentry"),
    //: Kind of event: footage the driver saved (button or honk)
    QT_TRANSLATE_NOOP("EventKind", "Saved"),
    //: Kind of event: the car's rolling recording of the last hour of driving
    QT_TRANSLATE_NOOP("EventKind", "Recent Driving"),
};
} // namespace

const std::array<EventKind, 3> &EventKind::allCases()
{
    static const std::array<EventKind, 3> all{sentry, saved, recent};
    return all;
}

QString EventKind::rawValue() const { return QLatin1String(raws[size_t(value_)]); }
QString EventKind::displayName() const { return QCoreApplication::translate("EventKind", displays[size_t(value_)]); }
QString EventKind::englishName() const { return QString::fromUtf8(displays[size_t(value_)]); }

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
