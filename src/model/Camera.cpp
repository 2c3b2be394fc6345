#include "model/Camera.h"

#include "model/JsonCoding.h"

namespace {
struct CameraRow {
    Camera::Value value;
    const char *raw;
    const char *display;
    int gridOrder;
    std::array<const char *, 2> suffixes;
};

constexpr std::array<CameraRow, 7> rows{{
    {Camera::front, "front", "Front", 0, {"front", nullptr}},
    {Camera::back, "back", "Rear", 5, {"back", "rear_view"}},
    {Camera::leftRepeater, "left_repeater", "Left Side", 3, {"left_repeater", nullptr}},
    {Camera::rightRepeater, "right_repeater", "Right Side", 4, {"right_repeater", nullptr}},
    {Camera::leftPillar, "left_pillar", "Left Pillar", 1, {"left_pillar", "left_b_pillar"}},
    {Camera::rightPillar, "right_pillar", "Right Pillar", 2, {"right_pillar", "right_b_pillar"}},
    {Camera::rearBackup, "rear_backup", "Backup", 6, {"rear_backup", "backup_camera"}},
}};

const CameraRow &row(Camera::Value v) { return rows[size_t(v)]; }
} // namespace

const std::array<Camera, 7> &Camera::allCases()
{
    static const std::array<Camera, 7> all{front, back, leftRepeater, rightRepeater, leftPillar, rightPillar, rearBackup};
    return all;
}

QString Camera::rawValue() const { return QLatin1String(row(value_).raw); }
QString Camera::displayName() const { return QLatin1String(row(value_).display); }
int Camera::gridOrder() const { return row(value_).gridOrder; }

std::optional<Camera> Camera::fromRawValue(QStringView raw)
{
    for (const auto &r : rows)
        if (raw == QLatin1String(r.raw))
            return Camera(r.value);
    return std::nullopt;
}

std::optional<Camera> Camera::fromFileSuffix(QStringView suffix)
{
    for (const auto &r : rows)
        for (const char *s : r.suffixes)
            if (s && suffix == QLatin1String(s))
                return Camera(r.value);
    return std::nullopt;
}

Camera Camera::fromJson(const QJsonValue &value)
{
    return JsonCoding::decodeRawEnum<Camera>(value, "Camera");
}
