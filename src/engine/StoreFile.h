#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

// The small files this program keeps for itself, in the per-user data
// folder "Keelhold" (or the temporary folder when the platform names none).
// Every failure here is quiet: these files are caches and marks, and losing
// one must never stop the user.
namespace StoreFile {

// The folder, created with its parents on the way; a failure to create it
// is dropped (the write that follows fails quietly instead).
QString folder();
QString defaultPath(const QString &fileName);

// The whole file, or nothing when it is missing or unreadable.
std::optional<QByteArray> read(const QString &path);

// Replaces the whole file at once: a reader sees the old file or the new
// one, never a torn one. Answers whether it worked.
bool writeAtomically(const QString &path, const QByteArray &data);

} // namespace StoreFile
