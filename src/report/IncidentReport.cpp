#include "report/IncidentReport.h"

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

namespace {

QString hiddenBeside(const QString &destination)
{
    const QFileInfo info(destination);
    return info.dir().filePath(QStringLiteral(".%1.partial-%2")
                                   .arg(info.fileName(), QUuid::createUuid().toString(QUuid::WithoutBraces)));
}

// The shares of the whole work each step takes, so progress moves evenly.
struct Shares {
    double gather;
    double document;
};

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
        throw ReportError(DriveBoundary::exportRefusal);
    if (!QFileInfo(QFileInfo(destination).absolutePath()).isDir())
        throw ReportError(tr("There is no folder at %1.").arg(QFileInfo(destination).absolutePath()));
    const Shares shares = options.package ? Shares{0.3, 0.05} : Shares{0.8, 0.2};
    const auto report = [&](double fraction) {
        if (options.progress)
            options.progress(std::min(1.0, fraction));
    };

    ReportContent::Options gathering;
    gathering.vaultURL = options.vaultURL;
    gathering.readLimit = options.readLimit;
    gathering.stop = options.stop;
    gathering.progress = [&](double f) { report(f * shares.gather); };
    const ReportContent content = ReportContent::gather(event, gathering);

    const ReportDocument::Options look{options.miles, options.locale, options.version, options.tiles};
    if (!options.package) {
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

    // The package: the report first, then every original as the report listed it.
    QTemporaryDir scratch;
    if (!scratch.isValid())
        throw ReportError(tr("There is no room for the report on this computer."));
    const QString reportName = suggestedFileName(event);
    const QString reportPath = scratch.filePath(QStringLiteral("report.pdf"));
    ReportDocument::write(content, reportPath, look);
    report(shares.gather + shares.document);
    if (options.stop.stop_requested())
        throw CancellationError();

    std::vector<EvidencePackage::Item> items;
    items.push_back({reportPath, reportName, std::nullopt});
    const QString folder = event.folderName;
    for (const ReportContent::File &file : content.files) {
        if (!file.sha256)
            throw ReportError(tr("%1 couldn't be read, so the package can't hold every original.").arg(file.name));
        items.push_back({file.path, folder + QLatin1Char('/') + file.name, file.sha256});
    }
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
            for (const ReportContent::File &file : content.files)
                if (const Ecryptfs::Header header = Ecryptfs::read(file.path); header.state == Ecryptfs::Header::State::ok)
                    if (const auto key = KeyStore::shared().find(header.keyBlock))
                        keys.push_back(KeyEntry{file.name, header.keyBlock.keyId, header.keyBlock.vin, *key,
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
    const double before = shares.gather + shares.document;
    packing.progress = [&](double f) { report(before + f * (1 - before)); };
    EvidencePackage::write(items, destination, packing);
    report(1);
}
