#pragma once

#include "model/Camera.h"
#include "model/TeslaEvent.h"

#include <QString>
#include <QStringView>
#include <optional>
#include <utility>

// What one combined movie of an event shows and how it is written.
struct CombinedExportOptions {
    enum class Layout {
        grid,          // every camera, arranged like the player's grid
        frontAndSides, // the front large on top, the others in a row below
        single,        // one camera, re-encoded so the overlay can go on it
    };
    enum class Size { p720, p1080, full };
    enum class Encoder {
        automatic, // the graphics hardware's H.264 encoder when it works, else x264
        software,  // x264 always
    };

    // Each part of the drawing over the pictures, switched on its own.
    struct Overlay {
        bool time = true;       // the date and time of each frame
        bool names = true;      // each camera's name in its corner
        bool reason = true;     // why the car saved it, and where
        bool telemetry = false; // the car's driving data, where its clips carry it

        bool any() const { return time || names || reason || telemetry; }
        bool operator==(const Overlay &) const = default;
    };

    Layout layout = Layout::grid;
    std::optional<Camera> camera; // the single layout's camera; the first of the event's when absent
    Overlay overlay;
    Size size = Size::p1080;
    // Seconds on the event's axis (the player's timeline), clamped to it;
    // the whole event when absent.
    std::optional<std::pair<double, double>> range;
    // A row of black and white blocks beside the time that a program can
    // read back: the milliseconds of the shown time past the event's start.
    bool timeMarker = false;
    // The driving data's speeds in mph rather than km/h; as the locale
    // measures when absent.
    std::optional<bool> speedInMiles;
    Encoder encoder = Encoder::automatic;
    // The VAAPI render node to try; empty for the first one.
    QString hardwareDevice;

    static std::optional<Layout> layoutFromWord(QStringView word); // "grid", "front-sides", "single"
    static QString word(Layout layout);
    static std::optional<Size> sizeFromWord(QStringView word); // "720", "1080", "full"
    // "time,names,reason,telemetry" in any order and subset, or "none".
    static std::optional<Overlay> overlayFromWords(QStringView words);

    // "From the moment": ten seconds before the event's trigger to twenty
    // after, within an axis of the given length. Nothing when the event
    // doesn't know its moment.
    static std::optional<std::pair<double, double>> momentRange(const TeslaEvent &event, double duration);
    static constexpr double secondsBeforeMoment = 10.0;
    static constexpr double secondsAfterMoment = 20.0;
};
