#pragma once

#include <QString>

// What a bug report needs to start from: the versions of Keelhold, Qt and
// FFmpeg, the system and desktop, and the newest lines of the log. Holds
// no token and no path under the home folder beyond what the log keeps.
namespace DiagnosticInfo {

inline constexpr int logLines = 40;

QString text();

} // namespace DiagnosticInfo
