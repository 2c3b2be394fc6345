#pragma once

#include <QByteArray>
#include <QString>

// Replaces a whole file at once: a reader sees the old file or the new one,
// never a torn or empty one, also when the disk fills up.
namespace AtomicFile {
// Answers whether it worked; on failure *error (when given) says why.
bool write(const QString &path, const QByteArray &data, QString *error = nullptr);
} // namespace AtomicFile
