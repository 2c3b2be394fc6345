#include "InboxPresenter.h"

#include "base/Translations.h"

#include "playback/SyncPlayerController.h"

#include <QCoreApplication>

#include <QLocale>

namespace InboxPresenter {

ColumnContent columnContent(bool hasFailure, bool isScanning, bool hasScan, qsizetype scanEventCount)
{
    if (hasFailure)
        return ColumnContent::failure;
    if (isScanning)
        return ColumnContent::scanning;
    if (!hasScan)
        return ColumnContent::noDrive;
    // The scan's own events decide, not the filtered list: a filter that hides everything is an empty list.
    if (scanEventCount == 0)
        return ColumnContent::emptyDrive;
    return ColumnContent::inbox;
}

QString byteCount(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

QString rowTimestamp(const TeslaEvent &event)
{
    return event.timestamp.formatForPeople(QStringLiteral("ddd h:mm AP"), Date::Shown::weekdayAndTime);
}

QString longDate(const Date &timestamp)
{
    // In English the words are English and the order of day, month and
    // year the user's; in another language all of it the locale's.
    if (Translations::current() != QLatin1String("en"))
        return QLocale().toString(timestamp.toLocalDateTime().date(), QLocale::LongFormat);
    return timestamp.formatLocal(QLocale().dateFormat(QLocale::LongFormat));
}

QString longTimestamp(const TeslaEvent &event)
{
    //: %1 is the long date, %2 the time: "Monday, 2 June 2025 at 2:11:05 AM"
    return QCoreApplication::translate("InboxPresenter", "%1 at %2")
        .arg(longDate(event.timestamp), event.timestamp.formatForPeople(QStringLiteral("h:mm:ss AP"), Date::Shown::timeWithSeconds));
}

QString dayHeading(const Date &timestamp, const QDate &today)
{
    const QDate day = timestamp.toLocalDateTime().date();
    if (day == today)
        //: Heading over the events of today
        return QCoreApplication::translate("InboxPresenter", "Today");
    if (day == today.addDays(-1))
        //: Heading over the events of yesterday
        return QCoreApplication::translate("InboxPresenter", "Yesterday");
    return longDate(timestamp);
}

QString secondLine(const TeslaEvent &event, bool showsFileSize)
{
    std::optional<QString> size;
    if (showsFileSize) {
        const qint64 total = event.totalBytes();
        if (total > 0)
            size = byteCount(total);
    }
    const std::optional<QString> city = event.placeName();
    if (city && size)
        //: A row's second line: the place, then the event's size on disk
        return QCoreApplication::translate("InboxPresenter", "%1 · %2").arg(*city, *size);
    if (city)
        return *city;
    if (size)
        return *size;
    if (event.missingEventJSON)
        return QCoreApplication::translate("InboxPresenter", "Details limited — footage intact");
    if (event.encrypted)
        return QCoreApplication::translate("InboxPresenter", "Place and details stay with your car");
    return QStringLiteral(" ");
}

QString textBlockToolTip(const TeslaEvent &event)
{
    if (!event.missingEventJSON)
        return {};
    return QCoreApplication::translate("InboxPresenter",
                                       "Your car didn't write a details file for this event, so we don't know the "
                                       "exact reason or location — the video itself is intact.");
}

ReasonText reasonText(const TeslaEvent &event)
{
    if (event.encrypted && !event.reasonRaw)
        return {QCoreApplication::translate("InboxPresenter", "Encrypted by your car"),
                //: Short reason on a row's chip: the footage is encrypted
                QCoreApplication::translate("InboxPresenter", "Encrypted"), QStringLiteral("lock.doc"),
                QCoreApplication::translate("InboxPresenter",
                                            "Your car encrypted this recording, and its reason and place with it. "
                                            "Keelhold keeps it byte for byte; unlock it with your Tesla account to "
                                            "watch it here.")};
    return {event.reason.label(), event.reason.shortLabel(), event.reason.symbolName(), event.reason.blurb()};
}

LockMark lockMark(const QString &lockState)
{
    if (lockState == QLatin1String("locked"))
        return {QStringLiteral("lock.fill"),
                QCoreApplication::translate("InboxPresenter", "Locked — unlock it with your Tesla account to watch it here.")};
    if (lockState == QLatin1String("unlocked"))
        return {QStringLiteral("lock.open.fill"),
                QCoreApplication::translate("InboxPresenter",
                                            "Unlocked — its keys are kept on this computer, so it plays here even "
                                            "offline.")};
    return {};
}

QString accessibilityLabel(const TeslaEvent &event)
{
    // Read aloud by a screen reader: the reason, when, and where if known.
    if (const std::optional<QString> place = event.placeName())
        //: Screen reader name of a row: reason, date and time, place
        return QCoreApplication::translate("InboxPresenter", "%1, %2, %3")
            .arg(reasonText(event).label, longTimestamp(event), *place);
    //: Screen reader name of a row: reason, date and time
    return QCoreApplication::translate("InboxPresenter", "%1, %2").arg(reasonText(event).label, longTimestamp(event));
}

QString fallbackSymbol(EventKind kind)
{
    return kind == EventKind::recent ? QStringLiteral("road.lanes") : QStringLiteral("video.fill");
}

Overlay triageOverlay(TriageState state)
{
    switch (state.value()) {
    case TriageState::new_:
        return {QStringLiteral("dot"), {},
                QCoreApplication::translate("InboxPresenter", "New — you haven't watched this yet.")};
    case TriageState::kept:
        return {QStringLiteral("kept"), QStringLiteral("checkmark.circle.fill"),
                QCoreApplication::translate("InboxPresenter", "A verified copy is safe in your Vault.")};
    case TriageState::reviewed:
    case TriageState::dismissed:
        break;
    }
    return {};
}

QString corruptionAccessibilityText(int count)
{
    return QCoreApplication::translate("InboxPresenter", "%n damaged clips", nullptr, count);
}

QString corruptionToolTip(int count)
{
    //: Camera angles, one per camera, whose clips are damaged
    return QCoreApplication::translate("InboxPresenter",
                                       "%n angles from this moment didn't record properly. This is a known Tesla drive "
                                       "issue, not something you did.",
                                       nullptr, count);
}

QString reasonChipAccessibilityLabel(const TeslaEvent &event)
{
    //: Screen reader name of a row's reason chip; %1 is the car's reason
    return QCoreApplication::translate("InboxPresenter", "Reason: %1").arg(reasonText(event).label);
}

QString bulkKeepTitle(qsizetype count)
{
    //: Button that keeps the ticked events in the Vault; %n is how many
    return QCoreApplication::translate("InboxPresenter", "Keep %n", nullptr, int(count));
}

QString bulkDismissTitle(qsizetype count)
{
    //: Button that hides the ticked events from the list; %n is how many
    return QCoreApplication::translate("InboxPresenter", "Dismiss %n", nullptr, int(count));
}

QString tickSymbol(bool selected)
{
    return selected ? QStringLiteral("checkmark.circle.fill") : QStringLiteral("circle");
}

QString tickToolTip(bool selected)
{
    return selected ? QCoreApplication::translate("InboxPresenter", "Deselect this event")
                    : QCoreApplication::translate("InboxPresenter", "Select this event");
}

int activeFilterCount(const std::optional<TriageState> &state, const std::optional<ReasonCategory> &reason,
                      const std::optional<EventKind> &kind)
{
    return int(state.has_value()) + int(reason.has_value()) + int(kind.has_value());
}

QString filterMenuSymbol(int activeCount)
{
    return activeCount > 0 ? QStringLiteral("line.3.horizontal.decrease.circle.fill")
                           : QStringLiteral("line.3.horizontal.decrease.circle");
}

QString statusEntry(TriageState state)
{
    switch (state.value()) {
    //: Status filter: events not watched yet
    case TriageState::new_:
        return QCoreApplication::translate("InboxPresenter", "New");
    //: Status filter: events already watched
    case TriageState::reviewed:
        return QCoreApplication::translate("InboxPresenter", "Reviewed");
    //: Status filter: events kept in the Vault
    case TriageState::kept:
        return QCoreApplication::translate("InboxPresenter", "In Vault");
    //: Status filter: events hidden from the list
    case TriageState::dismissed:
        return QCoreApplication::translate("InboxPresenter", "Dismissed");
    }
    return {};
}

QString kindEntry(EventKind kind)
{
    switch (kind.value()) {
    //: Kind filter: Sentry Mode events
    case EventKind::sentry:
        return QCoreApplication::translate("InboxPresenter", "Sentry");
    //: Kind filter: clips the driver saved
    case EventKind::saved:
        return QCoreApplication::translate("InboxPresenter", "Saved");
    //: Kind filter: the car's rolling recording of recent driving
    case EventKind::recent:
        return QCoreApplication::translate("InboxPresenter", "Recent Driving");
    }
    return {};
}

std::vector<Token> filterTokens(const std::optional<TriageState> &state, const std::optional<ReasonCategory> &reason,
                                const std::optional<EventKind> &kind)
{
    std::vector<Token> tokens;
    if (state)
        tokens.push_back({QStringLiteral("state"), statusEntry(*state)});
    if (reason)
        tokens.push_back({QStringLiteral("reason"), PlainReason{*reason, {}, {}}.shortLabel()});
    if (kind)
        tokens.push_back({QStringLiteral("kind"), kindEntry(*kind)});
    return tokens;
}

std::vector<TeslaEvent> recentDriving(const std::vector<TeslaEvent> &visibleEvents)
{
    std::vector<TeslaEvent> recent;
    for (const TeslaEvent &e : visibleEvents)
        if (e.kind == EventKind::recent)
            recent.push_back(e);
    return recent;
}

QString activityLine(const std::vector<ActivityBurst> &highlights)
{
    if (highlights.empty())
        return {};
    QStringList parts;
    for (const ActivityBurst &burst : highlights)
        //: One place in the Activity line: camera name, then time into the event ("Left Side 2:14")
        parts << QCoreApplication::translate("InboxPresenter", "%1 %2")
                     .arg(burst.camera.displayName(), SyncPlayerController::timeString(burst.start));
    //: Between the places in the Activity line
    const QString separator = QCoreApplication::translate("InboxPresenter", ", ");
    return QCoreApplication::translate("InboxPresenter", "Activity: %1").arg(parts.join(separator));
}

} // namespace InboxPresenter
