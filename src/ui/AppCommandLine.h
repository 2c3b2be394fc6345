#pragma once

#include <QString>
#include <QStringList>
#include <optional>

// The command line of the keelhold app. --help and --version are answered
// before the application object exists, so they work without a display (the
// man page is made from them at build time).
namespace AppCommandLine {

QString helpText();
QString versionText();

// --help or --version anywhere: prints the answer and gives exit code 0.
std::optional<int> answerWithoutDisplay(int argc, char **argv);

struct Choice {
    bool sample = false;
    // --vault: the Vault section first (a notification's click).
    bool showVault = false;
    // Set when the app should stop at once with this code.
    std::optional<int> exitCode;
};

// The arguments left once Qt has taken its own (-platform and the like).
// Anything unknown is a usage error, told on stderr.
Choice parse(const QStringList &arguments);

} // namespace AppCommandLine
