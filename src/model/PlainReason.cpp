#include "model/PlainReason.h"

#include "model/JsonCoding.h"

#include <QHashFunctions>
#include <array>

namespace {
struct ReasonTexts {
    const char *label;
    const char *shortLabel;
    const char *symbolName;
    const char *blurb;
};

// Indexed by ReasonCategory::Value.
const std::array<ReasonTexts, 7> texts{{
    {"Something came close", "Came close", "figure.walk.motion",
     "Sentry Mode noticed a person or object near your parked car."},
    {"Bump or impact detected", "Impact", "exclamationmark.triangle",
     "The car felt a physical bump or impact while parked."},
    {"You honked", "Honk save", "horn.blast",
     "Honking saves the last few minutes of footage \u2014 a quick way to keep a moment."},
    {"You saved this", "You saved", "hand.tap",
     "You tapped the dashcam save button, so the car kept this footage."},
    {"Panic alarm", "Alarm", "light.beacon.max", "The car's alarm was triggered."},
    {"Recent driving", "Driving", "road.lanes",
     "The rolling last hour of driving. The car reuses this space continuously."},
    {"Sentry event", "Sentry", "shield",
     "Your car flagged this moment. Newer software sometimes adds new event types."},
}};

const ReasonTexts &textsFor(ReasonCategory c) { return texts[size_t(c.value())]; }
} // namespace

QString PlainReason::label() const { return QString::fromUtf8(textsFor(category).label); }
QString PlainReason::shortLabel() const { return QString::fromUtf8(textsFor(category).shortLabel); }
QString PlainReason::symbolName() const { return QString::fromUtf8(textsFor(category).symbolName); }
QString PlainReason::blurb() const { return QString::fromUtf8(textsFor(category).blurb); }

QJsonObject PlainReason::toJson() const
{
    QJsonObject o;
    o.insert(QStringLiteral("category"), category.toJson());
    JsonCoding::insertOptional(o, "raw", raw);
    JsonCoding::insertOptional(o, "accelValue", accelValue);
    return o;
}

PlainReason PlainReason::fromJson(const QJsonValue &value)
{
    const QJsonObject o = JsonCoding::requireObject(value, "PlainReason");
    PlainReason r;
    r.category = ReasonCategory::fromJson(JsonCoding::require(o, "category"));
    r.raw = JsonCoding::optionalString(o, "raw");
    r.accelValue = JsonCoding::optionalDouble(o, "accelValue");
    return r;
}

size_t qHash(const PlainReason &r, size_t seed) noexcept
{
    return qHashMulti(seed, r.category, r.raw.value_or(QString()), r.raw.has_value(), r.accelValue.value_or(0.0),
                      r.accelValue.has_value());
}
