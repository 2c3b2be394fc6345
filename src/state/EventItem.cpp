#include "state/EventItem.h"

QDateTime EventItem::timestamp() const
{
    // Milliseconds are all a QDateTime keeps; fine for display.
    static const QDateTime reference(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
    return reference.addMSecs(qint64(event_.timestamp.timeIntervalSinceReferenceDate() * 1000.0)).toLocalTime();
}

QStringList EventItem::cameras() const
{
    QStringList out;
    for (const Camera &c : event_.cameras())
        out.append(c.rawValue());
    return out;
}

QVariantList EventItem::listFor(const std::vector<TeslaEvent> &events)
{
    QVariantList out;
    out.reserve(qsizetype(events.size()));
    for (const TeslaEvent &e : events)
        out.append(QVariant::fromValue(EventItem(e)));
    return out;
}
