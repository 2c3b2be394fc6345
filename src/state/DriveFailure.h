#pragma once

#include "model/BookmarkKey.h"
#include "model/VolumeFormat.h"

#include <QMetaType>
#include <QObject>
#include <QString>
#include <optional>

// What replaces the drive view. One slot in the application state; the last
// writer wins. Readable from QML as a gadget: `failure.kind` compares with
// DriveFailure.NoTeslaCamFolder and friends.
class DriveFailure {
    Q_GADGET
    Q_PROPERTY(Kind kind READ kind CONSTANT)
    Q_PROPERTY(QString kindName READ kindName CONSTANT)
    Q_PROPERTY(QString volumeName READ volumeNameForQml CONSTANT)
    Q_PROPERTY(QString formatName READ formatName CONSTANT)
    Q_PROPERTY(QString bookmarkKey READ bookmarkKeyName CONSTANT)
public:
    // Declaration order is the case order.
    enum Kind : quint8 {
        NoTeslaCamFolder,
        UnreadableFormat,
        StaleBookmark,
        EmptyDrive,
        EncryptedClipsOnly,
        DriveDisconnected,
    };
    Q_ENUM(Kind)

    DriveFailure() = default;
    static DriveFailure noTeslaCamFolder(std::optional<QString> volumeName);
    static DriveFailure unreadableFormat(const VolumeFormat &format);
    static DriveFailure staleBookmark(BookmarkKey key);
    static DriveFailure emptyDrive() { return DriveFailure(EmptyDrive); }
    static DriveFailure encryptedClipsOnly() { return DriveFailure(EncryptedClipsOnly); }
    static DriveFailure driveDisconnected() { return DriveFailure(DriveDisconnected); }

    Kind kind() const { return kind_; }
    // The payloads; each is set only for its own case.
    const std::optional<QString> &volumeName() const { return volumeName_; }
    const std::optional<VolumeFormat> &format() const { return format_; }
    const std::optional<BookmarkKey> &bookmarkKeyValue() const { return bookmarkKey_; }

    QString kindName() const;
    QString volumeNameForQml() const { return volumeName_.value_or(QString()); }
    QString formatName() const { return format_ ? format_->displayName() : QString(); }
    QString bookmarkKeyName() const { return bookmarkKey_ ? bookmarkKey_->rawValue() : QString(); }

    bool operator==(const DriveFailure &o) const
    {
        return kind_ == o.kind_ && volumeName_ == o.volumeName_ && format_ == o.format_
            && bookmarkKey_ == o.bookmarkKey_;
    }

private:
    explicit DriveFailure(Kind k) : kind_(k) {}
    Kind kind_ = EmptyDrive;
    std::optional<QString> volumeName_;
    std::optional<VolumeFormat> format_;
    std::optional<BookmarkKey> bookmarkKey_;
};

Q_DECLARE_METATYPE(DriveFailure)
