#include "ColorScheme.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace ColorScheme {

Scheme decide(const QString &override, const QString &gtkTheme, const QColor &systemWindow)
{
    const QString o = override.trimmed().toLower();
    if (o == QLatin1String("dark"))
        return Scheme::dark;
    if (o == QLatin1String("light"))
        return Scheme::light;
    const QString theme = gtkTheme.trimmed().toLower();
    if (theme.endsWith(QLatin1String(":dark")) || theme.endsWith(QLatin1String("-dark")))
        return Scheme::dark;
    if (systemWindow.isValid() && systemWindow.lightness() < 128)
        return Scheme::dark;
    return Scheme::light;
}

Scheme current()
{
    const QString override = qEnvironmentVariable(overrideEnv);
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    if (override.isEmpty()) {
        switch (QGuiApplication::styleHints()->colorScheme()) {
        case Qt::ColorScheme::Dark: return Scheme::dark;
        case Qt::ColorScheme::Light: return Scheme::light;
        default: break;
        }
    }
#endif
    return decide(override, qEnvironmentVariable("GTK_THEME"), QGuiApplication::palette().color(QPalette::Window));
}

QPalette palette(Scheme scheme)
{
    if (scheme == Scheme::light) {
        QPalette p(QColor(0xfb, 0xfb, 0xfc), QColor(0xf6, 0xf6, 0xf7));
        p.setColor(QPalette::Window, QColor(0xf6, 0xf6, 0xf7));
        p.setColor(QPalette::WindowText, QColor(0x1d, 0x1d, 0x1f));
        p.setColor(QPalette::Base, Qt::white);
        p.setColor(QPalette::AlternateBase, QColor(0xee, 0xee, 0xf0));
        p.setColor(QPalette::Text, QColor(0x1d, 0x1d, 0x1f));
        p.setColor(QPalette::Button, QColor(0xfb, 0xfb, 0xfc));
        p.setColor(QPalette::ButtonText, QColor(0x1d, 0x1d, 0x1f));
        p.setColor(QPalette::Mid, QColor(0xd2, 0xd2, 0xd7));
        p.setColor(QPalette::Midlight, QColor(0xe8, 0xe8, 0xed));
        p.setColor(QPalette::Highlight, QColor(0x0a, 0x84, 0xff));
        p.setColor(QPalette::HighlightedText, Qt::white);
        p.setColor(QPalette::ToolTipBase, QColor(0xff, 0xff, 0xf0));
        p.setColor(QPalette::ToolTipText, QColor(0x1d, 0x1d, 0x1f));
        p.setColor(QPalette::PlaceholderText, QColor(0x86, 0x86, 0x8b));
        return p;
    }
    QPalette p(QColor(0x3a, 0x3a, 0x3d), QColor(0x1e, 0x1e, 0x20));
    p.setColor(QPalette::Window, QColor(0x1e, 0x1e, 0x20));
    p.setColor(QPalette::WindowText, QColor(0xf2, 0xf2, 0xf4));
    p.setColor(QPalette::Base, QColor(0x2a, 0x2a, 0x2d));
    p.setColor(QPalette::AlternateBase, QColor(0x25, 0x25, 0x28));
    p.setColor(QPalette::Text, QColor(0xf2, 0xf2, 0xf4));
    p.setColor(QPalette::Button, QColor(0x3a, 0x3a, 0x3d));
    p.setColor(QPalette::ButtonText, QColor(0xf2, 0xf2, 0xf4));
    p.setColor(QPalette::Mid, QColor(0x48, 0x48, 0x4c));
    p.setColor(QPalette::Midlight, QColor(0x3a, 0x3a, 0x3e));
    p.setColor(QPalette::Dark, QColor(0x14, 0x14, 0x16));
    p.setColor(QPalette::Light, QColor(0x55, 0x55, 0x5a));
    p.setColor(QPalette::Highlight, QColor(0x0a, 0x84, 0xff));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::ToolTipBase, QColor(0x2a, 0x2a, 0x2d));
    p.setColor(QPalette::ToolTipText, QColor(0xf2, 0xf2, 0xf4));
    p.setColor(QPalette::PlaceholderText, QColor(0x8e, 0x8e, 0x93));
    p.setColor(QPalette::Disabled, QPalette::Text, QColor(0x76, 0x76, 0x7a));
    p.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x76, 0x76, 0x7a));
    p.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x76, 0x76, 0x7a));
    return p;
}

void apply()
{
    QGuiApplication::setPalette(palette(current()));
}

} // namespace ColorScheme
