#pragma once

#include "model/TeslaEvent.h"
#include "support/TeslaCamFixture.h"

#include <QByteArray>
#include <QString>
#include <vector>

// A TeslaCam drive whose clips hold distinct random bytes, for tests that copy footage and check digests.
class DriveBuilder {
public:
    explicit DriveBuilder(const QString &teslaCamRoot);

    TeslaCamFixture &fixture() { return fixture_; }
    const QString &root() const { return fixture_.root(); }

    // An event folder ("SentryClips" or "SavedClips", named like "2026-07-18_09-15-32") with event.json, a thumbnail
    // and `clips` clips of clipSize random bytes, one camera after another.
    QString addEvent(const QString &kindFolder, const QString &folderName, int clips, qint64 clipSize);

    // Events as the scanner reads them, newest first.
    std::vector<TeslaEvent> scan() const;

    static QByteArray randomBytes(qint64 size, quint32 seed);
    // Reads a whole file with O_NOATIME, so a test's own look leaves the drive as it was.
    static QByteArray readQuietly(const QString &path);
    static QString sha256Hex(const QString &path);
    static QString sha256Hex(const QByteArray &bytes);
    // Clip file names for an event folder name, in the order addEvent makes them.
    static QStringList clipNames(const QString &folderName, int clips);
    // Hidden temporary files of interrupted copies under a Vault folder.
    static QStringList temporaryFiles(const QString &folder);

private:
    TeslaCamFixture fixture_;
    quint32 seed_ = 1;
};
