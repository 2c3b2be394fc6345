#include "cli/ReportCommand.h"

#include "base/CancellationError.h"
#include "cli/CliEvents.h"
#include "cli/CliInterrupt.h"
#include "cli/CliOutput.h"
#include "cli/CliScan.h"
#include "cli/CliUnlock.h"
#include "drive/DriveBoundary.h"
#include "model/DrivingDataText.h"
#include "report/IncidentReport.h"
#include "report/ReportError.h"
#include "report/TileFetch.h"

extern "C" {
#include <libavutil/log.h>
}

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace ReportCommand {

namespace {
const char *synopsis = "keelhold-cli report <TeslaCam or Vault folder> --event ID -o FILE_OR_FOLDER [--package] "
                       "[--include-keys] [--vault FOLDER] [--speed-unit km/h|mph]";

int fail(const QString &sentence)
{
    CliOutput::err(sentence);
    return CliOutput::failureExit;
}
} // namespace

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    //: SHA256SUMS is a file name and `sha256sum -c` a command; keep both as they are
    parser.setApplicationDescription(CliOutput::tr(
        "Writes the incident report of one event as a PDF: when and where, each camera at the moment, the driving "
        "data, and every original file with its SHA-256. With --package, one ZIP that also holds every original "
        "and a SHA256SUMS file that `sha256sum -c` checks. The drive is only read."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), CliOutput::tr("The TeslaCam folder, or a Vault folder."));
    const QCommandLineOption eventOption(QStringLiteral("event"),
                                        CliOutput::tr("The event's id, as keelhold-cli scan prints it."),
                                        QStringLiteral("id"));
    const QCommandLineOption outputOption(
        QStringList{QStringLiteral("o"), QStringLiteral("output")},
        CliOutput::tr("The file to create; in an existing folder, the suggested name is used."), QStringLiteral("file"));
    const QCommandLineOption packageOption(QStringLiteral("package"),
                                          CliOutput::tr("Makes the evidence package (ZIP) instead of the PDF alone."));
    const QCommandLineOption keysOption(QStringLiteral("include-keys"),
                                       CliOutput::tr("Puts the unlock keys of an encrypted event into the package."));
    const QCommandLineOption vaultOption(
        QStringLiteral("vault"),
        CliOutput::tr("A Vault to compare the files with, for an event on the drive that was kept there."),
        QStringLiteral("folder"));
    //: km/h and mph are values typed on the command line; keep them as they are
    const QCommandLineOption unitOption(QStringLiteral("speed-unit"),
                                       CliOutput::tr("One of: km/h, mph. The default is the app's choice, else the one your "
                                                     "locale uses."),
                                       QStringLiteral("unit"));
    const QCommandLineOption tokenFile = CliUnlock::tokenFileOption();
    parser.addOptions({eventOption, outputOption, packageOption, keysOption, vaultOption, unitOption, tokenFile});
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1 || !parser.isSet(eventOption) || !parser.isSet(outputOption)) {
        CliOutput::err(CliOutput::usage({QString::fromLatin1(synopsis)}));
        return CliOutput::usageExit;
    }
    const QString chosenUnit = QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold")).value(QStringLiteral("KHSpeedUnit")).toString();
    bool miles = chosenUnit.isEmpty() ? DrivingDataText::milesByDefault() : chosenUnit == QLatin1String("mph");
    if (parser.isSet(unitOption)) {
        const QString unit = parser.value(unitOption);
        if (unit != QLatin1String("km/h") && unit != QLatin1String("mph"))
            //: km/h and mph are values typed on the command line; keep them as they are
            return fail(CliOutput::tr("--speed-unit takes km/h or mph."));
        miles = unit == QLatin1String("mph");
    }

    const QString given = positional.first();
    const QString root = CliScan::teslaCamRoot(given);
    QString error;
    CliEvents::Found found = CliEvents::find(root, parser.value(eventOption), &error);
    if (!found.event && root != given)
        found = CliEvents::find(given, parser.value(eventOption), &error);
    if (!found.event)
        return fail(error);
    const TeslaEvent &event = *found.event;
    if (DriveBoundary::writesIntoDriveOf({event}, parser.value(outputOption)))
        return fail(DriveBoundary::exportRefusalText());
    av_log_set_level(AV_LOG_QUIET);

    // Encrypted footage shows in the stills only with its keys: held ones,
    // or fetched when a token was given.
    if (event.encrypted && parser.isSet(tokenFile))
        if (const QString refusal = CliUnlock::unlockOrSay(parser, tokenFile, event.clips, found.vaultURL);
            !refusal.isEmpty())
            return fail(refusal);

    const bool package = parser.isSet(packageOption);
    QString output = QDir::cleanPath(QDir::current().absoluteFilePath(parser.value(outputOption)));
    if (QFileInfo(output).isDir())
        output = QDir(output).filePath(package ? IncidentReport::suggestedPackageName(event)
                                               : IncidentReport::suggestedFileName(event));

    IncidentReport::Options options;
    if (!found.vaultURL.isEmpty())
        options.vaultURL = found.vaultURL;
    else if (parser.isSet(vaultOption))
        options.vaultURL = QDir(parser.value(vaultOption)).absolutePath();
    options.package = package;
    options.includeKeys = parser.isSet(keysOption);
    options.miles = miles;
    options.version = QStringLiteral(KEELHOLD_VERSION);
    // The app's map settings: its tile server, and the speed unit chosen there.
    const QSettings app(QStringLiteral("Keelhold"), QStringLiteral("Keelhold"));
    const QString tiles = app.value(TileFetch::templateKey).toString();
    options.tiles = TileFetch::fetcher({tiles.isEmpty() ? QString::fromLatin1(TileFetch::defaultTemplate) : tiles,
                                        TileFetch::userAgent(options.version)});
    const CliInterrupt::StopsWork interrupt;
    options.stop = interrupt.token();
    int shown = -1;
    options.progress = [&](double fraction) {
        const int percent = int(fraction * 100);
        if (percent == shown)
            return;
        shown = percent;
        //: Report progress; %1 is a whole percentage, the % sign follows it
        CliOutput::status(CliOutput::tr("Making the report\u2026 %1%").arg(percent));
    };
    try {
        IncidentReport::make(event, output, options);
    } catch (const ReportError &e) {
        CliOutput::endStatus();
        return fail(e.message());
    } catch (const CancellationError &) {
        CliOutput::endStatus();
        return fail(CliOutput::tr("The report was stopped."));
    }
    CliOutput::endStatus();
    CliOutput::out(QDir::toNativeSeparators(output).toUtf8() + '\n');
    return 0;
}

} // namespace ReportCommand
