#include "cli/MomentsCommand.h"

#include "base/CancellationError.h"
#include "cli/CliEvents.h"
#include "cli/CliInterrupt.h"
#include "cli/CliOutput.h"
#include "cli/CliScan.h"
#include "cli/CliUnlock.h"
#include "moments/ActivityReader.h"
#include "timeline/HardMoments.h"
#include "timeline/TelemetryTimeline.h"

extern "C" {
#include <libavutil/log.h>
}

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

namespace MomentsCommand {

namespace {

const char *synopsis = "keelhold-cli moments <folder> --event ID [--format json|csv]";

// To a number of decimals, so JSON shows 0.95 rather than 0.9500000000000001.
double rounded(double value, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    return std::round(value * scale) / scale;
}

QString number(double value) { return QString::number(value, 'g', QLocale::FloatingPointShortest); }

QJsonObject momentJson(const HardMoment &m)
{
    QJsonObject o{{QStringLiteral("time"), rounded(m.time, 3)},
                  {QStringLiteral("kind"), HardMoment::kindName(m.kind)},
                  {QStringLiteral("speed_mps"), rounded(m.speed, 2)}};
    switch (m.kind) {
    case HardMoment::Kind::hardBraking:
    case HardMoment::Kind::suddenStop:
        o.insert(QStringLiteral("deceleration_mps2"), rounded(m.deceleration, 2));
        break;
    case HardMoment::Kind::swerve:
        o.insert(QStringLiteral("steering_rate_dps"), rounded(m.steeringRate, 1));
        o.insert(QStringLiteral("lateral_acceleration_mps2"), rounded(m.lateralAcceleration, 2));
        break;
    case HardMoment::Kind::autopilotOff:
        o.insert(QStringLiteral("assistance"), TelemetryRecord::autopilotName(m.assistance));
        break;
    case HardMoment::Kind::emergencyBraking: break;
    }
    return o;
}

QByteArray json(const EventActivity &activity, const std::vector<HardMoment> &moments)
{
    QJsonArray bursts;
    for (const ActivityBurst &b : activity.bursts)
        bursts.append(QJsonObject{{QStringLiteral("camera"), b.camera.rawValue()},
                                  {QStringLiteral("start"), b.start},
                                  {QStringLiteral("end"), b.end},
                                  {QStringLiteral("peak"), rounded(b.peak, 2)}});
    QJsonArray hard;
    for (const HardMoment &m : moments)
        hard.append(momentJson(m));
    return QJsonDocument(QJsonObject{{QStringLiteral("activity"), bursts}, {QStringLiteral("moments"), hard}})
               .toJson(QJsonDocument::Compact) +
           '\n';
}

QByteArray csv(const EventActivity &activity, const std::vector<HardMoment> &moments)
{
    QString text = QStringLiteral("type,camera,start,end,peak,time,kind,speed_mps\n");
    for (const ActivityBurst &b : activity.bursts)
        text += QStringLiteral("activity,%1,%2,%3,%4,,,\n")
                    .arg(b.camera.rawValue(), number(b.start), number(b.end), number(rounded(b.peak, 2)));
    for (const HardMoment &m : moments)
        text += QStringLiteral("moment,,,,,%1,%2,%3\n")
                    .arg(number(rounded(m.time, 3)), HardMoment::kindName(m.kind), number(rounded(m.speed, 2)));
    return text.toUtf8();
}

// The camera whose clips carry the driving data: the front one, where the
// event has it.
Camera drivingDataCamera(const TeslaEvent &event)
{
    const std::vector<Camera> cameras = event.cameras();
    if (cameras.empty() || std::find(cameras.begin(), cameras.end(), Camera::front) != cameras.end())
        return Camera::front;
    return cameras.front();
}

} // namespace

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(CliOutput::tr(
        "Prints where to look in an event: for each camera the bursts of activity (something moving in front of\n"
        "it, found from how much the camera's video changed), and the hard moments of the drive (hard braking,\n"
        "a swerve, Autopilot switching off, a sudden stop, the car's emergency braking) from the driving data\n"
        "its clips carry. Times are seconds on the event's timeline, as the player shows them. The drive is\n"
        "only read."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), CliOutput::tr("The TeslaCam folder, or a Vault folder, to read."));
    const QCommandLineOption eventOption(QStringLiteral("event"), CliOutput::tr("The event's id, as keelhold-cli scan prints it."),
                                         QStringLiteral("id"));
    //: json and csv are values typed on the command line; keep them as they are
    const QCommandLineOption formatOption(QStringLiteral("format"), CliOutput::tr("json (the default) or csv."),
                                          QStringLiteral("format"), QStringLiteral("json"));
    const QCommandLineOption tokenFile = CliUnlock::tokenFileOption();
    parser.addOptions({eventOption, formatOption, tokenFile});
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1 || !parser.isSet(eventOption)) {
        CliOutput::err(CliOutput::usage({QString::fromLatin1(synopsis)}));
        return CliOutput::usageExit;
    }
    const QString format = parser.value(formatOption).toLower();
    if (format != QLatin1String("json") && format != QLatin1String("csv")) {
        //: %1 is the format as typed; json and csv stay as they are
        CliOutput::err(CliOutput::tr("\u201c%1\u201d is not a format; use json or csv.").arg(parser.value(formatOption)));
        return CliOutput::usageExit;
    }
    // Damaged clips are expected; FFmpeg's own words about them are noise here.
    av_log_set_level(AV_LOG_QUIET);

    const QString root = CliScan::teslaCamRoot(positional.first());
    QString error;
    const CliEvents::Found found = CliEvents::find(root, parser.value(eventOption), &error);
    if (!found.event)
        return CliOutput::fail(error);
    const TeslaEvent &event = *found.event;
    if (event.encrypted)
        if (const QString refusal = CliUnlock::unlockOrSay(parser, tokenFile, event.clips, found.vaultURL);
            !refusal.isEmpty())
            return CliOutput::fail(refusal);
    const CliInterrupt::StopsWork interrupt;
    try {
        const EventActivity activity = ActivityReader::load(event, ActivityReader::Options{}, interrupt.token());
        const EventTelemetry telemetry = TelemetryTimeline::load(event, drivingDataCamera(event), interrupt.token());
        const double end = telemetry.pieces.empty() ? 0.0 : telemetry.pieces.back().timelineEnd();
        const std::vector<HardMoment> moments =
            HardMoments::find(telemetry, event, std::max({activity.duration, end, event.approximateDuration()}));
        if (activity.cameras.empty() && !telemetry.hasRecords() && moments.empty())
            return CliOutput::fail(CliOutput::tr("None of this event's clips could be read."));
        CliOutput::out(format == QLatin1String("csv") ? csv(activity, moments) : json(activity, moments));
        return 0;
    } catch (const CancellationError &) {
        return CliOutput::fail(CliOutput::tr("Stopped before every clip was read."));
    }
}

} // namespace MomentsCommand
