#include "model/TeslaViewer.h"

namespace TeslaViewer {

QString url() { return QStringLiteral("https://dashcam.tesla.com"); }
QString host() { return QStringLiteral("dashcam.tesla.com"); }

} // namespace TeslaViewer
