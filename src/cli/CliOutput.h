#pragma once

#include <QByteArray>
#include <QString>

// Shared output helpers of the command-line tool.
namespace CliOutput {
void out(const QByteArray &bytes);
void err(const QString &line);
// A status line that rewrites itself on a terminal; plain lines otherwise.
void status(const QString &line);
void endStatus();
bool stderrIsTerminal();
// Exit code for failures the user can act on.
inline constexpr int failureExit = 2;
inline constexpr int usageExit = 64;
} // namespace CliOutput
