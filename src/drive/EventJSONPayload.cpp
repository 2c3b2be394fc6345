#include "drive/EventJSONPayload.h"

#include "drive/ClipCalendar.h"
#include "drive/NumberParsing.h"
#include "drive/ClipNames.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QRegularExpression>
#include <cmath>

namespace {

std::optional<QString> stringField(const QJsonObject &o, const char *key)
{
    const QJsonValue v = o.value(QLatin1String(key));
    if (v.isString())
        return v.toString();
    return std::nullopt;
}

// A number, or a string that is entirely one number.
std::optional<double> decodeFlexibleDouble(const QJsonObject &o, const char *key)
{
    const QJsonValue v = o.value(QLatin1String(key));
    if (v.isDouble())
        return v.toDouble();
    if (v.isString())
        return NumberParsing::parseDouble(v.toString());
    return std::nullopt;
}

// A coordinate off the globe, "nan" among them, costs its field like any
// other odd value: the map would otherwise place the event by it.
std::optional<double> decodeCoordinate(const QJsonObject &o, const char *key, double limit)
{
    const auto v = decodeFlexibleDouble(o, key);
    if (v && !(std::fabs(*v) <= limit))
        return std::nullopt;
    return v;
}

// An integer's decimal digits, or a string as it stands.
std::optional<QString> decodeCamera(const QJsonObject &o)
{
    const QJsonValue v = o.value(QLatin1String("camera"));
    if (v.isDouble()) {
        const double d = v.toDouble();
        if (std::isfinite(d) && std::trunc(d) == d && std::fabs(d) < 9.2e18)
            return QString::number(qint64(d));
        return std::nullopt;
    }
    if (v.isString())
        return v.toString();
    return std::nullopt;
}

std::optional<Date> parseZonedISO8601(const QString &text)
{
    static const QRegularExpression re(QStringLiteral(
        "^(\\d{4})-(\\d{2})-(\\d{2})T(\\d{2}):(\\d{2}):(\\d{2})(Z|([+-])(\\d{2}):?(\\d{2}))$"));
    const auto m = re.match(text);
    if (!m.hasMatch())
        return std::nullopt;
    const QDate date(m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt());
    const QTime time(m.captured(4).toInt(), m.captured(5).toInt(), m.captured(6).toInt());
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    int offset = 0;
    if (m.captured(7) != QLatin1String("Z")) {
        const int hours = m.captured(9).toInt();
        const int minutes = m.captured(10).toInt();
        if (hours > 23 || minutes > 59)
            return std::nullopt;
        offset = (hours * 3600 + minutes * 60) * (m.captured(8) == QLatin1String("-") ? -1 : 1);
    }
    const QDateTime utc(date, time, Qt::UTC);
    return Date::fromUnixSeconds(double(utc.toSecsSinceEpoch() - offset));
}

std::optional<Date> parseLocalNoZone(const QString &text)
{
    static const QRegularExpression re(
        QStringLiteral("^(\\d{4})-(\\d{2})-(\\d{2})T(\\d{2}):(\\d{2}):(\\d{2})$"));
    const auto m = re.match(text);
    if (!m.hasMatch())
        return std::nullopt;
    return ClipCalendar::strictDateFromComponents(m.captured(1).toLongLong(), m.captured(2).toLongLong(),
                                                  m.captured(3).toLongLong(), m.captured(4).toLongLong(),
                                                  m.captured(5).toLongLong(), m.captured(6).toLongLong());
}

} // namespace

std::optional<Date> EventJSONPayload::parsedTimestamp() const
{
    if (!timestampRaw)
        return std::nullopt;
    if (auto d = parseZonedISO8601(*timestampRaw))
        return d;
    if (auto d = parseLocalNoZone(*timestampRaw))
        return d;
    QString folderStyle = *timestampRaw;
    folderStyle.replace(QLatin1Char('T'), QLatin1Char('_'));
    if (const auto groups = ClipNames::matchFolderName(folderStyle))
        return ClipNames::parseTimestamp(groups->date, groups->time);
    return std::nullopt;
}

std::optional<EventJSONPayload> EventJSONPayload::decode(const QByteArray &data)
{
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(data, &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject())
        return std::nullopt;
    const QJsonObject o = doc.object();
    EventJSONPayload p;
    p.timestampRaw = stringField(o, "timestamp");
    p.city = stringField(o, "city");
    p.street = stringField(o, "street");
    p.estLat = decodeCoordinate(o, "est_lat", 90.0);
    p.estLon = decodeCoordinate(o, "est_lon", 180.0);
    p.reason = stringField(o, "reason");
    p.cameraRaw = decodeCamera(o);
    return p;
}
