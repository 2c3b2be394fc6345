#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

// Names, sizes, times and digests of all under a folder, to prove nothing was created, changed, renamed or removed.
struct TreeSnapshot {
    struct Entry {
        qint64 size = 0;
        qint64 mtimeNs = 0;
        qint64 atimeNs = 0;
        bool isDirectory = false;
        QByteArray sha256;
        bool operator==(const Entry &) const = default;
    };
    QMap<QString, Entry> entries;

    static TreeSnapshot take(const QString &root);
    // A readable list of differences, empty when equal; compareAccessTimes needs a file system that keeps them.
    QString differences(const TreeSnapshot &after, bool compareAccessTimes = false) const;
};
