#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

class QCommandLineParser;
class QJsonObject;

// Shared output helpers of the command-line tool.
namespace CliOutput {
void out(const QByteArray &bytes);
void err(const QString &line);
// A status line that rewrites itself on a terminal; plain lines otherwise.
void status(const QString &line);
void endStatus();
bool stderrIsTerminal();
// A subcommand's --help: its usage names it as typed ("keelhold-cli scan").
QString commandHelp(const QCommandLineParser &parser, const QString &name);
// Parses a subcommand's arguments. Answers the exit code when the command
// is done already (a usage error, or --help printed), nothing otherwise.
std::optional<int> parseArguments(QCommandLineParser &parser, const QStringList &arguments);
// One JSON document on stdout, compact on one line or indented.
void printJson(const QJsonObject &object, bool pretty);
// Exit code for failures the user can act on.
inline constexpr int failureExit = 2;
// The sentence on stderr; answers failureExit.
int fail(const QString &sentence);
// A text the user reads, in the tool's translation context ("CliOutput", as
// lupdate files CliOutput::tr). n picks the plural form of a "%n" text.
QString tr(const char *text, const char *disambiguation = nullptr, int n = -1);
// Tells lupdate that CliOutput::tr is this context's translation function;
// the compiler never sees it (the macro is for classes).
#if 0
Q_DECLARE_TR_FUNCTIONS(CliOutput)
#endif
// "Usage: FORM", further forms lined up under the first. The forms are
// command lines as typed, never translated.
QString usage(const QStringList &forms);
inline constexpr int usageExit = 64;
} // namespace CliOutput
