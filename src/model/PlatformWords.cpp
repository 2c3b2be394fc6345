#include "model/PlatformWords.h"

#include <QDir>
#include <QFileInfo>
#include <QtGlobal>

namespace PlatformWords {

QString diskUtility() { return QStringLiteral("a disk utility such as Disks"); }
QString computer() { return QStringLiteral("computer"); }
QString operatingSystem() { return QStringLiteral("your system"); }

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
