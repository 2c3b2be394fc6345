#include "model/PlatformWords.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QtGlobal>

namespace PlatformWords {

// Words that stand inside other sentences, so each comment says where.
QString diskUtility()
{
    //: Completes "reformatting (in %1, after backing up)"; Disks is the GNOME disk tool
    return QCoreApplication::translate("PlatformWords", "a disk utility such as Disks");
}

QString computer()
{
    //: The user's machine, as in "on this %1" or "on your %1"
    return QCoreApplication::translate("PlatformWords", "computer");
}

QString operatingSystem()
{
    //: The operating system as the subject of a sentence, lower case
    return QCoreApplication::translate("PlatformWords", "your system");
}

QString removableMediaFolder()
{
    QString user = qEnvironmentVariable("USER");
    if (user.isEmpty())
        user = QFileInfo(QDir::homePath()).fileName();
    const QStringList tries{QStringLiteral("/run/media/") + user, QStringLiteral("/media/") + user,
                            QStringLiteral("/media")};
    for (const QString &p : tries)
        if (QFileInfo(p).isDir())
            return p;
    return QStringLiteral("/media");
}

} // namespace PlatformWords
