#include "export/DrivingDataPanel.h"

#include "model/DrivingDataText.h"

extern "C" {
#include <libavutil/dict.h>
#include <libavutil/frame.h>
}

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {
// The player's overlay colours: light on dark, whatever the picture.
const QString lit = QStringLiteral("white");
const QString dim = QStringLiteral("white@0.4");
const QString signalling = QStringLiteral("0x3DDC84");
const QColor brakeRed(0xE0, 0x30, 0x2A);
const QColor pedalGreen(0x3D, 0xDC, 0x84);
constexpr double boxOpacity = 0.85;
const char *gears[] = {"P", "R", "N", "D"};

int scaled(int unit, double times)
{
    return int(std::lround(unit * times));
}

QString colourWord(const QColor &colour)
{
    return QStringLiteral("0x") + colour.name().mid(1).toUpper();
}

struct Yuv {
    int y, u, v;
};

// Limited-range BT.601, as the canvas is.
Yuv yuvOf(const QColor &c)
{
    const double r = c.redF(), g = c.greenF(), b = c.blueF();
    return {int(std::lround(16 + 65.481 * r + 128.553 * g + 24.966 * b)),
            int(std::lround(128 - 37.797 * r - 74.203 * g + 112.0 * b)),
            int(std::lround(128 + 112.0 * r - 93.786 * g - 18.214 * b))};
}

// Mixes a colour over a rectangle of the canvas, clipped to it.
void blend(AVFrame *frame, DrivingDataPanel::Area a, const QColor &colour, double opacity)
{
    const int x0 = std::clamp(a.x, 0, frame->width);
    const int y0 = std::clamp(a.y, 0, frame->height);
    const int x1 = std::clamp(a.x + a.width, 0, frame->width);
    const int y1 = std::clamp(a.y + a.height, 0, frame->height);
    if (x1 <= x0 || y1 <= y0)
        return;
    const Yuv target = yuvOf(colour);
    const int keep = int(std::lround((1.0 - opacity) * 256));
    const auto mix = [keep](uint8_t &value, int to) { value = uint8_t((value * keep + to * (256 - keep) + 128) >> 8); };
    for (int y = y0; y < y1; ++y) {
        uint8_t *row = frame->data[0] + ptrdiff_t(y) * frame->linesize[0];
        for (int x = x0; x < x1; ++x)
            mix(row[x], target.y);
    }
    for (int y = y0 / 2; y < (y1 + 1) / 2; ++y) {
        uint8_t *u = frame->data[1] + ptrdiff_t(y) * frame->linesize[1];
        uint8_t *v = frame->data[2] + ptrdiff_t(y) * frame->linesize[2];
        for (int x = x0 / 2; x < (x1 + 1) / 2; ++x) {
            mix(u[x], target.u);
            mix(v[x], target.v);
        }
    }
}

void set(AVFrame *frame, const QString &key, const QString &value)
{
    const QByteArray name = (QLatin1String(DrivingDataPanel::metadataPrefix) + key).toUtf8();
    av_dict_set(&frame->metadata, name.constData(), value.toUtf8().constData(), 0);
}
} // namespace

DrivingDataPanel::DrivingDataPanel(const CombinedLayout &layout)
{
    const int u = layout.labelTextSize();
    unit_ = u;
    const int big = scaled(u, 1.8);
    const int mid = scaled(u, 0.95);
    const int small = std::max(11, scaled(u, 0.72));
    const int pad = std::max(4, u / 2);
    const int gap = std::max(2, u / 4);
    const int row = scaled(small, 1.5);
    area_.width = scaled(u, 13.2) & ~1;
    area_.height = (pad + big + 3 * (gap + row) + pad + 1) & ~1;
    // The bottom right corner of the largest cell (the last of equals):
    // the grid's last camera, the front above the others, the one camera.
    CombinedLayout::Rect home{0, 0, layout.width(), layout.height()};
    long largest = -1;
    for (const CombinedLayout::Cell &cell : layout.cells())
        if (long(cell.area.width) * cell.area.height >= largest) {
            largest = long(cell.area.width) * cell.area.height;
            home = cell.area;
        }
    area_.x = std::max(0, home.x + home.width - layout.margin() - area_.width) & ~1;
    area_.y = std::max(0, home.y + home.height - layout.margin() - area_.height) & ~1;

    const auto number = [](int value) { return QString::number(value); };
    const auto centredIn = [&](int top, int height, int size) { return number(top + (height - size) / 2); };
    const int left = area_.x + pad;
    const int right = area_.x + area_.width - pad;

    // Gear letters, a left arrow, the speed with its unit, a right arrow.
    const int top = area_.y + pad;
    for (int i = 0; i < 4; ++i)
        words_.push_back({QStringLiteral("gear.%1").arg(QLatin1String(gears[i])), number(left + scaled(mid, 0.95 * i)),
                          centredIn(top, big, mid), mid, false});
    words_.push_back({QStringLiteral("left"), number(area_.x + scaled(u, 4.4)), centredIn(top, big, mid), mid, false});
    words_.push_back({QStringLiteral("speed"), QStringLiteral("%1-text_w").arg(area_.x + scaled(u, 9.2)), number(top),
                      big, true});
    words_.push_back({QStringLiteral("unit"), number(area_.x + scaled(u, 9.4)), number(top + big - scaled(small, 1.35)),
                      small, false});
    words_.push_back({QStringLiteral("right"), number(right - scaled(mid, 0.8)), centredIn(top, big, mid), mid, false});

    // The brake lamp, the accelerator's bar and its travel in words.
    const int second = top + big + gap;
    lamp_ = {left & ~1, second & ~1, scaled(u, 3.6) & ~1, row & ~1};
    words_.push_back({QStringLiteral("brake"), QStringLiteral("%1+(%2-text_w)/2").arg(lamp_.x).arg(lamp_.width),
                      centredIn(lamp_.y, lamp_.height, small), small, true});
    const int barHeight = std::max(4, scaled(u, 0.3)) & ~1;
    const int barLeft = (lamp_.x + lamp_.width + scaled(u, 0.6)) & ~1;
    bar_ = {barLeft, (second + (row - barHeight) / 2) & ~1, (right - scaled(u, 2.2) - barLeft) & ~1, barHeight};
    words_.push_back({QStringLiteral("pedal"), QStringLiteral("%1-text_w").arg(right), centredIn(second, row, small),
                      small, false});

    // The steering wheel's angle, then the driver assistance engaged.
    const int third = second + row + gap;
    words_.push_back({QStringLiteral("steering"), number(left), centredIn(third, row, small), small, false});
    const int fourth = third + row + gap;
    words_.push_back({QStringLiteral("assistance"), number(left), centredIn(fourth, row, small), small, true});
}

DrivingDataPanel::Reading DrivingDataPanel::read(const TelemetryRecord &record, bool miles)
{
    Reading r;
    r.speed = QString::number(DrivingDataText::speed(record.speed, miles));
    r.unit = DrivingDataText::speedUnit(miles);
    r.gear = record.gear;
    r.brake = record.brakeApplied;
    r.pedal = DrivingDataText::pedalFraction(record.acceleratorPedal);
    r.pedalText = QString::number(qRound(r.pedal * 100)) + QLatin1Char('%');
    r.blinkerLeft = record.blinkerLeft;
    r.blinkerRight = record.blinkerRight;
    const QString angle = DrivingDataText::steering(record.steeringAngle);
    //: Driving data drawn over an exported movie: %1 is the wheel's angle, e.g. "12° left"
    r.steering =
        angle.isEmpty() ? QString() : QCoreApplication::translate("DrivingDataPanel", "Steering %1").arg(angle);
    r.assistance = DrivingDataText::assistance(record.autopilot);
    // Lighter than the map's route colour: these are words on a dark box.
    r.assistanceColour = DrivingDataText::assistanceColour(record.autopilot).lighter(150);
    return r;
}

void DrivingDataPanel::label(AVFrame *canvas, const std::optional<Reading> &reading) const
{
    for (const Words &w : words_) {
        QString text;
        QString colour = lit;
        if (reading) {
            const Reading &r = *reading;
            if (w.key.startsWith(QLatin1String("gear."))) {
                text = w.key.mid(5);
                colour = DrivingDataText::gear(r.gear) == text ? lit : dim;
            } else if (w.key == QLatin1String("left")) {
                text = QStringLiteral("\u25C0");
                colour = r.blinkerLeft ? signalling : dim;
            } else if (w.key == QLatin1String("right")) {
                text = QStringLiteral("\u25B6");
                colour = r.blinkerRight ? signalling : dim;
            } else if (w.key == QLatin1String("speed")) {
                text = r.speed;
            } else if (w.key == QLatin1String("unit")) {
                text = r.unit;
                colour = dim;
            } else if (w.key == QLatin1String("brake")) {
                //: Word on the brake lamp of the driving data drawn over an exported movie; keep it short
                text = QCoreApplication::translate("DrivingDataPanel", "BRAKE");
                colour = r.brake ? lit : dim;
            } else if (w.key == QLatin1String("pedal")) {
                text = r.pedalText;
            } else if (w.key == QLatin1String("steering")) {
                text = r.steering;
            } else if (w.key == QLatin1String("assistance")) {
                text = r.assistance;
                colour = colourWord(r.assistanceColour);
            }
        }
        set(canvas, w.key, text);
        set(canvas, w.key + QStringLiteral(".colour"), colour);
    }
}

void DrivingDataPanel::paint(AVFrame *canvas, const Reading &reading) const
{
    blend(canvas, area_, Qt::black, boxOpacity);
    if (reading.brake) {
        blend(canvas, lamp_, brakeRed, 1.0);
    } else {
        const int line = std::max(2, unit_ / 10) & ~1;
        blend(canvas, {lamp_.x, lamp_.y, lamp_.width, line}, Qt::white, 0.3);
        blend(canvas, {lamp_.x, lamp_.y + lamp_.height - line, lamp_.width, line}, Qt::white, 0.3);
        blend(canvas, {lamp_.x, lamp_.y + line, line, lamp_.height - 2 * line}, Qt::white, 0.3);
        blend(canvas, {lamp_.x + lamp_.width - line, lamp_.y + line, line, lamp_.height - 2 * line}, Qt::white, 0.3);
    }
    blend(canvas, bar_, Qt::white, 0.28);
    const int filled = int(std::lround(bar_.width * std::clamp(reading.pedal, 0.0, 1.0)));
    blend(canvas, {bar_.x, bar_.y, filled, bar_.height}, pedalGreen, 1.0);
}
