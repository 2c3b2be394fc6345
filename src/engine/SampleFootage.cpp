#include "engine/SampleFootage.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringList>

std::optional<QString> SampleFootage::folder()
{
    const QByteArray given = qgetenv(env);
    QStringList candidates;
    if (!given.isEmpty())
        candidates << QString::fromLocal8Bit(given);
    const QString appDir = QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QString();
    if (!appDir.isEmpty()) {
        // Installed: <prefix>/bin/keelhold and <prefix>/share/keelhold/...
        candidates << appDir + QStringLiteral("/../share/keelhold/SampleTeslaCam/TeslaCam");
        // Build tree: the executable lies somewhere under build/.
        QDir d(appDir);
        for (int up = 0; up < 4; ++up) {
            candidates << d.absoluteFilePath(QStringLiteral("resources/SampleTeslaCam/TeslaCam"));
            if (!d.cdUp())
                break;
        }
    }
    for (const QString &c : std::as_const(candidates)) {
        const QFileInfo fi(c);
        if (fi.isDir())
            return QDir::cleanPath(fi.absoluteFilePath());
    }
    return std::nullopt;
}
