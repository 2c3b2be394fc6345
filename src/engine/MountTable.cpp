#include "engine/MountTable.h"

#include "drive/VolumeInfo.h"

#include <QFile>
#include <QHash>
#include <QList>

namespace MountTable {

namespace {

// mountinfo writes space, tab, newline and backslash in paths as \ooo.
QString unescape(const QByteArray &field)
{
    QByteArray out;
    out.reserve(field.size());
    for (qsizetype i = 0; i < field.size(); ++i) {
        const char c = field[i];
        if (c == '\\' && i + 3 < field.size()) {
            const QByteArray digits = field.mid(i + 1, 3);
            bool ok = digits.size() == 3;
            for (const char d : digits)
                ok = ok && d >= '0' && d <= '7';
            if (ok) {
                out.append(char(digits.toInt(nullptr, 8)));
                i += 3;
                continue;
            }
        }
        out.append(c);
    }
    return QString::fromUtf8(out);
}

bool hasHiddenComponent(const QString &path)
{
    const QList<QStringView> parts = QStringView(path).split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (const QStringView part : parts)
        if (part.startsWith(QLatin1Char('.')))
            return true;
    return false;
}

} // namespace

std::vector<Entry> parse(const QByteArray &mountinfo)
{
    std::vector<Entry> entries;
    for (const QByteArray &line : mountinfo.split('\n')) {
        // id parent major:minor root mountpoint options [optional...] - fstype source superoptions
        const QList<QByteArray> fields = line.simplified().split(' ');
        const qsizetype separator = fields.indexOf(QByteArray("-"));
        if (fields.size() < 6 || separator < 6 || separator + 2 >= fields.size())
            continue;
        bool ok = false;
        Entry e;
        e.mountID = fields[0].toInt(&ok);
        if (!ok)
            continue;
        e.device = QString::fromLatin1(fields[2]);
        e.root = unescape(fields[3]);
        e.mountPoint = unescape(fields[4]);
        e.fileSystemType = unescape(fields[separator + 1]);
        e.source = unescape(fields[separator + 2]);
        if (!e.mountPoint.startsWith(QLatin1Char('/')))
            continue;
        entries.push_back(std::move(e));
    }
    return entries;
}

std::vector<Entry> read()
{
    QFile file(QStringLiteral("/proc/self/mountinfo"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return parse(file.readAll());
}

std::vector<Entry> removableMounts(const std::vector<Entry> &table)
{
    std::vector<Entry> result;
    QHash<QString, size_t> indexByMountPoint;
    for (const Entry &e : table) {
        const QString &p = e.mountPoint;
        if (!VolumeInfo::isRemovableMediaPath(p) || hasHiddenComponent(p))
            continue;
        // A later mount over the same point hides the earlier one.
        const auto it = indexByMountPoint.constFind(p);
        if (it != indexByMountPoint.constEnd()) {
            result[*it] = e;
            continue;
        }
        indexByMountPoint.insert(p, result.size());
        result.push_back(e);
    }
    return result;
}

} // namespace MountTable

namespace MountTable {

std::vector<Change> diff(const std::vector<Entry> &before, const std::vector<Entry> &after)
{
    const auto sameMount = [](const Entry &a, const Entry &b) {
        return a.mountID == b.mountID && a.device == b.device;
    };
    const auto find = [](const std::vector<Entry> &table, const QString &mountPoint) -> const Entry * {
        for (const Entry &e : table)
            if (e.mountPoint == mountPoint)
                return &e;
        return nullptr;
    };

    std::vector<const Entry *> gone;
    std::vector<const Entry *> arrived;
    for (const Entry &e : before) {
        const Entry *now = find(after, e.mountPoint);
        if (!now || !sameMount(*now, e))
            gone.push_back(&e);
    }
    for (const Entry &e : after) {
        const Entry *was = find(before, e.mountPoint);
        if (!was || !sameMount(*was, e))
            arrived.push_back(&e);
    }

    // A rename shows as the same file system (device and root) leaving one
    // mount point and arriving at another, whether moved or mounted anew.
    const auto sameFileSystem = [](const Entry &a, const Entry &b) {
        return a.device == b.device && a.root == b.root;
    };
    std::vector<Change> unmounts;
    std::vector<Change> renames;
    std::vector<Change> mounts;
    std::vector<bool> arrivalTaken(arrived.size(), false);
    for (const Entry *g : gone) {
        bool moved = false;
        for (size_t i = 0; i < arrived.size(); ++i) {
            if (!arrivalTaken[i] && arrived[i]->mountPoint != g->mountPoint && sameFileSystem(*arrived[i], *g)) {
                arrivalTaken[i] = true;
                moved = true;
                break;
            }
        }
        if (!moved)
            unmounts.push_back({Change::unmounted, g->mountPoint});
    }
    for (size_t i = 0; i < arrived.size(); ++i)
        (arrivalTaken[i] ? renames : mounts)
            .push_back({arrivalTaken[i] ? Change::renamed : Change::mounted, arrived[i]->mountPoint});

    std::vector<Change> changes = std::move(unmounts);
    changes.insert(changes.end(), renames.begin(), renames.end());
    changes.insert(changes.end(), mounts.begin(), mounts.end());
    return changes;
}

} // namespace MountTable
