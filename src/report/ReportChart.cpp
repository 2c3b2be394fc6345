#include "ReportChart.h"

#include "model/DrivingDataText.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <functional>

namespace {

const QColor frameColour(0x9E, 0x9E, 0x9E);
const QColor textColour(0x42, 0x42, 0x42);
const QColor brakeColour(0xC6, 0x28, 0x28);

struct Panel {
    QRectF plot;
    double low = 0;
    double high = 1;
    double y(double value) const { return plot.bottom() - (value - low) / (high - low) * plot.height(); }
};

// time: seconds from the chart's first.
double xAt(const QRectF &plot, double time)
{
    return plot.left() + time / ReportContent::chartSeconds * plot.width();
}

void drawFrame(QPainter &p, const Panel &panel, const QString &title, const QString &lowText, const QString &highText,
               double unit)
{
    p.setPen(QPen(frameColour, unit * 0.6));
    p.setBrush(Qt::NoBrush);
    p.drawRect(panel.plot);
    p.setPen(textColour);
    const QRectF label(panel.plot.left() - unit * 60, panel.plot.top(), unit * 56, panel.plot.height());
    p.drawText(label, Qt::AlignRight | Qt::AlignVCenter | Qt::TextWordWrap, title);
    QFont small = p.font();
    small.setPixelSize(std::max(1, int(p.font().pixelSize() * 0.8)));
    p.save();
    p.setFont(small);
    p.drawText(QRectF(panel.plot.right() + unit * 2, panel.plot.top() - unit * 4, unit * 30, unit * 8),
               Qt::AlignLeft | Qt::AlignVCenter, highText);
    p.drawText(QRectF(panel.plot.right() + unit * 2, panel.plot.bottom() - unit * 4, unit * 30, unit * 8),
               Qt::AlignLeft | Qt::AlignVCenter, lowText);
    p.restore();
}

void drawLine(QPainter &p, const Panel &panel, const std::vector<ReportContent::Reading> &readings,
              const std::function<double(const TelemetryRecord &)> &value, const QColor &colour, double width)
{
    QPainterPath path;
    bool started = false;
    double lastTime = 0;
    for (const auto &r : readings) {
        const QPointF point(xAt(panel.plot, r.time), panel.y(std::clamp(value(r.record), panel.low, panel.high)));
        // A gap of over a second in the records is a gap in the line.
        if (!started || r.time - lastTime > 1.0)
            path.moveTo(point);
        else
            path.lineTo(point);
        started = true;
        lastTime = r.time;
    }
    p.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
}

// Fills the stretches where a reading holds, each to the next reading.
void shade(QPainter &p, const QRectF &band, const std::vector<ReportContent::Reading> &readings,
           const std::function<std::optional<QColor>(const TelemetryRecord &)> &colourOf)
{
    for (size_t i = 0; i < readings.size(); ++i) {
        const auto colour = colourOf(readings[i].record);
        if (!colour)
            continue;
        const double end = i + 1 < readings.size() ? std::min(readings[i + 1].time, readings[i].time + 1.0)
                                                    : readings[i].time + 1.0 / 30;
        const double left = xAt(band, readings[i].time);
        const double right = std::min(xAt(band, end), band.right());
        p.fillRect(QRectF(left, band.top(), std::max(0.0, right - left), band.height()), *colour);
    }
}

} // namespace

int ReportChart::speedCeiling(const std::vector<ReportContent::Reading> &readings, bool miles)
{
    int fastest = 0;
    for (const auto &r : readings)
        fastest = std::max(fastest, DrivingDataText::speed(r.record.speed, miles));
    const int step = 20;
    return std::max(step, (fastest / step + 1) * step);
}

void ReportChart::paint(QPainter &p, const QRectF &area, const std::vector<ReportContent::Reading> &fromMoment,
                        bool miles, double from, bool atMoment)
{
    // Drawn in seconds from the chart's first.
    std::vector<ReportContent::Reading> readings = fromMoment;
    for (auto &r : readings)
        r.time -= from;
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    // Everything is measured in hundredths of the width, whatever the device.
    const double unit = area.width() / 500.0;
    QFont font = p.font();
    font.setPixelSize(std::max(1, int(unit * 7)));
    p.setFont(font);

    const QRectF plots(area.left() + unit * 64, area.top() + unit * 6, area.width() - unit * 98,
                       area.height() - unit * 30);
    const double gap = unit * 6;
    // Speed takes the most room; the other three share the rest.
    const double speedHeight = plots.height() * 0.4;
    const double otherHeight = (plots.height() - speedHeight - 3 * gap) / 3;
    const auto panelAt = [&](double top, double height, double low, double high) {
        return Panel{QRectF(plots.left(), top, plots.width(), height), low, high};
    };
    const int ceiling = speedCeiling(readings, miles);
    const Panel speed = panelAt(plots.top(), speedHeight, 0, ceiling);
    const Panel pedal = panelAt(speed.plot.bottom() + gap, otherHeight, 0, 100);
    double steer = 45;
    double accel = 5;
    for (const auto &r : readings) {
        steer = std::max(steer, std::abs(double(r.record.steeringAngle)));
        accel = std::max({accel, std::abs(r.record.accelerationX), std::abs(r.record.accelerationY)});
    }
    steer = std::ceil(steer / 45) * 45;
    accel = std::ceil(accel / 5) * 5;
    const Panel steering = panelAt(pedal.plot.bottom() + gap, otherHeight, -steer, steer);
    const Panel acceleration = panelAt(steering.plot.bottom() + gap, otherHeight, -accel, accel);

    // Driver assistance under the speed, the brake as a band along its foot.
    shade(p, speed.plot, readings, [](const TelemetryRecord &r) -> std::optional<QColor> {
        if (r.autopilot == TelemetryRecord::AutopilotState::none)
            return std::nullopt;
        QColor c = DrivingDataText::assistanceColour(r.autopilot);
        c.setAlphaF(0.18);
        return c;
    });
    const QRectF brakeBand(speed.plot.left(), speed.plot.bottom() - unit * 5, speed.plot.width(), unit * 5);
    shade(p, brakeBand, readings, [](const TelemetryRecord &r) -> std::optional<QColor> {
        return r.brakeApplied ? std::optional<QColor>(brakeColour) : std::nullopt;
    });

    const QString unitName = DrivingDataText::speedUnit(miles);
    //: Title of the chart's speed panel; %1 is the unit, km/h or mph
    drawFrame(p, speed, tr("Speed (%1)").arg(unitName), QStringLiteral("0"), QString::number(ceiling), unit);
    //: Title of the chart's accelerator pedal panel, in percent pressed
    drawFrame(p, pedal, tr("Accelerator (%)"), QStringLiteral("0"), QStringLiteral("100"), unit);
    //: Title of the chart's steering wheel panel, in degrees
    drawFrame(p, steering, tr("Steering (°)"), QString::number(-steer), QString::number(steer), unit);
    //: Title of the chart's acceleration panel
    drawFrame(p, acceleration, tr("Acceleration (m/s²)"), QString::number(-accel), QString::number(accel), unit);
    for (const Panel *panel : {&steering, &acceleration}) {
        p.setPen(QPen(frameColour, unit * 0.3, Qt::DotLine));
        p.drawLine(QPointF(panel->plot.left(), panel->y(0)), QPointF(panel->plot.right(), panel->y(0)));
    }

    drawLine(p, pedal, readings, [](const TelemetryRecord &r) { return DrivingDataText::pedalFraction(r.acceleratorPedal) * 100; },
             QColor(0x2E, 0x7D, 0x32), unit * 1.2);
    drawLine(p, steering, readings, [](const TelemetryRecord &r) { return double(r.steeringAngle); },
             QColor(0x6A, 0x1B, 0x9A), unit * 1.2);
    drawLine(p, acceleration, readings, [](const TelemetryRecord &r) { return r.accelerationX; },
             QColor(0x00, 0x83, 0x8F), unit * 1.0);
    drawLine(p, acceleration, readings, [](const TelemetryRecord &r) { return r.accelerationY; },
             QColor(0xAD, 0x14, 0x57), unit * 1.0);
    drawLine(p, speed, readings, [miles](const TelemetryRecord &r) { return double(DrivingDataText::speed(r.speed, miles)); },
             speedColour, unit * 1.6);

    // The moment, across every panel, and the time axis under them.
    if (atMoment) {
        p.setPen(QPen(momentColour, unit * 0.8));
        p.drawLine(QPointF(xAt(plots, -from), plots.top()), QPointF(xAt(plots, -from), acceleration.plot.bottom()));
    }
    p.setPen(textColour);
    for (int t = int(from); t <= int(from + ReportContent::chartSeconds); t += 5) {
        //: On the chart's time axis, under the moment the car triggered the recording
        const QString text = t == 0 ? (atMoment ? tr("moment")
                                                //: On the chart's time axis, under the start of a recording with no trigger
                                                : tr("start"))
                                    //: On the chart's time axis: %1 is seconds from the moment, signed (+5, -5)
                                    : tr("%1 s").arg(t > 0 ? QStringLiteral("+%1").arg(t) : QString::number(t));
        p.drawText(QRectF(xAt(plots, t - from) - unit * 20, acceleration.plot.bottom() + unit * 2, unit * 40, unit * 9),
                   Qt::AlignHCenter | Qt::AlignTop, text);
    }
    // What the colours mean.
    QFont small = p.font();
    small.setPixelSize(std::max(1, int(unit * 6)));
    p.setFont(small);
    const double legendTop = acceleration.plot.bottom() + unit * 12;
    double x = plots.left();
    const auto key = [&](const QColor &colour, const QString &text) {
        p.fillRect(QRectF(x, legendTop + unit * 2, unit * 8, unit * 4), colour);
        x += unit * 10;
        const double w = QFontMetricsF(p.font()).horizontalAdvance(text) + unit * 8;
        p.setPen(textColour);
        p.drawText(QRectF(x, legendTop, w, unit * 8), Qt::AlignLeft | Qt::AlignVCenter, text);
        x += w;
    };
    //: In the chart's legend, beside the colour of the brake band
    key(brakeColour, tr("Brake pressed"));
    for (const auto state : {TelemetryRecord::AutopilotState::autosteer, TelemetryRecord::AutopilotState::trafficAwareCruise,
                             TelemetryRecord::AutopilotState::selfDriving}) {
        QColor c = DrivingDataText::assistanceColour(state);
        c.setAlphaF(0.35);
        key(c, DrivingDataText::assistance(state));
    }
    //: In the chart's legend: acceleration along the car's x axis
    key(QColor(0x00, 0x83, 0x8F), tr("Acceleration x"));
    //: In the chart's legend: acceleration along the car's y axis
    key(QColor(0xAD, 0x14, 0x57), tr("Acceleration y"));
    p.restore();
}
