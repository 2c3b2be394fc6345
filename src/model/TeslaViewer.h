#pragma once

#include <QString>

// The car maker's web viewer, where encrypted clips can be watched and where
// the owner signs in for the token that unlocks them here; its key service
// answers at the same host.
namespace TeslaViewer {

QString url();  // "https://dashcam.tesla.com"
QString host(); // "dashcam.tesla.com", as it stands in sentences

} // namespace TeslaViewer
