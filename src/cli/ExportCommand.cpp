#include "cli/ExportCommand.h"

#include "cli/CliOutput.h"
#include "drive/DriveBoundary.h"
#include "drive/TeslaCamParser.h"
#include "export/Exporter.h"
#include "model/CancellationError.h"

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
const char *usage = "Usage: keelhold-cli export <TeslaCam folder> --event ID --camera CAMERA -o FILE "
                    "[--from SECONDS] [--to SECONDS]";

QStringList cameraNames()
{
    QStringList names;
    for (const Camera c : Camera::allCases())
        names << c.rawValue();
    return names;
}

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

std::atomic<bool> interrupted{false};
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void onInterrupt(int)
{
    interrupted.store(true);
}

// Ctrl-C or a polite kill stops the export the way the app's Stop does,
// so the half-written movie is cleaned up instead of left behind.
class InterruptStopsExport {
public:
    InterruptStopsExport()
    {
        struct sigaction action {};
        action.sa_handler = onInterrupt;
        sigemptyset(&action.sa_mask);
        sigaction(SIGINT, &action, &previousInt_);
        sigaction(SIGTERM, &action, &previousTerm_);
        watcher_ = std::jthread([this](std::stop_token done) {
            while (!done.stop_requested()) {
                if (interrupted.load()) {
                    source_.request_stop();
                    return;
                }
                std::this_thread::sleep_for(std::chrono::milliseconds(50));
            }
        });
    }
    ~InterruptStopsExport()
    {
        watcher_ = std::jthread();
        sigaction(SIGINT, &previousInt_, nullptr);
        sigaction(SIGTERM, &previousTerm_, nullptr);
    }
    std::stop_token token() const { return source_.get_token(); }

private:
    std::stop_source source_;
    struct sigaction previousInt_ {};
    struct sigaction previousTerm_ {};
    std::jthread watcher_;
};

int fail(const QString &sentence)
{
    CliOutput::err(sentence);
    return CliOutput::failureExit;
}
} // namespace

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Writes one camera of one event as a single MP4 movie. The drive is only read."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("The TeslaCam folder to read."));
    const QCommandLineOption eventOption(QStringLiteral("event"),
                                        QStringLiteral("The event's id, as keelhold-cli scan prints it."),
                                        QStringLiteral("id"));
    const QCommandLineOption cameraOption(QStringLiteral("camera"),
                                         QStringLiteral("One of: %1.").arg(cameraNames().join(QStringLiteral(", "))),
                                         QStringLiteral("camera"));
    const QCommandLineOption outputOption(
        QStringList{QStringLiteral("o"), QStringLiteral("output")},
        QStringLiteral("The movie file to create; in an existing folder, the suggested name is used."),
        QStringLiteral("file"));
    const QCommandLineOption fromOption(QStringLiteral("from"),
                                       QStringLiteral("Start, in seconds of the joined footage."),
                                       QStringLiteral("seconds"));
    const QCommandLineOption toOption(QStringLiteral("to"), QStringLiteral("End, in seconds of the joined footage."),
                                     QStringLiteral("seconds"));
    parser.addOptions({eventOption, cameraOption, outputOption, fromOption, toOption});
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1 || !parser.isSet(eventOption) || !parser.isSet(cameraOption)
        || !parser.isSet(outputOption)) {
        CliOutput::err(QString::fromLatin1(usage));
        return CliOutput::usageExit;
    }
    const std::optional<Camera> camera = Camera::fromRawValue(parser.value(cameraOption));
    if (!camera)
        return fail(QStringLiteral("\u201c%1\u201d is not a camera; use one of %2.")
                        .arg(parser.value(cameraOption), cameraNames().join(QStringLiteral(", "))));
    bool badNumber = false;
    const std::optional<double> from = seconds(parser, fromOption, badNumber);
    const std::optional<double> to = seconds(parser, toOption, badNumber);
    if (badNumber)
        return fail(QStringLiteral("--from and --to take a number of seconds, such as 12.5."));
    std::optional<std::pair<double, double>> range;
    if (from || to)
        range = std::make_pair(from.value_or(0.0), to.value_or(std::numeric_limits<double>::infinity()));

    const QString root = QDir::cleanPath(QDir::current().absoluteFilePath(positional.first()));
    const QString eventId = parser.value(eventOption);
    if (DriveBoundary::writesInto(root, parser.value(outputOption)).value_or(false))
        return fail(DriveBoundary::exportRefusal);
    // FFmpeg's own messages about damaged clips would drown the progress.
    av_log_set_level(AV_LOG_QUIET);

    try {
        const DriveScan scan = TeslaCamParser::scan(root);
        const auto event = std::find_if(scan.events.begin(), scan.events.end(),
                                        [&](const TeslaEvent &e) { return e.id() == eventId; });
        if (event == scan.events.end())
            return fail(QStringLiteral("There is no event \u201c%1\u201d in this TeslaCam folder.").arg(eventId));

        QString output = QDir::cleanPath(QDir::current().absoluteFilePath(parser.value(outputOption)));
        if (QFileInfo(output).isDir())
            output = QDir(output).filePath(Exporter::suggestedFileName(*event, *camera));

        // A half-written movie is of no use here; one that was there before
        // is never ours to remove.
        const bool existedBefore = QFileInfo::exists(output);
        const InterruptStopsExport interrupt;
        try {
            int shownPercent = -1;
            Exporter::exportFootage(*camera, *event, range, output, [&](double fraction) {
                const int percent = int(fraction * 100.0);
                if (percent == shownPercent)
                    return;
                shownPercent = percent;
                CliOutput::status(QStringLiteral("Exporting\u2026 %1%").arg(percent));
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
        if (e.errorCase() == Exporter::ExportError::noClipsForCamera)
            return fail(QStringLiteral("The %1 camera has no playable footage in this event.")
                            .arg(camera->displayName()));
        return fail(e.message());
    } catch (const CancellationError &) {
        return fail(QStringLiteral("The export was stopped."));
    }
}

} // namespace ExportCommand
