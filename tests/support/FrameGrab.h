#pragma once

#include <QColor>
#include <QImage>
#include <QString>
#include <optional>

// One decoded picture of a movie, for checking what an export drew.
struct FrameGrab {
    QImage rgb;   // the picture as the viewer sees it
    QImage luma;  // its luma plane, untouched by any conversion
    double time = 0; // seconds, from the movie's first picture

    // The first picture shown at or after `seconds`; nothing past the end.
    static std::optional<FrameGrab> at(const QString &path, double seconds);
    // Mean colour of a square of side `size` centred on (x, y).
    QColor meanColour(int x, int y, int size = 8) const;
    // Mean luma of a rectangle.
    double meanLuma(int x, int y, int width, int height) const;
};
