#include "model/Date.h"

#include <QHashFunctions>
#include <QLocale>
#include <chrono>
#include <cmath>

Date Date::now()
{
    using namespace std::chrono;
    const auto ns = duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
    return fromUnixSeconds(double(ns) / 1e9);
}

Date Date::fromQDateTime(const QDateTime &dt)
{
    return fromUnixSeconds(double(dt.toMSecsSinceEpoch()) / 1000.0);
}

QDateTime Date::toQDateTime() const
{
    return QDateTime::fromMSecsSinceEpoch(qint64(std::floor(unixSeconds() * 1000.0)), Qt::UTC);
}

QString Date::formatLocal(const QString &pattern) const
{
    return QLocale::c().toString(toLocalDateTime(), pattern);
}

size_t qHash(Date d, size_t seed) noexcept
{
    return qHash(d.timeIntervalSinceReferenceDate(), seed);
}
