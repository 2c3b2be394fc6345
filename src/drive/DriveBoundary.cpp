#include "drive/DriveBoundary.h"

#include "base/IOWatchdog.h"
#include "base/LogCategories.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringList>
#include <QFile>

#include <climits>
#include <cstdlib>
#include <sys/stat.h>

namespace DriveBoundary {

namespace {

struct Resolved {
    QString path;
    dev_t device = 0;
};

std::optional<Resolved> resolve(const QString &path)
{
    char buffer[PATH_MAX];
    if (!::realpath(QFile::encodeName(path).constData(), buffer))
        return std::nullopt;
    struct stat info {};
    if (::stat(buffer, &info) != 0)
        return std::nullopt;
    return Resolved{QFile::decodeName(buffer), info.st_dev};
}

// The nearest part of the path that is there: where a new file would land.
std::optional<Resolved> resolveNearest(QString path)
{
    path = QDir::cleanPath(QDir::current().absoluteFilePath(path));
    for (;;) {
        if (auto resolved = resolve(path))
            return resolved;
        const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
        if (slash <= 0)
            return resolve(QStringLiteral("/"));
        path.truncate(slash);
    }
}

bool onComputerDisk(dev_t device)
{
    for (const QString &own : {QStringLiteral("/"), QDir::homePath(), QDir::tempPath()})
        if (auto resolved = resolve(own); resolved && resolved->device == device)
            return true;
    return false;
}

bool decide(const QString &driveRoot, const QString &destination)
{
    const auto drive = resolve(driveRoot);
    if (!drive)
        return false; // nothing there to protect
    const auto target = resolveNearest(destination);
    if (!target)
        return false;
    if (target->device != drive->device)
        return false;
    if (!onComputerDisk(drive->device))
        return true;
    return target->path == drive->path || target->path.startsWith(drive->path + QLatin1Char('/'));
}

} // namespace

std::optional<bool> writesInto(const QString &driveRoot, const QString &destination)
{
    try {
        return IOWatchdog::run(std::chrono::seconds(3), [driveRoot, destination](std::stop_token) {
            return decide(driveRoot, destination);
        });
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcDrive);
        return std::nullopt;
    }
}

std::optional<QString> teslaCamFolderOf(const TeslaEvent &event)
{
    QString path = event.folderURL;
    if (path.isEmpty() && !event.clips.empty())
        path = QFileInfo(event.clips.front().url).absolutePath();
    if (path.isEmpty())
        return std::nullopt;
    QDir dir(path);
    for (int depth = 0; depth < 4 && !dir.isRoot(); ++depth) {
        if (dir.dirName() == QLatin1String("TeslaCam"))
            return dir.absolutePath();
        if (!dir.cdUp())
            break;
    }
    return std::nullopt;
}

bool writesIntoDriveOf(const std::vector<TeslaEvent> &events, const QString &destination)
{
    QStringList asked;
    for (const TeslaEvent &event : events) {
        const std::optional<QString> root = teslaCamFolderOf(event);
        if (!root || asked.contains(*root))
            continue;
        asked << *root;
        if (writesInto(*root, destination).value_or(false))
            return true;
    }
    return false;
}

QString vaultRefusalText() { return QCoreApplication::translate("DriveBoundary", vaultRefusal.toUtf8().constData()); }

QString exportRefusalText()
{
    return QCoreApplication::translate("DriveBoundary", exportRefusal.toUtf8().constData());
}

} // namespace DriveBoundary
