#pragma once

#include "model/Date.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <optional>
#include <stdexcept>
#include <vector>

// Helpers shared by every type's JSON form. Decoding failures throw
// JsonCoding::DecodingError; a missing required key fails the whole value.
namespace JsonCoding {

class DecodingError : public std::runtime_error {
public:
    explicit DecodingError(const QString &message) : std::runtime_error(message.toStdString()) {}
    QString message() const { return QString::fromStdString(what()); }
};

// Paths travel as file:// URL strings.
QJsonValue encodeURL(const QString &path);
QString decodeURL(const QJsonValue &value, const char *key = "url");

QJsonValue encodeDate(Date date);
Date decodeDate(const QJsonValue &value, const char *key = "date");

QJsonObject requireObject(const QJsonValue &value, const char *what);
QJsonValue require(const QJsonObject &object, const char *key);
QString requireString(const QJsonObject &object, const char *key);
qint64 requireInt64(const QJsonObject &object, const char *key);
double requireDouble(const QJsonObject &object, const char *key);
bool requireBool(const QJsonObject &object, const char *key);
QJsonArray requireArray(const QJsonObject &object, const char *key);

std::optional<QString> optionalString(const QJsonObject &object, const char *key);
std::optional<double> optionalDouble(const QJsonObject &object, const char *key);
std::optional<qint64> optionalInt64(const QJsonObject &object, const char *key);
std::optional<QString> optionalURL(const QJsonObject &object, const char *key);

template <typename T>
void insertOptional(QJsonObject &object, const char *key, const std::optional<T> &value)
{
    if (value)
        object.insert(QLatin1String(key), QJsonValue(*value));
}

template <typename T>
QJsonArray encodeArray(const std::vector<T> &values)
{
    QJsonArray array;
    for (const auto &v : values)
        array.append(v.toJson());
    return array;
}

template <typename T>
std::vector<T> decodeArray(const QJsonArray &array)
{
    std::vector<T> values;
    values.reserve(size_t(array.size()));
    for (const auto &v : array)
        values.push_back(T::fromJson(v));
    return values;
}

// Enumerations with a string raw value are coded as that raw value.
template <typename T>
T decodeRawEnum(const QJsonValue &value, const char *typeName)
{
    if (value.isString()) {
        const QString raw = value.toString();
        for (const T c : T::allCases())
            if (c.rawValue() == raw)
                return c;
    }
    throw DecodingError(QStringLiteral("Cannot initialize %1 from invalid value %2")
                            .arg(QLatin1String(typeName), value.toVariant().toString()));
}

// Compact and pretty serialisation of a whole document.
QByteArray toCompactJson(const QJsonObject &object);
QByteArray toPrettyJson(const QJsonObject &object);
// Parses an object document; throws DecodingError when the text is not a JSON object.
QJsonObject parseObject(const QByteArray &data);

} // namespace JsonCoding
