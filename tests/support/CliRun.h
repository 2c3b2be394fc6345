#pragma once

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

// keelhold-cli in a process of its own, as a user runs it.
namespace CliRun {

struct Result {
    int exitCode = -1;    // -1 when it didn't exit by itself
    bool killed = false;  // ended by a signal
    QByteArray out;
    QString err;
};

Result run(const QStringList &arguments, const QProcessEnvironment &env = QProcessEnvironment::systemEnvironment());
// Waits for a process already started (at most a minute) and collects it.
Result finish(QProcess &process);

} // namespace CliRun
