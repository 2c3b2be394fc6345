#pragma once

#include <QString>

// The car maker's web viewer, the one place where encrypted clips can be
// watched. The program only links to it.
namespace TeslaViewer {

QString url();  // "https://dashcam.tesla.com"
QString host(); // "dashcam.tesla.com", as it stands in sentences

} // namespace TeslaViewer
