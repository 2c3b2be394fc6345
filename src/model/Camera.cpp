#include "model/Camera.h"

#include "model/JsonCoding.h"

#include <QCoreApplication>

namespace {
struct CameraRow {
    Camera::Value value;
    const char *raw;
    const char *display;
    int gridOrder;
    std::array<const char *, 2> suffixes;
};

// The display names are looked up in the translation when read; the raw
// values and suffixes are ids.
constexpr std::array<CameraRow, 7> rows{{
    //: Camera name: the camera looking ahead through the windscreen
    {Camera::front, "front", QT_TRANSLATE_NOOP("Camera", "Front"), 0, {"front", nullptr}},
    //: Camera name: the camera looking backwards above the number plate
    {Camera::back, "back", QT_TRANSLATE_NOOP("Camera", "Rear"), 5, {"back", "rear_view"}},
    //: Camera name: the camera in the left side repeater, looking back along the car
    {Camera::leftRepeater, "left_repeater", QT_TRANSLATE_NOOP("Camera", "Left Side"), 3, {"left_repeater", nullptr}},
    //: Camera name: the camera in the right side repeater, looking back along the car
    {Camera::rightRepeater, "right_repeater", QT_TRANSLATE_NOOP("Camera", "Right Side"), 4,
     {"right_repeater", nullptr}},
    //: Camera name: the camera in the left door pillar (B pillar)
    {Camera::leftPillar, "left_pillar", QT_TRANSLATE_NOOP("Camera", "Left Pillar"), 1,
     {"left_pillar", "left_b_pillar"}},
    //: Camera name: the camera in the right door pillar (B pillar)
    {Camera::rightPillar, "right_pillar", QT_TRANSLATE_NOOP("Camera", "Right Pillar"), 2,
     {"right_pillar", "right_b_pillar"}},
    //: Camera name: the reversing camera (not a copy of files)
    {Camera::rearBackup, "rear_backup", QT_TRANSLATE_NOOP("Camera", "Backup"), 6, {"rear_backup", "backup_camera"}},
}};

const CameraRow &row(Camera::Value v) { return rows[size_t(v)]; }
} // namespace

const std::array<Camera, 7> &Camera::allCases()
{
    static const std::array<Camera, 7> all{front, back, leftRepeater, rightRepeater, leftPillar, rightPillar, rearBackup};
    return all;
}

QString Camera::rawValue() const { return QLatin1String(row(value_).raw); }
QString Camera::displayName() const { return QCoreApplication::translate("Camera", row(value_).display); }
QString Camera::englishName() const { return QString::fromUtf8(row(value_).display); }
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
