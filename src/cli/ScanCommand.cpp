#include "cli/ScanCommand.h"

#include "cli/CliOutput.h"
#include "cli/CliScan.h"
#include "drive/ClipProber.h"
#include "model/JsonCoding.h"

#include <QCommandLineParser>
#include <QDir>
#include <cmath>

namespace ScanCommand {

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(CliOutput::tr("Reads a TeslaCam folder and prints what it holds as JSON."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), CliOutput::tr("The TeslaCam folder to read, or the drive that holds it."));
    const QCommandLineOption pretty(QStringLiteral("pretty"), CliOutput::tr("Indent the JSON for reading."));
    parser.addOption(pretty);
    const QCommandLineOption probe(QStringLiteral("probe"),
                                   CliOutput::tr("Open every clip after the scan to find its health and length."));
    parser.addOption(probe);
    const QCommandLineOption timeoutOption(QStringLiteral("timeout"),
                                           CliOutput::tr("Seconds each clip may take to answer (default 10)."),
                                           QStringLiteral("seconds"));
    parser.addOption(timeoutOption);
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1) {
        CliOutput::err(CliOutput::usage({QStringLiteral("keelhold-cli scan <TeslaCam folder> [--pretty] [--probe [--timeout SECONDS]]")}));
        return CliOutput::usageExit;
    }
    std::chrono::milliseconds timeout = ClipProber::defaultTimeout;
    if (parser.isSet(timeoutOption)) {
        bool ok = false;
        const double seconds = parser.value(timeoutOption).toDouble(&ok);
        if (!ok || !std::isfinite(seconds) || seconds <= 0 || seconds > 24 * 3600) {
            CliOutput::err(CliOutput::tr("The timeout must be a number of seconds, such as 10."));
            return CliOutput::usageExit;
        }
        if (!parser.isSet(probe)) {
            CliOutput::err(CliOutput::tr("The timeout applies only with --probe."));
            return CliOutput::usageExit;
        }
        timeout = std::chrono::milliseconds(std::llround(seconds * 1000));
    }
    const QString root = CliScan::teslaCamRoot(positional.first());

    const auto result = CliScan::read(root, parser.isSet(probe) ? std::optional(timeout) : std::nullopt);
    if (!result)
        return CliOutput::failureExit;
    CliOutput::printJson(result->toJson(), parser.isSet(pretty));
    return 0;
}

} // namespace ScanCommand
