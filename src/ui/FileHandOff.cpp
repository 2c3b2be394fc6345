#include "FileHandOff.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include <memory>

QString FileHandOff::emailProgram()
{
    return QStandardPaths::findExecutable(QStringLiteral("xdg-email"));
}

QString FileHandOff::shareTooltip()
{
    return tr("Show the file in its folder, or attach it to a new email.");
}

QList<QStringList> FileHandOff::showInFolderCommands(const QString &path)
{
    const QString uri = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
    // The file managers' common D-Bus call selects the file; a plain open of
    // the folder is the fallback.
    return {{QStringLiteral("dbus-send"), QStringLiteral("--session"), QStringLiteral("--print-reply"),
             QStringLiteral("--dest=org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
             QStringLiteral("org.freedesktop.FileManager1.ShowItems"), QStringLiteral("array:string:") + uri,
             QStringLiteral("string:")},
            {QStringLiteral("xdg-open"), QFileInfo(path).absolutePath()}};
}

QStringList FileHandOff::emailCommand(const QString &path)
{
    return {QStringLiteral("xdg-email"), QStringLiteral("--attach"), path};
}

namespace {

// Tries each command in turn without ever waiting on the GUI thread: a
// command that fails, or gives no answer within the limit, hands over to
// the next. The last one is started and left to run.
void tryInTurn(QList<QStringList> commands, std::chrono::milliseconds limit)
{
    while (!commands.isEmpty()) {
        QStringList command = commands.takeFirst();
        const QString program = QStandardPaths::findExecutable(command.takeFirst());
        if (program.isEmpty())
            continue;
        if (commands.isEmpty()) {
            QProcess::startDetached(program, command);
            return;
        }
        auto *process = new QProcess;
        const auto settled = std::make_shared<bool>(false);
        const auto settle = [process, commands, settled, limit](bool succeeded) {
            if (*settled)
                return;
            *settled = true;
            process->disconnect();
            if (process->state() == QProcess::NotRunning) {
                process->deleteLater();
            } else {
                // Deleting a running QProcess waits for it; let it go first.
                QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
                process->kill();
            }
            if (!succeeded)
                tryInTurn(commands, limit);
        };
        QObject::connect(process, &QProcess::finished, process, [settle](int code, QProcess::ExitStatus status) {
            settle(status == QProcess::NormalExit && code == 0);
        });
        QObject::connect(process, &QProcess::errorOccurred, process, [settle](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                settle(false);
        });
        QTimer::singleShot(limit, process, [settle] { settle(false); });
        process->start(program, command);
        return;
    }
}

} // namespace

bool FileHandOff::showInFolder(const QString &path)
{
    if (!QFileInfo::exists(path))
        return false;
    tryInTurn(showInFolderCommands(path), answerLimit);
    return true;
}

bool FileHandOff::email(const QString &path)
{
    if (!canEmail() || !QFileInfo::exists(path))
        return false;
    QStringList command = emailCommand(path);
    command.removeFirst();
    return QProcess::startDetached(emailProgram(), command);
}
