#include "support/TreeSnapshot.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

TreeSnapshot TreeSnapshot::take(const QString &root)
{
    TreeSnapshot snap;
    QDirIterator it(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        struct stat st {};
        if (::lstat(QFile::encodeName(path).constData(), &st) != 0)
            continue;
        Entry e;
        e.size = S_ISDIR(st.st_mode) ? 0 : qint64(st.st_size);
        e.mtimeNs = qint64(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec;
        e.atimeNs = qint64(st.st_atim.tv_sec) * 1000000000 + st.st_atim.tv_nsec;
        e.isDirectory = S_ISDIR(st.st_mode);
        if (S_ISREG(st.st_mode)) {
            // O_NOATIME so that taking the snapshot doesn't disturb it.
            const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOATIME | O_CLOEXEC);
            if (fd >= 0) {
                QFile f;
                if (f.open(fd, QIODevice::ReadOnly, QFile::AutoCloseHandle)) {
                    QCryptographicHash hash(QCryptographicHash::Sha256);
                    hash.addData(&f);
                    e.sha256 = hash.result().toHex();
                } else {
                    ::close(fd);
                }
            }
        }
        snap.entries.insert(path.mid(root.size()), e);
    }
    return snap;
}

QString TreeSnapshot::differences(const TreeSnapshot &after, bool compareAccessTimes) const
{
    QStringList lines;
    for (auto it = entries.begin(); it != entries.end(); ++it) {
        const auto other = after.entries.constFind(it.key());
        if (other == after.entries.constEnd()) {
            lines << QStringLiteral("removed: ") + it.key();
            continue;
        }
        Entry a = *it, b = *other;
        if (!compareAccessTimes)
            a.atimeNs = b.atimeNs = 0;
        if (a.isDirectory) // listing a folder doesn't change it, but creating in it does (mtime)
            a.size = b.size = 0;
        if (!(a == b))
            lines << QStringLiteral("changed: ") + it.key();
    }
    for (auto it = after.entries.begin(); it != after.entries.end(); ++it)
        if (!entries.contains(it.key()))
            lines << QStringLiteral("added: ") + it.key();
    return lines.join(QLatin1Char('\n'));
}
