#include "support/CliRun.h"

namespace CliRun {

Result finish(QProcess &process)
{
    if (!process.waitForFinished(60000)) {
        process.kill();
        process.waitForFinished();
    }
    Result r;
    r.killed = process.exitStatus() == QProcess::CrashExit;
    r.exitCode = r.killed ? -1 : process.exitCode();
    r.out = process.readAllStandardOutput();
    r.err = QString::fromUtf8(process.readAllStandardError());
    return r;
}

Result run(const QStringList &arguments, const QProcessEnvironment &env)
{
    QProcess process;
    process.setProcessEnvironment(env);
    process.start(QStringLiteral(KEELHOLD_CLI_PATH), arguments);
    return finish(process);
}

} // namespace CliRun
