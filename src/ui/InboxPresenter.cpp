#include "InboxPresenter.h"

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
    return event.timestamp.formatLocal(QStringLiteral("ddd h:mm AP"));
}

QString longDate(const Date &timestamp)
{
    // The screens speak English, so the words are English; the order of day,
    // month and year is the user's.
    return timestamp.formatLocal(QLocale().dateFormat(QLocale::LongFormat));
}

QString longTimestamp(const TeslaEvent &event)
{
    return longDate(event.timestamp) + QStringLiteral(" at ") + event.timestamp.formatLocal(QStringLiteral("h:mm:ss AP"));
}

QString dayHeading(const Date &timestamp, const QDate &today)
{
    const QDate day = timestamp.toLocalDateTime().date();
    if (day == today)
        return QStringLiteral("Today");
    if (day == today.addDays(-1))
        return QStringLiteral("Yesterday");
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
        return *city + QStringLiteral(" · ") + *size;
    if (city)
        return *city;
    if (size)
        return *size;
    if (event.missingEventJSON)
        return QStringLiteral("Details limited — footage intact");
    if (event.encrypted)
        return QCoreApplication::translate("InboxPresenter", "Place and details stay with your car");
    return QStringLiteral(" ");
}

QString textBlockToolTip(const TeslaEvent &event)
{
    if (!event.missingEventJSON)
        return {};
    return QStringLiteral("Your car didn't write a details file for this event, so we don't know the exact reason or "
                          "location — the video itself is intact.");
}

ReasonText reasonText(const TeslaEvent &event)
{
    if (event.encrypted && !event.reasonRaw)
        return {QCoreApplication::translate("InboxPresenter", "Encrypted by your car"),
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
    QString text = reasonText(event).label + QStringLiteral(", ") + longTimestamp(event);
    if (const std::optional<QString> place = event.placeName())
        text += QStringLiteral(", ") + *place;
    return text;
}

QString fallbackSymbol(EventKind kind)
{
    return kind == EventKind::recent ? QStringLiteral("road.lanes") : QStringLiteral("video.fill");
}

Overlay triageOverlay(TriageState state)
{
    switch (state.value()) {
    case TriageState::new_:
        return {QStringLiteral("dot"), {}, QStringLiteral("New — you haven't watched this yet.")};
    case TriageState::kept:
        return {QStringLiteral("kept"), QStringLiteral("checkmark.circle.fill"),
                QStringLiteral("A verified copy is safe in your Vault.")};
    case TriageState::reviewed:
    case TriageState::dismissed:
        break;
    }
    return {};
}

QString corruptionAccessibilityText(int count)
{
    return QString::number(count) + (count == 1 ? QStringLiteral(" damaged clip") : QStringLiteral(" damaged clips"));
}

QString corruptionToolTip(int count)
{
    return QString::number(count) + (count == 1 ? QStringLiteral(" angle") : QStringLiteral(" angles"))
        + QStringLiteral(" from this moment didn't record properly. This is a known Tesla drive issue, not something "
                         "you did.");
}

QString reasonChipAccessibilityLabel(const TeslaEvent &event)
{
    return QCoreApplication::translate("InboxPresenter", "Reason: %1").arg(reasonText(event).label);
}

QString bulkKeepTitle(qsizetype count) { return QStringLiteral("Keep ") + QString::number(count); }
QString bulkDismissTitle(qsizetype count) { return QStringLiteral("Dismiss ") + QString::number(count); }

QString tickSymbol(bool selected)
{
    return selected ? QStringLiteral("checkmark.circle.fill") : QStringLiteral("circle");
}

QString tickToolTip(bool selected)
{
    return selected ? QStringLiteral("Deselect this event") : QStringLiteral("Select this event");
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
    case TriageState::new_:
        return QStringLiteral("New");
    case TriageState::reviewed:
        return QStringLiteral("Reviewed");
    case TriageState::kept:
        return QStringLiteral("In Vault");
    case TriageState::dismissed:
        return QStringLiteral("Dismissed");
    }
    return {};
}

QString kindEntry(EventKind kind)
{
    switch (kind.value()) {
    case EventKind::sentry:
        return QStringLiteral("Sentry");
    case EventKind::saved:
        return QStringLiteral("Saved");
    case EventKind::recent:
        return QStringLiteral("Recent Driving");
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
        parts << QCoreApplication::translate("InboxPresenter", "%1 %2")
                     .arg(burst.camera.displayName(), SyncPlayerController::timeString(burst.start));
    return QCoreApplication::translate("InboxPresenter", "Activity: %1")
        .arg(parts.join(QCoreApplication::translate("InboxPresenter", ", ")));
}

} // namespace InboxPresenter
