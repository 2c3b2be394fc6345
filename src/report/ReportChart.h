#pragma once

#include "report/ReportContent.h"

#include <QCoreApplication>
#include <QRectF>

class QPainter;

// The driving data around the moment, drawn as vectors so it stays sharp
// on paper: speed over the driver-assistance state, the brake, the
// accelerator, the steering and the acceleration, on one time axis.
class ReportChart {
    Q_DECLARE_TR_FUNCTIONS(ReportChart)

public:
    // The speed line's colour; the moment's line is drawn in its own.
    static inline const QColor speedColour{0x15, 0x65, 0xC0};
    static inline const QColor momentColour{0xE6, 0x51, 0x00};

    // from: the first second shown, from the moment (or the start).
    static void paint(QPainter &painter, const QRectF &area, const std::vector<ReportContent::Reading> &readings,
                      bool miles, double from, bool atMoment);
    // The height the chart wants at a width, in the same units.
    static double heightFor(double width) { return width * 0.62; }
    // The top of the speed panel's scale, in the unit shown: the next round
    // number above the fastest reading.
    static int speedCeiling(const std::vector<ReportContent::Reading> &readings, bool miles);
};
