#pragma once

#include "model/BookmarkKey.h"
#include "model/VolumeFormat.h"

#include <QString>
#include <QVariantMap>
#include <optional>

// What each failure screen says, and which button it offers.
namespace FailureScreens {

enum class Action { none, reopenWizard, showEncryptionGuide };

struct Screen {
    QString symbolName;
    QString title;
    QString message;
    QString actionTitle; // empty: no button
    Action action = Action::none;

    // For QML: symbolName, title, message, actionTitle, action ("", "reopenWizard", "showEncryptionGuide").
    QVariantMap toVariantMap() const;
};

Screen noTeslaCamFolder(const std::optional<QString> &volumeName);
Screen unreadableFormat(const VolumeFormat &format);
Screen staleBookmark(BookmarkKey key);
Screen emptyDrive();
Screen encryptedClipsOnly();
Screen driveDisconnected();

} // namespace FailureScreens
