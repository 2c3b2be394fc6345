#include "cli/ExportCommand.h"

#include "cli/CliEvents.h"
#include "cli/CliInterrupt.h"
#include "cli/CliOutput.h"
#include "cli/CliScan.h"
#include "cli/CliUnlock.h"
#include "drive/DriveBoundary.h"
#include "drive/TeslaCamParser.h"
#include "export/CombinedExport.h"
#include "export/Exporter.h"
#include "base/CancellationError.h"

extern "C" {
#include <libavutil/log.h>
}

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <atomic>
#include <chrono>
#include <cmath>
#include <csignal>
#include <limits>
#include <thread>

namespace ExportCommand {

namespace {
const char *synopsis = "keelhold-cli export <TeslaCam folder> --event ID -o FILE [--camera CAMERA] "
                       "[--layout grid|front-sides|single] [--overlay PARTS|none] [--size 720|1080|full] "
                       "[--from SECONDS] [--to SECONDS]";

std::optional<double> seconds(const QCommandLineParser &parser, const QCommandLineOption &option, bool &bad)
{
    if (!parser.isSet(option))
        return std::nullopt;
    bool ok = false;
    const double value = parser.value(option).toDouble(&ok);
    if (!ok || !std::isfinite(value)) {
        bad = true;
        return std::nullopt;
    }
    return value;
}

int fail(const QString &sentence)
{
    CliOutput::err(sentence);
    return CliOutput::failureExit;
}

QString clock(double seconds)
{
    const qint64 whole = qint64(std::ceil(std::max(0.0, seconds)));
    return QStringLiteral("%1:%2").arg(whole / 60).arg(whole % 60, 2, 10, QLatin1Char('0'));
}

int percentOf(const CombinedExportProgress &p)
{
    return int(p.fraction() * 100.0);
}

// "Exporting… 42% (1814 of 4320 frames, 38.5 fps, 1:05 left)"
QString combinedStatus(const CombinedExportProgress &p)
{
    const int percent = percentOf(p);
    if (p.finishing)
        //: Export progress; %1 is a whole percentage, the % sign follows it
        return CliOutput::tr("Exporting\u2026 %1% (finishing the file)").arg(percent);
    const bool fps = p.framesPerSecond > 0;
    const bool left = p.secondsLeft && !p.complete;
    const QString speed = QString::number(p.framesPerSecond, 'f', 1);
    const QString remaining = left ? clock(*p.secondsLeft) : QString();
    // One sentence for each combination, so each language orders its own.
    if (fps && left)
        //: Export progress: %1 percent done, %2 of %3 frames, %4 frames per second, %5 the time left as m:ss
        return CliOutput::tr("Exporting\u2026 %1% (%2 of %3 frames, %4 fps, %5 left)")
            .arg(percent)
            .arg(p.framesDone)
            .arg(p.framesTotal)
            .arg(speed, remaining);
    if (fps)
        //: Export progress: %1 percent done, %2 of %3 frames, %4 frames per second
        return CliOutput::tr("Exporting\u2026 %1% (%2 of %3 frames, %4 fps)")
            .arg(percent)
            .arg(p.framesDone)
            .arg(p.framesTotal)
            .arg(speed);
    if (left)
        //: Export progress: %1 percent done, %2 of %3 frames, %4 the time left as m:ss
        return CliOutput::tr("Exporting\u2026 %1% (%2 of %3 frames, %4 left)")
            .arg(percent)
            .arg(p.framesDone)
            .arg(p.framesTotal)
            .arg(remaining);
    //: Export progress: %1 percent done, %2 of %3 frames
    return CliOutput::tr("Exporting\u2026 %1% (%2 of %3 frames)").arg(percent).arg(p.framesDone).arg(p.framesTotal);
}
} // namespace

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        CliOutput::tr("Writes one camera of one event as a single MP4 movie, copied as it is, or every camera "
                      "at once with the date and time drawn on it. The drive is only read."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), CliOutput::tr("The TeslaCam folder to read."));
    const QCommandLineOption eventOption(QStringLiteral("event"),
                                        CliOutput::tr("The event's id, as keelhold-cli scan prints it."),
                                        QStringLiteral("id"));
    //: Help of an option; %1 lists the values it takes, which stay as they are
    const QCommandLineOption cameraOption(QStringLiteral("camera"),
                                         CliOutput::tr("One of: %1.").arg(CliEvents::cameraNames().join(QStringLiteral(", "))),
                                         QStringLiteral("camera"));
    const QCommandLineOption outputOption(
        QStringList{QStringLiteral("o"), QStringLiteral("output")},
        CliOutput::tr("The movie file to create; in an existing folder, the suggested name is used."),
        QStringLiteral("file"));
    const QCommandLineOption fromOption(QStringLiteral("from"),
                                       CliOutput::tr("Start, in seconds of the joined footage."),
                                       QStringLiteral("seconds"));
    const QCommandLineOption toOption(QStringLiteral("to"), CliOutput::tr("End, in seconds of the joined footage."),
                                     QStringLiteral("seconds"));
    //: grid, front-sides and single are values typed on the command line; keep them as they are
    const QCommandLineOption layoutOption(
        QStringLiteral("layout"),
        CliOutput::tr("Makes one new movie with every camera at once and the time drawn on it. One of: grid, "
                      "front-sides, single. Single re-encodes the --camera alone. --from and --to then count "
                      "seconds of the event's timeline, as the player shows it."),
        QStringLiteral("layout"));
    //: time, names, reason, telemetry, none and time,names,reason are values typed on the command line; keep them as they are
    const QCommandLineOption overlayOption(
        QStringLiteral("overlay"),
        CliOutput::tr("What a new movie shows over the pictures, any of: time, names, reason, telemetry, none. "
                      "Join parts with commas; the default is time,names,reason. Telemetry is the car's speed, "
                      "pedals, steering and Autopilot where its clips carry them, in km/h or mph as your locale "
                      "measures. With only --camera, any part makes a new movie of that camera instead of a copy."),
        QStringLiteral("parts"));
    //: 720, 1080 and full are values typed on the command line; keep them as they are
    const QCommandLineOption sizeOption(
        QStringLiteral("size"),
        CliOutput::tr("The new movie's picture height. One of: 720, 1080, full. The default is 1080."),
        QStringLiteral("size"));
    const QCommandLineOption tokenFile = CliUnlock::tokenFileOption();
    parser.addOptions({eventOption, cameraOption, outputOption, fromOption, toOption, layoutOption, overlayOption,
                       sizeOption, tokenFile});
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    const QStringList positional = parser.positionalArguments();
    // The plain copy of one camera stays the default; anything drawn on the
    // pictures, another size or more cameras make a new movie.
    std::optional<CombinedExportOptions::Overlay> overlay;
    if (parser.isSet(overlayOption)) {
        overlay = CombinedExportOptions::overlayFromWords(parser.value(overlayOption));
        if (!overlay)
            //: time, names, reason, telemetry and none are values typed on the command line; keep them as they are
            return fail(CliOutput::tr("--overlay takes time, names, reason and telemetry joined with commas, or none."));
    }
    const bool combined = parser.isSet(layoutOption) || parser.isSet(sizeOption) || (overlay && overlay->any());
    if (positional.size() != 1 || !parser.isSet(eventOption) || !parser.isSet(outputOption)
        || (!combined && !parser.isSet(cameraOption))) {
        CliOutput::err(CliOutput::usage({QString::fromLatin1(synopsis)}));
        return CliOutput::usageExit;
    }
    std::optional<Camera> camera;
    if (parser.isSet(cameraOption)) {
        camera = Camera::fromRawValue(parser.value(cameraOption));
        if (!camera)
            //: %1 is the camera as typed, %2 the camera names the command takes
            return fail(CliOutput::tr("\u201c%1\u201d is not a camera; use one of %2.")
                            .arg(parser.value(cameraOption), CliEvents::cameraNames().join(QStringLiteral(", "))));
    }
    CombinedExportOptions options;
    if (combined) {
        options.layout = CombinedExportOptions::Layout::single;
        if (parser.isSet(layoutOption)) {
            const auto layout = CombinedExportOptions::layoutFromWord(parser.value(layoutOption));
            if (!layout)
                //: %1 is the layout as typed; grid, front-sides and single stay as they are
                return fail(CliOutput::tr("\u201c%1\u201d is not a layout; use grid, front-sides or single.")
                                .arg(parser.value(layoutOption)));
            options.layout = *layout;
        } else if (!camera) {
            return fail(CliOutput::tr("Name the camera with --camera, or choose --layout grid or front-sides."));
        }
        if (options.layout != CombinedExportOptions::Layout::single && camera)
            return fail(CliOutput::tr("--camera picks the one camera of --layout single; grid and front-sides show "
                                      "every camera."));
        options.camera = camera;
        if (overlay)
            options.overlay = *overlay;
        if (parser.isSet(sizeOption)) {
            const auto size = CombinedExportOptions::sizeFromWord(parser.value(sizeOption));
            if (!size)
                //: %1 is the size as typed; 720, 1080 and full stay as they are
                return fail(CliOutput::tr("\u201c%1\u201d is not a size; use 720, 1080 or full.")
                                .arg(parser.value(sizeOption)));
            options.size = *size;
        }
    }
    bool badNumber = false;
    const std::optional<double> from = seconds(parser, fromOption, badNumber);
    const std::optional<double> to = seconds(parser, toOption, badNumber);
    if (badNumber)
        return fail(CliOutput::tr("--from and --to take a number of seconds, such as 12.5."));
    std::optional<std::pair<double, double>> range;
    if (from || to)
        range = std::make_pair(from.value_or(0.0), to.value_or(std::numeric_limits<double>::infinity()));

    const QString root = CliScan::teslaCamRoot(positional.first());
    const QString eventId = parser.value(eventOption);
    if (DriveBoundary::writesInto(root, parser.value(outputOption)).value_or(false))
        return fail(DriveBoundary::exportRefusalText());
    // FFmpeg's own messages about damaged clips would drown the progress.
    av_log_set_level(AV_LOG_QUIET);

    try {
        const DriveScan scan = TeslaCamParser::scan(root);
        const auto event = std::find_if(scan.events.begin(), scan.events.end(),
                                        [&](const TeslaEvent &e) { return e.id() == eventId; });
        if (event == scan.events.end())
            //: %1 is an event's id
            return fail(CliOutput::tr("There is no event \u201c%1\u201d in this TeslaCam folder.").arg(eventId));

        // The car's encrypted footage: kept keys first, the missing ones fetched.
        if (event->encrypted) {
            std::vector<ClipRef> clips;
            std::copy_if(event->clips.begin(), event->clips.end(), std::back_inserter(clips),
                         [&](const ClipRef &c) {
                             if (!combined)
                                 return c.camera == *camera;
                             // The single layout shows one camera: only its keys are asked for.
                             return options.layout != CombinedExportOptions::Layout::single || !options.camera
                                 || c.camera == *options.camera;
                         });
            QString error;
            const QByteArray token = CliUnlock::token(parser, tokenFile, &error);
            if (!error.isEmpty())
                return fail(error);
            const CliUnlock::KeyCheck keys = CliUnlock::ensureKeys(clips, token, QString());
            if (keys.unlocked.empty() && !keys.failures.isEmpty())
                return fail(keys.failures.first());
        }

        QString output = QDir::cleanPath(QDir::current().absoluteFilePath(parser.value(outputOption)));
        if (QFileInfo(output).isDir())
            output = QDir(output).filePath(combined ? CombinedExport::suggestedFileName(*event, options)
                                                    : Exporter::suggestedFileName(*event, *camera));

        if (combined) {
            options.range = range;
            const CliInterrupt::StopsWork interrupt;
            QString shown;
            // Stops itself cleanly: nothing is left of a stopped or failed movie.
            CombinedExport::exportMovie(*event, options, output, [&](const CombinedExportProgress &p) {
                const QString line = combinedStatus(p);
                // Piped, a line for each percent; on a terminal, the line keeps up.
                const QString key = CliOutput::stderrIsTerminal() ? line : QString::number(percentOf(p));
                if (key == shown)
                    return;
                shown = key;
                CliOutput::status(line);
            }, interrupt.token());
            CliOutput::endStatus();
            CliOutput::out(QDir::toNativeSeparators(output).toUtf8() + '\n');
            return 0;
        }

        // A half-written movie is of no use here; one that was there before
        // is never ours to remove.
        const bool existedBefore = QFileInfo::exists(output);
        const CliInterrupt::StopsWork interrupt;
        try {
            int shownPercent = -1;
            Exporter::exportFootage(*camera, *event, range, output, [&](double fraction) {
                const int percent = int(fraction * 100.0);
                if (percent == shownPercent)
                    return;
                shownPercent = percent;
                //: Export progress; %1 is a whole percentage, the % sign follows it
                CliOutput::status(CliOutput::tr("Exporting\u2026 %1%").arg(percent));
            }, interrupt.token());
        } catch (...) {
            if (!existedBefore)
                QFile::remove(output);
            throw;
        }
        CliOutput::endStatus();
        CliOutput::out(QDir::toNativeSeparators(output).toUtf8() + '\n');
        return 0;
    } catch (const TeslaCamParser::ParserError &e) {
        return fail(e.message());
    } catch (const TeslaCamParser::ScanError &e) {
        return fail(e.message());
    } catch (const Exporter::ExportError &e) {
        if (e.errorCase() == Exporter::ExportError::noClipsForCamera && camera)
            //: %1 is a camera's name, such as "Front"
            return fail(CliOutput::tr("The %1 camera has no playable footage in this event.")
                            .arg(camera->displayName()));
        if (e.errorCase() == Exporter::ExportError::noClipsForCamera)
            return fail(CliOutput::tr("None of this event's cameras has playable footage."));
        return fail(e.message());
    } catch (const CancellationError &) {
        return fail(CliOutput::tr("The export was stopped."));
    }
}

} // namespace ExportCommand
