#pragma once

#include "health/HealthReport.h"

#include <QString>
#include <QVariantMap>

// Everything the health screen shows, worked out from one report: the words
// beside the fullness bar, its colour, the footage-condition card and the
// recommendation rows.
namespace HealthPresenter {

QString fullnessConsequenceText(double fraction, int unarchivedEventCount);
// The bar turns orange only when the drive is nearly full and something on it
// is not kept yet.
bool fullnessBarIsOrange(double fraction, int unarchivedEventCount);
// info blue, advice teal, warning orange, urgent red; as #rrggbb.
QString severityColour(Recommendation::Severity severity);

// The whole screen's content for QML.
QVariantMap content(const HealthReport &report);
// The no-report screen: symbolName, title, message.
QVariantMap emptyState();

} // namespace HealthPresenter
