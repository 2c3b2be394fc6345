#include "FailureScreens.h"

#include "model/PlatformWords.h"
#include "model/TeslaViewer.h"

#include <QCoreApplication>

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
    screen.secondaryTitle = QCoreApplication::translate("FailureScreens", "Choose a Different Drive");
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
    //: "Dashcam Recording" is the car's setting, as named on its touchscreen
    QString message = QCoreApplication::translate("FailureScreens",
                                                  "Tesla dashcam and Sentry footage always lives in a folder named "
                                                  "\"TeslaCam\" at the top level of the drive. If this is the right "
                                                  "drive, make sure Dashcam Recording is turned on in your car's "
                                                  "settings.");
    if (volumeName)
        //: %1 is the drive's name
        message = QCoreApplication::translate("FailureScreens",
                                              "\"%1\" doesn't have a TeslaCam folder on it, so it may not be the "
                                              "drive from your car.")
                      .arg(*volumeName)
                  + QLatin1Char(' ') + message;
    return {QStringLiteral("folder.badge.questionmark"),
            QCoreApplication::translate("FailureScreens", "We couldn't find a TeslaCam folder"), message,
            QCoreApplication::translate("FailureScreens", "Choose a Different Drive"), Action::reopenWizard};
}

Screen unreadableFormat(const VolumeFormat &format)
{
    //: %1 is the drive's format (e.g. NTFS), %2 a program that formats drives, e.g. "a disk utility such as Disks".
    //: "ExFAT" is the choice as the program names it
    const QString message =
        QCoreApplication::translate("FailureScreens",
                                    "Your car needs a drive formatted as exFAT (or FAT32 for smaller drives), and this "
                                    "one is %1. Back up anything important from it first, then reformat it using %2 "
                                    "(choose \"ExFAT\") and reinsert it into your car so it can start recording.")
            .arg(format.displayName(), PlatformWords::diskUtility());
    return withOtherDrive({QStringLiteral("exclamationmark.arrow.triangle.2.circlepath"),
                           QCoreApplication::translate("FailureScreens", "This drive needs to be reformatted"), message,
                           {}, Action::none});
}

Screen staleBookmark(BookmarkKey key)
{
    QString system = PlatformWords::operatingSystem();
    system[0] = system[0].toUpper(); // it opens the sentence
    // Whole sentences for each, so a translation can inflect the words.
    if (key == BookmarkKey::teslaDrive)
        return {QStringLiteral("questionmark.folder"),
                QCoreApplication::translate("FailureScreens", "We need you to point us back to your Tesla drive"),
                //: %1 is the operating system, e.g. "Your system"
                QCoreApplication::translate("FailureScreens",
                                            "%1 asks apps to re-confirm folder access sometimes — for example after a "
                                            "drive is renamed or unplugged and replugged. Nothing is wrong and nothing "
                                            "was lost; just pick the Tesla drive again and everything will pick up "
                                            "where it left off.")
                    .arg(system),
                QCoreApplication::translate("FailureScreens", "Choose Tesla drive"), Action::reopenWizard};
    // The Vault's folder is asked for by the Vault's own picker, not the drive wizard.
    return {QStringLiteral("questionmark.folder"),
            QCoreApplication::translate("FailureScreens", "We need you to point us back to your Vault folder"),
            //: %1 is the operating system, e.g. "Your system"
            QCoreApplication::translate("FailureScreens",
                                        "%1 asks apps to re-confirm folder access sometimes — for example after a "
                                        "drive is renamed or unplugged and replugged. Nothing is wrong and nothing was "
                                        "lost; just pick the Vault folder again and everything will pick up where it "
                                        "left off.")
                .arg(system),
            QCoreApplication::translate("FailureScreens", "Choose Vault folder"), Action::chooseVaultFolder};
}

Screen emptyDrive()
{
    return withOtherDrive({QStringLiteral("tray"),
                           QCoreApplication::translate("FailureScreens", "This drive doesn't have any footage yet"),
                           QCoreApplication::translate("FailureScreens",
                                                       "We found a TeslaCam folder, but there's nothing in it yet. Your "
                                                       "car saves footage here as you drive and while it's parked with "
                                                       "Sentry Mode on — check back after your next drive."),
                           {}, Action::none});
}

Screen encryptedClipsOnly()
{
    //: %1 is the web viewer's host name, dashcam.tesla.com
    const QString message =
        QCoreApplication::translate("FailureScreens",
                                    "Newer Tesla software can encrypt dashcam clips so only your Tesla account can view "
                                    "them. This isn't damage or an error — Keelhold still safely backs these files up "
                                    "exactly as they are, and encrypted clips can be watched anytime at %1. Want "
                                    "future footage to play right here? There's a 30-second setting in your car.")
            .arg(TeslaViewer::host());
    return withOtherDrive({QStringLiteral("lock.doc"),
                           QCoreApplication::translate("FailureScreens", "Your car is encrypting this footage"), message,
                           QCoreApplication::translate("FailureScreens", "Show Me the 30-Second Fix"),
                           Action::showEncryptionGuide});
}

Screen driveDisconnected()
{
    return withOtherDrive({QStringLiteral("eject.circle"),
                           QCoreApplication::translate("FailureScreens", "Your drive was disconnected"),
                           QCoreApplication::translate("FailureScreens",
                                                       "No problem — nothing was lost. Whatever was in progress is "
                                                       "paused and will pick back up right where it left off as soon "
                                                       "as you plug the drive back in."),
                           {}, Action::none});
}

} // namespace FailureScreens
