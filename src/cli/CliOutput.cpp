#include "cli/CliOutput.h"

#include "model/JsonCoding.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <unistd.h>

namespace CliOutput {

namespace {
bool statusOpen = false;
}

void out(const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    std::fflush(stdout);
}

void err(const QString &line)
{
    endStatus();
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
    std::fflush(stderr);
}

int fail(const QString &sentence)
{
    err(sentence);
    return failureExit;
}

QString tr(const char *text)
{
    return QCoreApplication::translate("keelhold-cli", text);
}

bool stderrIsTerminal()
{
    static const bool tty = ::isatty(STDERR_FILENO) == 1;
    return tty;
}

void status(const QString &line)
{
    if (!stderrIsTerminal()) {
        err(line);
        return;
    }
    const QByteArray bytes = "\r\x1b[2K" + line.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
    std::fflush(stderr);
    statusOpen = true;
}

void endStatus()
{
    if (statusOpen) {
        std::fputc('\n', stderr);
        statusOpen = false;
    }
}

QString commandHelp(const QCommandLineParser &parser, const QString &name)
{
    QStringList lines = parser.helpText().split(QLatin1Char('\n'));
    // Qt names the executable's path, and offers Qt's own options, which a
    // command-line tool has none of.
    const QString qtUsage = QStringLiteral("Usage: ") + QCoreApplication::arguments().value(0);
    if (!lines.isEmpty() && lines[0].startsWith(qtUsage + QLatin1Char(' ')))
        lines[0] = QStringLiteral("Usage: ") + name + lines[0].mid(qtUsage.size());
    lines.removeIf([](const QString &line) { return line.trimmed().startsWith(QLatin1String("--help-all ")); });
    for (QString &line : lines)
        line.replace(QLatin1String("Displays help on commandline options."), QLatin1String("Show this help."));
    return lines.join(QLatin1Char('\n'));
}

std::optional<int> parseArguments(QCommandLineParser &parser, const QStringList &arguments)
{
    if (!parser.parse(arguments)) {
        err(parser.errorText());
        return usageExit;
    }
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("help-all"))) {
        out(commandHelp(parser, arguments.value(0)).toUtf8());
        return 0;
    }
    return std::nullopt;
}

void printJson(const QJsonObject &object, bool pretty)
{
    out(pretty ? JsonCoding::toPrettyJson(object) : JsonCoding::toCompactJson(object) + '\n');
}

} // namespace CliOutput
