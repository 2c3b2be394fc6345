#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

// Dark or light, following the system where Qt can tell. Qt 6.4 has no
// colour-scheme hint, so the choice comes from, in order: the override
// variable KEELHOLD_COLOR_SCHEME ("dark" or "light"), the platform's own
// hint where Qt has one, a GTK theme named dark, and the lightness of the
// system palette's window colour.
namespace ColorScheme {

enum class Scheme { light, dark };

inline const char *overrideEnv = "KEELHOLD_COLOR_SCHEME";

Scheme decide(const QString &override, const QString &gtkTheme, const QColor &systemWindow);
// The system's answer now (reads the environment and the app palette).
Scheme current();
// Fusion's palette in the chosen scheme.
QPalette palette(Scheme scheme);
// Sets the application palette; call before the QML is loaded.
void apply();

} // namespace ColorScheme
