#include "state/DriveFailure.h"

DriveFailure DriveFailure::noTeslaCamFolder(std::optional<QString> volumeName)
{
    DriveFailure f(NoTeslaCamFolder);
    f.volumeName_ = std::move(volumeName);
    return f;
}

DriveFailure DriveFailure::unreadableFormat(const VolumeFormat &format)
{
    DriveFailure f(UnreadableFormat);
    f.format_ = format;
    return f;
}

DriveFailure DriveFailure::staleBookmark(BookmarkKey key)
{
    DriveFailure f(StaleBookmark);
    f.bookmarkKey_ = key;
    return f;
}

QString DriveFailure::kindName() const
{
    switch (kind_) {
    case NoTeslaCamFolder: return QStringLiteral("noTeslaCamFolder");
    case UnreadableFormat: return QStringLiteral("unreadableFormat");
    case StaleBookmark: return QStringLiteral("staleBookmark");
    case EmptyDrive: return QStringLiteral("emptyDrive");
    case EncryptedClipsOnly: return QStringLiteral("encryptedClipsOnly");
    case DriveDisconnected: return QStringLiteral("driveDisconnected");
    }
    return {};
}
