#pragma once

#include "model/BookmarkKey.h"
#include "model/VolumeFormat.h"

#include <QString>
#include <QVariantMap>
#include <optional>

// What each failure screen says, and which button it offers.
namespace FailureScreens {

enum class Action { none, reopenWizard, showEncryptionGuide, chooseVaultFolder };

struct Screen {
    QString symbolName;
    QString title;
    QString message;
    QString actionTitle; // empty: no button
    Action action = Action::none;
    // A second way out, so no failure is a dead end: another drive.
    QString secondaryTitle;
    Action secondaryAction = Action::none;

    // For QML: symbolName, title, message, actionTitle, action, secondaryTitle,
    // secondaryAction (actions by name: "", "reopenWizard", "showEncryptionGuide",
    // "chooseVaultFolder").
    QVariantMap toVariantMap() const;
};

Screen noTeslaCamFolder(const std::optional<QString> &volumeName);
Screen unreadableFormat(const VolumeFormat &format);
Screen staleBookmark(BookmarkKey key);
Screen emptyDrive();
Screen encryptedClipsOnly();
Screen driveDisconnected();

} // namespace FailureScreens
