#include "export/OverlayText.h"

#include <QStringList>

namespace OverlayText {

QString frameTime(Date moment, const QLocale &locale)
{
    return moment.formatCarClock(locale, locale.dateFormat(QLocale::ShortFormat) + QLatin1Char(' ')
                                             + locale.timeFormat(QLocale::LongFormat));
}

QString reasonLine(const TeslaEvent &event)
{
    QStringList parts;
    // Recent driving is its own reason; the kind would only repeat it.
    parts << (event.kind == EventKind::recent ? event.reason.label()
                                                 : event.kind.displayName() + QStringLiteral(": ") + event.reason.label());
    if (const std::optional<QString> place = event.placeName())
        parts << *place;
    if (event.latitude && event.longitude)
        parts << QString::asprintf("%.4f, %.4f", *event.latitude, *event.longitude);
    return parts.join(QStringLiteral(" \u00b7 "));
}

QString noFootage(Camera camera)
{
    return camera.displayName() + QStringLiteral(" \u2014 no footage");
}

} // namespace OverlayText
