#pragma once

#include <QJsonValue>
#include <QString>
#include <array>
#include <optional>

// The plain-English classes of a recorded reason.
class ReasonCategory {
public:
    enum Value : quint8 { approach, impact, honk, manualSave, panic, recentDrive, unknown };

    constexpr ReasonCategory(Value v = unknown) : value_(v) {}
    constexpr operator Value() const { return value_; }
    constexpr Value value() const { return value_; }

    static const std::array<ReasonCategory, 7> &allCases();
    QString rawValue() const;
    static std::optional<ReasonCategory> fromRawValue(QStringView raw);

    QJsonValue toJson() const { return rawValue(); }
    static ReasonCategory fromJson(const QJsonValue &value);

private:
    Value value_;
};

inline size_t qHash(ReasonCategory c, size_t seed = 0) noexcept { return size_t(c.value()) ^ seed; }
