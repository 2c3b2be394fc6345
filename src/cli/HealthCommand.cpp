#include "cli/HealthCommand.h"

#include "cli/CliOutput.h"
#include "cli/CliScan.h"
#include "drive/ClipProber.h"
#include "health/HealthComputer.h"
#include "model/JsonCoding.h"
#include "vault/VaultIndex.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

namespace HealthCommand {

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        CliOutput::tr("Reads a TeslaCam folder and prints its health report (fullness, damaged clips, format, "
                      "events not yet kept, recommendations) as JSON."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), CliOutput::tr("The TeslaCam folder to read, or the drive that holds it."));
    const QCommandLineOption vault(QStringLiteral("vault"),
                                   CliOutput::tr("The Vault folder whose index tells which events are kept."),
                                   QStringLiteral("DIR"));
    const QCommandLineOption probe(QStringLiteral("probe"),
                                   CliOutput::tr("Open every clip to find damaged ones (slower)."));
    const QCommandLineOption pretty(QStringLiteral("pretty"), CliOutput::tr("Indent the JSON for reading."));
    parser.addOption(vault);
    parser.addOption(probe);
    parser.addOption(pretty);
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1) {
        CliOutput::err(CliOutput::usage({QStringLiteral("keelhold-cli health <TeslaCam folder> [--vault DIR] [--probe] [--pretty]")}));
        return CliOutput::usageExit;
    }
    const QString root = CliScan::teslaCamRoot(positional.first());

    VaultIndex index;
    if (parser.isSet(vault)) {
        const QString vaultPath = QDir::cleanPath(QDir::current().absoluteFilePath(parser.value(vault)));
        if (!QFileInfo(vaultPath).isDir()) {
            //: %1 is a folder
            CliOutput::err(CliOutput::tr("There is no Vault folder at \u201c%1\u201d.").arg(vaultPath));
            return CliOutput::failureExit;
        }
        // As the app does: an unreadable index counts as an empty one.
        index = VaultIndex::loadOrEmpty(vaultPath);
    }

    const auto scan = CliScan::read(root, parser.isSet(probe) ? std::optional(ClipProber::defaultTimeout) : std::nullopt);
    if (!scan)
        return CliOutput::failureExit;
    CliOutput::printJson(HealthComputer::compute(*scan, index).toJson(), parser.isSet(pretty));
    return 0;
}

} // namespace HealthCommand
