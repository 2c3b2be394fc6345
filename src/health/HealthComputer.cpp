#include "health/HealthComputer.h"

#include "drive/ReadableFormats.h"
#include "model/PlatformWords.h"
#include "model/ArchivedEvent.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace HealthComputer {

namespace {

using Severity = Recommendation::Severity;

// Counts the scan's events that no Vault record matches. The stand-in record
// has no files, so it matches only a Vault record without files: an event
// that really was copied still counts here. That is deliberate, and
// "backup-new" keeps counting every event of the drive.
int unarchivedCount(const DriveScan &scan, const VaultIndex &vaultIndex)
{
    const QSet<QString> keys = vaultIndex.dedupeKeySet();
    const Date now = Date::now();
    int count = 0;
    for (const TeslaEvent &event : scan.events) {
        ArchivedEvent probe;
        probe.eventID = event.id();
        probe.kind = event.kind;
        probe.folderName = event.folderName;
        probe.timestamp = event.timestamp;
        probe.archivedAt = now;
        probe.sourceVolume = scan.volumeName;
        if (!keys.contains(probe.dedupeKey()))
            ++count;
    }
    return count;
}

} // namespace

QString percentText(double fraction)
{
    return QLocale().toString(qint64(std::round(fraction * 100.0)));
}

QString formatVerdict(const VolumeFormat &format, bool onSystemDisk)
{
    if (onSystemDisk)
        //: %1 is the word for the user's machine, e.g. "computer"
        return QCoreApplication::translate("HealthComputer",
                                           "These clips are in a folder on this %1, not on your car's drive, so "
                                           "there's nothing to reformat.")
            .arg(PlatformWords::computer());
    switch (format.kind()) {
    case VolumeFormat::exFAT:
        return QCoreApplication::translate("HealthComputer",
                                           "Your drive is formatted exFAT \u2014 exactly what your Tesla expects. No "
                                           "action needed.");
    case VolumeFormat::fat32:
        //: %1 names the tool to format a drive with, e.g. "a disk utility such as Disks"
        return QCoreApplication::translate("HealthComputer",
                                           "Your drive is formatted FAT32. Older Tesla software prefers exFAT for "
                                           "drives over 32 GB \u2014 if you ever see recording gaps, reformatting to "
                                           "exFAT (in %1, after backing up) can help.")
            .arg(PlatformWords::diskUtility());
    case VolumeFormat::apfs:
    case VolumeFormat::other:
        // The car records to ext3 and ext4 too: no advice to reformat those.
        if (ReadableFormats::carCanRecordTo(format))
            //: %1 is a file system name, e.g. ext4
            return QCoreApplication::translate("HealthComputer",
                                               "Your drive is formatted %1, which your car can record to. exFAT is "
                                               "the most widely used choice if you also read it on other computers.")
                .arg(format.otherName());
        // The computer's own disks read as APFS does elsewhere.
        if (ReadableFormats::isComputerDisk(format))
            //: %1 is a file system name, e.g. NTFS
            return QCoreApplication::translate("HealthComputer",
                                               "This drive is formatted %1, which your car cannot record to. "
                                               "Reformat it to exFAT before using it as a dashcam drive.")
                .arg(ReadableFormats::computerDiskName(format));
        //: %1 is a file system name
        return QCoreApplication::translate("HealthComputer",
                                           "This drive is formatted %1, which your car may not fully support. exFAT "
                                           "is the safest choice.")
            .arg(format.otherName());
    case VolumeFormat::unknown:
        break;
    }
    return QCoreApplication::translate("HealthComputer", "We couldn't determine how this drive is formatted.");
}

HealthReport compute(const DriveScan &scan, const VaultIndex &vaultIndex)
{
    HealthReport report;
    for (const TeslaEvent &event : scan.events) {
        for (const ClipRef &clip : event.clips) {
            if (clip.health == ClipHealth::unknown)
                continue;
            ++report.probedClipCount;
            if (clip.health != ClipHealth::ok && clip.health != ClipHealth::encrypted)
                ++report.corruptClipCount;
        }
    }
    if (scan.capacityBytes && scan.freeBytes && *scan.capacityBytes > 0)
        report.fullnessFraction = double(*scan.capacityBytes - *scan.freeBytes) / double(*scan.capacityBytes);
    report.formatVerdict = formatVerdict(scan.format, scan.onSystemDisk);
    report.encryptedClipsPresent = scan.encryptedClipsPresent;
    report.unarchivedEventCount = unarchivedCount(scan, vaultIndex);

    std::vector<Recommendation> &list = report.recommendations;
    if (report.unarchivedEventCount >= 1)
        list.push_back({QStringLiteral("backup-new"), Severity::warning,
                        QCoreApplication::translate("HealthComputer", "Back up %n new events", nullptr,
                                                    report.unarchivedEventCount),
                        QCoreApplication::translate("HealthComputer",
                                                    "These moments are only on your car's drive right now. Keep them "
                                                    "so they're safe even if the drive fills up or fails."),
                        QStringLiteral("tray.and.arrow.down")});
    if (const auto fullness = report.fullnessFraction) {
        // The thresholds look at the unrounded fraction.
        if (*fullness > 0.85)
            list.push_back({QStringLiteral("drive-full"), Severity::info,
                            //: %1 is a whole percentage; the % sign follows it
                            QCoreApplication::translate("HealthComputer", "%1% full \u2014 normal for a Tesla drive")
                                .arg(percentText(*fullness)),
                            QCoreApplication::translate("HealthComputer",
                                                        "The car reuses space by overwriting its oldest footage. "
                                                        "That's expected, not a problem \u2014 back up anything you "
                                                        "want to keep from the recommendation above."),
                            QStringLiteral("info.circle")});
        else if (*fullness > 0.6)
            list.push_back({QStringLiteral("drive-filling"), Severity::advice,
                            //: %1 is a whole percentage; the % sign follows it
                            QCoreApplication::translate("HealthComputer", "Drive is %1% full")
                                .arg(percentText(*fullness)),
                            QCoreApplication::translate("HealthComputer",
                                                        "Nothing urgent yet, but it's worth backing up regularly so "
                                                        "you're never caught out."),
                            QStringLiteral("chart.pie")});
    }
    const int corrupt = report.corruptClipCount;
    if (corrupt >= 1 && corrupt <= 4)
        list.push_back({QStringLiteral("some-corrupt"), Severity::info,
                        QCoreApplication::translate("HealthComputer", "%n clips didn't record properly", nullptr,
                                                    corrupt),
                        QCoreApplication::translate("HealthComputer",
                                                    "A small number of damaged clips is normal and not something to "
                                                    "worry about."),
                        QStringLiteral("info.circle")});
    else if (corrupt >= 5)
        list.push_back({QStringLiteral("many-corrupt"), Severity::warning,
                        QCoreApplication::translate("HealthComputer", "%n clips didn't record properly", nullptr,
                                                    corrupt),
                        QCoreApplication::translate("HealthComputer",
                                                    "This is a known issue with some Tesla USB drives, especially "
                                                    "cheaper or older ones. Consider a bigger-name USB 3.0 drive if "
                                                    "this keeps happening."),
                        QStringLiteral("questionmark.video")});
    if (scan.encryptedClipsPresent)
        list.push_back({QStringLiteral("encrypted"), Severity::info,
                        QCoreApplication::translate("HealthComputer", "Some clips are encrypted by your car"),
                        QCoreApplication::translate("HealthComputer",
                                                    "Recent Tesla software can encrypt dashcam footage. Keelhold can "
                                                    "still back these up \u2014 see Help for how to view them."),
                        QStringLiteral("lock.doc")});
    else if (list.empty())
        list.push_back({QStringLiteral("all-good"), Severity::info,
                        QCoreApplication::translate("HealthComputer", "Everything looks good"),
                        QCoreApplication::translate("HealthComputer",
                                                    "Your drive is healthy and up to date. Nothing needs your "
                                                    "attention right now."),
                        QStringLiteral("checkmark.seal")});

    std::stable_sort(list.begin(), list.end(),
                     [](const Recommendation &a, const Recommendation &b) { return a.severity > b.severity; });
    return report;
}

} // namespace HealthComputer
