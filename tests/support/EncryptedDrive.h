#pragma once

#include "support/EcryptfsWriter.h"
#include "support/TeslaCamFixture.h"

#include <QString>
#include <QStringList>

class KeyServiceStandIn;

// A drive recorded with the car's encryption on, beside older clear footage:
// EncryptedClips with a Sentry event (two clips that can be unlocked, one
// copied while the car still wrote it, one with a damaged header, and the
// car's encrypted event.json and thumbnail), a saved event and two minutes
// of recent driving; a clear Sentry event and a clear recent minute. Every
// clip is a real movie; the stand-in service, when given, holds the keys.
class EncryptedDrive {
public:
    static inline const QString sentryID = QStringLiteral("sentry|2026-07-21_02-11-05");
    static inline const QString savedID = QStringLiteral("saved|2026-07-22_08-00-00");
    static inline const QString recentID = QStringLiteral("recent|recent_2026-07-23_12-00-00");
    static inline const QString clearID = QStringLiteral("sentry|2026-05-01_10-00-00");
    static inline const QString clearRecentID = QStringLiteral("recent|recent_2026-07-20_18-30-00");

    // source: the plain movie every clip holds (a real clip of at least 64 KiB).
    EncryptedDrive(const QString &teslaCamRoot, const QString &source, KeyServiceStandIn *service = nullptr);

    const QString &root() const { return fixture_.root(); }
    TeslaCamFixture &fixture() { return fixture_; }

    // The first clip that can be unlocked.
    QString sentryFront() const { return unlockable_.first(); }
    // The plain bytes every clip holds.
    const QByteArray &plain() const { return plain_; }
    // Writes one more unlockable clip (seed > 100) into a folder, registering its key.
    QString addClip(const QString &dir, const QString &stamp, const QString &camera, quint32 seed);

private:
    TeslaCamFixture fixture_;
    KeyServiceStandIn *service_;
    QByteArray plain_;
    QStringList unlockable_;
};
