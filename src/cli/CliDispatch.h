#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

// The top level of keelhold-cli: which command runs, the overall help, the
// version, and the exit codes every command shares.
namespace CliDispatch {

struct Command {
    QString name;
    QString summary;
    std::function<int(const QStringList &)> run;
};

// In the order the help lists them.
const std::vector<Command> &commands();

QString helpText();
QString versionText();

// arguments as QCoreApplication::arguments() gives them; answers the exit code.
int run(QStringList arguments);

} // namespace CliDispatch
