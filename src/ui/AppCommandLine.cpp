#include "AppCommandLine.h"

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
    return QStringLiteral(
        "Usage: keelhold [--sample]\n"
        "  or:  keelhold --help | --version\n"
        "\n"
        "Reviews the footage a Tesla records to its USB drive. Keelhold reads the drive's TeslaCam folder "
        "without ever writing to it, plays every camera of an event in sync, and keeps chosen events in a "
        "Vault folder as verified copies.\n"
        "\n"
        "Exit status:\n"
        "  0   The window was closed.\n"
        "  1   The window could not be shown.\n"
        "  64  The command line was wrong.\n"
        "\n"
        "Options:\n"
        "  --sample       Start with the sample footage instead of a drive.\n"
        "  -h, --help     Show this help.\n"
        "  -v, --version  Show the version.\n"
        "\n"
        "Environment:\n"
        "  KEELHOLD_SAMPLE_FOOTAGE  A TeslaCam folder to show as the sample footage.\n"
        "  KEELHOLD_COLOR_SCHEME    dark or light, in place of the desktop's choice.\n");
}

QString versionText() { return QStringLiteral("keelhold " KEELHOLD_VERSION "\n"); }

std::optional<int> answerWithoutDisplay(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--help") || !std::strcmp(argv[i], "-h")) {
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
        print(stderr, QStringLiteral("keelhold doesn't know \u201c%1\u201d. Run \u201ckeelhold --help\u201d to see what it takes.\n")
                          .arg(arguments[i]));
        choice.exitCode = usageExit;
        return choice;
    }
    return choice;
}

} // namespace AppCommandLine
