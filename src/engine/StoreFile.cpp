#include "engine/StoreFile.h"

#include "model/AtomicFile.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace StoreFile {

QString folder()
{
    // The generic data folder plus our own name gives ~/.local/share/Keelhold
    // for the app and the command-line tool alike, whatever application
    // name the running program set.
    QString base = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (base.isEmpty())
        base = QDir::tempPath();
    const QString path = QDir(base).filePath(QStringLiteral("Keelhold"));
    QDir().mkpath(path);
    return path;
}

QString defaultPath(const QString &fileName)
{
    return QDir(folder()).filePath(fileName);
}

std::optional<QByteArray> read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray data = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return data;
}

bool writeAtomically(const QString &path, const QByteArray &data)
{
    return AtomicFile::write(path, data);
}

} // namespace StoreFile
