#include "cli/ScanCommand.h"

#include "cli/CliOutput.h"
#include "drive/TeslaCamParser.h"
#include "model/JsonCoding.h"

#include <QCommandLineParser>
#include <QDir>

namespace ScanCommand {

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Reads a TeslaCam folder and prints what it holds as JSON."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("The TeslaCam folder to read."));
    const QCommandLineOption pretty(QStringLiteral("pretty"), QStringLiteral("Indent the JSON for reading."));
    parser.addOption(pretty);
    if (!parser.parse(arguments)) {
        CliOutput::err(parser.errorText());
        return CliOutput::usageExit;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        CliOutput::out(parser.helpText().toUtf8());
        return 0;
    }
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1) {
        CliOutput::err(QStringLiteral("Usage: keelhold-cli scan <TeslaCam folder> [--pretty]"));
        return CliOutput::usageExit;
    }
    const QString root = QDir::cleanPath(QDir::current().absoluteFilePath(positional.first()));

    try {
        const DriveScan result = TeslaCamParser::scan(root, [](const ScanProgress &p) {
            CliOutput::status(QStringLiteral("%1 %2 folders, %3 events, %4 clips")
                                  .arg(p.phase)
                                  .arg(p.foldersScanned)
                                  .arg(p.eventsFound)
                                  .arg(p.clipsFound));
        });
        CliOutput::endStatus();
        const QJsonObject json = result.toJson();
        CliOutput::out(parser.isSet(pretty) ? JsonCoding::toPrettyJson(json) : JsonCoding::toCompactJson(json) + '\n');
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
