#include "drive/ReasonMapper.h"

#include "drive/NumberParsing.h"

namespace ReasonMapper {

PlainReason map(const std::optional<QString> &raw)
{
    PlainReason r;
    r.raw = raw;
    r.category = ReasonCategory::unknown;
    if (!raw || raw->isEmpty())
        return r;
    const QString &s = *raw;
    if (s == QLatin1String("user_interaction_honk")) {
        r.category = ReasonCategory::honk;
    } else if (s.startsWith(QLatin1String("user_interaction_dashcam"))) {
        r.category = ReasonCategory::manualSave;
    } else if (s == QLatin1String("sentry_aware_object_detection")) {
        r.category = ReasonCategory::approach;
    } else if (s.startsWith(QLatin1String("sentry_aware_accel"))) {
        r.category = ReasonCategory::impact;
        static const QLatin1String prefix("sentry_aware_accel_");
        if (s.startsWith(prefix))
            r.accelValue = NumberParsing::parseDouble(QStringView(s).mid(prefix.size()));
    } else if (s == QLatin1String("sentry_panic_mode")) {
        r.category = ReasonCategory::panic;
    }
    return r;
}

PlainReason recentDrive()
{
    PlainReason r;
    r.category = ReasonCategory::recentDrive;
    return r;
}

} // namespace ReasonMapper
