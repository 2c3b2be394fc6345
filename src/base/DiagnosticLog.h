#pragma once

#include <QString>
#include <QStringList>

// Warnings and errors kept in a small file a user can send with a bug
// report: $XDG_STATE_HOME/Keelhold/keelhold.log (~/.local/state when unset),
// rotated to keelhold.log.1 past rotateAt. Every line is redacted before it
// is written: the home folder becomes ~, and anything shaped like a sign-in
// token is dropped. Messages still reach the handler that was there before.
namespace DiagnosticLog {

inline constexpr qint64 rotateAt = 512 * 1024;

QString defaultFolder();
// Starts writing to folder; once per process (a second call changes the folder).
void install(const QString &folder = defaultFolder());
// The file lines go to; empty before install().
QString filePath();
// The newest lines of the file and its rotated predecessor, oldest first.
QStringList lastLines(int count);
QString redacted(QString line);

} // namespace DiagnosticLog
