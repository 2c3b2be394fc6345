#pragma once

#include <QJsonValue>
#include <QString>
#include <array>
#include <optional>

// Where an event's footage lies on the drive.
class EventKind {
public:
    enum Value : quint8 { sentry, saved, recent };

    constexpr EventKind(Value v) : value_(v) {}
    constexpr operator Value() const { return value_; }
    constexpr Value value() const { return value_; }

    static const std::array<EventKind, 3> &allCases();
    QString rawValue() const;
    // The name a person reads, in the loaded language.
    QString displayName() const;
    // The same name in English, for the file names of exports.
    QString englishName() const;
    static std::optional<EventKind> fromRawValue(QStringView raw);

    QJsonValue toJson() const { return rawValue(); }
    static EventKind fromJson(const QJsonValue &value);

private:
    Value value_;
};

inline size_t qHash(EventKind k, size_t seed = 0) noexcept { return size_t(k.value()) ^ seed; }
