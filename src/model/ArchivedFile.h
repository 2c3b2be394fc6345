#pragma once

#include <QJsonObject>
#include <QString>

// One file copied into the Vault, with the digest of the bytes read from the drive.
struct ArchivedFile {
    QString name;   // last path component, the same in the Vault as on the drive
    qint64 size = 0;
    QString sha256; // 64 lower-case hex digits

    bool operator==(const ArchivedFile &) const = default;

    QJsonObject toJson() const;
    static ArchivedFile fromJson(const QJsonValue &value);
};

size_t qHash(const ArchivedFile &f, size_t seed = 0) noexcept;
