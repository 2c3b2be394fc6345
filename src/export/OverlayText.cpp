#include "export/OverlayText.h"

#include <QCoreApplication>
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
    if (event.kind == EventKind::recent)
        parts << event.reason.label();
    else
        //: Drawn over an exported movie: %1 is the kind of event (Sentry, Saved), %2 why the car kept it
        parts << QCoreApplication::translate("OverlayText", "%1: %2")
                     .arg(event.kind.displayName(), event.reason.label());
    if (const std::optional<QString> place = event.placeName())
        parts << *place;
    if (event.latitude && event.longitude)
        parts << QString::asprintf("%.4f, %.4f", *event.latitude, *event.longitude);
    return parts.join(QStringLiteral(" \u00b7 "));
}

QString noFootage(Camera camera)
{
    //: Drawn in a camera's cell of an exported movie: %1 is the camera's name
    return QCoreApplication::translate("OverlayText", "%1 \u2014 no footage").arg(camera.displayName());
}

} // namespace OverlayText
