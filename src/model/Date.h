#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>
#include <compare>

// A moment in time: seconds since 2001-01-01 00:00:00 UTC as a double.
// Kept as the raw double so that JSON round trips are bit-exact; QDateTime
// only holds milliseconds and is used only at the edges (parsing, display).
class Date {
public:
    static constexpr double unixOffset = 978307200.0; // 2001-01-01 in Unix seconds

    constexpr Date() = default;
    constexpr explicit Date(double secondsSinceReferenceDate) : seconds_(secondsSinceReferenceDate) {}

    static Date now();
    static Date fromUnixSeconds(double unixSeconds) { return Date(unixSeconds - unixOffset); }
    static Date fromQDateTime(const QDateTime &dt);

    constexpr double timeIntervalSinceReferenceDate() const { return seconds_; }
    constexpr double unixSeconds() const { return seconds_ + unixOffset; }
    double timeIntervalSince(Date other) const { return seconds_ - other.seconds_; }
    Date addingTimeInterval(double seconds) const { return Date(seconds_ + seconds); }

    // Millisecond precision only; for calendar work and display.
    QDateTime toQDateTime() const;
    QDateTime toLocalDateTime() const { return toQDateTime().toLocalTime(); }
    // Formats in the machine's current local zone with a QDateTime pattern.
    QString formatLocal(const QString &pattern) const;
    // For a person to read: the English pattern while the program speaks
    // English; in another language the locale's own short date and 24-hour
    // clock, since an English pattern carries its word order ("'at'", AM/PM).
    enum class Shown : quint8 { date, time, timeWithSeconds, dateAndTime, weekdayAndTime };
    QString formatForPeople(const QString &englishPattern, Shown other) const;
    // The car's clock keeps no zone, and the computer's zone need not be
    // the car's: a time the car recorded is shown as its wall-clock time,
    // never with a zone's name. Formats in the locale with the pattern's
    // zone fields taken out.
    QString formatCarClock(const QLocale &locale, const QString &pattern) const;
    static QString withoutZone(const QString &pattern);

    constexpr auto operator<=>(const Date &) const = default;
    constexpr bool operator==(const Date &) const = default;

private:
    double seconds_ = 0.0;
};

size_t qHash(Date d, size_t seed = 0) noexcept;
