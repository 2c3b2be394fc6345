#pragma once

#include "media/AvHandles.h"

#include <QVideoFrame>

struct AVFrame;

// Copies a decoded picture into a QVideoFrame of planar YUV 4:2:0 (the
// GPU converts it to RGB), carrying the colour space and range of the
// decoded frame; without them full-range footage shows reds as orange.
class FrameConverter {
public:
    FrameConverter() = default;
    FrameConverter(const FrameConverter &) = delete;
    FrameConverter &operator=(const FrameConverter &) = delete;

    // startSeconds becomes the frame's start time (in microseconds).
    QVideoFrame convert(const AVFrame *frame, double startSeconds, double durationSeconds);

private:
    Av::Scaler sws_;
};
