#pragma once

#include "model/Camera.h"
#include "model/Date.h"
#include "model/TeslaEvent.h"

#include <QLocale>
#include <QString>

// The words drawn over a combined movie.
namespace OverlayText {

// The date and time of one frame in the machine's time zone, written the
// way the locale writes dates and times, to the second, with the zone.
QString frameTime(Date moment, const QLocale &locale = QLocale());
// Why the car kept the footage and where: "Sentry: Something came close · Taylor · 30.6075, -97.4812".
QString reasonLine(const TeslaEvent &event);
// What stands in a camera's cell where it has no footage.
QString noFootage(Camera camera);

} // namespace OverlayText
