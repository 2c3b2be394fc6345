#pragma once

#include "model/Camera.h"
#include "model/TeslaEvent.h"
#include "timeline/Composition.h"

#include <QString>
#include <chrono>
#include <optional>
#include <stop_token>
#include <vector>

// Where each camera's clips stand on the event's one time axis: every clip at
// its start date's distance from the event's earliest clip, so a missing
// minute stays a stretch of nothing. The player and the combined export both
// lay footage out this way, so a moment means the same in both.
namespace EventTimeline {

// A tile's words in English, as sources of the translation (context
// "EventTimeline"); what a person reads is damagedReasonText() and
// noFootageReasonText(), in the loaded language.
inline const QString damagedReason = QString::fromUtf8(
    //: On a camera's tile: its footage is damaged
    QT_TRANSLATE_NOOP("EventTimeline", "This angle didn't record properly \u2014 a known Tesla drive issue."));
inline const QString noFootageReason =
    //: On a camera's tile: the car wrote nothing for this camera at this time
    QString::fromUtf8(QT_TRANSLATE_NOOP("EventTimeline", "No footage this minute."));
QString damagedReasonText();
QString noFootageReasonText();
// The car's encrypted footage with no key held yet.
QString lockedReason();

struct CameraTrack {
    Camera camera;
    std::optional<Composition> composition;   // one track; absent when the camera has nothing to show
    std::optional<QString> placeholderReason; // set exactly when composition is absent
    double contentEnd = 0;                    // where this camera's footage ends on the axis
    // Where clips the scan thought playable start, that turned out damaged
    // when opened (no pictures, or a header its own data contradict).
    std::vector<double> damagedStarts;
    bool locked = false;                      // encrypted footage that waits for its keys
};

// Every camera of the event, in grid order. Reads each usable clip's header
// (length and video) under clipTimeout; a clip that fails costs its own
// place only. Stops early, with what it has, when stop is requested.
std::vector<CameraTrack> build(const TeslaEvent &event, std::chrono::milliseconds clipTimeout, std::stop_token stop);

// A stretch of a camera's footage where nothing plays, and the tile's word for it.
struct Gap {
    double start = 0;
    double end = 0;
    QString reason;
    bool operator==(const Gap &) const = default;
};

// Where, up to the end of its footage, a camera that has a track shows
// nothing: a damaged minute (by its health, or found so when opened) says
// the camera didn't record properly; a
// minute the car never wrote, or one that can't be read yet, says there is
// no footage. Gaps shorter than minGap are the frame-timing seams between
// clips, not gaps.
std::vector<Gap> gaps(const TeslaEvent &event, const CameraTrack &track, double minGap = 1.0);

// Seconds from the start of the axis to the moment the event was triggered,
// when the event knows it and it falls within duration.
std::optional<double> momentOffset(const TeslaEvent &event, double duration);

} // namespace EventTimeline
