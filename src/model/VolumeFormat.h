#pragma once

#include <QJsonObject>
#include <QString>

// The drive's file-system format. Coded in JSON as a keyed object, e.g.
// {"exFAT":{}} or {"other":{"_0":"ext4"}}.
class VolumeFormat {
public:
    enum Kind : quint8 { exFAT, fat32, apfs, other, unknown };

    constexpr VolumeFormat(Kind k = unknown) : kind_(k) {}
    static VolumeFormat makeOther(const QString &name) { return VolumeFormat(other, name); }

    Kind kind() const { return kind_; }
    // The carried name of an `other` format; empty for every other case.
    const QString &otherName() const { return name_; }
    QString displayName() const;

    bool operator==(const VolumeFormat &o) const { return kind_ == o.kind_ && (kind_ != other || name_ == o.name_); }

    QJsonObject toJson() const;
    static VolumeFormat fromJson(const QJsonValue &value);

private:
    VolumeFormat(Kind k, const QString &name) : kind_(k), name_(name) {}
    Kind kind_;
    QString name_;
};

size_t qHash(const VolumeFormat &f, size_t seed = 0) noexcept;
