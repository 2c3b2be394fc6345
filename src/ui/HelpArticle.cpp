#include "HelpArticle.h"

#include <QCoreApplication>

#include "model/PlatformWords.h"
#include "model/TeslaViewer.h"

const std::array<HelpArticle, 7> &HelpArticle::allCases()
{
    static const std::array<HelpArticle, 7> all{sentryMode,    oneMinuteClips,  corruptionExplained, encryptionExplained,
                                                howVaultWorks, readOnlyPromise, keyboardShortcuts};
    return all;
}

QString HelpArticle::rawValue() const
{
    switch (value_) {
    case sentryMode: return QStringLiteral("sentryMode");
    case oneMinuteClips: return QStringLiteral("oneMinuteClips");
    case corruptionExplained: return QStringLiteral("corruptionExplained");
    case encryptionExplained: return QStringLiteral("encryptionExplained");
    case howVaultWorks: return QStringLiteral("howVaultWorks");
    case readOnlyPromise: return QStringLiteral("readOnlyPromise");
    case keyboardShortcuts: return QStringLiteral("keyboardShortcuts");
    }
    return {};
}

std::optional<HelpArticle> HelpArticle::fromRawValue(QStringView raw)
{
    for (HelpArticle a : allCases())
        if (a.rawValue() == raw)
            return a;
    return std::nullopt;
}

QString HelpArticle::title() const
{
    switch (value_) {
    case sentryMode: return QCoreApplication::translate("HelpArticle", "What is Sentry Mode?");
    case oneMinuteClips: return QCoreApplication::translate("HelpArticle", "Why are clips exactly one minute long?");
    //: The quoted words are the app's own, from its message about damaged clips
    case corruptionExplained: return QCoreApplication::translate("HelpArticle", "What does \"didn't record properly\" mean?");
    case encryptionExplained: return QCoreApplication::translate("HelpArticle", "Why does it say some clips are encrypted?");
    case howVaultWorks: return QCoreApplication::translate("HelpArticle", "How does the Vault keep my footage safe?");
    case readOnlyPromise: return QCoreApplication::translate("HelpArticle", "Will this app ever change or delete anything on my drive?");
    case keyboardShortcuts: return QCoreApplication::translate("HelpArticle", "Keyboard shortcuts");
    }
    return {};
}

QString HelpArticle::symbolName() const
{
    switch (value_) {
    case sentryMode: return QStringLiteral("shield.checkered");
    case oneMinuteClips: return QStringLiteral("film");
    case corruptionExplained: return QStringLiteral("questionmark.video");
    case encryptionExplained: return QStringLiteral("lock.doc");
    case howVaultWorks: return QStringLiteral("lock.shield");
    case readOnlyPromise: return QStringLiteral("hand.raised");
    case keyboardShortcuts: return QStringLiteral("keyboard");
    }
    return {};
}

QStringList HelpArticle::paragraphs() const
{
    switch (value_) {
    case sentryMode:
        return {QCoreApplication::translate("HelpArticle", "Sentry Mode is your Tesla's built-in security system. While your car is parked, its cameras "
                               "watch for people or objects that come close, or for a bump or impact. When something "
                               "happens, the car saves a short recording from every camera into a \"Sentry event\" so you "
                               "can review it later."),
                QCoreApplication::translate("HelpArticle", "You can turn Sentry Mode on or off, and adjust its sensitivity, from your car's touchscreen "
                               "under Safety & Security.")};
    case oneMinuteClips:
        return {QCoreApplication::translate("HelpArticle", "Your Tesla records in one-minute segments, one file per camera per minute, rather than one "
                               "long continuous video. This is simply how the car's software is built — it makes the "
                               "recordings easier for the car to manage and less likely to be lost all at once if "
                               "something goes wrong."),
                QCoreApplication::translate("HelpArticle", "Keelhold stitches these one-minute files back together into a single, continuous timeline "
                               "for you, so you never have to think about the individual files — you just scrub through "
                               "one smooth timeline per event.")};
    case corruptionExplained:
        return {QCoreApplication::translate("HelpArticle", "Occasionally, a clip won't play — it might be zero bytes, cut off partway through, or simply "
                               "unreadable. This is a well-known issue with Tesla USB drives, especially with lower-quality "
                               "or aging drives, and it is not something you did."),
                QCoreApplication::translate("HelpArticle", "When this happens, Keelhold shows that camera angle as a labeled placeholder instead of "
                               "crashing or freezing, and counts it in Drive Health so you can see how often it's "
                               "happening. If it happens a lot, a newer USB 3.0 drive from a reputable brand usually "
                               "helps.")};
    case encryptionExplained:
        return {QCoreApplication::translate("HelpArticle", "Newer Tesla software can encrypt dashcam and Sentry clips so that only you can view them — "
                               "this is a privacy feature, not damage or an error. Encrypted files still look like normal "
                               "video files, but no app can decode their contents without the key of each clip."),
                QCoreApplication::translate("HelpArticle", "Keelhold safely backs up encrypted clips exactly as they are — the backup and "
                               "verification steps work the same either way."),
                QCoreApplication::translate("HelpArticle",
                                            "To watch them here, choose “Unlock Encrypted Footage…” and sign in with "
                                            "your Tesla account. Keelhold then asks Tesla for each clip's key, sending "
                                            "only the clip's locked key and your car's VIN, never any video, and keeps "
                                            "the keys so the footage plays here from then on, even offline. You can "
                                            "also watch them at %1, where your browser fetches the keys the same way.")
                    .arg(TeslaViewer::host()),
                //: Controls, Safety and "Encrypt Dashcam Recordings" are named as on the car's touchscreen
                QCoreApplication::translate("HelpArticle",
                                            "Want future footage to play right here instead? In your car: Controls → "
                                            "Safety → switch off \"Encrypt Dashcam Recordings\" (about 30 seconds — the "
                                            "app can walk you through it wherever you see the encryption notice). "
                                            "Everything already recorded is unaffected either way.")};
    case howVaultWorks:
        //: "Keep" and "Verified copy" are the app's own button and mark; translate them as there
        return {QCoreApplication::translate("HelpArticle",
                                            "When you choose \"Keep\" on an event, Keelhold copies every file for that "
                                            "event to a folder you chose (your \"Vault\") while checking the data as it "
                                            "copies. It then re-checks the copy's checksum (SHA-256) against the original "
                                            "to make sure the copy is a faithful, byte-for-byte match — you'll see it "
                                            "marked \"Verified copy\" afterward."),
                QCoreApplication::translate("HelpArticle",
                                            "Your Vault works completely independently of your car's drive: once "
                                            "something is kept, you can browse and watch it any time, even with the "
                                            "Tesla drive unplugged or gone entirely. Re-importing the same drive later "
                                            "automatically recognizes anything already kept, so you never end up with "
                                            "duplicates.")};
    case readOnlyPromise:
        //: %1 is the user's machine, e.g. "computer"
        return {QCoreApplication::translate("HelpArticle",
                                            "No. Keelhold only ever reads from your Tesla's drive — no code path in this "
                                            "app writes to it, renames anything on it, or deletes anything from it. The "
                                            "only place this app writes to is the Vault folder you choose on your %1 (or "
                                            "another drive you pick).")
                    .arg(PlatformWords::computer()),
                QCoreApplication::translate("HelpArticle",
                                            "This matters most right after something happens to your car: the drive "
                                            "from your glovebox is exactly as safe to hand to police or an insurer after "
                                            "using this app as it was before.")};
    case keyboardShortcuts:
        return {QCoreApplication::translate("HelpArticle", "You can review everything without touching the mouse:"),
                QCoreApplication::translate("HelpArticle",
                                            "A quick reminder of these appears under the playback controls until you "
                                            "hide it — and you can always come back here.")};
    }
    return {};
}

QStringList HelpArticle::listLines() const
{
    if (value_ != keyboardShortcuts)
        return {};
    //: A line of the keyboard help: the key, a dash, what it does. Name keys as keyboards there mark them
    return {QCoreApplication::translate("HelpArticle", "Space — play or pause all cameras together"),
            QCoreApplication::translate("HelpArticle", "← and → — skip back or forward 5 seconds"),
            QCoreApplication::translate("HelpArticle", ", and . — step one frame back or forward (pauses first)"),
            QCoreApplication::translate("HelpArticle",
                                        "1 to 7 — jump straight to a camera (in the order shown in the grid)"),
            QCoreApplication::translate("HelpArticle", "0 — back to all cameras"),
            QCoreApplication::translate("HelpArticle",
                                        "M — replay the moment it happened (just before the honk, bump, or detection)"),
            QCoreApplication::translate("HelpArticle",
                                        "N and Shift+N — jump to the next or previous thing that happened: someone "
                                        "moving in front of a camera (that camera is enlarged), or a hard brake, "
                                        "swerve or Autosteer switching off"),
            QCoreApplication::translate("HelpArticle", "F — fill the window with just the cameras (Esc goes back)"),
            QCoreApplication::translate("HelpArticle",
                                        "T — show or hide the car's driving data over the video (speed, pedals, "
                                        "steering, Autopilot)"),
            QCoreApplication::translate("HelpArticle", "↑ and ↓ — move through the event list, auto-playing each one"),
            QCoreApplication::translate("HelpArticle", "K — keep a safe copy of the selected event in your Vault"),
            QCoreApplication::translate("HelpArticle", "D — dismiss the selected event (never deletes any footage)")};
}
