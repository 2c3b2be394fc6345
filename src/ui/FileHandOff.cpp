#include "FileHandOff.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

QString FileHandOff::emailProgram()
{
    return QStandardPaths::findExecutable(QStringLiteral("xdg-email"));
}

QString FileHandOff::shareTooltip()
{
    return QStringLiteral("Show the file in its folder, or attach it to a new email.");
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

bool FileHandOff::showInFolder(const QString &path)
{
    if (!QFileInfo::exists(path))
        return false;
    for (QStringList command : showInFolderCommands(path)) {
        const QString program = QStandardPaths::findExecutable(command.takeFirst());
        if (program.isEmpty())
            continue;
        QProcess process;
        process.start(program, command);
        if (process.waitForFinished(3000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
            return true;
        process.kill();
        process.waitForFinished(500);
    }
    return false;
}

bool FileHandOff::email(const QString &path)
{
    if (!canEmail() || !QFileInfo::exists(path))
        return false;
    QStringList command = emailCommand(path);
    command.removeFirst();
    return QProcess::startDetached(emailProgram(), command);
}
