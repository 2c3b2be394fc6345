#include "cli/CliOutput.h"

#include "model/JsonCoding.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
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

QString tr(const char *text, const char *disambiguation, int n)
{
    return QCoreApplication::translate("CliOutput", text, disambiguation, n);
}

QString usage(const QStringList &forms)
{
    const QString first = forms.value(0);
    //: How a command is typed; %1 is the command line itself, which stays as it is
    QString text = QCoreApplication::translate("CliOutput", "Usage: %1").arg(first);
    const QString indent(std::max<qsizetype>(0, text.size() - first.size()), QLatin1Char(' '));
    for (qsizetype i = 1; i < forms.size(); ++i)
        text += QLatin1Char('\n') + indent + forms[i];
    return text;
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
    // command-line tool has none of. Qt's own words are looked up in Qt's
    // context, through variables so that lupdate leaves them to Qt's
    // translations.
    const char *const qtContext = "QCommandLineParser";
    const char *const qtUsageText = "Usage: %1";
    const char *const qtHelpText = "Displays help on commandline options.";
    const QString qtUsage = QCoreApplication::translate(qtContext, qtUsageText).arg(QCoreApplication::arguments().value(0));
    if (!lines.isEmpty() && lines[0].startsWith(qtUsage + QLatin1Char(' ')))
        lines[0] = QCoreApplication::translate(qtContext, qtUsageText).arg(name) + lines[0].mid(qtUsage.size());
    lines.removeIf([](const QString &line) { return line.trimmed().startsWith(QLatin1String("--help-all ")); });
    const QString qtHelp = QCoreApplication::translate(qtContext, qtHelpText);
    const QString help = QCoreApplication::translate("CliOutput", "Show this help.");
    for (QString &line : lines)
        line.replace(qtHelp, help);
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
