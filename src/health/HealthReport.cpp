#include "health/HealthReport.h"

#include <QJsonArray>
#include <array>

namespace {
QString severityName(Recommendation::Severity s)
{
    static const std::array<const char *, 4> names{"info", "advice", "warning", "urgent"};
    return QLatin1String(names[size_t(s)]);
}
} // namespace

QJsonObject HealthReport::toJson() const
{
    QJsonObject o;
    if (fullnessFraction)
        o.insert(QStringLiteral("fullnessFraction"), *fullnessFraction);
    o.insert(QStringLiteral("corruptClipCount"), corruptClipCount);
    o.insert(QStringLiteral("probedClipCount"), probedClipCount);
    o.insert(QStringLiteral("formatVerdict"), formatVerdict);
    o.insert(QStringLiteral("encryptedClipsPresent"), encryptedClipsPresent);
    o.insert(QStringLiteral("unarchivedEventCount"), unarchivedEventCount);
    QJsonArray list;
    for (const Recommendation &r : recommendations) {
        QJsonObject item;
        item.insert(QStringLiteral("id"), r.id);
        item.insert(QStringLiteral("severity"), severityName(r.severity));
        item.insert(QStringLiteral("title"), r.title);
        item.insert(QStringLiteral("detail"), r.detail);
        item.insert(QStringLiteral("symbolName"), r.symbolName);
        list.append(item);
    }
    o.insert(QStringLiteral("recommendations"), list);
    return o;
}
