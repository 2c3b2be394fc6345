#include "OnboardingTexts.h"

#include "model/PlatformWords.h"
#include "model/TeslaViewer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace OnboardingTexts {

QVariantMap texts()
{
    const QString sampleTip = QCoreApplication::translate(
        "OnboardingTexts", "Loads a few short made-up clips so you can look around before connecting your own Tesla.");
    return {
        {QStringLiteral("introTitle"), QCoreApplication::translate("OnboardingTexts", "Welcome to Keelhold")},
        {QStringLiteral("introText"),
         //: %1 is the user's machine, e.g. "computer"
         QCoreApplication::translate("OnboardingTexts",
                                     "Your Tesla is always recording — Sentry Mode, saved clips, and your recent "
                                     "drives. This app reads the USB drive from your car's glovebox, shows you what it "
                                     "found in plain English, and keeps a permanent, verified copy on your %1 so you "
                                     "never lose footage that matters.")
             .arg(PlatformWords::computer())},
        //: Button on the first screen of the setup
        {QStringLiteral("getStarted"), QCoreApplication::translate("OnboardingTexts", "Get Started")},
        {QStringLiteral("sampleButton"), QCoreApplication::translate("OnboardingTexts", "Just exploring? Try sample footage")},
        {QStringLiteral("sampleTip"), sampleTip},
        {QStringLiteral("pickerTitle"), QCoreApplication::translate("OnboardingTexts", "Show Me Your Tesla Drive")},
        {QStringLiteral("pickerText"),
         QCoreApplication::translate("OnboardingTexts",
                                     "Plug in the USB drive from your car's glovebox, then pick it below. We only look "
                                     "at the parts of the drive you choose to show us.")},
        {QStringLiteral("pickerNote"),
         //: %1 is the operating system as a sentence's subject, e.g. "your system"
         QCoreApplication::translate("OnboardingTexts",
                                     "Connected drives appear here the moment %1 mounts them. Pick yours and confirm "
                                     "with one click — we'll check for Tesla footage right after.")
             .arg(PlatformWords::operatingSystem())},
        {QStringLiteral("noCandidates"),
         QCoreApplication::translate("OnboardingTexts",
                                     "No drive detected yet. Insert your Tesla's USB drive, or choose it manually below.")},
        {QStringLiteral("chooseManually"), QCoreApplication::translate("OnboardingTexts", "Choose a Drive or Folder Manually…")},
        {QStringLiteral("chooseManuallyTip"),
         //: %1 is a folder path, e.g. /media/alex
         QCoreApplication::translate("OnboardingTexts",
                                     "Opens a file picker starting at %1, where connected USB drives appear.")
             .arg(PlatformWords::removableMediaFolder())},
        {QStringLiteral("removableMediaFolder"), PlatformWords::removableMediaFolder()},
        //: Button: back to the previous step of the setup
        {QStringLiteral("back"), QCoreApplication::translate("OnboardingTexts", "Back")},
        {QStringLiteral("cancel"), QCoreApplication::translate("OnboardingTexts", "Cancel")},
        //: Title of the folder dialog that picks the car's drive
        {QStringLiteral("panelTitle"), QCoreApplication::translate("OnboardingTexts", "Select Your Tesla's USB Drive")},
        {QStringLiteral("panelMessage"),
         QCoreApplication::translate("OnboardingTexts",
                                     "Choose the drive itself, or its TeslaCam folder. Look for a plain external drive "
                                     "icon — Tesla drives usually show up as \"UNTITLED\" or similar.")},
        //: Accept button of the folder dialog that picks the car's drive
        {QStringLiteral("panelPrompt"), QCoreApplication::translate("OnboardingTexts", "Use This Drive")},
        {QStringLiteral("scanTitle"), QCoreApplication::translate("OnboardingTexts", "Reading your drive…")},
        {QStringLiteral("scanHint"), QCoreApplication::translate("OnboardingTexts", "This usually takes a few seconds.")},
        {QStringLiteral("browseWhileFinishes"), QCoreApplication::translate("OnboardingTexts", "Browse While It Finishes")},
        {QStringLiteral("startBrowsing"), QCoreApplication::translate("OnboardingTexts", "Start Browsing")},
        {QStringLiteral("guideTitle"), QCoreApplication::translate("OnboardingTexts", "Recording without encryption")},
        {QStringLiteral("guideIntro"),
         QCoreApplication::translate("OnboardingTexts",
                                     "Newer Tesla software can encrypt new recordings so only your Tesla account can "
                                     "view them. If you'd like footage to play here (and in any app), switch it off in "
                                     "your car — it takes about 30 seconds, and everything already recorded stays "
                                     "exactly as it is.")},
        //: Button; %1 is the web viewer's host name, dashcam.tesla.com
        {QStringLiteral("guideViewerButton"), QCoreApplication::translate("OnboardingTexts", "Open %1").arg(TeslaViewer::host())},
        {QStringLiteral("guideViewerTip"),
         QCoreApplication::translate("OnboardingTexts",
                                     "Tesla's own viewer for encrypted clips — decryption happens in your browser; "
                                     "footage never leaves your device.")},
        {QStringLiteral("guideViewerURL"), TeslaViewer::url()},
        //: Button that closes the encryption guide
        {QStringLiteral("guideClose"), QCoreApplication::translate("OnboardingTexts", "Done")},
    };
}

QString scanCountsText(int eventsFound, int clipsFound)
{
    return QCoreApplication::translate("OnboardingTexts", "Found %n events so far, across %1 clips.", nullptr, eventsFound)
        .arg(clipsFound);
}

QString rootForChosenFolder(const QString &chosen)
{
    QString path = QDir::cleanPath(chosen);
    if (QFileInfo(path).fileName() == QLatin1String("TeslaCam"))
        return path;
    if (path.endsWith(QLatin1Char('/')))
        return path + QStringLiteral("TeslaCam");
    return path + QStringLiteral("/TeslaCam");
}

QString candidateHeading(const VolumeCandidate &candidate)
{
    //: %1 is the drive's name, e.g. UNTITLED
    return QCoreApplication::translate("OnboardingTexts", "Is this your Tesla drive? — %1").arg(candidate.name);
}

QString candidateCapacity(const VolumeCandidate &candidate)
{
    if (!candidate.capacityBytes)
        return {};
    return QLocale::system().formattedDataSize(*candidate.capacityBytes, 1, QLocale::DataSizeSIFormat);
}

QVariantList encryptionSteps()
{
    auto step = [](const char *symbol, const QString &title, const QString &detail) {
        return QVariantMap{{QStringLiteral("symbolName"), QString::fromLatin1(symbol)},
                           {QStringLiteral("title"), title},
                           {QStringLiteral("detail"), detail}};
    };
    return {step("car", QCoreApplication::translate("OnboardingTexts", "In your car, tap Controls"),
                 QCoreApplication::translate("OnboardingTexts", "The car icon at the bottom-left of the touchscreen.")),
            //: The car's menu entry, as named on its touchscreen
            step("shield", QCoreApplication::translate("OnboardingTexts", "Tap Safety"),
                 QCoreApplication::translate("OnboardingTexts", "In the menu on the left.")),
            //: The quoted words are the car's setting, as named on its touchscreen
            step("switch.2", QCoreApplication::translate("OnboardingTexts", "Switch off “Encrypt Dashcam Recordings”"),
                 QCoreApplication::translate("OnboardingTexts",
                                             "If you don't see it, your car's software doesn't encrypt yet — nothing to do.")),
            //: The last step of the guide: finished
            step("checkmark.seal", QCoreApplication::translate("OnboardingTexts", "Done", "last step"),
                 QCoreApplication::translate("OnboardingTexts", "New footage records unencrypted and plays right here."))};
}

QVariantList encryptionNotes()
{
    auto note = [](const char *symbol, const QString &text) {
        return QVariantMap{{QStringLiteral("symbolName"), QString::fromLatin1(symbol)}, {QStringLiteral("text"), text}};
    };
    //: %1 is the web viewer's host name, dashcam.tesla.com
    return {note("globe", QCoreApplication::translate("OnboardingTexts",
                                                      "Clips recorded while encryption was on stay encrypted — sign in "
                                                      "at %1 to watch them anytime. Keelhold still backs them up "
                                                      "byte-for-byte, so nothing is ever lost.")
                              .arg(TeslaViewer::host())),
            note("hand.thumbsup",
                 QCoreApplication::translate("OnboardingTexts",
                                             "Prefer to keep encryption on? That's a fair choice — it protects footage "
                                             "if the drive itself is stolen. This app will still keep verified copies "
                                             "of everything."))};
}

} // namespace OnboardingTexts
