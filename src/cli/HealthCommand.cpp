#include "cli/HealthCommand.h"

#include "cli/CliOutput.h"
#include "drive/ClipProber.h"
#include "drive/TeslaCamParser.h"
#include "health/HealthComputer.h"
#include "model/JsonCoding.h"
#include "vault/VaultIndex.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

extern "C" {
#include <libavutil/log.h>
}

namespace HealthCommand {

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Reads a TeslaCam folder and prints its health report (fullness, damaged clips, format, "
                       "events not yet kept, recommendations) as JSON."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("The TeslaCam folder to read."));
    const QCommandLineOption vault(QStringLiteral("vault"),
                                   QStringLiteral("The Vault folder whose index tells which events are kept."),
                                   QStringLiteral("DIR"));
    const QCommandLineOption probe(QStringLiteral("probe"),
                                   QStringLiteral("Open every clip to find damaged ones (slower)."));
    const QCommandLineOption pretty(QStringLiteral("pretty"), QStringLiteral("Indent the JSON for reading."));
    parser.addOption(vault);
    parser.addOption(probe);
    parser.addOption(pretty);
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1) {
        CliOutput::err(QStringLiteral("Usage: keelhold-cli health <TeslaCam folder> [--vault DIR] [--probe] [--pretty]"));
        return CliOutput::usageExit;
    }
    const QString root = QDir::cleanPath(QDir::current().absoluteFilePath(positional.first()));

    VaultIndex index;
    if (parser.isSet(vault)) {
        const QString vaultPath = QDir::cleanPath(QDir::current().absoluteFilePath(parser.value(vault)));
        if (!QFileInfo(vaultPath).isDir()) {
            CliOutput::err(QStringLiteral("There is no Vault folder at \u201c%1\u201d.").arg(vaultPath));
            return CliOutput::failureExit;
        }
        // As the app does: an unreadable index counts as an empty one.
        index = VaultIndex::loadOrEmpty(vaultPath);
    }

    try {
        DriveScan scan = TeslaCamParser::scan(root, [](const ScanProgress &p) {
            CliOutput::status(QStringLiteral("%1 %2 events, %3 clips").arg(p.phase).arg(p.eventsFound).arg(p.clipsFound));
        });
        if (parser.isSet(probe)) {
            // Damaged clips are what the report counts; the demuxer's own
            // complaints about them would only be noise.
            av_log_set_level(AV_LOG_QUIET);
            scan.events = ClipProber::probeAll(scan.events, ClipProber::defaultTimeout, ClipProber::engineConcurrencyCap,
                                               [](int completed, int total) {
                                                   if (!CliOutput::stderrIsTerminal() && completed % 100 != 0
                                                       && completed != total)
                                                       return;
                                                   CliOutput::status(QStringLiteral("probing %1 of %2 clips")
                                                                         .arg(completed)
                                                                         .arg(total));
                                               });
        }
        CliOutput::endStatus();
        const QJsonObject json = HealthComputer::compute(scan, index).toJson();
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
    CliOutput::endStatus();
    return CliOutput::failureExit;
}

} // namespace HealthCommand
