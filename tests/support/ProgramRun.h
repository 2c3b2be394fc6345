#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

// Runs a program to its end and keeps what it said.
namespace ProgramRun {

struct Result {
    // -1 when the program crashed or did not end in time.
    int exitCode = -1;
    QByteArray out;
    QString err;
};

Result run(const QString &program, const QStringList &arguments,
           const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment(), int timeoutMs = 60000);

} // namespace ProgramRun
