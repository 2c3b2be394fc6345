#include "NewFootage.h"

#include "drive/TeslaCamParser.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace NewFootage {

namespace {

QString fileKey(const QString &name, qint64 size)
{
    return name + QLatin1Char('|') + QString::number(size);
}

// Every file of the records given, by name and size; the newest record of an
// event says what the Vault holds of it.
QSet<QString> heldFiles(const VaultIndex &vault, const std::vector<const ArchivedEvent *> &records)
{
    QSet<QString> held;
    for (const ArchivedEvent *record : records)
        if (record && vault.newestRecord(record->eventID) == record)
            for (const ArchivedFile &f : record->files)
                held.insert(fileKey(f.name, f.size));
    return held;
}

bool heldWhole(const TeslaEvent &event, const QSet<QString> &held)
{
    return !event.clips.empty() && std::all_of(event.clips.begin(), event.clips.end(), [&](const ClipRef &c) {
        return held.contains(fileKey(c.fileName(), c.fileSize));
    });
}

} // namespace

std::vector<TeslaEvent> unkept(const std::vector<TeslaEvent> &events, const VaultIndex &vault, bool withRecent)
{
    std::vector<const ArchivedEvent *> recentRecords;
    for (const ArchivedEvent &record : vault.events)
        if (record.kind == EventKind::recent)
            recentRecords.push_back(&record);
    const QSet<QString> recentHeld = heldFiles(vault, recentRecords);

    std::vector<TeslaEvent> out;
    for (const TeslaEvent &event : events) {
        if (event.kind != EventKind::recent) {
            const ArchivedEvent *record = vault.newestRecord(event.id());
            if (!record || !heldWhole(event, heldFiles(vault, {record})))
                out.push_back(event);
            continue;
        }
        if (!withRecent)
            continue;
        std::vector<ClipRef> fresh;
        std::copy_if(event.clips.begin(), event.clips.end(), std::back_inserter(fresh), [&](const ClipRef &c) {
            return !recentHeld.contains(fileKey(c.fileName(), c.fileSize));
        });
        if (fresh.size() == event.clips.size()) {
            out.push_back(event);
            continue;
        }
        for (TeslaEvent &part : TeslaCamParser::groupIntoRecentEvents(fresh, event.folderURL,
                                                                      TeslaCamParser::recentGapTolerance)) {
            part.encrypted = event.encrypted;
            out.push_back(std::move(part));
        }
    }
    return out;
}

} // namespace NewFootage
