#include "cli/ScanCommand.h"

#include "cli/CliOutput.h"
#include "drive/ClipProber.h"
#include "drive/TeslaCamParser.h"
#include "model/JsonCoding.h"

#include <QCommandLineParser>
#include <QDir>
#include <cmath>

extern "C" {
#include <libavutil/log.h>
}

namespace ScanCommand {

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Reads a TeslaCam folder and prints what it holds as JSON."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("The TeslaCam folder to read."));
    const QCommandLineOption pretty(QStringLiteral("pretty"), QStringLiteral("Indent the JSON for reading."));
    parser.addOption(pretty);
    const QCommandLineOption probe(QStringLiteral("probe"),
                                   QStringLiteral("Open every clip after the scan to find its health and length."));
    parser.addOption(probe);
    const QCommandLineOption timeoutOption(QStringLiteral("timeout"),
                                           QStringLiteral("Seconds each clip may take to answer (default 10)."),
                                           QStringLiteral("seconds"));
    parser.addOption(timeoutOption);
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1) {
        CliOutput::err(QStringLiteral("Usage: keelhold-cli scan <TeslaCam folder> [--pretty] [--probe [--timeout SECONDS]]"));
        return CliOutput::usageExit;
    }
    std::chrono::milliseconds timeout = ClipProber::defaultTimeout;
    if (parser.isSet(timeoutOption)) {
        bool ok = false;
        const double seconds = parser.value(timeoutOption).toDouble(&ok);
        if (!ok || !std::isfinite(seconds) || seconds <= 0 || seconds > 24 * 3600) {
            CliOutput::err(QStringLiteral("The timeout must be a number of seconds, such as 10."));
            return CliOutput::usageExit;
        }
        if (!parser.isSet(probe)) {
            CliOutput::err(QStringLiteral("The timeout applies only with --probe."));
            return CliOutput::usageExit;
        }
        timeout = std::chrono::milliseconds(std::llround(seconds * 1000));
    }
    const QString root = QDir::cleanPath(QDir::current().absoluteFilePath(positional.first()));

    try {
        DriveScan result = TeslaCamParser::scan(root, [](const ScanProgress &p) {
            CliOutput::status(QStringLiteral("%1 %2 folders, %3 events, %4 clips")
                                  .arg(p.phase)
                                  .arg(p.foldersScanned)
                                  .arg(p.eventsFound)
                                  .arg(p.clipsFound));
        });
        if (parser.isSet(probe)) {
            // Damaged clips are the expected case here, reported in the JSON;
            // the demuxer's own complaints about them would only be noise.
            av_log_set_level(AV_LOG_QUIET);
            result.events = ClipProber::probeAll(result.events, timeout, ClipProber::engineConcurrencyCap,
                                                 [](int completed, int total) {
                                                     // Without a terminal, a line per clip would bury the rest.
                                                     if (!CliOutput::stderrIsTerminal() && completed % 100 != 0
                                                         && completed != total)
                                                         return;
                                                     CliOutput::status(QStringLiteral("probing %1 of %2 clips")
                                                                           .arg(completed)
                                                                           .arg(total));
                                                 });
        }
        CliOutput::endStatus();
        const QJsonObject json = result.toJson();
        CliOutput::printJson(json, parser.isSet(pretty));
        return 0;
    } catch (const TeslaCamParser::ParserError &e) {
        CliOutput::err(e.errorCase() == TeslaCamParser::ParserError::rootNotFound
                           ? QStringLiteral("There is no folder at \u201c%1\u201d. Check that the drive is plugged in "
                                            "and the path is right.")
                                 .arg(root)
                           : QStringLiteral("\u201c%1\u201d is a file, not a folder. Give the TeslaCam folder itself.")
                                 .arg(root));
    } catch (const TeslaCamParser::ScanError &e) {
        CliOutput::err(e.message());
    }
    return CliOutput::failureExit;
}

} // namespace ScanCommand
