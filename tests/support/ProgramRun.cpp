#include "support/ProgramRun.h"

#include <QProcess>

namespace ProgramRun {

Result run(const QString &program, const QStringList &arguments, const QProcessEnvironment &environment,
           int timeoutMs)
{
    QProcess p;
    p.setProcessEnvironment(environment);
    p.start(program, arguments);
    if (!p.waitForFinished(timeoutMs)) {
        p.kill();
        p.waitForFinished();
        return {-1, p.readAllStandardOutput(), QString::fromUtf8(p.readAllStandardError())};
    }
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, p.readAllStandardOutput(),
            QString::fromUtf8(p.readAllStandardError())};
}

} // namespace ProgramRun
