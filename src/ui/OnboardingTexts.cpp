#include "OnboardingTexts.h"

#include "model/PlatformWords.h"
#include "model/TeslaViewer.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace OnboardingTexts {

QVariantMap texts()
{
    const QString sampleTip = QStringLiteral(
        "Loads a few short made-up clips so you can look around before connecting your own Tesla.");
    return {
        {QStringLiteral("introTitle"), QStringLiteral("Welcome to Keelhold")},
        {QStringLiteral("introText"),
         QStringLiteral("Your Tesla is always recording — Sentry Mode, saved clips, and your recent drives. This app "
                        "reads the USB drive from your car's glovebox, shows you what it found in plain English, and "
                        "keeps a permanent, verified copy on your ")
             + PlatformWords::computer() + QStringLiteral(" so you never lose footage that matters.")},
        {QStringLiteral("getStarted"), QStringLiteral("Get Started")},
        {QStringLiteral("sampleButton"), QStringLiteral("Just exploring? Try sample footage")},
        {QStringLiteral("sampleTip"), sampleTip},
        {QStringLiteral("pickerTitle"), QStringLiteral("Show Me Your Tesla Drive")},
        {QStringLiteral("pickerText"),
         QStringLiteral("Plug in the USB drive from your car's glovebox, then pick it below. We only look at the parts "
                        "of the drive you choose to show us.")},
        {QStringLiteral("pickerNote"),
         QStringLiteral("Connected drives appear here the moment ") + PlatformWords::operatingSystem()
             + QStringLiteral(" mounts them. Pick yours and confirm with one click — we'll check for Tesla footage "
                              "right after.")},
        {QStringLiteral("noCandidates"),
         QStringLiteral("No drive detected yet. Insert your Tesla's USB drive, or choose it manually below.")},
        {QStringLiteral("chooseManually"), QStringLiteral("Choose a Drive or Folder Manually…")},
        {QStringLiteral("chooseManuallyTip"), QStringLiteral("Opens a file picker starting at ")
                                                   + PlatformWords::removableMediaFolder()
                                                   + QStringLiteral(", where connected USB drives appear.")},
        {QStringLiteral("removableMediaFolder"), PlatformWords::removableMediaFolder()},
        {QStringLiteral("back"), QStringLiteral("Back")},
        {QStringLiteral("cancel"), QStringLiteral("Cancel")},
        {QStringLiteral("panelTitle"), QStringLiteral("Select Your Tesla's USB Drive")},
        {QStringLiteral("panelMessage"),
         QStringLiteral("Choose the drive itself, or its TeslaCam folder. Look for a plain external drive icon — Tesla "
                        "drives usually show up as \"UNTITLED\" or similar.")},
        {QStringLiteral("panelPrompt"), QStringLiteral("Use This Drive")},
        {QStringLiteral("scanTitle"), QStringLiteral("Reading your drive…")},
        {QStringLiteral("scanHint"), QStringLiteral("This usually takes a few seconds.")},
        {QStringLiteral("browseWhileFinishes"), QStringLiteral("Browse While It Finishes")},
        {QStringLiteral("startBrowsing"), QStringLiteral("Start Browsing")},
        {QStringLiteral("guideTitle"), QStringLiteral("Recording without encryption")},
        {QStringLiteral("guideIntro"),
         QStringLiteral("Newer Tesla software can encrypt new recordings so only your Tesla account can view them. If "
                        "you'd like footage to play here (and in any app), switch it off in your car — it takes about "
                        "30 seconds, and everything already recorded stays exactly as it is.")},
        {QStringLiteral("guideViewerButton"), QStringLiteral("Open ") + TeslaViewer::host()},
        {QStringLiteral("guideViewerTip"),
         QStringLiteral("Tesla's own viewer for encrypted clips — decryption happens in your browser; footage never "
                        "leaves your device.")},
        {QStringLiteral("guideViewerURL"), TeslaViewer::url()},
        {QStringLiteral("guideClose"), QStringLiteral("Done")},
    };
}

QString scanCountsText(int eventsFound, int clipsFound)
{
    return QStringLiteral("Found ") + QString::number(eventsFound) + QStringLiteral(" event")
           + (eventsFound == 1 ? QString() : QStringLiteral("s")) + QStringLiteral(" so far, across ")
           + QString::number(clipsFound) + QStringLiteral(" clips.");
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
    return QStringLiteral("Is this your Tesla drive? — ") + candidate.name;
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
    return {step("car", QStringLiteral("In your car, tap Controls"),
                 QStringLiteral("The car icon at the bottom-left of the touchscreen.")),
            step("shield", QStringLiteral("Tap Safety"), QStringLiteral("In the menu on the left.")),
            step("switch.2", QStringLiteral("Switch off “Encrypt Dashcam Recordings”"),
                 QStringLiteral("If you don't see it, your car's software doesn't encrypt yet — nothing to do.")),
            step("checkmark.seal", QStringLiteral("Done"),
                 QStringLiteral("New footage records unencrypted and plays right here."))};
}

QVariantList encryptionNotes()
{
    auto note = [](const char *symbol, const QString &text) {
        return QVariantMap{{QStringLiteral("symbolName"), QString::fromLatin1(symbol)}, {QStringLiteral("text"), text}};
    };
    return {note("globe", QStringLiteral("Clips recorded while encryption was on stay encrypted — sign in at ")
                              + TeslaViewer::host()
                              + QStringLiteral(" to watch them anytime. Keelhold still backs them up byte-for-byte, so "
                                               "nothing is ever lost.")),
            note("hand.thumbsup",
                 QStringLiteral("Prefer to keep encryption on? That's a fair choice — it protects footage if the drive "
                                "itself is stolen. This app will still keep verified copies of everything."))};
}

} // namespace OnboardingTexts
