#include "IncidentReport.h"

#include "base/CancellationError.h"
#include "base/ReadOnlyFs.h"
#include "crypt/KeyStore.h"
#include "drive/DriveBoundary.h"
#include "drive/EcryptfsHeader.h"
#include "export/Exporter.h"
#include "report/EvidencePackage.h"
#include "report/ReportContent.h"
#include "report/ReportDocument.h"
#include "report/ReportError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QUuid>
#include <cstdio>
#include <future>

namespace {

QString hiddenBeside(const QString &destination)
{
    const QFileInfo info(destination);
    return info.dir().filePath(QStringLiteral(".%1.partial-%2")
                                   .arg(info.fileName(), QUuid::createUuid().toString(QUuid::WithoutBraces)));
}

} // namespace

QString IncidentReport::suggestedFileName(const TeslaEvent &event)
{
    return QStringLiteral("Keelhold Report \u2014 %1.pdf").arg(Exporter::suggestedStem(event));
}

QString IncidentReport::suggestedPackageName(const TeslaEvent &event)
{
    return QStringLiteral("Keelhold Evidence \u2014 %1.zip").arg(Exporter::suggestedStem(event));
}

void IncidentReport::make(const TeslaEvent &event, const QString &destination, const Options &options)
{
    // Refused here too, whatever the caller checked: the car's drive is never written.
    if (DriveBoundary::writesIntoDriveOf({event}, destination))
        throw ReportError(DriveBoundary::exportRefusalText());
    if (!QFileInfo(QFileInfo(destination).absolutePath()).isDir())
        throw ReportError(tr("There is no folder at %1.").arg(QFileInfo(destination).absolutePath()));
    const auto report = [&](double fraction) {
        if (options.progress)
            options.progress(std::min(1.0, fraction));
    };
    ReportContent::Options gathering;
    gathering.vaultURL = options.vaultURL;
    gathering.readLimit = options.readLimit;
    gathering.stop = options.stop;
    gathering.tiles = options.tiles;
    const ReportDocument::Options look{options.miles, options.locale, options.version};

    if (!options.package) {
        gathering.progress = [&](double f) { report(f * 0.8); };
        const ReportContent content = ReportContent::gather(event, gathering);
        const QString hidden = hiddenBeside(destination);
        auto cleanUp = qScopeGuard([&] { QFile::remove(hidden); });
        ReportDocument::write(content, hidden, look);
        if (options.stop.stop_requested())
            throw CancellationError();
        if (std::rename(QFile::encodeName(hidden).constData(), QFile::encodeName(destination).constData()) != 0)
            throw ReportError(tr("The report couldn't be written there."));
        cleanUp.dismiss();
        report(1);
        return;
    }

    // The package: every original goes in, read once and hashed on the way,
    // while a second thread gathers the report's pictures and driving data
    // (the copying is the disk's and the decoding the processor's). The
    // report, made with the digests, follows the originals, then SHA256SUMS.
    std::stop_source gatherStop;
    const std::stop_callback forwardStop(options.stop, [&] { gatherStop.request_stop(); });
    gathering.stop = gatherStop.get_token();
    gathering.hashFiles = false;
    std::future<ReportContent> gathered =
        std::async(std::launch::async, [&event, gathering] { return ReportContent::gather(event, gathering); });
    // However the package ends, the gathering ends with it.
    const auto endGathering = qScopeGuard([&] {
        gatherStop.request_stop();
        if (gathered.valid())
            gathered.wait();
    });

    QTemporaryDir scratch;
    if (!scratch.isValid())
        throw ReportError(tr("There is no room for the report on this computer."));
    const QString reportPath = scratch.filePath(QStringLiteral("report.pdf"));
    std::vector<ClipRef> clips = event.clips;
    ClipOrder::sort(clips); // the report's order
    std::vector<EvidencePackage::Item> items;
    const QString folder = event.folderName;
    for (const ClipRef &clip : clips)
        items.push_back({clip.url, folder + QLatin1Char('/') + clip.fileName(), std::nullopt});
    const QString eventJson = QDir(event.folderURL).filePath(QStringLiteral("event.json"));
    if (!event.folderURL.isEmpty() && ReadOnlyFs::stat(eventJson).isRegularFile)
        items.push_back({eventJson, folder + QStringLiteral("/event.json"), std::nullopt});
    if (options.includeKeys && event.encrypted) {
        // Kept beside the event in the Vault, or gathered from this computer's store.
        const QString beside = QDir(event.folderURL).filePath(VaultKeys::fileName);
        if (ReadOnlyFs::stat(beside).isRegularFile) {
            items.push_back({beside, folder + QStringLiteral("/unlock-keys.json"), std::nullopt});
        } else {
            std::vector<KeyEntry> keys;
            for (const ClipRef &clip : clips)
                if (const Ecryptfs::Header header = Ecryptfs::read(clip.url); header.state == Ecryptfs::Header::State::ok)
                    if (const auto key = KeyStore::shared().find(header.keyBlock))
                        keys.push_back(KeyEntry{clip.fileName(), header.keyBlock.keyId, header.keyBlock.vin, *key,
                                                header.keyBlock.fingerprint()});
            if (!keys.empty() && VaultKeys::write(scratch.path(), keys))
                items.push_back({scratch.filePath(VaultKeys::fileName), folder + QStringLiteral("/unlock-keys.json"),
                                 std::nullopt});
        }
    }

    EvidencePackage::Options packing;
    packing.stop = options.stop;
    packing.readLimit = options.readLimit;
    packing.events = {event};
    packing.progress = report;
    packing.last = [&](const std::vector<QString> &digests) {
        ReportContent content = gathered.get();
        for (size_t i = 0; i < content.files.size() && i < digests.size(); ++i)
            content.files[i].sha256 = digests[i];
        ReportDocument::write(content, reportPath, look);
        return EvidencePackage::Item{reportPath, suggestedFileName(event), std::nullopt};
    };
    EvidencePackage::write(items, destination, packing);
    report(1);
}
