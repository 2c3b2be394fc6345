#include "model/DrivingDataText.h"

#include <algorithm>
#include <cmath>

namespace DrivingDataText {

bool milesByDefault(const QLocale &locale)
{
    return locale.measurementSystem() != QLocale::MetricSystem;
}

int speed(float metresPerSecond, bool miles)
{
    if (!std::isfinite(metresPerSecond))
        return 0;
    const double perHour = std::abs(double(metresPerSecond)) * 3.6;
    return int(std::lround(miles ? perHour / 1.609344 : perHour));
}

QString speedUnit(bool miles) { return miles ? QStringLiteral("mph") : QStringLiteral("km/h"); }

QString assistance(TelemetryRecord::AutopilotState state)
{
    switch (state) {
    case TelemetryRecord::AutopilotState::autosteer: return QStringLiteral("Autopilot");
    case TelemetryRecord::AutopilotState::trafficAwareCruise: return QStringLiteral("Traffic-aware cruise");
    case TelemetryRecord::AutopilotState::selfDriving: return QStringLiteral("Self-driving");
    case TelemetryRecord::AutopilotState::none: break;
    }
    return QString();
}

QColor assistanceColour(TelemetryRecord::AutopilotState state)
{
    switch (state) {
    case TelemetryRecord::AutopilotState::autosteer: return QColor(0x2f, 0x7d, 0xe1);
    case TelemetryRecord::AutopilotState::trafficAwareCruise: return QColor(0x2a, 0xa7, 0x60);
    case TelemetryRecord::AutopilotState::selfDriving: return QColor(0x8e, 0x5b, 0xe8);
    case TelemetryRecord::AutopilotState::none: break;
    }
    return QColor(0x70, 0x70, 0x78);
}

QString gear(TelemetryRecord::Gear gear)
{
    switch (gear) {
    case TelemetryRecord::Gear::park: return QStringLiteral("P");
    case TelemetryRecord::Gear::reverse: return QStringLiteral("R");
    case TelemetryRecord::Gear::neutral: return QStringLiteral("N");
    case TelemetryRecord::Gear::drive: return QStringLiteral("D");
    }
    return QString();
}

double pedalFraction(float percent)
{
    if (!std::isfinite(percent))
        return 0.0;
    return std::clamp(double(percent) / 100.0, 0.0, 1.0);
}

QString heading(double degrees)
{
    if (!std::isfinite(degrees))
        return QString();
    static const char *points[] = {"N", "NE", "E", "SE", "S", "SW", "W", "NW"};
    int whole = int(std::lround(std::fmod(std::fmod(degrees, 360.0) + 360.0, 360.0))) % 360;
    const int point = int(std::lround(whole / 45.0)) % 8;
    return QString::fromLatin1(points[point]) + QLatin1Char(' ') + QString::number(whole) + QStringLiteral("°");
}

QString steering(float degrees)
{
    if (!std::isfinite(degrees))
        return QString();
    const int whole = int(std::lround(std::abs(double(degrees))));
    if (whole == 0)
        return QStringLiteral("0°");
    // Positive is clockwise, as the wheel turns for a right turn.
    return QString::number(whole) + (degrees > 0 ? QStringLiteral("° right") : QStringLiteral("° left"));
}

} // namespace DrivingDataText
