#include "cli/CliOutput.h"
#include "cli/ExportCommand.h"
#include "cli/HealthCommand.h"
#include "cli/KeepCommand.h"
#include "cli/ScanCommand.h"
#include "cli/VaultCommand.h"

#include <QCoreApplication>
#include <functional>
#include <map>

namespace {
const std::map<QString, std::function<int(const QStringList &)>> &commands()
{
    static const std::map<QString, std::function<int(const QStringList &)>> table{
        {QStringLiteral("export"), ExportCommand::run},
        {QStringLiteral("health"), HealthCommand::run},
        {QStringLiteral("keep"), KeepCommand::run},
        {QStringLiteral("scan"), ScanCommand::run},
        {QStringLiteral("vault"), VaultCommand::run},
    };
    return table;
}

void printUsage()
{
    QString text = QStringLiteral("Usage: keelhold-cli <command> [options]\nCommands:");
    for (const auto &[name, run] : commands())
        text += QStringLiteral("\n  ") + name;
    CliOutput::err(text);
}
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("keelhold-cli"));
    QCoreApplication::setOrganizationName(QStringLiteral("Keelhold"));
    QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        printUsage();
        return CliOutput::usageExit;
    }
    const QString name = arguments.takeAt(1);
    const auto it = commands().find(name);
    if (it == commands().end()) {
        CliOutput::err(QStringLiteral("Unknown command \u201c%1\u201d.").arg(name));
        printUsage();
        return CliOutput::usageExit;
    }
    // QCommandLineParser expects the program name first.
    arguments[0] = QStringLiteral("keelhold-cli ") + name;
    return it->second(arguments);
}
