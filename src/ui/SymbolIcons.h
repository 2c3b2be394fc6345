#pragma once

#include <QString>
#include <QStringList>

// The one table from the symbol names used across the app ("lock.shield",
// "externaldrive.fill", …) to icons of the Adwaita symbolic set. A name with
// no entry, or an icon file that is missing, gives a neutral bundled icon,
// never nothing.
namespace SymbolIcons {

// A URL string for QML's Image/IconImage: file:// for a theme icon, qrc: for
// the bundled neutral one.
QString iconUrl(const QString &symbolName);
// The theme icon's relative name ("devices/drive-harddisk-usb"), empty when
// the symbol has no entry.
QString themeIconName(const QString &symbolName);
QString neutralIconUrl();
// Where the Adwaita scalable icons are looked for.
QString themeRoot();
// Every symbol the table knows.
QStringList symbolNames();

} // namespace SymbolIcons
