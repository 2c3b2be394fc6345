#pragma once

#include "model/TelemetryRecord.h"

#include <QColor>
#include <QLocale>
#include <QString>

// How the player's overlay and the exported movie word the car's record.
namespace DrivingDataText {

// Whether speeds read in miles an hour where the user lives (the US and
// the UK sign roads in mph).
bool milesByDefault(const QLocale &locale = QLocale());
// Whole km/h or mph.
int speed(float metresPerSecond, bool miles);
QString speedUnit(bool miles);
// The driver-assistance state as the car's owner knows it; empty for none.
QString assistance(TelemetryRecord::AutopilotState state);
// One colour per state, the same on the overlay and on the map's routes:
// grey for none, blue Autopilot, green cruise, purple self-driving.
QColor assistanceColour(TelemetryRecord::AutopilotState state);
// "P", "R", "N", "D"; empty for a value the car has newer names for.
QString gear(TelemetryRecord::Gear gear);
// The accelerator as a fraction of its travel: the car writes percent.
double pedalFraction(float percent);
// "NE 45°": the nearest of eight compass points and the whole degrees.
QString heading(double degrees);
// "12° left", "30° right", "0°".
QString steering(float degrees);

} // namespace DrivingDataText
