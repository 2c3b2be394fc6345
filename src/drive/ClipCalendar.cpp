#include "drive/ClipCalendar.h"

#include <QDateTime>
#include <QHash>
#include <QTimeZone>
#include <climits>

namespace ClipCalendar {

namespace {

long long floorDiv(long long a, long long b) { return a / b - ((a % b != 0) && ((a < 0) != (b < 0))); }

// Days from 1970-01-01 to the given proleptic Gregorian date.
long long daysFromCivil(long long y, long long m, long long d)
{
    y -= m <= 2;
    const long long era = floorDiv(y, 400);
    const long long yoe = y - era * 400;
    const long long doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const long long doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}

const QTimeZone &frozenZone()
{
    static const QTimeZone zone = QTimeZone::systemTimeZone();
    return zone;
}

// The zone's offset, remembered for the whole stretch between two
// transitions: asking the zone database is slow, and a drive's clips mostly
// fall in one or two such stretches.
int offsetAt(long long unixSeconds)
{
    struct Span {
        long long from = 1;
        long long to = 0; // empty
        int offset = 0;
    };
    thread_local Span span;
    if (unixSeconds >= span.from && unixSeconds < span.to)
        return span.offset;
    const QTimeZone &zone = frozenZone();
    if (!zone.isValid())
        return 0;
    const QDateTime at = QDateTime::fromSecsSinceEpoch(unixSeconds, Qt::UTC);
    const int offset = zone.offsetFromUtc(at);
    span = Span{LLONG_MIN, LLONG_MAX, offset};
    if (zone.hasTransitions()) {
        // No transition on a side means the offset holds forever that way.
        const auto previous = zone.previousTransition(at.addSecs(1));
        const auto next = zone.nextTransition(at);
        if (previous.atUtc.isValid())
            span.from = previous.atUtc.toSecsSinceEpoch();
        if (next.atUtc.isValid())
            span.to = next.atUtc.toSecsSinceEpoch();
    }
    return offset;
}

// Wall-clock seconds (as if UTC) to real Unix seconds in the frozen zone.
long long wallToUnix(long long wall)
{
    // Many clips share a minute: remember recent answers per thread.
    thread_local QHash<long long, long long> cache;
    if (const auto it = cache.constFind(wall); it != cache.constEnd())
        return *it;
    const int first = offsetAt(wall);
    const int second = offsetAt(wall - first);
    long long unix = wall - second;
    // In a gap (clocks spring forward) neither offset round-trips; take the later one.
    if (offsetAt(unix) != second)
        unix = wall - first;
    if (cache.size() > 65536)
        cache.clear();
    cache.insert(wall, unix);
    return unix;
}

} // namespace

Date dateFromComponents(long long year, long long month, long long day, long long hour, long long minute,
                        long long second)
{
    const long long months = year * 12 + (month - 1);
    const long long y = floorDiv(months, 12);
    const long long m = months - y * 12 + 1;
    const long long days = daysFromCivil(y, m, 1) + (day - 1);
    const long long wall = days * 86400 + hour * 3600 + minute * 60 + second;
    return Date::fromUnixSeconds(double(wallToUnix(wall)));
}

std::optional<Date> strictDateFromComponents(long long year, long long month, long long day, long long hour,
                                             long long minute, long long second)
{
    if (month < 1 || month > 12 || day < 1 || hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0
        || second > 59)
        return std::nullopt;
    const QDate date{int(year), int(month), int(day)};
    if (!date.isValid())
        return std::nullopt;
    return dateFromComponents(year, month, day, hour, minute, second);
}

QString folderNameString(Date date)
{
    return date.formatLocal(QStringLiteral("yyyy-MM-dd_HH-mm-ss"));
}

} // namespace ClipCalendar
