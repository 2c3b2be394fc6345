#include "cli/CliDispatch.h"

#include "crypt/DecryptingClipReader.h"

#include "cli/CliOutput.h"
#include "cli/DecryptCommand.h"
#include "cli/ExportCommand.h"
#include "cli/ReportCommand.h"
#include "cli/HealthCommand.h"
#include "cli/KeepCommand.h"
#include "cli/ScanCommand.h"
#include "cli/MomentsCommand.h"
#include "cli/TelemetryCommand.h"
#include "cli/UnlockCommand.h"
#include "cli/VaultCommand.h"
#include "cli/WatchCommand.h"

#include <algorithm>

#ifndef KEELHOLD_VERSION
#define KEELHOLD_VERSION "0"
#endif

namespace CliDispatch {

namespace {

const Command *find(const QString &name)
{
    const auto &all = commands();
    const auto it = std::find_if(all.begin(), all.end(), [&](const Command &c) { return c.name == name; });
    return it == all.end() ? nullptr : &*it;
}

int unknownCommand(const QString &name)
{
    if (name.startsWith(QLatin1Char('-')))
        //: %1 is the option as typed
        CliOutput::err(CliOutput::tr("keelhold-cli has no option \u201c%1\u201d before a command. "
                                     "Run \u201ckeelhold-cli --help\u201d to see the commands and their options.")
                           .arg(name));
    else
        //: %1 is the command as typed
        CliOutput::err(CliOutput::tr("There is no command \u201c%1\u201d. Run \u201ckeelhold-cli --help\u201d to see them all.")
                           .arg(name));
    return CliOutput::usageExit;
}

// Every command prints its own options with --help.
int commandHelp(const Command &command)
{
    return command.run({QStringLiteral("keelhold-cli ") + command.name, QStringLiteral("--help")});
}

} // namespace

const std::vector<Command> &commands()
{
    static const std::vector<Command> table{
        {QStringLiteral("scan"), CliOutput::tr("Read a TeslaCam folder and print its events as JSON."), ScanCommand::run},
        {QStringLiteral("health"), CliOutput::tr("Print the health report of a TeslaCam folder as JSON."),
         HealthCommand::run},
        {QStringLiteral("export"), CliOutput::tr("Write one camera of one event as one MP4 movie, or all cameras at once."), ExportCommand::run},
        {QStringLiteral("report"),
         CliOutput::tr("Write the incident report of one event as a PDF, or an evidence package with every original."),
         ReportCommand::run},
        {QStringLiteral("keep"), CliOutput::tr("Copy events into a Vault folder, checking every file."),
         KeepCommand::run},
        {QStringLiteral("vault"), CliOutput::tr("List, remove or re-check the events kept in a Vault folder."),
         VaultCommand::run},
        {QStringLiteral("telemetry"), CliOutput::tr("Print the driving data recorded with an event's footage."),
         TelemetryCommand::run},
        {QStringLiteral("moments"),
         CliOutput::tr("Print where to look in an event: activity in front of each camera, and hard moments."),
         MomentsCommand::run},
        {QStringLiteral("unlock"), CliOutput::tr("Check and remember your Tesla sign-in, for the car's encrypted clips."),
         UnlockCommand::run},
        {QStringLiteral("decrypt"), CliOutput::tr("Write an event's encrypted clips as the plain MP4 movies they hold."),
         DecryptCommand::run},
        {QStringLiteral("watch"), CliOutput::tr("Keep what is new from every TeslaCam drive as it is connected, until stopped."),
         WatchCommand::run},
    };
    return table;
}

QString helpText()
{
    //: The ways to call the tool; %1, %2 and %3 are command lines, which stay as they are. Keep them lined up.
    QString text = CliOutput::tr("Usage: %1\n"
                                 "  or:  %2\n"
                                 "  or:  %3\n")
                       .arg(QStringLiteral("keelhold-cli COMMAND [ARGUMENTS]"),
                            QStringLiteral("keelhold-cli help COMMAND"), QStringLiteral("keelhold-cli --help | --version"));
    text += QLatin1Char('\n')
        + CliOutput::tr("Reads the TeslaCam folder of a Tesla's USB drive without ever writing to it, and keeps chosen "
                        "events in a Vault folder as verified copies.")
        + QLatin1Char('\n');
    //: Heading of the list of commands in the help
    text += QLatin1Char('\n') + CliOutput::tr("Commands:") + QLatin1Char('\n');
    for (const Command &c : commands())
        text += QStringLiteral("  %1%2\n").arg(c.name, -11).arg(c.summary);
    text += QStringLiteral("  %1%2\n").arg(QStringLiteral("help"), -11).arg(CliOutput::tr("Show the options of a command."));
    // Laid out as a whole, so each language wraps its own lines.
    //: The exit codes in the help. Keep the numbers and their column; keep, vault verify and decrypt are command names.
    text += QLatin1Char('\n')
        + CliOutput::tr("Exit status:\n"
                        "  0    Done.\n"
                        "  1    Done in part: keep could not keep some files, vault verify found a file changed or missing, or\n"
                        "       decrypt could write only some clips.\n"
                        "  2    The work could not be done, for example because the folder is missing or can't be read.\n"
                        "  64   The command line was wrong.\n"
                        "  130  keep was stopped with Ctrl-C.\n");
    text += QLatin1Char('\n') + CliOutput::tr("Progress and messages go to standard error, results to standard output.")
        + QLatin1Char('\n');
    //: Heading of the list of options in the help
    text += QLatin1Char('\n') + CliOutput::tr("Options:") + QLatin1Char('\n');
    text += QStringLiteral("  %1%2\n").arg(QStringLiteral("-h, --help"), -15).arg(CliOutput::tr("Show this help."));
    text += QStringLiteral("  %1%2\n").arg(QStringLiteral("-v, --version"), -15).arg(CliOutput::tr("Show the version."));
    return text;
}

QString versionText() { return QStringLiteral("keelhold-cli " KEELHOLD_VERSION "\n"); }

int run(QStringList arguments)
{
    // Unlocked footage exports and reads like clear footage.
    DecryptingClipReader::install();
    if (arguments.size() < 2) {
        CliOutput::err(helpText());
        return CliOutput::usageExit;
    }
    const QString name = arguments.takeAt(1);
    if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
        CliOutput::out(helpText().toUtf8());
        return 0;
    }
    if (name == QLatin1String("--version") || name == QLatin1String("-v")) {
        CliOutput::out(versionText().toUtf8());
        return 0;
    }
    if (name == QLatin1String("help")) {
        if (arguments.size() < 2) {
            CliOutput::out(helpText().toUtf8());
            return 0;
        }
        if (arguments.size() > 2) {
            CliOutput::err(CliOutput::tr("help takes one command, such as \u201ckeelhold-cli help scan\u201d."));
            return CliOutput::usageExit;
        }
        const Command *command = find(arguments[1]);
        return command ? commandHelp(*command) : unknownCommand(arguments[1]);
    }
    const Command *command = find(name);
    if (!command)
        return unknownCommand(name);
    // QCommandLineParser expects the program name first.
    arguments[0] = QStringLiteral("keelhold-cli ") + name;
    return command->run(arguments);
}

} // namespace CliDispatch
