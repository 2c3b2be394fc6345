#include "model/Date.h"

#include "base/Translations.h"

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

QString Date::formatForPeople(const QString &englishPattern, Shown other) const
{
    if (Translations::current() == QLatin1String("en"))
        return formatLocal(englishPattern);
    const QLocale locale;
    const QString date = locale.dateFormat(QLocale::ShortFormat);
    const QString time = locale.timeFormat(QLocale::ShortFormat);
    QString pattern;
    switch (other) {
    case Shown::date: pattern = date; break;
    case Shown::time: pattern = time; break;
    case Shown::timeWithSeconds: pattern = withoutZone(locale.timeFormat(QLocale::LongFormat)); break;
    case Shown::dateAndTime: pattern = date + QLatin1Char(' ') + time; break;
    case Shown::weekdayAndTime: pattern = QStringLiteral("ddd ") + time; break;
    }
    return locale.toString(toLocalDateTime(), pattern.trimmed());
}

QString Date::formatCarClock(const QLocale &locale, const QString &pattern) const
{
    return locale.toString(toLocalDateTime(), withoutZone(pattern));
}

QString Date::withoutZone(const QString &pattern)
{
    QString out;
    bool quoted = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern.at(i);
        if (c == QLatin1Char('\'')) {
            quoted = !quoted;
            out += c;
        } else if (!quoted && c == QLatin1Char('t')) {
            // The zone field and the space or bracket that set it apart.
            while (out.endsWith(QLatin1Char(' ')) || out.endsWith(QLatin1Char('(')))
                out.chop(1);
            while (i + 1 < pattern.size() && (pattern.at(i + 1) == QLatin1Char('t') || pattern.at(i + 1) == QLatin1Char(')')))
                ++i;
        } else {
            out += c;
        }
    }
    return out.trimmed();
}

size_t qHash(Date d, size_t seed) noexcept
{
    return qHash(d.timeIntervalSinceReferenceDate(), seed);
}
