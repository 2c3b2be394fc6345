#include "FailureScreens.h"

#include "model/PlatformWords.h"
#include "model/TeslaViewer.h"

namespace FailureScreens {

namespace {

QString actionName(Action action)
{
    switch (action) {
    case Action::none: break;
    case Action::reopenWizard: return QStringLiteral("reopenWizard");
    case Action::showEncryptionGuide: return QStringLiteral("showEncryptionGuide");
    case Action::chooseVaultFolder: return QStringLiteral("chooseVaultFolder");
    }
    return {};
}

// The way to another drive, on screens whose own button leads elsewhere.
Screen withOtherDrive(Screen screen)
{
    screen.secondaryTitle = QStringLiteral("Choose a Different Drive");
    screen.secondaryAction = Action::reopenWizard;
    return screen;
}

} // namespace

QVariantMap Screen::toVariantMap() const
{
    return {{QStringLiteral("symbolName"), symbolName},
            {QStringLiteral("title"), title},
            {QStringLiteral("message"), message},
            {QStringLiteral("actionTitle"), actionTitle},
            {QStringLiteral("action"), actionName(action)},
            {QStringLiteral("secondaryTitle"), secondaryTitle},
            {QStringLiteral("secondaryAction"), actionName(secondaryAction)}};
}

Screen noTeslaCamFolder(const std::optional<QString> &volumeName)
{
    QString message;
    if (volumeName)
        message = QLatin1Char('"') + *volumeName
                  + QStringLiteral("\" doesn't have a TeslaCam folder on it, so it may not be the drive from your car. ");
    message += QStringLiteral("Tesla dashcam and Sentry footage always lives in a folder named \"TeslaCam\" at the top "
                              "level of the drive. If this is the right drive, make sure Dashcam Recording is turned on "
                              "in your car's settings.");
    return {QStringLiteral("folder.badge.questionmark"), QStringLiteral("We couldn't find a TeslaCam folder"), message,
            QStringLiteral("Choose a Different Drive"), Action::reopenWizard};
}

Screen unreadableFormat(const VolumeFormat &format)
{
    const QString message =
        QStringLiteral("Your car needs a drive formatted as exFAT (or FAT32 for smaller drives), and this one is ")
        + format.displayName()
        + QStringLiteral(". Back up anything important from it first, then reformat it using ") + PlatformWords::diskUtility()
        + QStringLiteral(" (choose \"ExFAT\") and reinsert it into your car so it can start recording.");
    return withOtherDrive({QStringLiteral("exclamationmark.arrow.triangle.2.circlepath"),
                           QStringLiteral("This drive needs to be reformatted"), message, {}, Action::none});
}

Screen staleBookmark(BookmarkKey key)
{
    const QString noun = key == BookmarkKey::teslaDrive ? QStringLiteral("Tesla drive") : QStringLiteral("Vault folder");
    QString system = PlatformWords::operatingSystem();
    system[0] = system[0].toUpper(); // it opens the sentence
    const QString message = system
                            + QStringLiteral(" asks apps to re-confirm folder access sometimes — for example after a "
                                             "drive is renamed or unplugged and replugged. Nothing is wrong and nothing "
                                             "was lost; just pick the ")
                            + noun + QStringLiteral(" again and everything will pick up where it left off.");
    // The Vault's folder is asked for by the Vault's own picker, not the drive wizard.
    return {QStringLiteral("questionmark.folder"), QStringLiteral("We need you to point us back to your ") + noun, message,
            QStringLiteral("Choose ") + noun,
            key == BookmarkKey::teslaDrive ? Action::reopenWizard : Action::chooseVaultFolder};
}

Screen emptyDrive()
{
    return withOtherDrive({QStringLiteral("tray"), QStringLiteral("This drive doesn't have any footage yet"),
                           QStringLiteral("We found a TeslaCam folder, but there's nothing in it yet. Your car saves "
                                          "footage here as you drive and while it's parked with Sentry Mode on — check "
                                          "back after your next drive."),
                           {}, Action::none});
}

Screen encryptedClipsOnly()
{
    const QString message =
        QStringLiteral("Newer Tesla software can encrypt dashcam clips so only your Tesla account can view them. This "
                       "isn't damage or an error — Keelhold still safely backs these files up exactly as they are, and "
                       "encrypted clips can be watched anytime at ")
        + TeslaViewer::host()
        + QStringLiteral(". Want future footage to play right here? There's a 30-second setting in your car.");
    return withOtherDrive({QStringLiteral("lock.doc"), QStringLiteral("Your car is encrypting this footage"), message,
                           QStringLiteral("Show Me the 30-Second Fix"), Action::showEncryptionGuide});
}

Screen driveDisconnected()
{
    return withOtherDrive({QStringLiteral("eject.circle"), QStringLiteral("Your drive was disconnected"),
                           QStringLiteral("No problem — nothing was lost. Whatever was in progress is paused and will "
                                          "pick back up right where it left off as soon as you plug the drive back in."),
                           {}, Action::none});
}

} // namespace FailureScreens
