#include "model/PlatformWords.h"

namespace PlatformWords {

QString diskUtility() { return QStringLiteral("a disk utility such as Disks"); }
QString computer() { return QStringLiteral("computer"); }

} // namespace PlatformWords
