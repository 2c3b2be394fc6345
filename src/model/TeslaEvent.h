#pragma once

#include "model/Camera.h"
#include "model/ClipRef.h"
#include "model/Date.h"
#include "model/EventKind.h"
#include "model/PlainReason.h"

#include <QJsonObject>
#include <QString>
#include <optional>
#include <set>
#include <vector>

// One event: a Sentry or saved folder, or one stretch of recent driving.
struct TeslaEvent {
    EventKind kind = EventKind::sentry;
    QString folderURL;
    QString folderName;
    Date timestamp;
    std::optional<QString> city;
    std::optional<double> latitude;
    std::optional<double> longitude;
    std::optional<QString> reasonRaw;
    PlainReason reason;
    std::optional<QString> triggerCameraRaw;
    std::vector<ClipRef> clips;
    std::optional<QString> thumbURL;
    bool missingEventJSON = true;
    // Newer cars name the street in event.json; shown with the city.
    std::optional<QString> street;
    // Recorded with the car's encryption on (under EncryptedClips): the
    // clips play only with their keys, and event.json can't be read here.
    bool encrypted = false;

    // The one identity of an event: "sentry|2026-07-21_02-11-05".
    QString id() const { return kind.rawValue() + QLatin1Char('|') + folderName; }
    qint64 totalBytes() const;
    // "Street, City", either alone, or nothing: where the car says it was.
    std::optional<QString> placeName() const;
    int corruptClipCount() const;
    // Distinct cameras, in grid order.
    std::vector<Camera> cameras() const;
    std::optional<Date> earliestClipDate() const;
    std::optional<Date> latestClipDate() const;
    // Minute-granular length from the file names; never reads clip durations.
    double approximateDuration() const;
    // Where a clip's first frame stands on the event's shared time axis: its
    // start after the earliest clip of any camera, never below 0.
    double timelineOffset(const ClipRef &clip) const;

    bool operator==(const TeslaEvent &) const = default;

    QJsonObject toJson() const;
    static TeslaEvent fromJson(const QJsonValue &value);
};

size_t qHash(const TeslaEvent &e, size_t seed = 0) noexcept;

// Event order: timestamp descending (newest first), stable.
namespace EventOrder {
void sortNewestFirst(std::vector<TeslaEvent> &events);
} // namespace EventOrder
