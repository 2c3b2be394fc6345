#pragma once

#include "report/ReportMap.h"

#include <QString>
#include <chrono>

// Map tiles over HTTP for a report made off the window's thread: one
// request at a time under a short limit, through the same disk cache as the
// app's map (tiles it has shown cost nothing), with a User-Agent naming the
// application as tile servers ask. The app's map shares the address rules.
namespace TileFetch {

inline const char *defaultTemplate = "https://tile.openstreetmap.org/{z}/{x}/{y}.png";
// The setting that points the maps at another tile server (or a test's).
inline const QString templateKey = QStringLiteral("KHMapTileURLTemplate");

QString url(const QString &urlTemplate, int z, int x, int y);
QString userAgent(const QString &version);
// The app's tile cache, whichever program asks.
QString cacheFolder();

struct Source {
    QString urlTemplate;
    QString userAgent;
    std::chrono::milliseconds budget{6000}; // for all the report's tiles together
};
// After the first tile that can't be had, or once the budget is spent, it
// answers none at once: the map is then drawn plain.
ReportMap::Tiles fetcher(const Source &source);

} // namespace TileFetch
