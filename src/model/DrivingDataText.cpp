#include "model/DrivingDataText.h"

#include <QCoreApplication>

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

// Also the stored value of the unit setting: not translated.
QString speedUnit(bool miles) { return miles ? QStringLiteral("mph") : QStringLiteral("km/h"); }

QString assistance(TelemetryRecord::AutopilotState state)
{
    switch (state) {
    //: Driver assistance engaged: the car steers (Tesla's name)
    case TelemetryRecord::AutopilotState::autosteer: return QCoreApplication::translate("DrivingDataText", "Autopilot");
    //: Driver assistance engaged: the car keeps speed and distance only
    case TelemetryRecord::AutopilotState::trafficAwareCruise:
        return QCoreApplication::translate("DrivingDataText", "Traffic-aware cruise");
    //: Driver assistance engaged: Full Self-Driving
    case TelemetryRecord::AutopilotState::selfDriving:
        return QCoreApplication::translate("DrivingDataText", "Self-driving");
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

// The letters the car itself shows, in every language; the export's panel
// matches them too.
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
    static const char *points[] = {
        //: Compass point abbreviation: north
        QT_TRANSLATE_NOOP("DrivingDataText", "N"),
        //: Compass point abbreviation: north-east
        QT_TRANSLATE_NOOP("DrivingDataText", "NE"),
        //: Compass point abbreviation: east
        QT_TRANSLATE_NOOP("DrivingDataText", "E"),
        //: Compass point abbreviation: south-east
        QT_TRANSLATE_NOOP("DrivingDataText", "SE"),
        //: Compass point abbreviation: south
        QT_TRANSLATE_NOOP("DrivingDataText", "S"),
        //: Compass point abbreviation: south-west
        QT_TRANSLATE_NOOP("DrivingDataText", "SW"),
        //: Compass point abbreviation: west
        QT_TRANSLATE_NOOP("DrivingDataText", "W"),
        //: Compass point abbreviation: north-west
        QT_TRANSLATE_NOOP("DrivingDataText", "NW"),
    };
    int whole = int(std::lround(std::fmod(std::fmod(degrees, 360.0) + 360.0, 360.0))) % 360;
    const int point = int(std::lround(whole / 45.0)) % 8;
    //: Heading of the car: %1 is a compass point (e.g. NE), %2 whole degrees
    return QCoreApplication::translate("DrivingDataText", "%1 %2°")
        .arg(QCoreApplication::translate("DrivingDataText", points[point]), QString::number(whole));
}

QString steering(float degrees)
{
    if (!std::isfinite(degrees))
        return QString();
    const int whole = int(std::lround(std::abs(double(degrees))));
    if (whole == 0)
        return QStringLiteral("0°");
    // Positive is clockwise, as the wheel turns for a right turn.
    if (degrees > 0)
        //: Steering wheel angle in whole degrees, turned to the right
        return QCoreApplication::translate("DrivingDataText", "%1\u00B0 right").arg(whole);
    //: Steering wheel angle in whole degrees, turned to the left
    return QCoreApplication::translate("DrivingDataText", "%1\u00B0 left").arg(whole);
}

} // namespace DrivingDataText
