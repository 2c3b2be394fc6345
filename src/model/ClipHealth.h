#pragma once

#include <QJsonValue>
#include <QString>
#include <array>
#include <optional>

// The condition of one clip file, as decided by the prober.
class ClipHealth {
public:
    enum Value : quint8 { unknown, ok, zeroByte, truncated, unreadable, timedOut, encrypted };

    constexpr ClipHealth(Value v = unknown) : value_(v) {}
    constexpr operator Value() const { return value_; }
    constexpr Value value() const { return value_; }

    static const std::array<ClipHealth, 7> &allCases();
    QString rawValue() const;
    static std::optional<ClipHealth> fromRawValue(QStringView raw);

    // Encrypted footage is the car's own doing, not damage.
    constexpr bool isDamaged() const
    {
        return value_ == zeroByte || value_ == truncated || value_ == unreadable || value_ == timedOut;
    }

    // What the player opens: a clip not probed yet, or probed and fine.
    constexpr bool isPlayable() const { return value_ == unknown || value_ == ok; }

    QJsonValue toJson() const { return rawValue(); }
    static ClipHealth fromJson(const QJsonValue &value);

private:
    Value value_;
};

inline size_t qHash(ClipHealth h, size_t seed = 0) noexcept { return size_t(h.value()) ^ seed; }
