#include "cli/TelemetryCommand.h"

#include "cli/CliEvents.h"
#include "cli/CliOutput.h"
#include "cli/CliScan.h"
#include "cli/CliUnlock.h"
#include "drive/DriveBoundary.h"
#include "drive/TeslaCamParser.h"
#include "model/EventTelemetry.h"
#include "timeline/TelemetryTimeline.h"
#include "vault/VaultBrowser.h"

extern "C" {
#include <libavutil/log.h>
}

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <QXmlStreamWriter>
#include <cmath>

namespace TelemetryCommand {

namespace {

const char *synopsis = "keelhold-cli telemetry <folder> --event ID [--camera CAMERA] [--format csv|json|gpx] "
                       "[-o FILE]";

const QStringList formats{QStringLiteral("csv"), QStringLiteral("json"), QStringLiteral("gpx")};

// Fix points a mapping tool draws as one line; a longer pause in the
// footage starts a new one.
constexpr double segmentGap = 2.0;

int fail(const QString &sentence)
{
    CliOutput::err(sentence);
    return CliOutput::failureExit;
}

// Seconds to the microsecond, without exponents or trailing zeros.
QString seconds(double value)
{
    return QString::number(std::round(value * 1e6) / 1e6, 'f', QLocale::FloatingPointShortest);
}

QString number(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

// The car's clock as it ran, with no offset: the car keeps no zone, and
// the computer's need not be the car's.
QString wallClock(const EventTelemetry::Sample &s)
{
    const QDateTime local = s.track->wallClock(s.mediaTime).toLocalDateTime();
    return QDateTime(local.date(), local.time()).toString(Qt::ISODateWithMs);
}

// GPX times are UTC: only the clip's header knows it, so a point of a clip
// without one goes without a time rather than with the computer's zone.
QString utcTime(const EventTelemetry::Sample &s)
{
    const std::optional<Date> utc = s.track->utcTime(s.mediaTime);
    return utc ? utc->toQDateTime().toUTC().toString(Qt::ISODateWithMs) : QString();
}

QByteArray csv(const EventTelemetry &telemetry)
{
    QString text = QStringLiteral(
        "time,clip,clipTime,frame,wallClock,version,gear,frameSequenceNumber,speed,acceleratorPedal,steeringAngle,"
        "blinkerLeft,blinkerRight,brakeApplied,autopilot,latitude,longitude,heading,accelerationX,accelerationY,"
        "accelerationZ\n");
    auto flag = [](bool b) { return b ? QStringLiteral("true") : QStringLiteral("false"); };
    for (const EventTelemetry::Sample &s : telemetry.frames()) {
        QStringList row{seconds(s.time), s.track->clip.fileName(), seconds(s.mediaTime), QString::number(s.frameIndex),
                        wallClock(s)};
        if (const TelemetryRecord *r = s.record) {
            row << QString::number(r->version) << TelemetryRecord::gearName(r->gear)
                << QString::number(r->frameSequenceNumber) << number(TelemetryRecord::plainFloat(r->speed))
                << number(TelemetryRecord::plainFloat(r->acceleratorPedal))
                << number(TelemetryRecord::plainFloat(r->steeringAngle)) << flag(r->blinkerLeft)
                << flag(r->blinkerRight) << flag(r->brakeApplied) << TelemetryRecord::autopilotName(r->autopilot)
                << number(r->latitude) << number(r->longitude) << number(r->heading) << number(r->accelerationX)
                << number(r->accelerationY) << number(r->accelerationZ);
        } else {
            // A frame that carried no record keeps its row, with the fields empty.
            for (int i = 0; i < 16; ++i)
                row << QString();
        }
        text += row.join(QLatin1Char(',')) + QLatin1Char('\n');
    }
    return text.toUtf8();
}

QByteArray json(const TeslaEvent &event, const EventTelemetry &telemetry)
{
    QJsonArray frames;
    for (const EventTelemetry::Sample &s : telemetry.frames()) {
        QJsonObject o = s.record ? s.record->fieldsToJson() : QJsonObject();
        o.insert(QStringLiteral("time"), std::round(s.time * 1e6) / 1e6);
        o.insert(QStringLiteral("clip"), s.track->clip.fileName());
        o.insert(QStringLiteral("clipTime"), std::round(s.mediaTime * 1e6) / 1e6);
        o.insert(QStringLiteral("frame"), s.frameIndex);
        o.insert(QStringLiteral("wallClock"), wallClock(s));
        frames.append(o);
    }
    QJsonObject document;
    document.insert(QStringLiteral("event"), event.id());
    document.insert(QStringLiteral("camera"), telemetry.camera.rawValue());
    document.insert(QStringLiteral("frames"), frames);
    return QJsonDocument(document).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray gpx(const TeslaEvent &event, const EventTelemetry &telemetry)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("gpx"));
    xml.writeDefaultNamespace(QStringLiteral("http://www.topografix.com/GPX/1/1"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.1"));
    xml.writeAttribute(QStringLiteral("creator"), QStringLiteral("Keelhold"));
    xml.writeStartElement(QStringLiteral("trk"));
    xml.writeTextElement(QStringLiteral("name"), event.id());
    bool open = false;
    std::optional<double> lastFix;                     // on the axis
    std::optional<std::pair<double, double>> lastPoint; // the last one written
    for (const EventTelemetry::Sample &s : telemetry.frames()) {
        if (!s.record || !s.record->hasPosition())
            continue;
        const TelemetryRecord &r = *s.record;
        const bool newSegment = !lastFix || s.time - *lastFix > segmentGap;
        lastFix = s.time;
        // The GPS gives a new fix a few times a second, not every frame, and
        // none while the car stands.
        if (!newSegment && lastPoint == std::pair(r.latitude, r.longitude))
            continue;
        if (newSegment) {
            if (open)
                xml.writeEndElement();
            xml.writeStartElement(QStringLiteral("trkseg"));
            open = true;
        }
        xml.writeStartElement(QStringLiteral("trkpt"));
        xml.writeAttribute(QStringLiteral("lat"), number(r.latitude));
        xml.writeAttribute(QStringLiteral("lon"), number(r.longitude));
        if (const QString time = utcTime(s); !time.isEmpty())
            xml.writeTextElement(QStringLiteral("time"), time);
        xml.writeEndElement();
        lastPoint = std::pair(r.latitude, r.longitude);
    }
    if (open)
        xml.writeEndElement();
    xml.writeEndElement(); // trk
    xml.writeEndElement(); // gpx
    xml.writeEndDocument();
    return bytes;
}

} // namespace

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(CliOutput::tr(
        "Prints the driving data the car recorded with one camera's footage of an event, one row for each\n"
        "frame: its time on the event's timeline and in its clip, when it was taken, and the car's speed\n"
        "(metres per second), gear, accelerator, steering angle (degrees), blinkers, brake, Autopilot state,\n"
        "GPS position, heading (degrees) and acceleration (metres per second squared). Cars on software\n"
        "2025.44.25 or later record it. The drive is only read."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), CliOutput::tr("The TeslaCam folder, or a Vault folder, to read."));
    const QCommandLineOption eventOption(QStringLiteral("event"),
                                        CliOutput::tr("The event's id, as keelhold-cli scan prints it."),
                                        QStringLiteral("id"));
    //: Help of an option; %1 lists the values it takes, which stay as they are
    const QCommandLineOption cameraOption(
        QStringLiteral("camera"), CliOutput::tr("One of: %1.").arg(CliEvents::cameraNames().join(QStringLiteral(", "))),
        QStringLiteral("camera"), QStringLiteral("front"));
    //: csv, json and gpx are values typed on the command line; keep them as they are
    const QCommandLineOption formatOption(
        QStringLiteral("format"),
        CliOutput::tr("csv, json, or gpx (the route, for a mapping tool). Default: from the output file's "
                      "extension, else csv."),
        QStringLiteral("format"));
    const QCommandLineOption outputOption(QStringList{QStringLiteral("o"), QStringLiteral("output")},
                                         CliOutput::tr("The file to write instead of standard output."),
                                         QStringLiteral("file"));
    const QCommandLineOption tokenFile = CliUnlock::tokenFileOption();
    parser.addOptions({eventOption, cameraOption, formatOption, outputOption, tokenFile});
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1 || !parser.isSet(eventOption)) {
        CliOutput::err(CliOutput::usage({QString::fromLatin1(synopsis)}));
        return CliOutput::usageExit;
    }
    const std::optional<Camera> camera = Camera::fromRawValue(parser.value(cameraOption));
    if (!camera)
        //: %1 is the camera as typed, %2 the camera names the command takes
        return fail(CliOutput::tr("\u201c%1\u201d is not a camera; use one of %2.")
                        .arg(parser.value(cameraOption), CliEvents::cameraNames().join(QStringLiteral(", "))));
    QString format = parser.value(formatOption).toLower();
    if (!parser.isSet(formatOption)) {
        const QString suffix = QFileInfo(parser.value(outputOption)).suffix().toLower();
        format = formats.contains(suffix) ? suffix : QStringLiteral("csv");
    }
    if (!formats.contains(format))
        //: %1 is the format as typed; csv, json and gpx stay as they are
        return fail(CliOutput::tr("\u201c%1\u201d is not a format; use csv, json or gpx.").arg(parser.value(formatOption)));

    const QString root = CliScan::teslaCamRoot(positional.first());
    QString output;
    if (parser.isSet(outputOption)) {
        output = QDir::cleanPath(QDir::current().absoluteFilePath(parser.value(outputOption)));
        if (DriveBoundary::writesInto(root, output).value_or(false))
            return fail(CliOutput::tr("Keelhold never writes to your Tesla drive, so save the driving data somewhere "
                                      "else."));
    }
    const QString eventId = parser.value(eventOption);
    // Damaged clips are expected; FFmpeg's own words about them are noise here.
    av_log_set_level(AV_LOG_QUIET);

    {
        QString error;
        const CliEvents::Found found = CliEvents::find(root, eventId, &error);
        const std::optional<TeslaEvent> &event = found.event;
        if (!event)
            return fail(error);
        if (std::none_of(event->clips.begin(), event->clips.end(), [&](const ClipRef &c) { return c.camera == *camera; }))
            //: %1 is a camera's name, such as "Front"
            return fail(CliOutput::tr("The %1 camera has no footage in this event.").arg(camera->displayName()));
        if (event->encrypted) {
            std::vector<ClipRef> clips;
            std::copy_if(event->clips.begin(), event->clips.end(), std::back_inserter(clips),
                         [&](const ClipRef &c) { return c.camera == *camera; });
            if (const QString refusal = CliUnlock::unlockOrSay(parser, tokenFile, clips, found.vaultURL);
                !refusal.isEmpty())
                return fail(refusal);
        }
        const EventTelemetry telemetry = TelemetryTimeline::load(*event, *camera);
        if (!telemetry.hasRecords())
            //: %1 is a camera's name, such as "Front"; 2025.44.25 is a software version
            return fail(CliOutput::tr("The %1 camera's clips of this event carry no driving data: cars record it "
                                      "from software 2025.44.25 on, and not in every mode.")
                            .arg(camera->displayName()));
        const QByteArray bytes = format == QLatin1String("json") ? json(*event, telemetry)
            : format == QLatin1String("gpx")                     ? gpx(*event, telemetry)
                                                                 : csv(telemetry);
        if (output.isEmpty()) {
            CliOutput::out(bytes);
            return 0;
        }
        QSaveFile file(output);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
            //: %1 is a file, %2 the system's reason
            return fail(CliOutput::tr("Could not write %1: %2.").arg(QDir::toNativeSeparators(output), file.errorString()));
        return 0;
    }
}

} // namespace TelemetryCommand
