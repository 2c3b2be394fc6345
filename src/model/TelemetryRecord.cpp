#include "model/TelemetryRecord.h"

#include <QCoreApplication>

#include <charconv>
#include <cmath>

double TelemetryRecord::plainFloat(float value)
{
    if (!std::isfinite(value))
        return double(value);
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value).ptr;
    double result = double(value);
    std::from_chars(text, end, result);
    return result;
}

bool TelemetryRecord::hasPosition() const
{
    return std::isfinite(latitude) && std::isfinite(longitude) && std::abs(latitude) <= 90.0
        && std::abs(longitude) <= 180.0 && !(latitude == 0.0 && longitude == 0.0);
}

QString TelemetryRecord::gearName(Gear gear)
{
    switch (gear) {
    case Gear::park: return QStringLiteral("park");
    case Gear::drive: return QStringLiteral("drive");
    case Gear::reverse: return QStringLiteral("reverse");
    case Gear::neutral: return QStringLiteral("neutral");
    }
    return QStringLiteral("unknown");
}

QString TelemetryRecord::autopilotName(AutopilotState state)
{
    switch (state) {
    case AutopilotState::none: return QStringLiteral("none");
    case AutopilotState::selfDriving: return QStringLiteral("selfDriving");
    case AutopilotState::autosteer: return QStringLiteral("autosteer");
    case AutopilotState::trafficAwareCruise: return QStringLiteral("trafficAwareCruise");
    }
    return QStringLiteral("unknown");
}

QString TelemetryRecord::gearDisplayName(Gear gear)
{
    switch (gear) {
    case Gear::park: return QStringLiteral("P");
    case Gear::drive: return QStringLiteral("D");
    case Gear::reverse: return QStringLiteral("R");
    case Gear::neutral: return QStringLiteral("N");
    }
    return QStringLiteral("–");
}

QString TelemetryRecord::autopilotDisplayName(AutopilotState state)
{
    switch (state) {
    case AutopilotState::none: return QString();
    //: Tesla's name of a driver assistance (Full Self-Driving)
    case AutopilotState::selfDriving: return QCoreApplication::translate("TelemetryRecord", "Self-Driving");
    //: Tesla's name of a driver assistance
    case AutopilotState::autosteer: return QCoreApplication::translate("TelemetryRecord", "Autosteer");
    //: Tesla's name of a driver assistance
    case AutopilotState::trafficAwareCruise:
        return QCoreApplication::translate("TelemetryRecord", "Traffic-Aware Cruise Control");
    }
    return QString();
}

QJsonObject TelemetryRecord::fieldsToJson() const
{
    QJsonObject o;
    o.insert(QStringLiteral("version"), qint64(version));
    o.insert(QStringLiteral("gear"), gearName(gear));
    // JSON numbers are doubles: exact up to 2^53, far beyond a frame count.
    o.insert(QStringLiteral("frameSequenceNumber"), double(frameSequenceNumber));
    o.insert(QStringLiteral("speed"), plainFloat(speed));
    o.insert(QStringLiteral("acceleratorPedal"), plainFloat(acceleratorPedal));
    o.insert(QStringLiteral("steeringAngle"), plainFloat(steeringAngle));
    o.insert(QStringLiteral("blinkerLeft"), blinkerLeft);
    o.insert(QStringLiteral("blinkerRight"), blinkerRight);
    o.insert(QStringLiteral("brakeApplied"), brakeApplied);
    o.insert(QStringLiteral("autopilot"), autopilotName(autopilot));
    o.insert(QStringLiteral("latitude"), latitude);
    o.insert(QStringLiteral("longitude"), longitude);
    o.insert(QStringLiteral("heading"), heading);
    o.insert(QStringLiteral("accelerationX"), accelerationX);
    o.insert(QStringLiteral("accelerationY"), accelerationY);
    o.insert(QStringLiteral("accelerationZ"), accelerationZ);
    return o;
}
