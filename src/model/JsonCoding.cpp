#include "model/JsonCoding.h"

#include <QJsonDocument>
#include <QJsonParseError>
#include <QUrl>
#include <cmath>

namespace JsonCoding {

namespace {
[[noreturn]] void fail(const char *key, const QString &what)
{
    throw DecodingError(QStringLiteral("%1: %2").arg(QLatin1String(key), what));
}
} // namespace

QJsonValue encodeURL(const QString &path)
{
    return QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
}

QString decodeURL(const QJsonValue &value, const char *key)
{
    if (!value.isString())
        fail(key, QStringLiteral("expected a URL string"));
    const QUrl url(value.toString(), QUrl::StrictMode);
    if (!url.isValid() || !url.isLocalFile())
        fail(key, QStringLiteral("expected a file URL"));
    QString path = url.toLocalFile();
    // Folder URLs may carry a trailing slash; paths here never do.
    while (path.size() > 1 && path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return path;
}

QJsonValue encodeDate(Date date)
{
    return date.timeIntervalSinceReferenceDate();
}

Date decodeDate(const QJsonValue &value, const char *key)
{
    if (!value.isDouble())
        fail(key, QStringLiteral("expected a number of seconds"));
    return Date(value.toDouble());
}

QJsonObject requireObject(const QJsonValue &value, const char *what)
{
    if (!value.isObject())
        fail(what, QStringLiteral("expected an object"));
    return value.toObject();
}

QJsonValue require(const QJsonObject &object, const char *key)
{
    const auto it = object.constFind(QLatin1String(key));
    if (it == object.constEnd())
        fail(key, QStringLiteral("key not found"));
    return *it;
}

QString requireString(const QJsonObject &object, const char *key)
{
    const QJsonValue v = require(object, key);
    if (!v.isString())
        fail(key, QStringLiteral("expected a string"));
    return v.toString();
}

qint64 requireInt64(const QJsonObject &object, const char *key)
{
    const QJsonValue v = require(object, key);
    if (!v.isDouble())
        fail(key, QStringLiteral("expected an integer"));
    const double d = v.toDouble();
    if (!std::isfinite(d) || std::trunc(d) != d)
        fail(key, QStringLiteral("expected an integer"));
    return v.toInteger();
}

double requireDouble(const QJsonObject &object, const char *key)
{
    const QJsonValue v = require(object, key);
    if (!v.isDouble())
        fail(key, QStringLiteral("expected a number"));
    return v.toDouble();
}

bool requireBool(const QJsonObject &object, const char *key)
{
    const QJsonValue v = require(object, key);
    if (!v.isBool())
        fail(key, QStringLiteral("expected true or false"));
    return v.toBool();
}

QJsonArray requireArray(const QJsonObject &object, const char *key)
{
    const QJsonValue v = require(object, key);
    if (!v.isArray())
        fail(key, QStringLiteral("expected an array"));
    return v.toArray();
}

std::optional<QString> optionalString(const QJsonObject &object, const char *key)
{
    const auto it = object.constFind(QLatin1String(key));
    if (it == object.constEnd() || it->isNull())
        return std::nullopt;
    if (!it->isString())
        fail(key, QStringLiteral("expected a string"));
    return it->toString();
}

std::optional<double> optionalDouble(const QJsonObject &object, const char *key)
{
    const auto it = object.constFind(QLatin1String(key));
    if (it == object.constEnd() || it->isNull())
        return std::nullopt;
    if (!it->isDouble())
        fail(key, QStringLiteral("expected a number"));
    return it->toDouble();
}

std::optional<qint64> optionalInt64(const QJsonObject &object, const char *key)
{
    if (!object.contains(QLatin1String(key)) || object.value(QLatin1String(key)).isNull())
        return std::nullopt;
    return requireInt64(object, key);
}

std::optional<QString> optionalURL(const QJsonObject &object, const char *key)
{
    const auto it = object.constFind(QLatin1String(key));
    if (it == object.constEnd() || it->isNull())
        return std::nullopt;
    return decodeURL(*it, key);
}

QByteArray toCompactJson(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QByteArray toPrettyJson(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

QJsonObject parseObject(const QByteArray &data)
{
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(data, &error);
    if (error.error != QJsonParseError::NoError)
        throw DecodingError(QStringLiteral("The data isn't valid JSON: %1.").arg(error.errorString()));
    if (!doc.isObject())
        throw DecodingError(QStringLiteral("Expected a JSON object at the top level."));
    return doc.object();
}

} // namespace JsonCoding
