#pragma once

#include "model/Date.h"

#include <QString>
#include <QStringView>
#include <optional>

// The car's folder and clip names, read apart from any folder so that the
// scanner, event.json and the Vault share one reading of them.
namespace ClipNames {

// The captured groups of the folder-name and clip-file-name patterns:
//   ^(\d{4}-\d{2}-\d{2})_(\d{2}-\d{2}-\d{2})$
//   ^(\d{4}-\d{2}-\d{2})_(\d{2}-\d{2}-\d{2})-([a-z_]+)\.mp4$
struct NameGroups {
    QString date;
    QString time;
    QString suffix; // clip names only
};
std::optional<NameGroups> matchFolderName(QStringView name);
std::optional<NameGroups> matchClipFilename(QStringView name);

// The same groups as views into the name, for a listing's hot loop.
struct NameViews {
    QStringView date;
    QStringView time;
    QStringView suffix;
};
std::optional<NameViews> matchClipViews(QStringView name);

// ".DS_Store", "desktop.ini", "Thumbs.db" and "._*" are passed over silently.
bool isIgnoredName(QStringView name);

std::optional<Date> parseTimestamp(QStringView dateGroup, QStringView timeGroup);

} // namespace ClipNames
