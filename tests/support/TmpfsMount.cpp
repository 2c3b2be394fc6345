#include "support/TmpfsMount.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <cstdlib>
#include <unistd.h>

TmpfsMount::TmpfsMount(const QString &parent, const QString &pattern, const QString &options)
{
    if (::geteuid() != 0 || !QDir().mkpath(parent))
        return;
    QByteArray folder = QFile::encodeName(QDir(parent).filePath(pattern));
    if (!::mkdtemp(folder.data()))
        return;
    path_ = QFile::decodeName(folder);
    mounted_ = QProcess::execute(QStringLiteral("mount"),
                                 {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"), options,
                                  QStringLiteral("tmpfs"), path_})
        == 0;
}

TmpfsMount::~TmpfsMount()
{
    if (mounted_)
        QProcess::execute(QStringLiteral("umount"), {QStringLiteral("-l"), path_});
    if (!path_.isEmpty())
        QDir().rmdir(path_);
}
