#include "KeepSummary.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

QString size(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

} // namespace

KeepSummary::Told KeepSummary::of(const ArchiveReport &report, const QString &driveName)
{
    const int kept = report.completeEvents();
    const int broken = int(report.failedFiles.size());
    if (report.stoppedBecause == ArchiveReport::StopReason::driveDisconnected)
        return {tr("Keeping stopped"),
                tr("%1 was disconnected before everything was kept: %n events kept and verified.", nullptr, kept).arg(driveName),
                true};
    if (report.cancelled)
        return {tr("Keeping stopped"), tr("Stopped keeping from %1: %n events kept and verified.", nullptr, kept).arg(driveName),
                true};
    if (broken > 0)
        return {tr("Some footage couldn't be kept"),
                //: %1 is the drive's name, %2 the first failed file's reason (a whole sentence)
                tr("Kept %n new events from %1, but some files couldn't be kept. %2", nullptr, kept)
                    .arg(driveName, report.failedFiles.front().reason),
                true};
    if (report.plannedEvents == 0)
        return {tr("Nothing new to keep"), tr("Everything on %1 is already in your Vault.").arg(driveName), false, false};
    return {tr("Footage kept"),
            //: %1 is the drive's name, %2 a size such as "1.2 GB"
            tr("Kept %n new events from %1 \u2014 %2, all verified", nullptr, kept).arg(driveName, size(report.bytesCopied)),
            false};
}
