#pragma once

#include "export/CombinedLayout.h"
#include "model/TelemetryRecord.h"

#include <QColor>
#include <QString>
#include <optional>
#include <vector>

struct AVFrame;

// The car's driving data on a combined movie: a small panel in the bottom
// right corner of the largest cell, clear of the time (top left), the
// reason (top right) and the cameras' names (each cell's bottom left). Its words are drawn by
// libavfilter's drawtext from each frame's metadata, so one filter graph
// serves every frame; the box, the brake lamp and the accelerator's bar are
// painted straight onto the picture, under the words.
class DrivingDataPanel {
public:
    // What the panel shows of one record, worded as the player's overlay words it.
    struct Reading {
        QString speed;
        QString unit;
        TelemetryRecord::Gear gear = TelemetryRecord::Gear::park;
        bool brake = false;
        double pedal = 0; // the accelerator's travel, 0 to 1
        QString pedalText;
        bool blinkerLeft = false;
        bool blinkerRight = false;
        QString steering;
        QString assistance; // empty while none is engaged
        QColor assistanceColour;
        bool operator==(const Reading &) const = default;
    };

    // One run of words: drawtext's text and colour, both taken from the
    // frame's metadata, and where it goes on the canvas.
    struct Words {
        QString key;    // after metadataPrefix: "<key>" holds the words, "<key>.colour" their colour
        QString x;      // drawtext expressions
        QString y;
        int size = 0;
        bool bold = false;
    };

    struct Area {
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
    };

    static constexpr const char *metadataPrefix = "keelhold.panel.";

    explicit DrivingDataPanel(const CombinedLayout &layout);

    static Reading read(const TelemetryRecord &record, bool miles);

    Area area() const { return area_; }
    const std::vector<Words> &words() const { return words_; }

    // The reading's words and colours into the canvas's metadata; without
    // one every run of words is empty, so nothing is drawn.
    void label(AVFrame *canvas, const std::optional<Reading> &reading) const;
    // The box, lamp and bar on a limited-range planar 4:2:0 canvas.
    void paint(AVFrame *canvas, const Reading &reading) const;

private:
    Area area_;
    int unit_ = 0;        // the label size the rest is measured in
    Area lamp_;           // relative to the canvas
    Area bar_;
    std::vector<Words> words_;
};
