#include "AppCommandLine.h"

#include "base/Translations.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstring>

#ifndef KEELHOLD_VERSION
#define KEELHOLD_VERSION "0"
#endif

namespace AppCommandLine {

namespace {
constexpr int usageExit = 64;

void print(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fflush(stream);
}
} // namespace

QString helpText()
{
    // Option names, exit codes and variables are typed as they stand; only
    // the words about them are translated.
    const auto entry = [](const char *name, int width, const QString &about) {
        return QStringLiteral("  ") + QString::fromLatin1(name).leftJustified(width) + about + QLatin1Char('\n');
    };
    //: %1 is the command's synopsis, which stays as it is
    QString text = QCoreApplication::translate("AppCommandLine", "Usage: %1").arg(QStringLiteral("keelhold [--sample | --vault]"));
    //: The second synopsis line, under "Usage:"; %1 stays as it is
    text += QLatin1Char('\n') + QCoreApplication::translate("AppCommandLine", "  or:  %1")
                                    .arg(QStringLiteral("keelhold --help | --version"));
    text += QStringLiteral("\n\n")
        + QCoreApplication::translate("AppCommandLine",
                                      "Reviews the footage a Tesla records to its USB drive. Keelhold reads the "
                                      "drive's TeslaCam folder without ever writing to it, plays every camera of an "
                                      "event in sync, and keeps chosen events in a Vault folder as verified copies.");
    text += QStringLiteral("\n\n") + QCoreApplication::translate("AppCommandLine", "Exit status:") + QLatin1Char('\n');
    text += entry("0", 4, QCoreApplication::translate("AppCommandLine", "The window was closed."));
    text += entry("1", 4, QCoreApplication::translate("AppCommandLine", "The window could not be shown."));
    text += entry("64", 4, QCoreApplication::translate("AppCommandLine", "The command line was wrong."));
    text += QLatin1Char('\n') + QCoreApplication::translate("AppCommandLine", "Options:") + QLatin1Char('\n');
    text += entry("--sample", 15,
                  QCoreApplication::translate("AppCommandLine", "Start with the sample footage instead of a drive."));
    text += entry("--vault", 15, QCoreApplication::translate("AppCommandLine", "Open at the Vault, where kept events are."));
    text += entry("-h, --help", 15, QCoreApplication::translate("AppCommandLine", "Show this help."));
    text += entry("-v, --version", 15, QCoreApplication::translate("AppCommandLine", "Show the version."));
    //: Heading over the environment variables the program reads
    text += QLatin1Char('\n') + QCoreApplication::translate("AppCommandLine", "Environment:") + QLatin1Char('\n');
    text += entry("KEELHOLD_SAMPLE_FOOTAGE", 25,
                  QCoreApplication::translate("AppCommandLine", "A TeslaCam folder to show as the sample footage."));
    //: %1 and %2 are the variable's values, typed as they stand
    text += entry("KEELHOLD_COLOR_SCHEME", 25,
                  QCoreApplication::translate("AppCommandLine", "%1 or %2, in place of the desktop's choice.")
                      .arg(QStringLiteral("dark"), QStringLiteral("light")));
    return text;
}

QString versionText() { return QStringLiteral("keelhold " KEELHOLD_VERSION "\n"); }

std::optional<int> answerWithoutDisplay(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--help") || !std::strcmp(argv[i], "-h")) {
            // No window, but the user's language.
            QCoreApplication core(argc, argv);
            Translations::install();
            print(stdout, helpText());
            return 0;
        }
        if (!std::strcmp(argv[i], "--version") || !std::strcmp(argv[i], "-v")) {
            print(stdout, versionText());
            return 0;
        }
    }
    return std::nullopt;
}

Choice parse(const QStringList &arguments)
{
    Choice choice;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--sample")) {
            choice.sample = true;
            continue;
        }
        if (arguments[i] == QLatin1String("--vault")) {
            choice.showVault = true;
            continue;
        }
        //: %1 is the argument given; "keelhold --help" is a command and stays as it is
        print(stderr, QCoreApplication::translate("AppCommandLine",
                                                  "keelhold doesn't know “%1”. Run “keelhold --help” "
                                                  "to see what it takes.")
                              .arg(arguments[i])
                          + QLatin1Char('\n'));
        choice.exitCode = usageExit;
        return choice;
    }
    return choice;
}

} // namespace AppCommandLine
