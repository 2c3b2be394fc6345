#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringView>
#include <array>
#include <optional>

// The angle a clip was shot from. Declared order, raw-value order and grid
// order are three different orders.
class Camera {
public:
    enum Value : quint8 { front, back, leftRepeater, rightRepeater, leftPillar, rightPillar, rearBackup };

    constexpr Camera(Value v) : value_(v) {}
    constexpr operator Value() const { return value_; }
    constexpr Value value() const { return value_; }

    static const std::array<Camera, 7> &allCases();

    QString rawValue() const;
    // The name a person reads, in the loaded language.
    QString displayName() const;
    // The same name in English, for the file names of exports.
    QString englishName() const;
    // Fixed display and sort order: front, pillars, repeaters, back, backup.
    int gridOrder() const;

    static std::optional<Camera> fromRawValue(QStringView raw);
    // The file-name suffix, aliases included ("rear_view" is back).
    static std::optional<Camera> fromFileSuffix(QStringView suffix);

    QJsonValue toJson() const { return rawValue(); }
    static Camera fromJson(const QJsonValue &value);

private:
    Value value_;
};

inline size_t qHash(Camera c, size_t seed = 0) noexcept { return size_t(c.value()) ^ seed; }

namespace std {
template <>
struct hash<Camera> {
    size_t operator()(Camera c) const noexcept { return size_t(c.value()); }
};
} // namespace std
