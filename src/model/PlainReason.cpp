#include "model/PlainReason.h"

#include "model/JsonCoding.h"

#include <QCoreApplication>
#include <QHashFunctions>
#include <array>

namespace {
struct ReasonTexts {
    const char *label;
    const char *shortLabel;
    const char *symbolName;
    const char *blurb;
};

// Indexed by ReasonCategory::Value. The words are looked up in the
// translation when read; the symbol names are ids.
const std::array<ReasonTexts, 7> texts{{
    {QT_TRANSLATE_NOOP("PlainReason", "Something came close"),
     //: Short label of a Sentry event where something came close to the car
     QT_TRANSLATE_NOOP("PlainReason", "Came close"), "figure.walk.motion",
     QT_TRANSLATE_NOOP("PlainReason", "Sentry Mode noticed a person or object near your parked car.")},
    {QT_TRANSLATE_NOOP("PlainReason", "Bump or impact detected"),
     //: Short label of an event where the car felt a bump
     QT_TRANSLATE_NOOP("PlainReason", "Impact"), "exclamationmark.triangle",
     QT_TRANSLATE_NOOP("PlainReason", "The car felt a physical bump or impact while parked.")},
    {QT_TRANSLATE_NOOP("PlainReason", "You honked"),
     //: Short label of footage the car saved because the driver honked
     QT_TRANSLATE_NOOP("PlainReason", "Honk save"), "horn.blast",
     QT_TRANSLATE_NOOP("PlainReason",
                       "Honking saves the last few minutes of footage \u2014 a quick way to keep a moment.")},
    {QT_TRANSLATE_NOOP("PlainReason", "You saved this"),
     //: Short label of footage the driver saved with the dashcam button
     QT_TRANSLATE_NOOP("PlainReason", "You saved"), "hand.tap",
     QT_TRANSLATE_NOOP("PlainReason", "You tapped the dashcam save button, so the car kept this footage.")},
    {QT_TRANSLATE_NOOP("PlainReason", "Panic alarm"),
     //: Short label of an event where the car's alarm went off
     QT_TRANSLATE_NOOP("PlainReason", "Alarm"), "light.beacon.max",
     QT_TRANSLATE_NOOP("PlainReason", "The car's alarm was triggered.")},
    {QT_TRANSLATE_NOOP("PlainReason", "Recent driving"),
     //: Short label of the car's rolling recording while driving
     QT_TRANSLATE_NOOP("PlainReason", "Driving"), "road.lanes",
     QT_TRANSLATE_NOOP("PlainReason",
                       "The rolling last hour of driving. The car reuses this space continuously.")},
    {QT_TRANSLATE_NOOP("PlainReason", "Sentry event"),
     //: Short label of a Sentry event of a kind the app does not know
     QT_TRANSLATE_NOOP("PlainReason", "Sentry"), "shield",
     QT_TRANSLATE_NOOP("PlainReason",
                       "Your car flagged this moment. Newer software sometimes adds new event types.")},
}};

const ReasonTexts &textsFor(ReasonCategory c) { return texts[size_t(c.value())]; }
} // namespace

QString PlainReason::label() const { return QCoreApplication::translate("PlainReason", textsFor(category).label); }
QString PlainReason::shortLabel() const
{
    return QCoreApplication::translate("PlainReason", textsFor(category).shortLabel);
}
QString PlainReason::symbolName() const { return QString::fromUtf8(textsFor(category).symbolName); }
QString PlainReason::blurb() const { return QCoreApplication::translate("PlainReason", textsFor(category).blurb); }

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
