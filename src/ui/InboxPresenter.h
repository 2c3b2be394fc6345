#pragma once

#include "model/EventKind.h"
#include "model/ReasonCategory.h"
#include "model/TeslaEvent.h"
#include "model/TriageState.h"
#include "moments/EventActivity.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

// The inbox column's rules: what it shows, the rows' texts, the filter menu and tokens.
namespace InboxPresenter {

enum class ColumnContent { failure, scanning, noDrive, emptyDrive, inbox };

// The first that holds wins: a failure stands above everything, even a filled scan.
ColumnContent columnContent(bool hasFailure, bool isScanning, bool hasScan, qsizetype scanEventCount);

// Byte-count text in the desktop's file-size style.
QString byteCount(qint64 bytes);

QString rowTimestamp(const TeslaEvent &event);  // "Mon 2:11 AM"
// With the date, which a report to police or an insurer needs:
// "Monday, 2 June 2025 at 2:11:05 AM" (the date's order by the locale).
QString longTimestamp(const TeslaEvent &event);
// The heading of a day's events: "Today", "Yesterday", else the long date.
QString dayHeading(const Date &timestamp, const QDate &today);
// "Monday, 2 June 2025": English words, in the order the locale writes dates.
QString longDate(const Date &timestamp);
// Never empty: a single space keeps the row's height.
QString secondLine(const TeslaEvent &event, bool showsFileSize);
// Empty when the event's details file was written.
QString textBlockToolTip(const TeslaEvent &event);
QString accessibilityLabel(const TeslaEvent &event);
QString fallbackSymbol(EventKind kind);

struct Overlay {
    QString kind; // "dot", "kept" or "" for nothing
    QString symbolName;
    QString toolTip;
};
Overlay triageOverlay(TriageState state);

// The reason a row shows: the car's own words, or for encrypted footage,
// whose event.json only the car can read, that it is encrypted.
struct ReasonText {
    QString label;
    QString shortLabel;
    QString symbolName;
    QString blurb;
};
ReasonText reasonText(const TeslaEvent &event);

// The lock beside encrypted footage; lockState is "locked", "unlocked" or "" (no mark).
struct LockMark {
    QString symbolName;
    QString toolTip;
};
LockMark lockMark(const QString &lockState);
// "Activity: Left Side 2:14, Rear 6:40": where to look, by camera and
// time; empty when nothing happened or it isn't known yet.
QString activityLine(const std::vector<ActivityBurst> &highlights);

QString corruptionAccessibilityText(int count);
QString corruptionToolTip(int count);
QString reasonChipAccessibilityLabel(const TeslaEvent &event);

QString bulkKeepTitle(qsizetype count);
QString bulkDismissTitle(qsizetype count);
QString tickSymbol(bool selected);
QString tickToolTip(bool selected);

int activeFilterCount(const std::optional<TriageState> &state, const std::optional<ReasonCategory> &reason,
                      const std::optional<EventKind> &kind);
QString filterMenuSymbol(int activeCount);

QString statusEntry(TriageState state);
QString kindEntry(EventKind kind);

struct Token {
    QString filter; // "state", "reason" or "kind": which one the token's button clears
    QString label;
};
// Status, reason, kind, in that order; only those that are set.
std::vector<Token> filterTokens(const std::optional<TriageState> &state, const std::optional<ReasonCategory> &reason,
                                const std::optional<EventKind> &kind);

// The banner's list follows the filters: it is cut from the visible events.
std::vector<TeslaEvent> recentDriving(const std::vector<TeslaEvent> &visibleEvents);

} // namespace InboxPresenter
